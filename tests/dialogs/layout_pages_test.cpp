// Tab pages in a layout: the controls of two pages may share room and each page reads on its
// own; within one page the usual rules hold.

#include <gtest/gtest.h>

#include "basic/unicode.h"
#include "dialogs/layout_check.h"

namespace quillet::dialogs {
namespace {

class frmPaged : public Form {
public:
    frmPaged() : Form(u"frmPaged") {
        AddControl(u"lstTabs", ControlKind::ListBox);
        AddControl(u"txtOne", ControlKind::TextBox);
        AddControl(u"txtTwo", ControlKind::TextBox);
        AddControl(u"txtThree", ControlKind::TextBox);
        AddControl(u"cmdOK", ControlKind::CommandButton).Caption = u"OK";
        AddControl(u"cmdCancel", ControlKind::CommandButton).Caption = u"Cancel";
    }
};

Placement onPage(Placement item, const Str& page) {
    item.page = page;
    return item;
}

FormLayout pagedLayout() {
    FormLayout layout;
    layout.form = u"frmPaged";
    layout.width = 130;
    layout.height = 80;
    layout.items = {placed(u"lstTabs", {7, 7, 116, 14}),
                    onPage(placed(u"txtOne", {7, 25, 116, 14}), u"First"),
                    onPage(placed(u"txtTwo", {7, 41, 116, 14}), u"First"),
                    onPage(placed(u"txtThree", {7, 25, 116, 14}), u"Second"),
                    placed(u"cmdOK", {19, 59, 50, 14}),
                    placed(u"cmdCancel", {73, 59, 50, 14})};
    return layout;
}

std::string joined(const std::vector<Str>& problems) {
    std::string text;
    for (const auto& p : problems) text += basic::toUtf8(p) + "\n";
    return text;
}

TEST(DialogLayoutPages, TwoPagesShareRoom) {
    frmPaged form;
    auto problems = LayoutProblems(pagedLayout(), form);
    EXPECT_TRUE(problems.empty()) << joined(problems);
}

TEST(DialogLayoutPages, ControlsOfOnePageMayNotOverlap) {
    frmPaged form;
    auto layout = pagedLayout();
    layout.items[2].page = u"Second";
    layout.items[2].rect.y = 25;
    auto problems = LayoutProblems(layout, form);
    ASSERT_FALSE(problems.empty());
    EXPECT_NE(joined(problems).find("overlaps"), std::string::npos) << joined(problems);
}

TEST(DialogLayoutPages, APageOverlappingAControlOfNoPageIsFound) {
    frmPaged form;
    auto layout = pagedLayout();
    layout.items[3].rect.y = 7;
    auto problems = LayoutProblems(layout, form);
    EXPECT_NE(joined(problems).find("lstTabs overlaps txtThree"), std::string::npos) << joined(problems);
}

TEST(DialogLayoutPages, TabOrderStillReadsWithinAPage) {
    frmPaged form;
    auto layout = pagedLayout();
    std::swap(layout.items[1], layout.items[2]);
    auto problems = LayoutProblems(layout, form);
    EXPECT_NE(joined(problems).find("Tab order: txtOne comes after txtTwo"), std::string::npos) << joined(problems);
}

}  // namespace
}  // namespace quillet::dialogs
