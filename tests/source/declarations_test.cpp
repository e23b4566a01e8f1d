#include "source/declarations.h"

#include <gtest/gtest.h>

#include "source/record_collections.h"

namespace quillet::source {
namespace {

clsVariable variable(const Str& text) {
    clsVariable v;
    v.init(text);
    return v;
}

clsConstant constant(const Str& text) {
    clsConstant c;
    c.init(text);
    return c;
}

TEST(SourceDeclarations, VariableWithNothingMore) {
    auto x = variable(u"x");
    EXPECT_EQ(x.Name, u"x");
    EXPECT_EQ(x.Type_, u"Variant");
    EXPECT_FALSE(x.IsArray);
    EXPECT_EQ(x.Bounds(), u"");
}

TEST(SourceDeclarations, VariableArrays) {
    auto open = variable(u"x()");
    EXPECT_TRUE(open.IsArray);
    EXPECT_EQ(open.Bounds(), u"");
    EXPECT_EQ(open.Type_, u"Variant");
    auto bounded = variable(u"x(1 To 3) As Long");
    EXPECT_TRUE(bounded.IsArray);
    EXPECT_EQ(bounded.Bounds(), u"(1 To 3)");
    EXPECT_EQ(bounded.Type_, u"Long");
    auto typed = variable(u"y() As String");
    EXPECT_EQ(typed.Type_, u"String");
    EXPECT_EQ(typed.Bounds(), u"");
}

TEST(SourceDeclarations, VariableTypes) {
    auto s = variable(u"s$");
    EXPECT_EQ(s.Name, u"s");
    EXPECT_EQ(s.Type_, u"String");
    EXPECT_EQ(variable(u"n As Long ' counter").Type_, u"Long");
    EXPECT_EQ(variable(u"c As String * 10").Type_, u"String * 10");
    EXPECT_EQ(variable(u"col As New Collection").Type_, u"New Collection");
    // The suffix wins over a written type.
    EXPECT_EQ(variable(u"d# As Long").Type_, u"Double");
    EXPECT_EQ(variable(u"v As").Type_, u"Variant");
    EXPECT_EQ(variable(u"w As Long = 5").Type_, u"Long");
    auto empty = variable(u"   ");
    EXPECT_EQ(empty.Name, u"");
    EXPECT_EQ(empty.Type_, u"");
}

TEST(SourceDeclarations, ConstantWithoutType) {
    auto a = constant(u"A = 1");
    EXPECT_EQ(a.Name, u"A");
    EXPECT_EQ(a.Type_, u"Variant");
    EXPECT_EQ(a.Value, u"1");
    EXPECT_FALSE(a.EnumMember());
}

TEST(SourceDeclarations, ConstantWithTypeAndComment) {
    auto a = constant(u"A As Long = 1 ' one");
    EXPECT_EQ(a.Type_, u"Long");
    EXPECT_EQ(a.Value, u"1");
}

TEST(SourceDeclarations, ConstantStringWithApostropheKeepsItsQuotes) {
    auto b = constant(u"B$ = \"x'y\"");
    EXPECT_EQ(b.Name, u"B");
    EXPECT_EQ(b.Type_, u"String");
    EXPECT_EQ(b.Value, u"\"x'y\"");
    auto c = constant(u"C = \"a\" & \"b\" ' two");
    EXPECT_EQ(c.Value, u"\"a\"");
}

TEST(SourceDeclarations, ConstantOddForms) {
    auto bare = constant(u"K");
    EXPECT_EQ(bare.Type_, u"Variant");
    EXPECT_EQ(bare.Value, u"");
    EXPECT_EQ(constant(u"K As Long =5").Value, u"");
    EXPECT_EQ(constant(u"K As Long").Type_, u"Long");
    EXPECT_EQ(constant(u"K As Long").Value, u"");
    // No type named: the type of the value as text.
    EXPECT_EQ(constant(u"K As = 5").Type_, u"String");
}

TEST(SourceDeclarations, EnumNameMakesAnEnumMember) {
    clsConstant c;
    c.EnumName(u"");
    EXPECT_FALSE(c.EnumMember());
    c.EnumName(u"eColor");
    EXPECT_TRUE(c.EnumMember());
    EXPECT_EQ(c.EnumName(), u"eColor");
    c.EnumName(u"");
    EXPECT_TRUE(c.EnumMember());
}

TEST(SourceDeclarations, EnumAndTypeCollections) {
    clsEnum e;
    auto red = std::make_shared<clsConstant>();
    red->Name = u"Red";
    e.Add(red, u"eColor.Red");
    e.Add(std::make_shared<clsConstant>());
    EXPECT_EQ(e.Count(), 2);
    EXPECT_EQ(e.Item(u"ECOLOR.RED")->Name, u"Red");
    e.Remove(u"eColor.Red");
    EXPECT_EQ(e.Count(), 1);
    clsType t;
    t.Add(std::make_shared<clsVariable>(), u"x");
    EXPECT_THROW(t.Add(std::make_shared<clsVariable>(), u"X"), basic::VbError);
    EXPECT_EQ(t.Count(), 1);
}

TEST(SourceDeclarations, ArgumentString) {
    clsArgument a;
    a.Name = u"n";
    a.ValueType = u"Long";
    EXPECT_EQ(a.ArgumentString(), u"n As Long");
    a.IsByVal = true;
    a.IsOptional = true;
    a.DefaultValue = u"5";
    a.IsArray = true;
    EXPECT_EQ(a.ArgumentString(), u"Optional ByVal n() As Long = 5");
    // An optional argument with an empty default prints no " = ".
    a.DefaultValue.clear();
    EXPECT_EQ(a.ArgumentString(), u"Optional ByVal n() As Long");
    // ParamArray prints only its own form, with no Optional.
    a.IsParamArray = true;
    EXPECT_EQ(a.ArgumentString(), u"ParamArray n()");
    clsArgument plain;
    plain.Name = u"x";
    EXPECT_EQ(plain.ArgumentString(), u"x");
    // A default of a mandatory argument is not written.
    plain.DefaultValue = u"1";
    EXPECT_EQ(plain.ArgumentString(), u"x");
}

TEST(SourceDeclarations, ColArgumentsKeysByNameOrKey) {
    colArguments args;
    auto a = args.Add(u"a", u"Long", false, u"", false, false, 1, true);
    EXPECT_EQ(a->ID, u"a");
    EXPECT_EQ(a->Number, 1);
    EXPECT_TRUE(a->IsByVal);
    auto b = args.Add(u"b", u"", true, u"1", false, false, 2, false, u"key2");
    EXPECT_EQ(b->ID, u"key2");
    EXPECT_EQ(args.Item(u"key2")->Name, u"b");
    EXPECT_THROW(args.Add(u"A", u"", false, u"", false, false, 3, false), basic::VbError);
    EXPECT_EQ(args.Count(), 2);
}

TEST(SourceDeclarations, RndFollowsBasicsSequence) {
    BasicRnd rnd;
    EXPECT_FLOAT_EQ(rnd.next(), 0.7055475f);
    EXPECT_FLOAT_EQ(rnd.next(), 0.533424f);
    EXPECT_FLOAT_EQ(rnd.next(), 0.5795186f);
}

struct Proc {
    Str Name;
    Str ID;
};

TEST(SourceDeclarations, RandomKeysLetTwoMembersOfOneNameLiveSideBySide) {
    RandomKeyedCollection<Proc, &Proc::ID> procs;
    auto first = std::make_shared<Proc>(Proc{u"Item", {}});
    auto second = std::make_shared<Proc>(Proc{u"Item", {}});
    procs.Add(first);
    procs.Add(second);
    EXPECT_EQ(procs.Count(), 2);
    EXPECT_EQ(first->ID, u"Item1515151744");
    EXPECT_NE(first->ID, second->ID);
    procs.Remove(first->ID);
    EXPECT_EQ(procs.Item(1)->ID, second->ID);
}

TEST(SourceDeclarations, TreeContainers) {
    clsProject project;
    EXPECT_EQ(project.Items.Count(), 0);
    clsItem item;
    EXPECT_FALSE(item.Items.has_value());
    item.ItemInit();
    ASSERT_TRUE(item.Items.has_value());
    item.Items->Add(std::make_shared<clsItem>());
    EXPECT_EQ(item.Items->Count(), 1);
}

}  // namespace
}  // namespace quillet::source
