#pragma once
// The Variable Builder over the editor in memory: a module of the test's own with the caret where
// the test puts it, prefix standards for every type of the type list, and declarations indented.

#include "builder_fixture.h"
#include "builders/frm_var.h"
#include "source/prefixes.h"
#include "source/type_lists.h"

namespace quillet::testing {

class VariableFixture : public BuilderFixture {
protected:
    VariableFixture() {
        applySetup(variableScriptSetup());
    }

    // Opens the builder on a module of its own ("basVars") holding `lines`, caret at (line, col).
    builders::frmVar& openOn(const std::vector<Str>& lines, long line, long col = 1, const std::vector<Str>& args = {}) {
        openModule(lines, line, col, u"basVars");
        return openVar(args);
    }
    builders::frmVar& openVar(const std::vector<Str>& args = {}) {
        EXPECT_TRUE(ctx->Forms->Open(u"frmVar", args));
        return top<builders::frmVar>();
    }
    void click(dialogs::Form& form, const Str& button) {
        ctx->Forms->Raise([&] { form.Controls(button).Click(); });
    }
    void level(dialogs::Form& form, const Str& text) {
        auto& list = form.Controls(u"cboAccessibility");
        long index = source::FindInList(list, text);
        ASSERT_GE(index, 0) << basic::toUtf8(text);
        ctx->Forms->Raise([&] { list.ListIndex(index); });
    }
    void type(dialogs::Form& form, const Str& text) {
        auto& list = form.Controls(u"cboDataType");
        long index = source::FindInList(list, text);
        ASSERT_GE(index, 0) << basic::toUtf8(text);
        ctx->Forms->Raise([&] { list.ListIndex(index); });
    }
    // Types a name as the user would: the prefix then follows no longer.
    void typeName(dialogs::Form& form, const Str& name) {
        ctx->Forms->Raise([&] { form.Controls(u"txtName").Text(name); });
    }
    Str vars() { return moduleText(u"basVars"); }
    bool isOpen() { return ctx->Forms->FindOpen(u"frmVar") != nullptr; }
};

}  // namespace quillet::testing
