// The property generator's text: the four kinds of type, the private variable's name, the head
// with Static, header and procedure constant, and the error handler and hourglass merged into
// each procedure. Longer texts are golden files, compared byte for byte.

#include "generators/cls_property.h"

#include "../fragments/fragments_fixture.h"
#include "golden.h"
#include "source/code_env.h"
#include "source/prefixes.h"

namespace quillet::generators {
namespace {

using testing::matchesGolden;

constexpr char16_t kHandler[] =
    u"    On Error GoTo {HANDLEERRORLABEL}\r\n<end_of_top><begin_of_bottom>\r\n\r\n{HANDLEEXITLABEL}:\r\n"
    u"    Exit {PROCEDURETYPE}\r\n\r\n{HANDLEERRORLABEL}:\r\n"
    u"    {ERRORHANDLEPROCEDURE} Err.Number, Err.Description, \"{MODULENAME}.{PROCEDURENAME}\"\r\n"
    u"    Resume {HANDLEEXITLABEL}\r\n";

class PropertyGenerator : public testing::FragmentsFixture {
protected:
    PropertyGenerator() {
        set(settings::iiPrefixModule, u"m");
        set(settings::iiProcedureNameConstant, u"cstrProcedure");
        set(settings::iiModuleNameConstant, u"cstrModule");
        ctx->Prefixes = source::PrefixesCollectionsCreate(
            source::PrefixSettings{}, {{u"Long", u"lng", u"l", u"", u""},
                                       {u"String", u"str", u"s", u"", u""},
                                       {u"Boolean", u"bln", u"f", u"", u""},
                                       {u"Collection", u"col", u"", u"", u""},
                                       {u"Variant", u"var", u"v", u"", u""}});
        openModule({u"Option Explicit"}, 1);
    }
    clsProperty property(const Str& name, const Str& type, const Str& access = u"Public") {
        clsProperty p(*ctx);
        p.Name = name;
        p.datatype = type;
        p.AccessibleType = access;
        p.ModuleName = u"clsOrder";
        return p;
    }
    static Str code(clsProperty& p, bool get = true, bool set = true) {
        Str text = u"old";
        p.PropertyProceduresCodeCreate(get, set, text);
        return text;
    }
};

TEST_F(PropertyGenerator, ALongPropertyGetsAGetAndALet) {
    auto p = property(u"Count", u"Long");
    EXPECT_EQ(code(p), u"Public Property Get Count() As Long\r\n    Count = mlngCount\r\nEnd Property\r\n\r\n"
                       u"Public Property Let Count(rData As Long)\r\n    mlngCount = rData\r\nEnd Property\r\n\r\n");
}

TEST_F(PropertyGenerator, NeitherPartGivesNoText) {
    auto p = property(u"Count", u"Long");
    EXPECT_EQ(code(p, false, false), u"");
}

TEST_F(PropertyGenerator, TheGetAloneAndTheLetAlone) {
    auto p = property(u"Title", u"String", u"Friend");
    EXPECT_EQ(code(p, true, false), u"Friend Property Get Title() As String\r\n    Title = mstrTitle\r\nEnd Property\r\n\r\n");
    EXPECT_EQ(code(p, false, true), u"Friend Property Let Title(rData As String)\r\n    mstrTitle = rData\r\nEnd Property\r\n\r\n");
}

TEST_F(PropertyGenerator, NoTypeIsAVariantWithoutAsParts) {
    auto p = property(u"Tag", u"");
    EXPECT_TRUE(matchesGolden(code(p), "property/no_type.txt"));
    EXPECT_EQ(basic::InStr(code(p), u" As "), 0);
}

TEST_F(PropertyGenerator, ACollectionIsSetAndHasNoLet) {
    auto p = property(u"Items", u"Collection");
    EXPECT_EQ(code(p), u"Public Property Get Items() As Collection\r\n    Set Items = mcolItems\r\nEnd Property\r\n\r\n"
                       u"Public Property Set Items(rData As Collection)\r\n    Set mcolItems = rData\r\nEnd Property\r\n\r\n");
}

TEST_F(PropertyGenerator, AVariantGetsGetLetAndSet) {
    auto p = property(u"Value", u"Variant");
    Str text = code(p);
    EXPECT_TRUE(matchesGolden(text, "property/variant.txt"));
    EXPECT_EQ(basic::Split(text, u"End Property").size(), 4u);
}

TEST_F(PropertyGenerator, AnEnumIsAssignedWithoutSet) {
    auto p = property(u"Colour", u"enmColour");
    p.DataType2 = source::KindEnum;
    EXPECT_EQ(code(p), u"Public Property Get Colour() As enmColour\r\n    Colour = mvarColour\r\nEnd Property\r\n\r\n"
                       u"Public Property Let Colour(rData As enmColour)\r\n    mvarColour = rData\r\nEnd Property\r\n\r\n");
}

TEST_F(PropertyGenerator, ARecordIsAssignedWithoutSet) {
    auto p = property(u"Address", u"typAddress");
    p.DataType2 = source::KindType;
    EXPECT_EQ(code(p, false, true), u"Public Property Let Address(rData As typAddress)\r\n    mvarAddress = rData\r\nEnd Property\r\n\r\n");
}

TEST_F(PropertyGenerator, AClassTypeIsAnObject) {
    auto p = property(u"Customer", u"clsCustomer");
    EXPECT_EQ(code(p), u"Public Property Get Customer() As clsCustomer\r\n    Set Customer = mvarCustomer\r\nEnd Property\r\n\r\n"
                       u"Public Property Set Customer(rData As clsCustomer)\r\n    Set mvarCustomer = rData\r\nEnd Property\r\n\r\n");
}

TEST_F(PropertyGenerator, StaticLeavesTwoBlanksBehindTheAccessWord) {
    auto p = property(u"Count", u"Long");
    p.IsStatic = true;
    EXPECT_EQ(code(p, true, false), u"Public  Static Property Get Count() As Long\r\n    Count = mlngCount\r\nEnd Property\r\n\r\n");
    p.AccessibleType.clear();
    EXPECT_EQ(code(p, false, true), u" Static Property Let Count(rData As Long)\r\n    mlngCount = rData\r\nEnd Property\r\n\r\n");
}

TEST_F(PropertyGenerator, TheVariableCarriesTheTypePrefix) {
    auto p = property(u"Count", u"Long");
    Str name;
    p.PrivPropVarName(u"Long", u"Count", name);
    EXPECT_EQ(name, u"mlngCount");
    p.PrivPropVarName(u"Long", u"lngCount", name);
    EXPECT_EQ(name, u"mlngCount");
    // "lngth" does not start with the prefix "lng" as a word part.
    p.PrivPropVarName(u"Long", u"lngth", name);
    EXPECT_EQ(name, u"mlnglngth");
    p.PrivPropVarName(u"clsOrder", u"Order", name);
    EXPECT_EQ(name, u"mvarOrder");
    p.PrivPropVarName(u"", u"Tag", name);
    EXPECT_EQ(name, u"mvarTag");
    set(settings::iiPrefixModule, u"my");
    p.PrivPropVarName(u"String", u"Title", name);
    EXPECT_EQ(name, u"mystrTitle");
}

TEST_F(PropertyGenerator, TheDeclarationNamesTheTypeWhenThereIsOne) {
    auto p = property(u"Count", u"Long");
    EXPECT_EQ(p.Declaration(), u"Private mlngCount As Long");
    auto q = property(u"Tag", u"");
    EXPECT_EQ(q.Declaration(), u"Private mvarTag");
}

TEST_F(PropertyGenerator, TheHeaderStandsAboveTheConstantInEveryProcedure) {
    set(settings::iiProcedureHeaderFile, u"Templates\\ProcedureHeader.bas");
    write("Templates/ProcedureHeader.bas", "    '---\r\n    ' {PROCEDURENAME}: {DESCRIPTION}\r\n    ");
    auto p = property(u"Value", u"Variant");
    p.IncludeHeader = true;
    p.ProcedureNameConstant = true;
    p.Description = u"The value";
    EXPECT_TRUE(matchesGolden(code(p), "property/header_and_constant.txt"));
}

TEST_F(PropertyGenerator, AMissingHeaderFileGivesNoHeader) {
    set(settings::iiProcedureHeaderFile, u"Templates\\Missing.bas");
    auto p = property(u"Count", u"Long");
    Str plain = code(p);
    p.IncludeHeader = true;
    EXPECT_EQ(code(p), plain);
}

TEST_F(PropertyGenerator, TheErrorHandlerWrapsEachProcedure) {
    auto p = property(u"Count", u"Long");
    p.IncludeErrorHandler = true;
    p.ErrorHandler = kHandler;
    EXPECT_TRUE(matchesGolden(code(p), "property/error_handler.txt"));
}

TEST_F(PropertyGenerator, TheErrorHandlerUsesTheNameConstants) {
    auto p = property(u"Items", u"Collection");
    p.IncludeErrorHandler = true;
    p.ErrorHandler = kHandler;
    p.ModuleNameConstant = true;
    p.ProcedureNameConstant = true;
    EXPECT_TRUE(matchesGolden(code(p), "property/error_handler_constants.txt"));
}

TEST_F(PropertyGenerator, TheHourglassWrapsEachProcedure) {
    ctx->HostName = u"Access";
    auto p = property(u"Count", u"Long");
    p.IncludeHourglass = true;
    EXPECT_TRUE(matchesGolden(code(p), "property/hourglass.txt"));
    ctx->HostName = u"Outlook";
    Str withoutHourglass = code(p);
    p.IncludeHourglass = false;
    EXPECT_EQ(withoutHourglass, code(p));
}

TEST_F(PropertyGenerator, TheHourglassWrapsTheErrorHandler) {
    ctx->HostName = u"Excel";
    auto p = property(u"Tag", u"Variant");
    p.IncludeErrorHandler = true;
    p.ErrorHandler = kHandler;
    p.IncludeHourglass = true;
    EXPECT_TRUE(matchesGolden(code(p, true, false), "property/handler_and_hourglass.txt"));
}

TEST_F(PropertyGenerator, TheIndentFollowsTheTabWidth) {
    tabWidth(u"2");
    auto p = property(u"Count", u"Long");
    EXPECT_EQ(code(p, true, false), u"Public Property Get Count() As Long\r\n  Count = mlngCount\r\nEnd Property\r\n\r\n");
}

}  // namespace
}  // namespace quillet::generators
