// The entries of "&Line Numbers" and "&Comment Lines" under the bar's "&Error" pop-up run the
// line tools on the active pane's selection.

#include "../addin/command_fixture.h"
#include "addin/project_commands.h"
#include "tools/tools_install.h"

namespace quillet::testing {
namespace {

class LineToolsMenu : public CommandBarFixture {
protected:
    LineToolsMenu() {
        addin::RegisterScanCommands(*ctx);
        tools::ToolsInstall(*ctx);
    }
    std::vector<Str> procedure() { return {u"Sub A()", u"    x = 1", u"    If x Then", u"    End If", u"End Sub"}; }
};

TEST_F(LineToolsMenu, LineNumbersAddAndRemove) {
    openModule(procedure(), 2, 1);
    vbe->ActiveCodePane()->SetSelection(2, 1, 4, 3);
    build();
    click(u"&Quillet &Error &Line Numbers &Add");
    EXPECT_EQ(activeModuleText(), joinLines({u"Sub A()", u"1002    x = 1", u"1003    If x Then", u"        End If",
                                             u"End Sub"}));
    click(u"&Quillet &Error &Line Numbers &Remove");
    EXPECT_EQ(activeModuleText(), joinLines({u"Sub A()", u"    x = 1", u"    If x Then", u"        End If",
                                             u"End Sub"}));
    EXPECT_TRUE(reports.empty());
}

TEST_F(LineToolsMenu, CommentLinesAddAndRemove) {
    openModule(procedure(), 2, 1);
    vbe->ActiveCodePane()->SetSelection(2, 1, 4, 1);
    build();
    click(u"&Quillet &Error &Comment Lines &Add");
    EXPECT_EQ(activeModuleText(), joinLines({u"Sub A()", u"'    x = 1", u"'    If x Then", u"    End If", u"End Sub"}));
    click(u"&Quillet &Error &Comment Lines &Remove");
    EXPECT_EQ(activeModuleText(), joinLines(procedure()));
    EXPECT_TRUE(reports.empty());
}

}  // namespace
}  // namespace quillet::testing
