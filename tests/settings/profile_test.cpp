// The portable profile functions against the Windows contract. (The same sequences of calls are
// to be replayed through the Windows functions under Wine and the files compared byte for byte;
// that harness belongs with the Windows tests.)

#include "settings/profile.h"

#include "settings_fixture.h"

namespace quillet::settings::testing {
namespace {

using PortableProfileTest = SettingsTest;

const Str kFile = u"T:\\p.ini";

Str nul() { return Str(1, u'\0'); }

TEST_F(PortableProfileTest, SectionNamesComeInFileOrderNulSeparated) {
    writeBytes("p.ini", "; top\r\n[b]\r\nx=1\r\n\r\n[A]\r\n[c]\r\n");
    Str buffer;
    long n = settings.Profile().GetPrivateProfileSectionNamesA(buffer, 100, kFile);
    EXPECT_EQ(n, 6);
    EXPECT_EQ(buffer.substr(0, 7), u"b" + nul() + u"A" + nul() + u"c" + nul() + nul());
}

TEST_F(PortableProfileTest, TooSmallBufferGivesSizeLessTwo) {
    writeBytes("p.ini", "[alpha]\r\n[beta]\r\n");
    Str buffer;
    EXPECT_EQ(settings.Profile().GetPrivateProfileSectionNamesA(buffer, 8, kFile), 6);
    EXPECT_EQ(buffer, u"alpha" + nul() + Str(2, u'\0'));
    EXPECT_EQ(settings.Profile().GetPrivateProfileSectionNamesA(buffer, 12, kFile), 11);
}

TEST_F(PortableProfileTest, MissingFileHasNoSections) {
    Str buffer;
    EXPECT_EQ(settings.Profile().GetPrivateProfileSectionNamesA(buffer, 100, kFile), 0);
    EXPECT_EQ(settings.Profile().GetPrivateProfileSectionA(u"x", buffer, 100, kFile), 0);
}

TEST_F(PortableProfileTest, SectionLinesAreTrimmedAndCommentsAndBlanksLeftOut) {
    writeBytes("p.ini", "[S]\r\n  key = value  \r\n; comment\r\n\r\nbare\r\n=x\r\n#note\r\n[T]\r\ny=2\r\n");
    Str buffer;
    long n = settings.Profile().GetPrivateProfileSectionA(u"s", buffer, 100, kFile);
    Str expected = u"key=value" + nul() + u"bare" + nul() + u"=x" + nul() + u"#note" + nul();
    EXPECT_EQ(n, static_cast<long>(expected.size()));
    EXPECT_EQ(buffer.substr(0, expected.size() + 1), expected + nul());
}

TEST_F(PortableProfileTest, WriteStringCreatesFileSectionAndKey) {
    EXPECT_EQ(settings.Profile().WritePrivateProfileStringA(u"S", u"k", u"v", kFile), 1);
    EXPECT_EQ(readBytes("p.ini"), "[S]\r\nk=v\r\n");
    settings.Profile().WritePrivateProfileStringA(u"s", u"K", u"w", kFile);
    settings.Profile().WritePrivateProfileStringA(u"s", u"k2", u"x", kFile);
    settings.Profile().WritePrivateProfileStringA(u"T", u"a", u"b", kFile);
    EXPECT_EQ(readBytes("p.ini"), "[S]\r\nk=w\r\nk2=x\r\n[T]\r\na=b\r\n");
}

TEST_F(PortableProfileTest, WriteStringDeletesKeyOrSection) {
    writeBytes("p.ini", "[S]\r\na=1\r\nb=2\r\n[T]\r\nc=3\r\n");
    settings.Profile().WritePrivateProfileStringA(u"S", u"A", std::nullopt, kFile);
    EXPECT_EQ(readBytes("p.ini"), "[S]\r\nb=2\r\n[T]\r\nc=3\r\n");
    settings.Profile().WritePrivateProfileStringA(u"s", std::nullopt, std::nullopt, kFile);
    EXPECT_EQ(readBytes("p.ini"), "[T]\r\nc=3\r\n");
}

TEST_F(PortableProfileTest, NullSectionTextDeletesSectionWithHeader) {
    writeBytes("p.ini", "[A]\r\nx=1\r\n\r\n[B]\r\ny=2\r\n\r\n[C]\r\nz=3\r\n");
    EXPECT_EQ(settings.Profile().WritePrivateProfileSectionA(u"b", std::nullopt, kFile), 1);
    EXPECT_EQ(readBytes("p.ini"), "[A]\r\nx=1\r\n\r\n[C]\r\nz=3\r\n");
}

TEST_F(PortableProfileTest, EmptySectionTextLeavesTheHeader) {
    writeBytes("p.ini", "[A]\r\nx=1\r\n\r\n[B]\r\ny=2\r\n");
    settings.Profile().WritePrivateProfileSectionA(u"A", nul(), kFile);
    EXPECT_EQ(readBytes("p.ini"), "[A]\r\n\r\n[B]\r\ny=2\r\n");
}

TEST_F(PortableProfileTest, SectionTextReplacesLinesAndKeepsOtherSectionsByteForByte) {
    writeBytes("p.ini", "junk above\n[A]\nx=1\n; keep me\ny=2\n\n[B]\n  odd   line  \n");
    settings.Profile().WritePrivateProfileSectionA(u"a", u"k=v" + nul() + u"#c" + nul() + nul(), kFile);
    EXPECT_EQ(readBytes("p.ini"), "junk above\n[A]\n; keep me\nk=v\n#c\n\n[B]\n  odd   line  \n");
}

TEST_F(PortableProfileTest, SectionTextAppendsAMissingSection) {
    writeBytes("p.ini", "[A]\r\nx=1");
    settings.Profile().WritePrivateProfileSectionA(u"B", u"k=v" + nul() + nul(), kFile);
    EXPECT_EQ(readBytes("p.ini"), "[A]\r\nx=1\r\n[B]\r\nk=v\r\n");
}

TEST_F(PortableProfileTest, MissingFolderFailsWithPathNotFound) {
    EXPECT_EQ(settings.Profile().WritePrivateProfileStringA(u"S", u"k", u"v", u"T:\\nope\\p.ini"), 0);
    EXPECT_EQ(settings.Profile().LastError(), fserr::PathNotFound);
}

TEST_F(PortableProfileTest, ReadOnlyFileIsNotChanged) {
    writeBytes("p.ini", "[S]\r\nk=v\r\n");
    std::filesystem::permissions(machine("p.ini"), std::filesystem::perms::owner_read);
    EXPECT_EQ(settings.Profile().WritePrivateProfileStringA(u"S", u"k", u"w", kFile), 0);
    EXPECT_EQ(settings.Profile().LastError(), fserr::AccessDenied);
    EXPECT_EQ(readBytes("p.ini"), "[S]\r\nk=v\r\n");
}

TEST_F(PortableProfileTest, WritesLeaveNoTemporaryFilesBehind) {
    settings.Profile().WritePrivateProfileStringA(u"S", u"k", u"v", kFile);
    settings.Profile().WritePrivateProfileSectionA(u"S", u"a=b" + nul() + nul(), kFile);
    long count = 0;
    for (auto& entry : std::filesystem::directory_iterator(dir)) count += entry.is_regular_file();
    EXPECT_EQ(count, 1);
}

TEST_F(PortableProfileTest, AnsiTextRoundTrips) {
    writeBytes("p.ini", "[S]\r\nk=caf\xe9 \x80\r\n");
    Str buffer;
    settings.Profile().GetPrivateProfileSectionA(u"S", buffer, 100, kFile);
    EXPECT_EQ(buffer.substr(0, 8), u"k=caf\u00e9 \u20ac");
    settings.Profile().WritePrivateProfileStringA(u"S", u"k2", u"\u00e9", kFile);
    EXPECT_EQ(readBytes("p.ini"), "[S]\r\nk=caf\xe9 \x80\r\nk2=\xe9\r\n");
}

}  // namespace
}  // namespace quillet::settings::testing
