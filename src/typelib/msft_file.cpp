#include "typelib/msft_file.h"

#include <cstdio>
#include <cstring>

#include "settings/ansi_text.h"
#include "typelib/msft_parser.h"

namespace quillet::typelib {

using msft::Parser;

namespace {

constexpr std::int64_t kHeaderSize = 0x54;
constexpr std::int64_t kTypeInfoSize = 0x64;
constexpr int kHelpDllFlag = 0x100;

void readSegments(Parser& p, std::int64_t at) {
    p.file.require(at, msft::kSegmentCount * 16, "segment directory");
    for (int i = 0; i < msft::kSegmentCount; ++i) {
        std::int32_t offset = p.file.i32(at + i * 16, "segment directory");
        std::int32_t length = p.file.i32(at + i * 16 + 4, "segment directory");
        if (length <= 0) continue;
        p.segments[i] = p.file.sub(offset, length, "segment");
    }
}

void readTypeDescs(const Parser& p, MsftFile& out) {
    ByteView table = p.segments[msft::kTypeDescTab];
    std::size_t count = table.size() / 8;
    out.TypeDescs.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        std::int64_t at = static_cast<std::int64_t>(i) * 8;
        MsftTypeDesc desc;
        desc.Vt = table.u16(at, "type description") & 0x0FFF;
        std::int16_t low = table.i16(at + 4, "type description");
        std::int16_t high = table.i16(at + 6, "type description");
        std::int32_t both = static_cast<std::int32_t>(static_cast<std::uint16_t>(low) |
                                                      (static_cast<std::uint32_t>(static_cast<std::uint16_t>(high)) << 16));
        if (desc.Vt == VT_PTR || desc.Vt == VT_SAFEARRAY) {
            // A negative high half holds a plain type in the low half.
            desc.Inner = high < 0 ? static_cast<std::int32_t>(0x80000000u | (low & 0x0FFF)) : both;
        } else if (desc.Vt == VT_CARRAY) {
            ByteView arrays = p.segments[msft::kArrayDescriptions];
            std::int16_t elemLow = arrays.i16(both, "array description");
            std::int16_t elemHigh = arrays.i16(static_cast<std::int64_t>(both) + 2, "array description");
            desc.Inner = elemHigh < 0 ? static_cast<std::int32_t>(0x80000000u | (elemLow & 0x0FFF))
                                      : static_cast<std::int32_t>(static_cast<std::uint16_t>(elemLow) |
                                                                  (static_cast<std::uint32_t>(elemHigh) << 16));
        } else if (desc.Vt == VT_USERDEFINED) {
            desc.Reference = static_cast<std::uint32_t>(both);
        }
        out.TypeDescs.push_back(desc);
    }
}

void readImportFiles(const Parser& p, MsftFile& out) {
    ByteView files = p.segments[msft::kImpFiles];
    std::int64_t at = 0;
    while (at + 14 <= static_cast<std::int64_t>(files.size())) {
        MsftImportFile file;
        file.Offset = static_cast<std::int32_t>(at);
        file.Guid = p.Guid(files.i32(at, "import file"));
        file.Major = files.u16(at + 8, "import file");
        file.Minor = files.u16(at + 10, "import file");
        std::int64_t length = files.u16(at + 12, "import file") >> 2;
        file.FileName = settings::fromAnsi(files.bytes(at + 14, length, "import file name"));
        out.ImportFiles.push_back(std::move(file));
        at = (at + 14 + length + 3) & ~std::int64_t{3};
    }
}

void readImportInfos(const Parser& p, MsftFile& out) {
    ByteView infos = p.segments[msft::kImpInfo];
    for (std::int64_t at = 0; at + 12 <= static_cast<std::int64_t>(infos.size()); at += 12) {
        MsftImportInfo info;
        std::int32_t flags = infos.i32(at, "import info");
        std::int32_t file = infos.i32(at + 4, "import info");
        std::int32_t guidOrIndex = infos.i32(at + 8, "import info");
        for (std::size_t i = 0; i < out.ImportFiles.size(); ++i)
            if (out.ImportFiles[i].Offset == file) info.ImportFile = static_cast<std::int32_t>(i);
        info.ByGuid = (flags & 0x10000) != 0;
        if (info.ByGuid)
            info.Guid = p.Guid(guidOrIndex);
        else
            info.Index = guidOrIndex;
        out.ImportInfos.push_back(std::move(info));
    }
}

MsftTypeInfo readTypeInfo(const Parser& p, long index) {
    ByteView table = p.segments[msft::kTypeInfoTab];
    std::int64_t at = index * kTypeInfoSize;
    table.require(at, kTypeInfoSize, "type info");
    MsftTypeInfo info;
    std::int32_t kind = table.i32(at, "type info");
    info.Kind = kind & 0xF;
    if (info.Kind > TKIND_UNION) throw TypeLibError("damaged type library: unknown type kind");
    std::int32_t memOffset = table.i32(at + 4, "type info");
    std::uint32_t elements = table.u32(at + 0x18, "type info");
    info.Guid = p.Guid(table.i32(at + 0x2C, "type info"));
    info.Flags = table.i32(at + 0x30, "type info");
    info.Name = p.Name(table.i32(at + 0x34, "type info"));
    info.HelpString = p.String(table.i32(at + 0x3C, "type info"));
    info.HelpContext = table.i32(at + 0x44, "type info");
    int implCount = table.i16(at + 0x4C, "type info");
    info.DataType1 = table.i32(at + 0x54, "type info");
    int funcCount = static_cast<int>(elements & 0xFFFF);
    int varCount = static_cast<int>(elements >> 16);
    if (funcCount + varCount > 0) p.Members(info, memOffset, funcCount, varCount);
    if (info.Kind == TKIND_COCLASS && implCount > 0) p.ImplTypes(info, info.DataType1, implCount);
    return info;
}

}  // namespace

