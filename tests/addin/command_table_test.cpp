// The command bar as the table builds it: every control in order, with caption, kind, group,
// face, style and tag, and the rows that depend on the host.

#include <set>

#include "command_fixture.h"

namespace quillet::testing {
namespace {

constexpr long B = host::msoControlButton;
constexpr long P = host::msoControlPopup;
constexpr long D = host::msoControlDropdown;

struct Expected {
    int depth;
    Str caption;
    long type;
    bool group;
    long face;
};

using Tree = std::vector<Expected>;

void addTypes(Tree& t, int depth, int count) {
    const Str captions[] = {u"&String...", u"B&yte...",   u"&Boolean...", u"&Integer...",
                            u"&Long...",   u"Sin&gle...", u"&Double...",  u"&Currency...",
                            u"Da&te...",   u"&Variant...", u"&Object...", u"Collectio&n..."};
    for (int i = 0; i < count; ++i) t.push_back({depth, captions[i], B, false, 0});
}

// The bar of an editor with no Office application and no testing marker.
Tree expectedTree() {
    Tree t = {
        {0, u"&Add Variable...", B, false, 103},
        {0, u"&Add Constant...", B, false, 102},
        {0, u"&Add Property...", B, false, 105},
        {0, u"Insert Varia&ble...", B, false, 182},
        {0, u"Add P&rocedure...", B, true, 101},
        {0, u"Add Cl&ass...", B, false, 104},
        {0, u"Insert &Line Of Code...", B, true, 106},
        {0, u"Insert Fragme&nt...", B, false, 181},
        {0, u"View &Shortcuts and Search\u2026", B, true, 194},
        {0, u"View Code &Explorer\u2026", B, false, 195},
        {0, u"&Quillet", P, true, 0},
        {1, u"&Variable", P, false, 0},
    };
    addTypes(t, 2, 12);
    t.insert(t.end(), {{2, u"New &User-Defined Data Type...", B, false, 0},
                       {2, u"Add Item to User-Defined Data Ty&pe...", B, false, 0},
                       {2, u"&Add Variable...", B, true, 103},
                       {1, u"&Constant", P, false, 0}});
    addTypes(t, 2, 9);
    t.insert(t.end(), {{2, u"&Filename...", B, false, 0},
                       {2, u"F&older...", B, false, 0},
                       {2, u"New &Enum...", B, false, 0},
                       {2, u"Add Constant to En&um...", B, false, 0},
                       {2, u"&Add Constant...", B, true, 102},
                       {1, u"&Property", P, false, 0}});
    addTypes(t, 2, 12);
    t.insert(t.end(), {
                          {2, u"&Add Property...", B, true, 105},
                          {1, u"Insert Varia&ble...", B, true, 182},
                          {1, u"Explicit Arg&ument...", B, false, 0},
                          {1, u"&With...", B, false, 0},
                          {1, u"Insert &Line Of Code...", B, true, 106},
                          {1, u"Add P&rocedure...", B, false, 101},
                          {1, u"Add Cl&ass...", B, false, 104},
                          {1, u"&If", P, true, 0},
                          {2, u"&Then", B, false, 0},
                          {2, u"En&d If", B, false, 0},
                          {2, u"Then &Else", B, false, 0},
                          {2, u"Then Else&If...", B, false, 0},
                          {2, u"Then ElseIf El&se...", B, false, 0},
                          {1, u"&Select", P, false, 0},
                          {2, u"Ca&se...", B, false, 0},
                          {2, u"Case &Else...", B, false, 0},
                          {2, u"Case &UCase...", B, false, 0},
                          {2, u"&From Enum...", B, false, 0},
                          {1, u"&For/While", P, false, 0},
                          {2, u"&Each Next", B, false, 0},
                          {2, u"&Next", B, false, 0},
                          {2, u"E&xit For", B, false, 0},
                          {2, u"W&hile", B, false, 0},
                          {2, u"D&o", P, false, 0},
                          {3, u"Loop &While", B, false, 0},
                          {3, u"Loop &Until", B, false, 0},
                          {1, u"&GoTo...", B, false, 0},
                          {1, u"&Error", P, false, 0},
                          {2, u"On &Error GoTo...", B, false, 0},
                          {2, u"On Error Resume &Next", B, false, 0},
                          {2, u"On Error GoTo &0", B, false, 0},
                          {2, u"&Resume...", B, false, 0},
                          {2, u"Resume Ne&xt", B, false, 0},
                          {2, u"Re&sume", B, false, 0},
                          {2, u"&Add Error Handling", D, true, 0},
                          {2, u"&Line Numbers", P, true, 0},
                          {3, u"&Add", B, false, 0},
                          {3, u"&Remove", B, false, 0},
                          {2, u"&Comment Lines", P, true, 0},
                          {3, u"&Add", B, false, 0},
                          {3, u"&Remove", B, false, 0},
                          {2, u"&Debug.Print... ", B, true, 0},
                          {1, u"E&xit Procedure", B, false, 0},
                          {1, u"Insert Fragme&nt...", B, true, 181},
                          {1, u"I&mport File...", B, false, 0},
                          {1, u"Export File...", B, false, 0},
                          {1, u"&Tools", P, true, 0},
                          {2, u"View &Shortcuts and Search\u2026", B, false, 194},
                          {2, u"View Code &Explorer\u2026", B, false, 195},
                          {0, u"Hel&p", P, true, 0},
                          {1, u"&Contents...", B, false, 111},
                          {1, u"&Tip of the Day", P, false, 0},
                          {2, u"&Quillet...", B, false, 0},
                          {2, u"&Variable Builder...", B, false, 0},
                          {2, u"&Line of Code Builder...", B, false, 0},
                          {2, u"&Fragment Builder...", B, false, 0},
                          {2, u"&Procedure Builder...", B, false, 0},
                          {1, u"&Settings...", B, false, 0},
                          {1, u"&Website", P, true, 0},
                          {2, u"&Check for New Version...", B, false, 0},
                          {2, u"&Technical Support...", B, false, 0},
                          {2, u"&Downloads...", B, false, 0},
                          {2, u"&VB Directory...", B, false, 0},
                          {1, u"&About...", B, false, 0},
                      });
    return t;
}

using CommandTable = CommandBarFixture;

std::vector<Str> captionsUnder(const std::vector<WalkedControl>& walked, const Str& parentTag) {
    std::vector<Str> captions;
    for (const auto& w : walked)
        if (w.parent && w.parent->Tag() == parentTag) captions.push_back(w.control->Caption());
    return captions;
}

TEST_F(CommandTable, WholeTreeInOrder) {
    build();
    auto walked = walk();
    auto expected = expectedTree();
    ASSERT_EQ(walked.size(), expected.size());
    for (size_t i = 0; i < expected.size(); ++i) {
        const auto& e = expected[i];
        auto& c = *walked[i].control;
        SCOPED_TRACE(basic::toUtf8(e.caption) + " at " + std::to_string(i));
        EXPECT_EQ(walked[i].depth, e.depth);
        EXPECT_EQ(c.Caption(), e.caption);
        EXPECT_EQ(c.Type(), e.type);
        EXPECT_EQ(c.BeginGroup(), e.group);
        if (e.type == B) {
            EXPECT_EQ(faceOf(c), e.face);
        }
        Str tag = walked[i].parent ? walked[i].parent->Tag() + u" " + e.caption : e.caption;
        EXPECT_EQ(c.Tag(), tag);
        long style = e.face == 0 ? host::msoButtonAutomatic
                                 : (e.depth == 0 ? host::msoButtonIcon : host::msoButtonIconAndCaption);
        if (e.type == B) {
            EXPECT_EQ(c.Style(), style);
        }
    }
    EXPECT_TRUE(reports.empty());
}

TEST_F(CommandTable, EveryTagIsUnique) {
    platform->addFile(platform->AddinFolder() + u"testing.txt");
    ctx->TestingMode = true;
    ctx->hostApplications().AccessApp = officeApplication(u"Microsoft Access");
    build();
    std::set<Str> tags;
    auto walked = walk();
    for (const auto& w : walked) EXPECT_TRUE(tags.insert(w.control->Tag()).second) << basic::toUtf8(w.control->Tag());
    EXPECT_EQ(tags.size(), walked.size());
    EXPECT_TRUE(tagged(u"&Quillet &Error &Line Numbers &Add"));
    EXPECT_TRUE(tagged(u"&Quillet &Error &Comment Lines &Add"));
}

TEST_F(CommandTable, FacesCarryTheirMasks) {
    build();
    auto& add = *control(u"&Add Variable...");
    auto mask = std::dynamic_pointer_cast<platform::ScriptedPicture>(add.Mask());
    ASSERT_TRUE(mask);
    EXPECT_TRUE(mask->isMask());
    EXPECT_EQ(mask->faceId(), 103);
}

TEST_F(CommandTable, NoOfficeApplicationLeavesOutObjectnameInventoryAndAddControl) {
    build();
    EXPECT_FALSE(tagged(u"&Quillet Insert &Objectname..."));
    EXPECT_FALSE(tagged(u"&Quillet &Constant Object In&ventory"));
    EXPECT_FALSE(tagged(u"&Quillet Add C&ontrol..."));
}

TEST_F(CommandTable, ExcelOrWordBringObjectnameOnly) {
    ctx->hostApplications().ExcelApp = officeApplication(u"Microsoft Excel");
    build();
    auto quillet = captionsUnder(walk(), u"&Quillet");
    ASSERT_GE(quillet.size(), 5u);
    EXPECT_EQ(quillet[3], u"Insert Varia&ble...");
    EXPECT_EQ(quillet[4], u"Insert &Objectname...");
    EXPECT_EQ(quillet[5], u"Explicit Arg&ument...");
    EXPECT_FALSE(tagged(u"&Quillet &Constant Object In&ventory"));
    EXPECT_TRUE(reports.empty());
}

TEST_F(CommandTable, WordBringsObjectname) {
    ctx->hostApplications().WordApp = officeApplication(u"Microsoft Word");
    build();
    EXPECT_TRUE(tagged(u"&Quillet Insert &Objectname..."));
}

TEST_F(CommandTable, MicrosoftAccessInAnyCaseBringsObjectnameAndInventoryUnderConstant) {
    ctx->hostApplications().AccessApp = officeApplication(u"MICROSOFT access");
    build();
    EXPECT_TRUE(tagged(u"&Quillet Insert &Objectname..."));
    auto constants = captionsUnder(walk(), u"&Quillet &Constant");
    ASSERT_FALSE(constants.empty());
    EXPECT_EQ(constants.back(), u"Object In&ventory");
    auto inventory = control(u"&Quillet &Constant Object In&ventory");
    EXPECT_TRUE(inventory->BeginGroup());
}

TEST_F(CommandTable, AccessOfAnotherNameBringsNeither) {
    ctx->hostApplications().AccessApp = officeApplication(u"Microsoft Access Runtime");
    build();
    EXPECT_FALSE(tagged(u"&Quillet Insert &Objectname..."));
    EXPECT_FALSE(tagged(u"&Quillet &Constant Object In&ventory"));
}

TEST_F(CommandTable, AccessWithoutANameBringsNeither) {
    ctx->hostApplications().AccessApp = std::make_shared<memory::MemoryDispatch>(u"Application");
    build();
    EXPECT_FALSE(tagged(u"&Quillet Insert &Objectname..."));
    EXPECT_TRUE(reports.empty());
}

TEST_F(CommandTable, TestingModeBringsAddControlAfterAddClass) {
    ctx->TestingMode = true;
    build();
    auto quillet = captionsUnder(walk(), u"&Quillet");
    auto addClass = std::find(quillet.begin(), quillet.end(), u"Add Cl&ass...");
    ASSERT_NE(addClass, quillet.end());
    ASSERT_NE(addClass + 1, quillet.end());
    EXPECT_EQ(*(addClass + 1), u"Add C&ontrol...");
    EXPECT_EQ(faceOf(*control(u"&Quillet Add C&ontrol...")), 183);
}

TEST_F(CommandTable, CaptionsKeepAccessKeysTrailingBlankAndEllipsis) {
    EXPECT_EQ(addin::LoadResString(190), u"&Debug.Print... ");
    EXPECT_EQ(addin::LoadResString(194), u"View &Shortcuts and Search\u2026");
    EXPECT_EQ(addin::LoadResString(195), u"View Code &Explorer\u2026");
    EXPECT_EQ(addin::LoadResString(146), u"Add Item to User-Defined Data Ty&pe...");
    try {
        addin::LoadResString(999);
        FAIL() << "an unknown string resource must raise";
    } catch (const basic::VbError& e) {
        EXPECT_EQ(e.Number(), 326);
    }
}

TEST_F(CommandTable, EveryHandlerNameIsWiredOnce) {
    std::set<Str> handlers;
    for (const auto& row : addin::CommandTable())
        if (!row.handler.empty()) {
            EXPECT_TRUE(handlers.insert(row.handler).second) << basic::toUtf8(row.handler);
        }
    EXPECT_TRUE(handlers.count(u"mnuhDimCollection"));
    EXPECT_TRUE(handlers.count(u"mnuhConstDate"));
    EXPECT_FALSE(handlers.count(u"mnuhConstVariant"));
    EXPECT_TRUE(handlers.count(u"mnuhTypeItem"));
}

}  // namespace
}  // namespace quillet::testing
