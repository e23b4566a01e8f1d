// The INI store: loading, the line rules, and saving section by section.

#include "settings/ini_file.h"

#include "settings_fixture.h"

namespace quillet::settings::testing {
namespace {

class C4IniFileTest : public SettingsTest {
protected:
    std::unique_ptr<C4_IniFile> open(const Str& name) {
        auto ini = std::make_unique<C4_IniFile>(settings);
        ini->Name(name);
        return ini;
    }
};

TEST_F(C4IniFileTest, BareFileNameGoesToTheRootFolder) {
    auto ini = open(u"qltusr.ini");
    EXPECT_EQ(ini->Name(), u"T:\\root\\qltusr.ini");
}

TEST_F(C4IniFileTest, PathWhoseFolderExistsStaysAsItIs) {
    std::filesystem::create_directories(machine("elsewhere"));
    EXPECT_EQ(open(u"T:\\elsewhere\\x.ini")->Name(), u"T:\\elsewhere\\x.ini");
}

TEST_F(C4IniFileTest, MissingFolderThatHoldsTheRootEndsEmpty) {
    EXPECT_EQ(open(u"T:\\root\\missing\\x.ini")->Name(), u"");
}

TEST_F(C4IniFileTest, MissingFolderWithoutTheRootGoesBelowIt) {
    std::filesystem::create_directories(machine("root/sub"));
    EXPECT_EQ(open(u"\\sub\\x.ini")->Name(), u"T:\\root\\sub\\x.ini");
    EXPECT_EQ(open(u"\\nosub\\x.ini")->Name(), u"");
}

TEST_F(C4IniFileTest, EmptyPathDoesNothing) {
    C4_IniFile ini(settings);
    ini.Name(u"");
    EXPECT_EQ(ini.Name(), u"");
    EXPECT_EQ(ini.Count(), 0);
}

TEST_F(C4IniFileTest, SectionsAndKeysInFileOrderIgnoringCase) {
    writeBytes("root/a.ini", "[One]\r\nb=2\r\na=1\r\n[Two]\r\nz=26\r\n");
    auto ini = open(u"a.ini");
    ASSERT_EQ(ini->Count(), 2);
    EXPECT_EQ(ini->Item(1)->Name, u"One");
    EXPECT_EQ(ini->Item(2)->Name, u"Two");
    EXPECT_EQ(ini->Item(u"one")->Item(1)->Key, u"b");
    EXPECT_EQ(ini->Value(u"ONE", u"A"), u"1");
    EXPECT_TRUE(ini->ValueExists(u"two", u"Z"));
    EXPECT_FALSE(ini->ValueExists(u"two", u"y"));
    EXPECT_EQ(ini->Item(u"three"), nullptr);
    EXPECT_EQ(ini->Item(3), nullptr);
    EXPECT_EQ(ini->SectionContent(u"one"), u"b=2" + Str(1, u'\0') + u"a=1");
}

TEST_F(C4IniFileTest, LongSectionLoadsWhole) {
    std::string text = "[Big]\r\n";
    for (int i = 0; i < 200; ++i) text += "key" + std::to_string(i) + "=value number " + std::to_string(i) + "\r\n";
    writeBytes("root/big.ini", text);
    auto ini = open(u"big.ini");
    EXPECT_EQ(ini->Item(u"Big")->Count(), 200);
    EXPECT_EQ(ini->Value(u"Big", u"key199"), u"value number 199");
}

TEST_F(C4IniFileTest, LongListOfSectionNamesLoadsWhole) {
    std::string text;
    for (int i = 0; i < 150; ++i) text += "[A fairly long section name " + std::to_string(i) + "]\r\nk=" + std::to_string(i) + "\r\n";
    writeBytes("root/names.ini", text);
    auto ini = open(u"names.ini");
    EXPECT_EQ(ini->Count(), 150);
    EXPECT_EQ(ini->Value(u"A fairly long section name 149", u"k"), u"149");
}

TEST_F(C4IniFileTest, LineRulesOnLoad) {
    writeBytes("root/r.ini", "[S]\r\na=b=c\r\n=x\r\nkey=\r\nbare\r\n dup = first\r\nDUP=second\r\n");
    auto ini = open(u"r.ini");
    auto* s = ini->Item(u"S");
    EXPECT_EQ(ini->Value(u"S", u"a"), u"c");
    EXPECT_TRUE(ini->ValueExists(u"S", u"x"));
    EXPECT_EQ(ini->Value(u"S", u"x"), u"");
    EXPECT_EQ(ini->Value(u"S", u"key"), u"");
    EXPECT_EQ(ini->Value(u"S", u"bare"), u"");
    EXPECT_EQ(ini->Value(u"S", u"dup"), u"first");
    EXPECT_EQ(s->Count(), 5);
}

TEST_F(C4IniFileTest, EmptyValuesAreWrittenBackWithEquals) {
    writeBytes("root/e.ini", "[S]\r\nkey=\r\nbare\r\n");
    open(u"e.ini")->Save();
    EXPECT_EQ(readBytes("root/e.ini"), "[S]\r\nkey=\r\nbare=\r\n");
}

TEST_F(C4IniFileTest, CommentAndApostropheLinesOnSave) {
    writeBytes("root/c.ini", "[S]\r\n#note\r\n#a=b\r\n'note\r\n");
    open(u"c.ini")->Save();
    EXPECT_EQ(readBytes("root/c.ini"), "[S]\r\n#note\r\n#a\r\n'note=\r\n");
}

TEST_F(C4IniFileTest, KeysDifferingInCaseCollapseToTheFirstOnSave) {
    writeBytes("root/k.ini", "[S]\r\nKey=1\r\nKEY=2\r\n");
    open(u"k.ini")->Save();
    EXPECT_EQ(readBytes("root/k.ini"), "[S]\r\nKey=1\r\n");
}

TEST_F(C4IniFileTest, DeleteSectionThenSaveRemovesTheHeader) {
    writeBytes("root/d.ini", "[A]\r\nx=1\r\n[B]\r\ny=2\r\n");
    auto ini = open(u"d.ini");
    ini->DeleteSection(u"a");
    EXPECT_EQ(ini->Count(), 2);
    ini->Save();
    EXPECT_EQ(readBytes("root/d.ini"), "[B]\r\ny=2\r\n");
}

TEST_F(C4IniFileTest, RemovingEveryKeyThenSaveLeavesTheHeader) {
    writeBytes("root/d.ini", "[A]\r\nx=1\r\ny=2\r\n[B]\r\nz=3\r\n");
    auto ini = open(u"d.ini");
    ini->RemoveValue(u"A", u"x");
    ini->RemoveValue(u"A", u"Y");
    ini->RemoveValue(u"A", u"not there");
    ini->RemoveValue(u"nowhere", u"x");
    ini->Save();
    EXPECT_EQ(readBytes("root/d.ini"), "[A]\r\n[B]\r\nz=3\r\n");
}

TEST_F(C4IniFileTest, ValueOfMissingSectionIsEmptyAndCreatesNothing) {
    auto ini = open(u"none.ini");
    EXPECT_EQ(ini->Value(u"Nowhere", u"k"), u"");
    EXPECT_FALSE(ini->SectionExists(u"Nowhere"));
    EXPECT_EQ(ini->Count(), 0);
    EXPECT_EQ(ini->SectionContent(u"Nowhere"), u"");
}

TEST_F(C4IniFileTest, ValueSetCreatesSectionAndKeyInMemoryOnly) {
    auto ini = open(u"new.ini");
    ini->Value(u"S", u"k", u"v");
    EXPECT_EQ(ini->Value(u"s", u"K"), u"v");
    EXPECT_FALSE(exists("root/new.ini"));
    ini->Save();
    EXPECT_EQ(readBytes("root/new.ini"), "[S]\r\nk=v\r\n");
}

TEST_F(C4IniFileTest, ValueExWritesTheWholeFile) {
    writeBytes("root/v.ini", "[A]\r\nx=1\r\n");
    auto ini = open(u"v.ini");
    ini->ValueEx(u"B", u"y", u"2");
    EXPECT_EQ(readBytes("root/v.ini"), "[A]\r\nx=1\r\n[B]\r\ny=2\r\n");
}

TEST_F(C4IniFileTest, AddMarksSectionNewWithOptionalLine) {
    writeBytes("root/n.ini", "[S]\r\nold=1\r\n");
    auto ini = open(u"n.ini");
    auto* t = ini->Add(u"T", Str(u"k"), u"v");
    ASSERT_NE(t, nullptr);
    EXPECT_EQ(t->Count(), 1);
    EXPECT_EQ(ini->Add(u"s"), nullptr);
    EXPECT_EQ(ini->Item(u"S")->Count(), 1);
}

TEST_F(C4IniFileTest, SectionItemsByKeyAndIndex) {
    writeBytes("root/i.ini", "[S]\r\na=1\r\nb=2\r\n");
    auto ini = open(u"i.ini");
    auto* s = ini->Item(u"S");
    EXPECT_EQ(s->Item(2)->Value, u"2");
    EXPECT_EQ(s->Item(u"A")->Parent, s);
    EXPECT_EQ(s->Parent, ini.get());
    EXPECT_EQ(s->Add(u"a", u"again"), nullptr);
    s->Remove(1);
    s->Remove(7);
    EXPECT_EQ(s->Item(1)->Key, u"b");
    s->Delete();
    EXPECT_EQ(s->Count(), 0);
    EXPECT_EQ(s->Item(u"b"), nullptr);
}

TEST_F(C4IniFileTest, ItemSaveWritesOneLineAtOnce) {
    writeBytes("root/o.ini", "[S]\r\na=1\r\nb=2\r\n");
    auto ini = open(u"o.ini");
    auto* item = ini->Item(u"S")->Item(u"b");
    item->Value = u"22";
    item->Save();
    EXPECT_EQ(readBytes("root/o.ini"), "[S]\r\na=1\r\nb=22\r\n");
}

TEST_F(C4IniFileTest, HashAloneDeletesTheSectionFirst) {
    writeBytes("root/h.ini", "[S]\r\na=1\r\n[T]\r\nb=2\r\n");
    auto ini = open(u"h.ini");
    ini->Item(u"S")->Save(u"  #  ");
    EXPECT_EQ(readBytes("root/h.ini"), "[T]\r\nb=2\r\n[S]\r\n  #  \r\n");
}

TEST_F(C4IniFileTest, AddLineAppendsBehindTheObjectsBack) {
    writeBytes("root/l.ini", "[S]\r\na=1\r\n");
    auto ini = open(u"l.ini");
    ini->AddLine(u"b=2");
    EXPECT_EQ(readBytes("root/l.ini"), "[S]\r\na=1\r\nb=2\r\n");
    EXPECT_FALSE(ini->ValueExists(u"S", u"b"));
    EXPECT_EQ(open(u"l.ini")->Value(u"S", u"b"), u"2");
}

TEST_F(C4IniFileTest, SplitDropsEmptyPieces) {
    EXPECT_EQ(C4_IniFile::Split(u",", u",a,,b,"), (std::vector<Str>{u"a", u"b"}));
    EXPECT_EQ(C4_IniFile::Split(u",", u""), (std::vector<Str>{u""}));
    EXPECT_EQ(C4_IniFile::Split(u",", u",,,"), (std::vector<Str>{u""}));
    EXPECT_EQ(C4_IniFile::Split(u"::", u"a::b:c::"), (std::vector<Str>{u"a", u"b:c"}));
    EXPECT_EQ(C4_IniFile::Split(u"A", u"xay"), (std::vector<Str>{u"xay"}));
}

TEST_F(C4IniFileTest, FailedSectionSaveIsReportedAndTheNextSectionGoesOn) {
    writeBytes("root/f.ini", "[A]\r\nx=1\r\n");
    auto ini = open(u"f.ini");
    std::filesystem::permissions(machine("root/f.ini"), std::filesystem::perms::owner_read);
    ini->Value(u"B", u"y", u"2");
    ini->Save();
    // A is unchanged, so nothing is written for it; B cannot be.
    ASSERT_EQ(settings.ErrorLog.size(), 1u);
    EXPECT_EQ(settings.ErrorLog[0], u"C4_IniFileSection.Save: 5 Unable to save INI file section 'B'");
    EXPECT_EQ(readBytes("root/f.ini"), "[A]\r\nx=1\r\n");
}

TEST_F(C4IniFileTest, GarbageLinesOutsideSavedSectionsStay) {
    writeBytes("root/g.ini", "\x01garbage\r\n[A]\r\nx=1\r\n[[odd\r\n[B]\r\n]]]\r\n");
    auto ini = open(u"g.ini");
    ini->Item(u"B")->Save();
    EXPECT_EQ(readBytes("root/g.ini"), "\x01garbage\r\n[A]\r\nx=1\r\n[[odd\r\n[B]\r\n]]]=\r\n");
}

TEST_F(C4IniFileTest, SeveralMegabytesLoad) {
    std::string text = "[Big]\r\n";
    for (int i = 0; i < 24000; ++i) text += "k" + std::to_string(i) + "=" + std::string(40, 'x') + "\r\n";
    writeBytes("root/mb.ini", text);
    auto ini = open(u"mb.ini");
    EXPECT_EQ(ini->Item(u"Big")->Count(), 24000);
}

}  // namespace
}  // namespace quillet::settings::testing
