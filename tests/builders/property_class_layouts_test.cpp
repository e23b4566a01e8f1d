// The Property and Class Builders' window layouts keep the rules of dialog layouts against the
// real models.

#include <gtest/gtest.h>

#include "basic/unicode.h"
#include "builder_fixture.h"
#include "builders/builder_layouts.h"
#include "builders/frm_class.h"
#include "dialogs/layout_check.h"

namespace quillet::testing {
namespace {

using dialogs::FormLayout;

class PropertyClassLayouts : public BuilderFixture {
protected:
    static std::string joined(const std::vector<Str>& problems) {
        std::string text;
        for (const auto& p : problems) text += basic::toUtf8(p) + "\n";
        return text;
    }
    static void expectEachControlPlacedOnce(const FormLayout& layout, dialogs::Form& form) {
        for (dialogs::Control* control : form.AllControls()) {
            int count = 0;
            for (const auto& item : layout.items)
                if (dialogs::foldedName(item.name) == dialogs::foldedName(control->Name())) ++count;
            EXPECT_EQ(count, 1) << basic::toUtf8(control->Name());
        }
    }
    static void expectButtonRow(const FormLayout& layout, const std::vector<Str>& names) {
        const auto* first = layout.find(names.front());
        ASSERT_TRUE(first);
        int x = first->rect.x;
        for (const Str& name : names) {
            const auto* button = layout.find(name);
            ASSERT_TRUE(button) << basic::toUtf8(name);
            EXPECT_EQ(button->rect.x, x) << basic::toUtf8(name);
            EXPECT_EQ(button->rect.cx, dialogs::kDluButtonWidth);
            EXPECT_EQ(button->rect.cy, dialogs::kDluButtonHeight);
            EXPECT_EQ(button->rect.bottom(), layout.height - dialogs::kDluMargin);
            x = button->rect.right() + dialogs::kDluSpacing;
        }
        EXPECT_EQ(x - dialogs::kDluSpacing, layout.width - dialogs::kDluMargin);
    }
};

TEST_F(PropertyClassLayouts, PropertyBuilderKeepsTheRules) {
    builders::frmProperty form(*ctx);
    auto layout = builders::frmPropertyLayout();
    expectEachControlPlacedOnce(layout, form);
    auto problems = dialogs::LayoutProblems(layout, form);
    EXPECT_TRUE(problems.empty()) << joined(problems);
    expectButtonRow(layout, {u"cmdOK", u"cmdOKAndNew", u"cmdCancel", u"cmdHelp"});
    EXPECT_EQ(layout.defaultButton, u"cmdOK");
    EXPECT_EQ(layout.find(u"cboDataType")->combo, dialogs::ComboStyle::Editable);
    EXPECT_EQ(layout.find(u"cboModule")->combo, dialogs::ComboStyle::Editable);
    EXPECT_EQ(layout.find(u"cboStatic")->combo, dialogs::ComboStyle::DropDownList);
}

TEST_F(PropertyClassLayouts, ClassBuilderKeepsTheRules) {
    builders::frmClass form(*ctx);
    auto layout = builders::frmClassLayout();
    expectEachControlPlacedOnce(layout, form);
    auto problems = dialogs::LayoutProblems(layout, form);
    EXPECT_TRUE(problems.empty()) << joined(problems);
    expectButtonRow(layout, {u"cmdCreate", u"cmdCancel", u"cmdHelp"});
    EXPECT_EQ(layout.defaultButton, u"cmdCreate");
    EXPECT_EQ(layout.cancelButton, u"cmdCancel");
}

TEST_F(PropertyClassLayouts, EachPageHoldsTheControlsItShows) {
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
}

TEST_F(PropertyClassLayouts, TheCatalogKnowsBoth) {
    dialogs::LayoutCatalog catalog;
    builders::AddBuilderLayouts(catalog);
    EXPECT_TRUE(catalog.Find(u"frmProperty"));
    EXPECT_TRUE(catalog.Find(u"frmClass"));
}

}  // namespace
}  // namespace quillet::testing
