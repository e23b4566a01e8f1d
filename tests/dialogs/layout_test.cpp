// The rules of dialog layouts, each shown to catch a layout that breaks it.

#include <gtest/gtest.h>

#include <algorithm>

#include "basic/unicode.h"
#include "dialogs/layout_check.h"
#include "test_forms.h"

namespace quillet::dialogs {
namespace {

// A small dialog: a label and its box, two check boxes in a frame, OK and Cancel.
class frmSmall : public Form {
public:
    frmSmall() : Form(u"frmSmall") {
        AddControl(u"txtName", ControlKind::TextBox);
        AddControl(u"chkOne", ControlKind::CheckBox).Caption = u"&One";
        AddControl(u"chkTwo", ControlKind::CheckBox).Caption = u"&Two";
        AddControl(u"cmdOK", ControlKind::CommandButton).Caption = u"OK";
        AddControl(u"cmdCancel", ControlKind::CommandButton).Caption = u"Cancel";
    }
};

FormLayout smallLayout() {
    FormLayout layout;
    layout.form = u"frmSmall";
    layout.width = 130;
    layout.height = 80;
    layout.items = {label(u"lblName", u"&Name:", {7, 10, 30, 8}, u"txtName"),
                    placed(u"txtName", {41, 7, 82, 14}),
                    frame(u"fraOptions", u"Options", {7, 25, 116, 26}),
                    placed(u"chkOne", {14, 37, 50, 10}),
                    placed(u"chkTwo", {68, 37, 50, 10}),
                    placed(u"cmdOK", {19, 59, 50, 14}),
                    placed(u"cmdCancel", {73, 59, 50, 14})};
    return layout;
}

bool mentions(const std::vector<Str>& problems, const Str& text) {
    return std::any_of(problems.begin(), problems.end(), [&](const Str& p) { return p.find(text) != Str::npos; });
}

Placement& item(FormLayout& layout, const Str& name) { return const_cast<Placement&>(*layout.find(name)); }

TEST(DialogLayout, AGoodLayoutHasNoProblems) {
    frmSmall form;
    EXPECT_TRUE(LayoutProblems(smallLayout(), form).empty());
}

TEST(DialogLayout, AControlWithoutPlacementIsFound) {
    frmSmall form;
    auto layout = smallLayout();
    layout.items.erase(layout.items.begin() + 4);
    EXPECT_TRUE(mentions(LayoutProblems(layout, form), u"chkTwo has no placement"));
}

TEST(DialogLayout, AControlPlacedTwiceIsFound) {
    frmSmall form;
    auto layout = smallLayout();
    layout.items.push_back(placed(u"CHKONE", {7, 7, 1, 1}));
    EXPECT_TRUE(mentions(LayoutProblems(layout, form), u"placed 2 times"));
}

TEST(DialogLayout, APlacementOfNoControlIsFound) {
    frmSmall form;
    auto layout = smallLayout();
    layout.items.push_back(placed(u"txtGhost", {7, 60, 5, 5}));
    EXPECT_TRUE(mentions(LayoutProblems(layout, form), u"txtGhost is not a control"));
}

TEST(DialogLayout, APlacementOutsideTheMarginsIsFound) {
    frmSmall form;
    auto layout = smallLayout();
    item(layout, u"cmdCancel").rect.x = 80;  // its right edge at 130, in the margin
    EXPECT_TRUE(mentions(LayoutProblems(layout, form), u"cmdCancel lies outside"));
}

TEST(DialogLayout, OverlapsAreFoundButAFrameMayHoldControls) {
    frmSmall form;
    auto layout = smallLayout();
    item(layout, u"chkTwo").rect.x = 60;
    auto problems = LayoutProblems(layout, form);
    EXPECT_TRUE(mentions(problems, u"chkOne overlaps chkTwo"));
    EXPECT_FALSE(mentions(problems, u"fraOptions overlaps"));
    item(layout, u"chkTwo").rect.x = 100;  // half out of the frame
    EXPECT_TRUE(mentions(LayoutProblems(layout, form), u"fraOptions overlaps chkTwo"));
}

TEST(DialogLayout, AccessKeysMustBeUnique) {
    frmSmall form;
    form.Controls(u"chkTwo").Caption = u"Tw&o";
    EXPECT_TRUE(mentions(LayoutProblems(smallLayout(), form), u"access key O of chkTwo is taken by chkOne"));
    form.Controls(u"chkTwo").Caption = u"T&&&wo";
    EXPECT_TRUE(LayoutProblems(smallLayout(), form).empty());
}

TEST(DialogLayout, ALayoutCaptionStandsInForAnEmptyModelCaption) {
    frmSmall form;
    form.Controls(u"chkTwo").Caption.clear();
    auto layout = smallLayout();
    item(layout, u"chkTwo").caption = u"&Name it";
    EXPECT_TRUE(mentions(LayoutProblems(layout, form), u"access key N of chkTwo is taken by lblName"));
    form.Controls(u"chkTwo").Caption = u"&Two";
    EXPECT_TRUE(LayoutProblems(layout, form).empty());
}

TEST(DialogLayout, TabOrderMustFollowReadingOrder) {
    frmSmall form;
    auto layout = smallLayout();
    std::swap(layout.items[5], layout.items[6]);  // Cancel before OK in the same row
    EXPECT_TRUE(mentions(LayoutProblems(layout, form), u"Tab order: cmdOK comes after cmdCancel"));
    layout = smallLayout();
    std::swap(layout.items[3], layout.items[4]);
    EXPECT_TRUE(mentions(LayoutProblems(layout, form), u"Tab order: chkOne comes after chkTwo"));
    layout = smallLayout();
    std::rotate(layout.items.begin(), layout.items.begin() + 5, layout.items.end());  // buttons first
    EXPECT_TRUE(mentions(LayoutProblems(layout, form), u"Tab order"));
}

TEST(DialogLayout, ALabelMustComeJustBeforeItsControl) {
    frmSmall form;
    auto layout = smallLayout();
    item(layout, u"lblName").labelFor = u"chkOne";
    EXPECT_TRUE(mentions(LayoutProblems(layout, form), u"label lblName does not come just before chkOne"));
    item(layout, u"lblName").labelFor.clear();
    EXPECT_TRUE(mentions(LayoutProblems(layout, form), u"label lblName has an access key but names no control"));
}

TEST(DialogLayout, DefaultAndCancelButtonsMustBeButtons) {
    frmSmall form;
    auto layout = smallLayout();
    layout.defaultButton = u"txtName";
    EXPECT_TRUE(mentions(LayoutProblems(layout, form), u"txtName is not a button"));
}

TEST(DialogLayout, ReadingOrder) {
    EXPECT_TRUE(readsBefore({7, 7, 20, 14}, {30, 7, 20, 14}));
    EXPECT_FALSE(readsBefore({30, 7, 20, 14}, {7, 7, 20, 14}));
    EXPECT_TRUE(readsBefore({30, 7, 20, 14}, {7, 21, 20, 14}));
    EXPECT_FALSE(readsBefore({7, 21, 20, 14}, {30, 7, 20, 14}));
    // Side by side with different heights: a list and the button beside its top.
    EXPECT_TRUE(readsBefore({7, 7, 50, 60}, {61, 7, 50, 14}));
}

TEST(DialogLayout, AccessKeys) {
    EXPECT_EQ(accessKey(u"&Name:"), u'N');
    EXPECT_EQ(accessKey(u"OK && &new"), u'N');
    EXPECT_EQ(accessKey(u"A && B"), 0);
    EXPECT_EQ(accessKey(u"Trailing&"), 0);
    EXPECT_EQ(accessKey(u"OK"), 0);
}

TEST(DialogLayout, CatalogFindsLayoutsIgnoringCase) {
    LayoutCatalog catalog;
    catalog.Add(u"frmSmall", smallLayout);
    ASSERT_TRUE(catalog.Find(u"FRMSMALL").has_value());
    EXPECT_EQ(catalog.Find(u"frmsmall")->width, 130);
    EXPECT_FALSE(catalog.Find(u"frmOther").has_value());
}

TEST(DialogLayout, TheFallbackLayoutKeepsTheRules) {
    frmSmall small;
    EXPECT_TRUE(LayoutProblems(FallbackLayout(small), small).empty());
    testing::frmTest test;
    auto problems = LayoutProblems(FallbackLayout(test), test);
    EXPECT_TRUE(problems.empty()) << (problems.empty() ? "" : basic::toUtf8(problems[0]));
}

}  // namespace
}  // namespace quillet::dialogs
