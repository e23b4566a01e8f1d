#pragma once
// The Constant Builder and the quick input box over the editor in memory, with the prefix
// standards and the module "basVars" of the Variable Builder's tests.

#include "builders/frm_const.h"
#include "var_fixture.h"

namespace quillet::testing {

class ConstantFixture : public VariableFixture {
protected:
    // Opens the builder on a module of its own ("basVars") holding `lines`, caret at (line, col).
    builders::frmConst& openConstOn(const std::vector<Str>& lines, long line, long col = 1,
                                    const std::vector<Str>& args = {}) {
        openModule(lines, line, col, u"basVars");
        return openConst(args);
    }
    builders::frmConst& openConst(const std::vector<Str>& args = {}) {
        EXPECT_TRUE(ctx->Forms->Open(u"frmConst", args));
        return top<builders::frmConst>();
    }
    void setText(dialogs::Form& form, const Str& control, const Str& text) {
        ctx->Forms->Raise([&] { form.Controls(control).Text(text); });
    }
    std::vector<Str> entries(dialogs::Form& form, const Str& list) {
        std::vector<Str> texts;
        auto& control = form.Controls(list);
        for (long i = 0; i < control.ListCount(); ++i) texts.push_back(control.List(i));
        return texts;
    }
    std::vector<Str> messages() {
        std::vector<Str> prompts;
        for (const auto& box : platform->shownBoxes())
            if (box.kind == platform::ShownBox::Kind::Message) prompts.push_back(box.prompt);
        return prompts;
    }
    bool constOpen() { return ctx->Forms->FindOpen(u"frmConst") != nullptr; }
};

}  // namespace quillet::testing
