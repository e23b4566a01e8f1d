// Damaged, truncated and looping libraries give TypeLibError, never a crash or a hang.

#include "typelib/msft_file.h"
#include "typelib/msft_reader.h"

#include "../typelib/typelib_fixture.h"

namespace quillet::typelib {
namespace {

using namespace testing;

// Reads everything a library offers; gives the first error, or "" when all read.
std::string readAll(const std::vector<std::uint8_t>& bytes) {
    try {
        TypeLibraryPtr library = OpenLibraryBytes(bytes);
        library->SearchItems();
        for (long i = 0; i < library->TypeInfoCount(); ++i) {
            TypeInfoPtr info = library->TypeInfoAt(i);
            if (info->TypeKind() == TKIND_ALIAS) info->AliasTarget();
            info->Members();
        }
        return {};
    } catch (const TypeLibError& error) {
        return error.what();
    }
}

void putI32(std::vector<std::uint8_t>& bytes, std::size_t at, std::int32_t value) {
    for (int i = 0; i < 4; ++i) bytes[at + i] = static_cast<std::uint8_t>(static_cast<std::uint32_t>(value) >> (8 * i));
}

std::int32_t getI32(const std::vector<std::uint8_t>& bytes, std::size_t at) {
    return static_cast<std::int32_t>(bytes[at] | (bytes[at + 1] << 8) | (bytes[at + 2] << 16) |
                                     (static_cast<std::uint32_t>(bytes[at + 3]) << 24));
}

class MsftHostileTest : public ::testing::Test {
protected:
    std::vector<std::uint8_t> bytes = fileBytes(fixturePath("qltshapes.tlb"));
    MsftFile parsed = ParseMsft(ByteView(bytes.data(), bytes.size()));

    // Where segment n of the directory says it starts.
    std::size_t segmentOffset(int n) {
        std::size_t directory = 0x54 + static_cast<std::size_t>(getI32(bytes, 0x20)) * 4 +
                                ((getI32(bytes, 0x14) & 0x100) ? 4 : 0);
        return static_cast<std::size_t>(getI32(bytes, directory + static_cast<std::size_t>(n) * 16));
    }
    long indexOf(const Str& name) {
        for (std::size_t i = 0; i < parsed.TypeInfos.size(); ++i)
            if (parsed.TypeInfos[i].Name == name) return static_cast<long>(i);
        return -1;
    }
};

TEST_F(MsftHostileTest, TheIntactLibraryReadsWhole) { EXPECT_EQ(readAll(bytes), ""); }

TEST_F(MsftHostileTest, EveryTruncationIsAClearError) {
    for (std::size_t length = 0; length < bytes.size(); length += 3) {
        std::vector<std::uint8_t> cut(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length));
        std::string error = readAll(cut);
        EXPECT_FALSE(error.empty()) << "a library cut at " << length << " read without error";
    }
}

TEST_F(MsftHostileTest, HugeCountsAreRefused) {
    std::vector<std::uint8_t> huge = bytes;
    putI32(huge, 0x20, 0x7FFFFFFF);
    EXPECT_EQ(readAll(huge), "damaged type library: impossible count of type infos");
    std::vector<std::uint8_t> members = bytes;
    // Every function and variable count of the first type info at its maximum.
    putI32(members, segmentOffset(0) + 0x18, -1);
    EXPECT_NE(readAll(members), "");
}

TEST_F(MsftHostileTest, EveryCorruptWordIsSurvived) {
    // Each 4-byte word set to a hostile value in turn: the reader may read it or refuse it.
    for (std::size_t at = 0; at + 4 <= bytes.size(); at += 4) {
        for (std::int32_t value : {-1, 0x7FFFFFFF, 0x10000}) {
            std::vector<std::uint8_t> bad = bytes;
            putI32(bad, at, value);
            readAll(bad);
        }
    }
    SUCCEED();
}

TEST_F(MsftHostileTest, APointerChainThatLoopsIsAnError) {
    // The first pointer description is made to point at itself.
    std::size_t table = segmentOffset(9);
    for (std::size_t i = 0; i < parsed.TypeDescs.size(); ++i) {
        if (parsed.TypeDescs[i].Vt != VT_PTR) continue;
        std::vector<std::uint8_t> looped = bytes;
        putI32(looped, table + i * 8 + 4, static_cast<std::int32_t>(i * 8));
        EXPECT_EQ(readAll(looped), "damaged type library: a type description loops");
        return;
    }
    FAIL() << "no pointer description";
}

TEST_F(MsftHostileTest, AnInterfaceInheritingFromItselfIsAnError) {
    long circle = indexOf(u"ICircle");
    ASSERT_GE(circle, 0);
    std::vector<std::uint8_t> looped = bytes;
    putI32(looped, segmentOffset(0) + static_cast<std::size_t>(circle) * 0x64 + 0x54, circle * 0x64);
    EXPECT_EQ(readAll(looped), "damaged type library: an interface inherits from itself");
}

TEST_F(MsftHostileTest, AnAliasChainThatLoopsReadsStepByStep) {
    // ColorAlias names ColorAlias2, which names ColorAlias: each step reads, the loop is the caller's
    // to stop (the library scan bounds it).
    long alias = indexOf(u"ColorAlias"), alias2 = indexOf(u"ColorAlias2");
    std::int32_t desc = parsed.TypeInfos[static_cast<std::size_t>(alias)].DataType1;
    std::vector<std::uint8_t> looped = bytes;
    putI32(looped, segmentOffset(9) + static_cast<std::size_t>(desc) + 4, alias2 * 0x64);
    TypeLibraryPtr library = OpenLibraryBytes(looped);
    TypeInfoPtr step = library->TypeInfoAt(alias);
    for (int i = 0; i < 10; ++i) {
        step = step->AliasTarget().TypeInfo;
        ASSERT_TRUE(step);
        EXPECT_EQ(step->TypeKind(), TKIND_ALIAS);
    }
}

}  // namespace
}  // namespace quillet::typelib
