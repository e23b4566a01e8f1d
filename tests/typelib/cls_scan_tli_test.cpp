#include "typelib/cls_scan_tli.h"

#include "../source/source_fixture.h"
#include "../typelib/typelib_fixture.h"

namespace quillet::typelib {
namespace {

using namespace typelib::testing;
using quillet::testing::SourceFixture;

class ScanTliTest : public SourceFixture {
protected:
    ScanTliTest() { project->references().clear(); }

    void addReference(const Str& name, const std::string& path, bool broken = false) {
        project->references().push_back({name, basic::fromUtf8(path), u"{}", 1, 0, name, false, broken});
    }
    source::C4_ProcDefPtr proc(const Str& groupKey, const Str& name) {
        auto group = lists.Procedures.Group(groupKey);
        if (!group || !group->Items.Exists(name)) return nullptr;
        return group->Items.Item(name);
    }
    void scanShapes() {
        addReference(u"QltShapes", fixturePath("qltshapes.tlb"));
        scan.init(*vbe, lists, u"");
    }

    MsftReader reader{{stdoleDir()}};
    clsScanTLI scan{reader};
    LibraryLists lists;
};

TEST_F(ScanTliTest, GroupsAreTheApplicationObjectAndTheModules) {
    scanShapes();
    ASSERT_EQ(lists.Groups.Count(), 2);
    const clsGroup& app = *lists.Groups.Item(u"QltShapes.QltShapes_Unqualified");
    EXPECT_EQ(app.Project, u"QltShapes");
    EXPECT_EQ(app.TypeKind, TKIND_COCLASS);
    EXPECT_EQ(app.TypeKindStr, u"CoClass");
    const clsGroup& module = *lists.Groups.Item(u"QltShapes.ShapeFunctions");
    EXPECT_EQ(module.TypeKindStr, u"Module");
    EXPECT_EQ(module.HelpStr, u"Plain functions");
    EXPECT_EQ(lists.References.Count(), 1);
    EXPECT_EQ(lists.References.Item(u"QltShapes"), u"QltShapes");
}

TEST_F(ScanTliTest, ProceduresOfAGroup) {
    scanShapes();
    auto join = proc(u"QltShapes.QltShapes_Unqualified", u"Join");
    ASSERT_TRUE(join);
    EXPECT_TRUE(join->IsLibraryProcedure);
    EXPECT_EQ(join->Project, u"QltShapes");
    EXPECT_EQ(join->ModuleName, u"QltShapes_Unqualified");
    EXPECT_EQ(join->GroupName, u"QltShapes_Unqualified");
    EXPECT_TRUE(join->ProcIsFunction);
    EXPECT_EQ(join->ProcReturnType, u"String");
    EXPECT_EQ(join->ProcArguments->StringOfArguments(), u"ByVal parts() As Variant");
    EXPECT_EQ(join->ProcArguments->ShortStringOfArguments(), u"parts()");
    EXPECT_EQ(join->ProcDef, u"Function Join(ByVal parts() As Variant) As String");
    auto distance = proc(u"QltShapes.ShapeFunctions", u"Distance");
    ASSERT_TRUE(distance);
    EXPECT_EQ(distance->HelpStr, u"Distance of two points");
    EXPECT_EQ(distance->HelpFile, u"shapes.chm");
    EXPECT_EQ(distance->ProcArguments->StringOfArguments(), u"a As ShapePoint, b As ShapePoint");
    EXPECT_EQ(proc(u"QltShapes.ShapeFunctions", u"Fill")->ProcArguments->StringOfArguments(),
              u"values As Long, ByVal count As Long");
    // Property Let is no procedure to call; the Get is.
    EXPECT_EQ(proc(u"QltShapes.QltShapes_Unqualified", u"Version")->ProcDef, u"Function Version() As Long");
}

TEST_F(ScanTliTest, AFunctionReturningNothingIsASub) {
    scanShapes();
    auto beep = proc(u"QltShapes.QltShapes_Unqualified", u"Beep");
    ASSERT_TRUE(beep);
    EXPECT_FALSE(beep->ProcIsFunction);
    EXPECT_EQ(beep->ProcReturnType, u"");
    EXPECT_EQ(beep->ProcDef, u"Sub Beep()");
    EXPECT_FALSE(proc(u"QltShapes.ShapeFunctions", u"Reset")->ProcIsFunction);
}

TEST_F(ScanTliTest, BStrAndBVarNamesAreCleanedAndHiddenMembersDropped) {
    scanShapes();
    auto formatString = proc(u"QltShapes.QltShapes_Unqualified", u"Format$");
    ASSERT_TRUE(formatString);
    EXPECT_EQ(formatString->ProcDef, u"Function Format$(ByVal value) As String");
    auto formatVariant = proc(u"QltShapes.QltShapes_Unqualified", u"Format");
    ASSERT_TRUE(formatVariant);
    EXPECT_EQ(formatVariant->ProcDef, u"Function Format(ByVal value) As Variant");
    auto group = lists.Procedures.Group(u"QltShapes.QltShapes_Unqualified");
    for (long i = 1; i <= group->Count(); ++i) EXPECT_NE(group->Items.Item(i)->Name.substr(0, 1), u"_");
    EXPECT_FALSE(proc(u"QltShapes.QltShapes_Unqualified", u"_Secret"));
}

TEST_F(ScanTliTest, AnUnresolvedVariantReturnReadsVariant) {
    scanShapes();
    EXPECT_EQ(proc(u"QltShapes.QltShapes_Unqualified", u"Format")->ProcReturnType, u"Variant");
}

TEST_F(ScanTliTest, ArgumentsOfEveryKind) {
    scanShapes();
    const Str app = u"QltShapes.QltShapes_Unqualified";
    auto sum = proc(app, u"Sum");
    EXPECT_EQ(sum->ProcArguments->StringOfArguments(), u"[ParamArray values() As Variant]");
    EXPECT_EQ(sum->ProcArguments->ShortStringOfArguments(), u"[values()]");
    EXPECT_TRUE(sum->ProcArguments->Items.Item(1)->IsParamArray);
    auto pick = proc(app, u"Pick");
    EXPECT_EQ(pick->ProcArguments->StringOfArguments(), u"[ByVal color As ShapeColor = scGreen]");
    EXPECT_EQ(pick->ProcArguments->ShortStringOfArguments(), u"[color]");
    EXPECT_EQ(pick->ProcReturnType, u"ShapeColor");
    source::C4_ProcArgument& color = *pick->ProcArguments->Items.Item(1);
    EXPECT_TRUE(color.IsEnum);
    EXPECT_TRUE(color.IsOptional);
    EXPECT_TRUE(color.IsPassedByVal);
    EXPECT_EQ(color.Type_, u"ShapeColor");
    EXPECT_EQ(color.DefaultValue, u"scGreen");
    EXPECT_EQ(proc(app, u"WithLcid")->ProcArguments->StringOfArguments(), u"ByVal a As Long");
    EXPECT_EQ(proc(app, u"NewShape")->ProcReturnType, u"IShape");
    EXPECT_EQ(proc(app, u"Outline")->ProcReturnType, u"stdole.IFontDisp");
    auto fields = proc(app, u"Fields");
    EXPECT_EQ(fields->ProcArguments->StringOfArguments(), u"Points() As ShapePoint, color As ShapeColor");
    EXPECT_TRUE(fields->ProcArguments->Items.Item(1)->IsArray);
}

TEST_F(ScanTliTest, ArgumentTextsOfAnInterfacesMembers) {
    TypeLibraryPtr shapes = reader.Open(fixturePath("qltshapes.tlb"));
    std::vector<MemberInfo> members = typeNamed(*shapes, u"IShape")->Members();
    auto args = [&](const Str& name) {
        return clsScanTLI::ParamsGet(*memberNamed(members, name), u"QltShapes")->StringOfArguments();
    };
    auto shortArgs = [&](const Str& name) {
        return clsScanTLI::ParamsGet(*memberNamed(members, name), u"QltShapes")->ShortStringOfArguments();
    };
    EXPECT_EQ(args(u"Move"), u"ByVal dx As Long, [ByVal dy As Long = 0]");
    EXPECT_EQ(shortArgs(u"Move"), u"dx, [dy]");
    EXPECT_EQ(args(u"Paint"), u"[ByVal color As ShapeColor = scRed], [ByVal brush]");
    EXPECT_EQ(shortArgs(u"Paint"), u"[color], [brush]");
    EXPECT_EQ(args(u"Attach"), u"ByVal other As IShape, ByVal anything As Object, ByVal raw As IUnknown");
    EXPECT_EQ(args(u"Names"), u"ByVal list() As String");
    EXPECT_EQ(clsScanTLI::GetReturnType(*memberNamed(members, u"Names"), u"QltShapes"), u"String");
    EXPECT_EQ(args(u"Label"), u"[ByVal text As String = \"none\"], [ByVal show As Boolean = True], [ByVal scale As Long = 2]");
    EXPECT_EQ(args(u"Shade"), u"ByVal color As ShapeColor, ByVal h As Handle");
    EXPECT_EQ(args(u"Where"), u"point As ShapePoint");
    // The library's own name stays off its types; another library's goes in front.
    EXPECT_EQ(clsScanTLI::GetReturnType(*memberNamed(members, u"Clone"), u"Other"), u"QltShapes.IShape");
}

TEST_F(ScanTliTest, CrossLibraryTypeNamesAndUnknownTypes) {
    MsftReader withShapes({QUILLET_TYPELIB_DIR, stdoleDir()});
    clsScanTLI scanUse(withShapes);
    scanUse.TLI_Get(u"QltUse", basic::fromUtf8(fixturePath("qltuse.tlb")), lists);
    auto draw = proc(u"QltUse.QltUse_Unqualified", u"Draw");
    ASSERT_TRUE(draw);
    EXPECT_EQ(draw->ProcArguments->StringOfArguments(),
              u"ByVal shape As QltShapes.IShape, [ByVal color As QltShapes.ShapeColor = scBlue]");
    EXPECT_EQ(proc(u"QltUse.QltUse_Unqualified", u"Outline")->ProcReturnType, u"QltShapes.ICircle");

    LibraryLists alone;
    MsftReader bare;
    clsScanTLI scanBare(bare);
    scanBare.TLI_Get(u"QltUse", basic::fromUtf8(fixturePath("qltuse.tlb")), alone);
    auto group = alone.Procedures.Group(u"QltUse.QltUse_Unqualified");
    auto lost = group->Items.Item(u"Draw");
    EXPECT_EQ(lost->ProcArguments->StringOfArguments(), u"shape As Unknown, [ByVal color As Unknown = -4]");
    EXPECT_EQ(group->Items.Item(u"Origin")->ProcReturnType, u"Unknown");
}

TEST_F(ScanTliTest, EnumsWithTheirConstants) {
    scanShapes();
    ASSERT_EQ(lists.Enums.Count(), 1);
    source::clsEnum& color = *lists.Enums.Item(u"ShapeColor");
    EXPECT_EQ(color.Project, u"QltShapes");
    EXPECT_EQ(color.HelpStr, u"Colours of a shape");
    ASSERT_EQ(color.Count(), 4);
    EXPECT_EQ(color.Item(4)->Name, u"scBlue");
    EXPECT_EQ(color.Item(4)->Value, u"-4");
    EXPECT_EQ(color.Item(4)->EnumName(), u"ShapeColor");
    EXPECT_TRUE(color.Item(4)->EnumMember());
    EXPECT_EQ(color.Item(4)->Project, u"QltShapes");
}

TEST_F(ScanTliTest, ClassesAreTheOtherVisibleItems) {
    scanShapes();
    EXPECT_TRUE(lists.Classes.Exists(u"QltShapes.Circle"));
    EXPECT_EQ(lists.Classes.Item(u"QltShapes.Circle")->TypeKindStr, u"CoClass");
    EXPECT_EQ(lists.Classes.Item(u"QltShapes.Circle")->HelpStr, u"A circle");
    EXPECT_EQ(lists.Classes.Item(u"QltShapes.IShape")->TypeKindStr, u"Dispatch (*)");
    EXPECT_EQ(lists.Classes.Item(u"QltShapes.ShapePoint")->TypeKindStr, u"Record");
    EXPECT_EQ(lists.Classes.Item(u"QltShapes.Handle")->TypeKindStr, u"Alias (**)");
    EXPECT_TRUE(lists.Classes.Exists(u"QltShapes.ShapesApp"));
    EXPECT_FALSE(lists.Classes.Exists(u"QltShapes.HiddenThing"));
    EXPECT_FALSE(lists.Classes.Exists(u"QltShapes.ShapeColor"));
    EXPECT_FALSE(lists.Classes.Exists(u"QltShapes.ShapeFunctions"));
}

TEST_F(ScanTliTest, ABrokenReferenceIsLeftOutOfAllLists) {
    addReference(u"Gone", fixturePath("qltshapes.tlb"), true);
    addReference(u"NoPath", "");
    addReference(u"Missing", "/no/such/library.tlb");
    addReference(u"QltUse", fixturePath("qltuse.tlb"));
    scan.init(*vbe, lists, u"");
    EXPECT_FALSE(lists.References.Exists(u"Gone"));
    EXPECT_FALSE(lists.References.Exists(u"NoPath"));
    EXPECT_FALSE(lists.Groups.Exists(u"QltShapes.Gone_Unqualified"));
    EXPECT_EQ(lists.Enums.Count(), 0);
    // A path that cannot be read gives nothing but its name, and the scan goes on.
    EXPECT_TRUE(lists.References.Exists(u"Missing"));
    ASSERT_EQ(scan.Failures.size(), 1u);
    EXPECT_EQ(scan.Failures[0], u"Missing: no such library file: /no/such/library.tlb");
    EXPECT_TRUE(lists.Groups.Exists(u"QltUse.QltUse_Unqualified"));
}

TEST_F(ScanTliTest, OneReferenceByName) {
    addReference(u"QltShapes", fixturePath("qltshapes.tlb"));
    addReference(u"QltUse", fixturePath("qltuse.tlb"));
    scan.init(*vbe, lists, u"qltuse");
    EXPECT_EQ(lists.References.Count(), 1);
    EXPECT_TRUE(lists.References.Exists(u"QltUse"));
    EXPECT_EQ(lists.Groups.Count(), 1);
}

TEST_F(ScanTliTest, RemovingALibrarysProcedures) {
    scanShapes();
    EXPECT_GT(lists.Procedures.Count(), 0);
    lists.Procedures.RemoveProject(u"qltshapes");
    EXPECT_EQ(lists.Procedures.Count(), 0);
}

TEST(ScanTliHelpFile, HelpFileRules) {
    EXPECT_EQ(clsScanTLI::HelpFileOf(u"vba", u"C:\\Program Files\\Common Files\\VBA\\VBA6\\VBE6.DLL", u"x.chm"),
              u"C:\\Program Files\\Common Files\\VB1033\\VBLR6.CHM");
    EXPECT_EQ(clsScanTLI::HelpFileOf(u"Excel", u"C:\\Office\\Root\\EXCEL.EXE", u"C:\\Help\\VBAXL10.CHM"),
              u"C:\\Office\\Root\\1033\\VBAXL10.CHM");
    EXPECT_EQ(clsScanTLI::HelpFileOf(u"OFFICE", u"C:\\Office\\MSO.DLL", u"vbaof11.chm"), u"C:\\Office\\1033\\vbaof11.chm");
    EXPECT_EQ(clsScanTLI::HelpFileOf(u"Scripting", u"C:\\Windows\\scrrun.dll", u"C:\\Help\\VBENLR98.CHM"),
              u"C:\\Help\\VBENLR98.CHM");
}

TEST(ScanTliTypeKinds, TypeKindTexts) {
    EXPECT_EQ(TypeKindStrOf(0), u"Enum");
    EXPECT_EQ(TypeKindStrOf(4), u"Dispatch (*)");
    EXPECT_EQ(TypeKindStrOf(6), u"Alias (**)");
    EXPECT_EQ(TypeKindStrOf(7), u"Union");
    EXPECT_EQ(TypeKindStrOf(8), u"");
    EXPECT_EQ(TypeKindStrOf(-1), u"");
}

TEST(ScanTliDefaults, ProduceDefaultValue) {
    VarTypeInfo plain;
    plain.VarType = VT_BSTR;
    EXPECT_EQ(clsScanTLI::ProduceDefaultValue(Str(u"a\"b"), plain), u"\"a\"\"b\"");
    EXPECT_EQ(clsScanTLI::ProduceDefaultValue(true, plain), u"True");
    EXPECT_EQ(clsScanTLI::ProduceDefaultValue(1.5, plain), u"1.5");
    EXPECT_EQ(clsScanTLI::ProduceDefaultValue(basic::Empty{}, plain), u"");
    MsftReader reader;
    TypeLibraryPtr shapes = reader.Open(fixturePath("qltshapes.tlb"));
    VarTypeInfo enumType;
    enumType.TypeInfo = typeNamed(*shapes, u"ShapeColor");
    EXPECT_EQ(clsScanTLI::ProduceDefaultValue(2LL, enumType), u"scGreen");
    EXPECT_EQ(clsScanTLI::ProduceDefaultValue(7LL, enumType), u"7");
    // Through an alias to the enum.
    enumType.TypeInfo = typeNamed(*shapes, u"ColorAlias2");
    EXPECT_EQ(clsScanTLI::ProduceDefaultValue(-4LL, enumType), u"scBlue");
}

}  // namespace
}  // namespace quillet::typelib
