// The Variable Builder's names over every type of its type list at every level, with the
// default prefix settings (g, m, r, v before the type prefix; prefixes before a capital only).

#include <algorithm>
#include <array>

#include "var_fixture.h"

namespace quillet::builders {
namespace {

// Type, then the name of "Total" at the levels module, procedure, public, static, by-reference
// argument and by-value argument.
const std::vector<std::array<Str, 7>> kExpectedNames = {
    {u"Byte", u"mbytTotal", u"bytTotal", u"gbytTotal", u"bytTotal", u"rbytTotal", u"vbytTotal"},
    {u"Boolean", u"mblnTotal", u"blnTotal", u"gblnTotal", u"blnTotal", u"rblnTotal", u"vblnTotal"},
    {u"Integer", u"mintTotal", u"intTotal", u"gintTotal", u"intTotal", u"rintTotal", u"vintTotal"},
    {u"Long", u"mlngTotal", u"lngTotal", u"glngTotal", u"lngTotal", u"rlngTotal", u"vlngTotal"},
    {u"Single", u"msngTotal", u"sngTotal", u"gsngTotal", u"sngTotal", u"rsngTotal", u"vsngTotal"},
    {u"Double", u"mdblTotal", u"dblTotal", u"gdblTotal", u"dblTotal", u"rdblTotal", u"vdblTotal"},
    {u"Currency", u"mcurTotal", u"curTotal", u"gcurTotal", u"curTotal", u"rcurTotal", u"vcurTotal"},
    {u"Date", u"mdtmTotal", u"dtmTotal", u"gdtmTotal", u"dtmTotal", u"rdtmTotal", u"vdtmTotal"},
    {u"String", u"mstrTotal", u"strTotal", u"gstrTotal", u"strTotal", u"rstrTotal", u"vstrTotal"},
    {u"Variant", u"mvarTotal", u"varTotal", u"gvarTotal", u"varTotal", u"rvarTotal", u"vvarTotal"},
    {u"Object", u"mobjTotal", u"objTotal", u"gobjTotal", u"objTotal", u"robjTotal", u"vobjTotal"},
    {u"Collection", u"mcolTotal", u"colTotal", u"gcolTotal", u"colTotal", u"rcolTotal", u"vcolTotal"},
    // A class of the project: the standards give it no type prefix, only the scope's.
    {u"clsOrder", u"mTotal", u"Total", u"gTotal", u"Total", u"rTotal", u"vTotal"},
};

class VariablePrefixes : public testing::VariableFixture {};

TEST_F(VariablePrefixes, EveryTypeAtEveryLevel) {
    auto& form = openOn({u"Option Explicit", u"", u"Public Sub Run(ByVal lngA As Long)", u"    lngA = 1", u"End Sub"}, 4);
    auto& types = form.Controls(u"cboDataType");
    std::vector<Str> listed, expected;
    for (long i = 0; i < types.ListCount(); ++i) listed.push_back(types.List(i));
    for (const auto& row : kExpectedNames) expected.push_back(row[0]);
    std::sort(listed.begin(), listed.end());
    std::sort(expected.begin(), expected.end());
    ASSERT_EQ(listed, expected) << "the table must name every type of the list";

    const std::array<std::pair<Str, bool>, 6> levels = {
        {{u"Dim - Module", false}, {u"Dim - Procedure", false}, {u"Public", false}, {u"Static", false},
         {u"Interface", false}, {u"Interface", true}}};
    for (const auto& row : kExpectedNames) {
        type(form, row[0]);
        for (size_t i = 0; i < levels.size(); ++i) {
            level(form, levels[i].first);
            if (levels[i].first == u"Interface")
                ctx->Forms->Raise([&] { form.Controls(u"chkByVal").Value(levels[i].second ? 1 : 0); });
            form.ArgInsert(u"Total", row[0]);
            EXPECT_EQ(form.Controls(u"txtName").Text(), row[i + 1])
                << basic::toUtf8(row[0]) << " at " << basic::toUtf8(levels[i].first) << (levels[i].second ? " ByVal" : "");
        }
    }
}

TEST_F(VariablePrefixes, TheNameFollowsWhileTheProgramSetItAndStopsOnceTyped) {
    auto& form = openOn({u"Public Sub Run()", u"    Run", u"End Sub"}, 2);
    form.ArgInsert(u"Total", {});
    type(form, u"Long");
    EXPECT_EQ(form.Controls(u"txtName").Text(), u"lngTotal");
    level(form, u"Public");
    EXPECT_EQ(form.Controls(u"txtName").Text(), u"glngTotal");
    typeName(form, u"glngSum");
    level(form, u"Private");
    EXPECT_EQ(form.Controls(u"txtName").Text(), u"glngSum");
}

}  // namespace
}  // namespace quillet::builders
