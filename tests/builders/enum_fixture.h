#pragma once
// The Enum and Type Builders over the editor in memory, with the module "basVars" and the class
// module "clsOrder" of the declaration builders' tests.

#include "builders/frm_enum_or_type.h"
#include "const_fixture.h"

namespace quillet::testing {

class EnumTypeFixture : public ConstantFixture {
protected:
    // Opens the builder of that kind ("Enum" or "Type") on "basVars" holding `lines`.
    builders::frmEnumOrType& openBlockOn(const Str& kind, const std::vector<Str>& lines, long line, long col = 1) {
        openModule(lines, line, col, u"basVars");
        return openBlock(kind);
    }
    builders::frmEnumOrType& openBlock(const Str& kind) {
        EXPECT_TRUE(ctx->Forms->Open(u"frmEnumOrType", {kind}));
        return top<builders::frmEnumOrType>();
    }
    void module(dialogs::Form& form, const Str& name) {
        auto& list = form.Controls(u"cboModule");
        long index = source::FindInList(list, name);
        ASSERT_GE(index, 0) << basic::toUtf8(name);
        ctx->Forms->Raise([&] { list.ListIndex(index); });
    }
    bool blockOpen() { return ctx->Forms->FindOpen(u"frmEnumOrType") != nullptr; }
};

}  // namespace quillet::testing
