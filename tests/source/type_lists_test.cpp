#include "source/type_lists.h"

#include "code_fixture.h"
#include "source/scan_project.h"

namespace quillet::source {
namespace {

using testing::CodeFixture;

class SourceTypeLists : public CodeFixture {
protected:
    std::vector<Str> entries(const dialogs::Control& list) {
        std::vector<Str> out;
        for (const auto& entry : list.Entries()) out.push_back(entry.text);
        return out;
    }
    dialogs::Control combo{nullptr, u"cboType", dialogs::ControlKind::ComboBox};
};

TEST_F(SourceTypeLists, ModulesListModes) {
    project->addComponent(u"clsOrder", host::vbext_ct_ClassModule, {});
    project->addComponent(u"basTools", host::vbext_ct_StdModule, {});
    openModule(u"clsOrders", {}, 1, 1, host::vbext_ct_ClassModule);
    auto env = codeEnv();
    qltModulesList(env, combo, 0, {}, true, true);
    EXPECT_EQ(entries(combo), (std::vector<Str>{u"<New Module>", u"<New Class Module>", u"clsOrder", u"basTools",
                                                u"clsOrders"}));
    EXPECT_EQ(combo.Text(), u"clsOrders");
    qltModulesList(env, combo, 1);
    EXPECT_EQ(entries(combo), (std::vector<Str>{u"basTools", u"clsOrders"}));
    qltModulesList(env, combo, 2);
    EXPECT_EQ(entries(combo), (std::vector<Str>{u"clsOrder", u"clsOrders"}));
    qltModulesList(env, combo, 0, u"basFixed", true, true);
    EXPECT_EQ(entries(combo), (std::vector<Str>{u"basFixed"}));
    EXPECT_EQ(combo.ListIndex(), 0);
}

TEST_F(SourceTypeLists, ModulesListWithoutTheActiveModuleSelectsTheFirst) {
    openModule(u"basMain", {}, 1, 1);
    project->addComponent(u"clsOrder", host::vbext_ct_ClassModule, {});
    auto env = codeEnv();
    qltModulesList(env, combo, 2, {}, false, true);
    EXPECT_EQ(combo.ListIndex(), 0);
    EXPECT_EQ(combo.Text(), u"<New Class Module>");
}

TEST_F(SourceTypeLists, TypeListInItsOrderWithKinds) {
    openModule(u"basMain", {u"Public Enum Colour", u"Red", u"End Enum", u"Public Type Point", u"X As Long",
                            u"End Type"});
    project->addComponent(u"clsOrder", host::vbext_ct_ClassModule, {u"Public Enum Status", u"Open", u"End Enum"});
    clsScanProject(env()).init({}, true);
    auto code = codeEnv();
    code.referenceClasses = [] { return std::vector<Str>{u"Workbook", u"collection"}; };
    code.referenceEnums = [] { return std::vector<Str>{u"XlDirection", u"Colour"}; };
    DataTypeList(code, combo, true, u"long");
    EXPECT_EQ(entries(combo),
              (std::vector<Str>{u"(none)", u"Byte", u"Boolean", u"Integer", u"Long", u"Single", u"Double", u"Currency",
                                u"Date", u"String", u"clsOrder", u"Collection", u"Object", u"Variant", u"Workbook",
                                u"Colour", u"Status", u"XlDirection", u"Point"}));
    EXPECT_EQ(combo.ListIndex(), 4);
    EXPECT_EQ(combo.ItemData(1), 17);
    EXPECT_EQ(combo.ItemData(9), 8);
    EXPECT_EQ(combo.ItemData(10), KindClass);
    EXPECT_EQ(combo.ItemData(15), KindEnum);
    EXPECT_EQ(combo.ItemData(18), KindType);
}

TEST_F(SourceTypeLists, TypeListWithoutBasicsOrObjects) {
    openModule(u"basMain", {});
    auto env = codeEnv();
    DataTypeList(env, combo, false, u"Object", true, false);
    EXPECT_EQ(entries(combo), (std::vector<Str>{u"Collection", u"Object", u"Variant"}));
    EXPECT_EQ(combo.Text(), u"Object");
    DataTypeList(env, combo, false, u"Missing", false, true);
    EXPECT_EQ(combo.ListCount(), 9);
    EXPECT_EQ(combo.ListIndex(), 0);
    DataTypeList(env, combo, false, u"String", false, true, false);
    EXPECT_EQ(combo.ListCount(), 9);  // nothing twice when the list is kept
    EXPECT_EQ(combo.Text(), u"String");
}

TEST_F(SourceTypeLists, FindInListIsExactIgnoringCaseFirstEntry) {
    combo.AddItem(u"Longer");
    combo.AddItem(u"LONG");
    combo.AddItem(u"Long");
    EXPECT_EQ(FindInList(combo, u"long"), 1);
    EXPECT_EQ(FindInList(combo, u"Lon"), -1);
}

TEST_F(SourceTypeLists, AddTypeItemTakesACommaListWithOrWithoutBrackets) {
    AddTypeItem(combo, u"(Long, String ,  Date)");
    EXPECT_EQ(entries(combo), (std::vector<Str>{u"Long", u"String", u"Date"}));
    EXPECT_EQ(combo.ListIndex(), 0);
    dialogs::Control other{nullptr, u"cbo", dialogs::ControlKind::ComboBox};
    AddTypeItem(other, u"Range");
    EXPECT_EQ(entries(other), (std::vector<Str>{u"Range"}));
    dialogs::Control empty{nullptr, u"cbo", dialogs::ControlKind::ComboBox};
    AddTypeItem(empty, u"[]");
    EXPECT_EQ(empty.ListIndex(), -1);
}

TEST_F(SourceTypeLists, TypeIsObject) {
    basic::Collection<clsEnumPtr> enums;
    basic::Collection<clsTypePtr> types;
    enums.Add(std::make_shared<clsEnum>(), u"Colour");
    types.Add(std::make_shared<clsType>(), u"Point");
    for (const char16_t* value : {u"Byte", u"boolean", u"Integer", u"Long", u"Single", u"Double", u"Currency", u"Date",
                                  u"String", u"Variant", u"", u"colour", u"POINT", u"LongLong"})
        EXPECT_FALSE(TypeIsObject(value, enums, types)) << basic::toUtf8(value);
    for (const char16_t* object : {u"Object", u"Collection", u"Range", u"clsOrder"})
        EXPECT_TRUE(TypeIsObject(object, enums, types)) << basic::toUtf8(object);
}

TEST_F(SourceTypeLists, MakeValidNameKeepsNameCharacters) {
    EXPECT_EQ(MakeValidName(u"Order Total (€)"), u"OrderTotal");
    EXPECT_EQ(MakeValidName(u"tbl_Customers-2024"), u"tbl_Customers2024");
    EXPECT_EQ(MakeValidName(u"Café"), u"Café");
    EXPECT_EQ(MakeValidName(u"!?"), u"");
}

TEST_F(SourceTypeLists, ListFilterByTextOrItemData) {
    combo.AddItem(u"strName");
    combo.AddItem(u"lngCount");
    combo.AddItem(u"strNameOld");
    combo.ItemData(1, KindConstant);
    ListFilter(combo, u"NAME");
    EXPECT_EQ(entries(combo), (std::vector<Str>{u"lngCount"}));
    ListFilter(combo, {}, KindConstant);
    EXPECT_EQ(combo.ListCount(), 0);
}

TEST_F(SourceTypeLists, ListFromNamesSortsAndSkipsKnownNames) {
    combo.AddItem(u"b");
    ListFromNames(combo, {u"c", u"B", u"a"}, KindVariable);
    EXPECT_EQ(entries(combo), (std::vector<Str>{u"b", u"a", u"c"}));
    EXPECT_EQ(combo.ItemData(1), KindVariable);
}

}  // namespace
}  // namespace quillet::source
