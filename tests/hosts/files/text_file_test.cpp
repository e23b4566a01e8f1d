#include "hosts/files/text_file.h"

#include <gtest/gtest.h>

#include "hosts/files/project_error.h"

namespace quillet::hosts::files {
namespace {

TextLines read(std::string_view bytes, CodePage codePage = CodePage::Windows1252) {
    return readTextLines(bytes, codePage, "m.bas");
}

TEST(FilesTextFile, FinalCrLfEndsTheLastLineWithoutAddingOne) {
    TextLines text = read("a\r\nb\r\n");
    EXPECT_EQ(text.lines, (std::vector<Str>{u"a", u"b"}));
    EXPECT_EQ(text.layout.eol, u"\r\n");
    EXPECT_TRUE(text.layout.finalEol);
    EXPECT_EQ(writeTextLines(text.lines, text.layout), "a\r\nb\r\n");
}

TEST(FilesTextFile, KeepsLfOnlyAndMissingFinalLineEnd) {
    TextLines text = read("a\nb");
    EXPECT_EQ(text.lines, (std::vector<Str>{u"a", u"b"}));
    EXPECT_EQ(text.layout.eol, u"\n");
    EXPECT_FALSE(text.layout.finalEol);
    EXPECT_EQ(writeTextLines(text.lines, text.layout), "a\nb");
}

TEST(FilesTextFile, EmptyLinesAndEmptyFile) {
    EXPECT_EQ(read("\r\n\r\n").lines, (std::vector<Str>{u"", u""}));
    TextLines empty = read("");
    EXPECT_TRUE(empty.lines.empty());
    EXPECT_EQ(writeTextLines(empty.lines, empty.layout), "");
}

TEST(FilesTextFile, DecodesCp1252) {
    TextLines text = read("' Caf\xE9 \x80\r\n");
    EXPECT_EQ(text.lines[0], u"' Caf\u00E9 \u20AC");
    EXPECT_EQ(writeTextLines(text.lines, text.layout), "' Caf\xE9 \x80\r\n");
}

TEST(FilesTextFile, ByteOrderMarkMeansUtf8AndIsKept) {
    TextLines text = read("\xEF\xBB\xBF" "caf\xC3\xA9\r\n");
    EXPECT_EQ(text.lines[0], u"caf\u00E9");
    EXPECT_TRUE(text.layout.bom);
    EXPECT_EQ(writeTextLines(text.lines, text.layout), "\xEF\xBB\xBF" "caf\xC3\xA9\r\n");
}

void expectError(std::string_view bytes, const std::string& fragment, CodePage codePage = CodePage::Windows1252) {
    try {
        read(bytes, codePage);
        FAIL() << "no error for " << fragment;
    } catch (const ProjectError& error) {
        EXPECT_NE(std::string(error.what()).find("m.bas: "), std::string::npos) << error.what();
        EXPECT_NE(std::string(error.what()).find(fragment), std::string::npos) << error.what();
    }
}

TEST(FilesTextFile, BinaryAndUndecodableDataAreErrors) {
    expectError(std::string("ab\0cd", 5), "binary data (byte 0x0 at offset 2)");
    expectError("a\x01" "b", "binary data");
    expectError("\xFF\xFEh\0", "UTF-16");
    expectError("ok\r\n\xE9t\xE9", "cannot be decoded as UTF-8 (invalid byte at offset 4)", CodePage::Utf8);
}

}  // namespace
}  // namespace quillet::hosts::files
