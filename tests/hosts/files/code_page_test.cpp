#include "hosts/files/code_page.h"

#include <gtest/gtest.h>

namespace quillet::hosts::files {
namespace {

TEST(FilesCodePage, EveryCp1252ByteRoundTrips) {
    std::string bytes;
    for (int b = 0; b < 256; ++b) bytes += static_cast<char>(b);
    auto text = decodeBytes(bytes, CodePage::Windows1252);
    ASSERT_TRUE(text);
    ASSERT_EQ(text->size(), 256u);
    EXPECT_EQ(encodeText(*text, CodePage::Windows1252), bytes);
}

TEST(FilesCodePage, Cp1252HighBytesMapAsWindowsDoes) {
    EXPECT_EQ(cp1252ToUnicode(0x80), u'\u20AC');
    EXPECT_EQ(cp1252ToUnicode(0x92), u'\u2019');
    EXPECT_EQ(cp1252ToUnicode(0x9F), u'\u0178');
    EXPECT_EQ(cp1252ToUnicode(0xE9), u'\u00E9');
    for (unsigned char undefined : {0x81, 0x8D, 0x8F, 0x90, 0x9D}) EXPECT_EQ(cp1252ToUnicode(undefined), undefined);
    EXPECT_EQ(unicodeToCp1252(u'\u20AC'), 0x80);
    EXPECT_FALSE(unicodeToCp1252(u'\u0100'));
}

TEST(FilesCodePage, CharactersOutsideCp1252BecomeOneQuestionMark) {
    EXPECT_EQ(encodeText(u"a\u0100b\U0001F600c", CodePage::Windows1252), "a?b?c");
}

TEST(FilesCodePage, Utf8MustBeWellFormed) {
    EXPECT_EQ(*decodeBytes("caf\xC3\xA9", CodePage::Utf8), u"caf\u00E9");
    size_t bad = 0;
    EXPECT_FALSE(decodeBytes("ab\xE9z", CodePage::Utf8, &bad));
    EXPECT_EQ(bad, 2u);
    EXPECT_FALSE(decodeBytes("\xC0\x80", CodePage::Utf8, &bad));   // overlong
    EXPECT_FALSE(decodeBytes("\xED\xA0\x80", CodePage::Utf8, &bad));  // surrogate
    EXPECT_FALSE(decodeBytes("ab\xC3", CodePage::Utf8, &bad));  // cut short
    EXPECT_EQ(bad, 2u);
    EXPECT_EQ(encodeText(u"caf\u00E9", CodePage::Utf8), "caf\xC3\xA9");
}

TEST(FilesCodePage, NamesAndNumbers) {
    EXPECT_EQ(codePageNamed("1252"), CodePage::Windows1252);
    EXPECT_EQ(codePageNamed("Windows-1252"), CodePage::Windows1252);
    EXPECT_EQ(codePageNamed("UTF-8"), CodePage::Utf8);
    EXPECT_EQ(codePageNamed("65001"), CodePage::Utf8);
    EXPECT_FALSE(codePageNamed("437"));
}

}  // namespace
}  // namespace quillet::hosts::files