bool LooksLikeMsft(ByteView bytes) { return bytes.size() >= 4 && std::memcmp(bytes.data(), "MSFT", 4) == 0; }

const MsftTypeDesc& MsftFile::TypeDescOf(std::int32_t dataType) const {
    if (dataType < 0 || dataType % 8 != 0 || static_cast<std::size_t>(dataType / 8) >= TypeDescs.size())
        throw TypeLibError("damaged type library: a type description lies outside its table");
    return TypeDescs[static_cast<std::size_t>(dataType / 8)];
}

const MsftImportInfo& MsftFile::ImportOf(std::uint32_t reference) const {
    std::size_t index = (reference & ~3u) / 12;
    if ((reference & ~3u) % 12 != 0 || index >= ImportInfos.size())
        throw TypeLibError("damaged type library: an imported type lies outside its table");
    return ImportInfos[index];
}

MsftFile ParseMsft(ByteView bytes) {
    if (bytes.size() >= 4 && std::memcmp(bytes.data(), "SLTG", 4) == 0)
        throw TypeLibError("SLTG type libraries (16-bit era format) are not supported");
    if (!LooksLikeMsft(bytes)) throw TypeLibError("not a type library (no MSFT signature)");
    Parser p{bytes, {}};
    bytes.require(0, kHeaderSize, "header");
    std::int32_t varflags = bytes.i32(0x14, "header");
    std::int32_t typeInfoCount = bytes.i32(0x20, "header");
    if (typeInfoCount < 0 || static_cast<std::uint64_t>(typeInfoCount) > bytes.size() / kTypeInfoSize)
        throw TypeLibError("damaged type library: impossible count of type infos");
    readSegments(p, kHeaderSize + typeInfoCount * 4 + ((varflags & kHelpDllFlag) ? 4 : 0));
    if (static_cast<std::uint64_t>(typeInfoCount) * kTypeInfoSize > p.segments[msft::kTypeInfoTab].size())
        throw TypeLibError("damaged type library: the type info table is too short");

    MsftFile out;
    out.Guid = p.Guid(bytes.i32(0x08, "header"));
    std::uint32_t version = bytes.u32(0x18, "header");
    out.Major = static_cast<int>(version & 0xFFFF);
    out.Minor = static_cast<int>(version >> 16);
    out.HelpString = p.String(bytes.i32(0x24, "header"));
    out.HelpContext = bytes.i32(0x2C, "header");
    out.Name = p.Name(bytes.i32(0x38, "header"));
    out.HelpFile = p.String(bytes.i32(0x3C, "header"));
    readTypeDescs(p, out);
    readImportFiles(p, out);
    readImportInfos(p, out);
    out.TypeInfos.reserve(static_cast<std::size_t>(typeInfoCount));
    for (long i = 0; i < typeInfoCount; ++i) out.TypeInfos.push_back(readTypeInfo(p, i));
    return out;
}

}  // namespace quillet::typelib
