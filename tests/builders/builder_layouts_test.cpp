// The builders' window layouts keep the rules of dialog layouts against the real models.

#include <gtest/gtest.h>

#include <set>

#include "basic/unicode.h"
#include "builder_fixture.h"
#include "builders/builder_layouts.h"
#include "builders/frm_class.h"
#include "builders/frm_procedure.h"
#include "dialogs/layout_check.h"

namespace quillet::testing {
namespace {

using dialogs::FormLayout;

class BuilderLayouts : public BuilderFixture {
protected:
    static std::string joined(const std::vector<Str>& problems) {
        std::string text;
        for (const auto& p : problems) text += basic::toUtf8(p) + "\n";
        return text;
    }
    // Every model control placed once, and each placement a control or a decoration.
    static void expectEachControlPlacedOnce(const FormLayout& layout, dialogs::Form& form) {
        for (dialogs::Control* control : form.AllControls()) {
            int count = 0;
            for (const auto& item : layout.items)
                if (dialogs::foldedName(item.name) == dialogs::foldedName(control->Name())) ++count;
            EXPECT_EQ(count, 1) << basic::toUtf8(control->Name());
        }
    }
    static std::set<char16_t> keysOf(const FormLayout& layout, dialogs::Form& form) {
        std::set<char16_t> keys;
        for (const auto& item : layout.items)
            if (char16_t key = dialogs::accessKey(dialogs::shownCaption(item, form))) keys.insert(key);
        return keys;
    }
};

TEST_F(BuilderLayouts, ProcedureBuilderKeepsTheRules) {
    builders::frmProcedure form(*ctx);
    auto layout = builders::frmProcedureLayout();
    expectEachControlPlacedOnce(layout, form);
    auto problems = dialogs::LayoutProblems(layout, form);
    EXPECT_TRUE(problems.empty()) << joined(problems);
}

TEST_F(BuilderLayouts, ArgumentBuilderKeepsTheRules) {
    builders::frmArgument form(*ctx);
    auto layout = builders::frmArgumentLayout();
    expectEachControlPlacedOnce(layout, form);
    auto problems = dialogs::LayoutProblems(layout, form);
    EXPECT_TRUE(problems.empty()) << joined(problems);
}

TEST_F(BuilderLayouts, EveryFocusableControlAndLabelHasAnAccessKeyButOKAndCancel) {
    builders::frmProcedure procedure(*ctx);
    builders::frmArgument argument(*ctx);
    for (auto [layout, form] : {std::pair<FormLayout, dialogs::Form*>{builders::frmProcedureLayout(), &procedure},
                                {builders::frmArgumentLayout(), &argument}}) {
        for (const auto& item : layout.items) {
            auto kind = dialogs::kindOf(item, *form);
            if (kind == dialogs::ControlKind::Frame || item.name == u"cmdOK" || item.name == u"cmdCancel") continue;
            // A box named by a label gets its key from the label.
            bool labelled = false;
            for (const auto& other : layout.items) labelled = labelled || other.labelFor == item.name;
            if (labelled) continue;
            EXPECT_NE(dialogs::accessKey(dialogs::shownCaption(item, *form)), 0)
                << basic::toUtf8(layout.form) << "." << basic::toUtf8(item.name);
        }
    }
    EXPECT_EQ(keysOf(builders::frmArgumentLayout(), argument).size(), 10u);
}

TEST_F(BuilderLayouts, ButtonsHaveTheStandardSizeAndStandInARowAtTheBottomRight) {
    for (const FormLayout& layout : {builders::frmProcedureLayout(), builders::frmArgumentLayout()}) {
        const auto* ok = layout.find(u"cmdOK");
        const auto* cancel = layout.find(u"cmdCancel");
        const auto* help = layout.find(u"cmdHelp");
        ASSERT_TRUE(ok && cancel && help);
        for (const auto* button : {ok, cancel, help}) {
            EXPECT_EQ(button->rect.cx, dialogs::kDluButtonWidth);
            EXPECT_EQ(button->rect.cy, dialogs::kDluButtonHeight);
            EXPECT_EQ(button->rect.y, ok->rect.y);
            EXPECT_EQ(button->rect.bottom(), layout.height - dialogs::kDluMargin);
        }
        EXPECT_EQ(help->rect.right(), layout.width - dialogs::kDluMargin);
        // The row's buttons follow each other at the standard spacing, left to right.
        const dialogs::Placement* previous = nullptr;
        for (const auto& item : layout.items) {
            if (item.rect.y != ok->rect.y) continue;
            if (previous) {
                EXPECT_EQ(item.rect.x - previous->rect.right(), dialogs::kDluSpacing) << basic::toUtf8(item.name);
            }
            previous = &item;
        }
        EXPECT_EQ(layout.defaultButton, u"cmdOK");
        EXPECT_EQ(layout.cancelButton, u"cmdCancel");
    }
}

TEST_F(BuilderLayouts, TheArgumentButtonsStandBesideTheList) {
    auto layout = builders::frmProcedureLayout();
    const auto& list = layout.find(u"lstArguments")->rect;
    int y = list.y;
    for (const char16_t* name : {u"cmdNewArg", u"cmdDelArg", u"cmdUpArg", u"cmdDownArg"}) {
        const auto& button = layout.find(name)->rect;
        EXPECT_EQ(button.x, list.right() + dialogs::kDluSpacing) << basic::toUtf8(name);
        EXPECT_EQ(button.y, y) << basic::toUtf8(name);
        y = button.bottom() + dialogs::kDluSpacing;
    }
    EXPECT_EQ(y - dialogs::kDluSpacing, list.bottom());
}

TEST_F(BuilderLayouts, TheOptionsStandInAFrame) {
    auto layout = builders::frmProcedureLayout();
    const auto* options = layout.find(u"fraOptions");
    ASSERT_TRUE(options && options->decoration);
    EXPECT_EQ(options->caption, u"Options");
    for (const char16_t* box : {u"chkAddHeader", u"chkAddHourglass", u"chkAddProcedureConstant", u"chkAddModuleConstant",
                                u"chkAddReturnStatement", u"chkArgumentsOnSeparateLine"})
        EXPECT_TRUE(options->rect.contains(layout.find(box)->rect)) << basic::toUtf8(box);
}

TEST_F(BuilderLayouts, CombosTakeTypedTextOnlyWhereTheModelDoes) {
    auto procedure = builders::frmProcedureLayout();
    for (const char16_t* editable : {u"cboReturnValueType", u"cboModule"})
        EXPECT_EQ(procedure.find(editable)->combo, dialogs::ComboStyle::Editable) << basic::toUtf8(editable);
    for (const char16_t* list : {u"cboProcType", u"cboAccessibility", u"cboStatic", u"cboAddErrorHandler"})
        EXPECT_EQ(procedure.find(list)->combo, dialogs::ComboStyle::DropDownList) << basic::toUtf8(list);
    auto argument = builders::frmArgumentLayout();
    EXPECT_EQ(argument.find(u"cboDataType")->combo, dialogs::ComboStyle::Editable);
    EXPECT_EQ(argument.find(u"cboDefaultValue")->combo, dialogs::ComboStyle::Editable);
}

TEST_F(BuilderLayouts, TheCatalogKnowsBothBuilders) {
    dialogs::LayoutCatalog catalog;
    builders::AddBuilderLayouts(catalog);
    ASSERT_TRUE(catalog.Find(u"frmProcedure"));
    ASSERT_TRUE(catalog.Find(u"frmArgument"));
    EXPECT_EQ(catalog.Find(u"frmProcedure")->form, u"frmProcedure");
}


// The Property and Class Builders: the rules, the row of buttons at the bottom right, and the
// tab pages of the Class Builder, each showing its own controls.
void expectButtonRow(const FormLayout& layout, const std::vector<Str>& names) {
    int x = layout.find(names.front())->rect.x;
    for (const Str& name : names) {
        const auto* button = layout.find(name);
        ASSERT_TRUE(button) << basic::toUtf8(name);
        EXPECT_EQ(button->rect.x, x) << basic::toUtf8(name);
        EXPECT_EQ(button->rect.cx, dialogs::kDluButtonWidth);
        EXPECT_EQ(button->rect.bottom(), layout.height - dialogs::kDluMargin);
        x = button->rect.right() + dialogs::kDluSpacing;
    }
    EXPECT_EQ(x - dialogs::kDluSpacing, layout.width - dialogs::kDluMargin);
}

TEST_F(BuilderLayouts, PropertyBuilderKeepsTheRules) {
    builders::frmProperty form(*ctx);
    auto layout = builders::frmPropertyLayout();
    expectEachControlPlacedOnce(layout, form);
    auto problems = dialogs::LayoutProblems(layout, form);
    EXPECT_TRUE(problems.empty()) << joined(problems);
    expectButtonRow(layout, {u"cmdOK", u"cmdOKAndNew", u"cmdCancel", u"cmdHelp"});
    EXPECT_EQ(layout.find(u"cboDataType")->combo, dialogs::ComboStyle::Editable);
    EXPECT_EQ(layout.find(u"cboModule")->combo, dialogs::ComboStyle::Editable);
    EXPECT_EQ(layout.find(u"cboStatic")->combo, dialogs::ComboStyle::DropDownList);
}

TEST_F(BuilderLayouts, ClassBuilderKeepsTheRules) {
    builders::frmClass form(*ctx);
    auto layout = builders::frmClassLayout();
    expectEachControlPlacedOnce(layout, form);
    auto problems = dialogs::LayoutProblems(layout, form);
    EXPECT_TRUE(problems.empty()) << joined(problems);
    expectButtonRow(layout, {u"cmdCreate", u"cmdCancel", u"cmdHelp"});
    EXPECT_EQ(layout.defaultButton, u"cmdCreate");
    EXPECT_EQ(layout.cancelButton, u"cmdCancel");
}

TEST_F(BuilderLayouts, EachClassBuilderPageHoldsTheControlsItShows) {
    builders::frmClass form(*ctx);
    form.Init();
    auto layout = builders::frmClassLayout();
    auto& tabs = form.Controls(u"TabMain");
    for (long tab = 0; tab < tabs.ListCount(); ++tab) {
        form.TabShow(tab);
        for (const auto& item : layout.items) {
            if (item.page.empty() || item.decoration) continue;
            EXPECT_EQ(form.Controls(item.name).Visible, item.page == tabs.List(tab)) << basic::toUtf8(item.name);
        }
    }
    dialogs::LayoutCatalog catalog;
    builders::AddBuilderLayouts(catalog);
    EXPECT_TRUE(catalog.Find(u"frmProperty"));
    EXPECT_TRUE(catalog.Find(u"frmClass"));
}

}  // namespace
}  // namespace quillet::testing
