#pragma once
// The quick dialog of the Dim, Const and Property quick commands: a name and, for a constant, a
// value. OK checks the name and writes the line where the caret says (VarConstCodeInsert).

#include "core/context.h"
#include "dialogs/form.h"
#include "support/cls_html_help.h"

namespace quillet::builders {

using basic::Str;

class frmInputBox : public dialogs::Form {
public:
    explicit frmInputBox(core::Context& ctx);
    ~frmInputBox() override;

    // vType: 10001 variable, 10002 constant, 10007 property. The name gets the prefix of its type
    // and scope when the settings ask for it; a value is shown only for a constant, and only when
    // it suits the type.
    void Init(long vType, const Str& rstrName, const Str& vstrTypeName, const Str& rstrValue);
    // OK: True when the name passed and the dialog closed to write the code.
    bool PressOK();

    long Kind() const { return kind_; }
    const Str& TypeName() const { return typeName_; }
    // The tall form shows the value; the short one moves the buttons up by ButtonsRaise twips.
    bool Tall() const { return tall_; }
    static constexpr long ButtonsRaise = 670;

protected:
    void Form_Activate() override;
    void Form_Unload() override;

private:
    core::Context& ctx_;
    support::clsHtmlHelpForForm help_;
    long kind_ = 0;
    Str typeName_;
    bool tall_ = true;
    bool firstShow_ = true;
};

// VarConstCodeInsert(name, type, kind, value): the line of a quick declaration where the caret
// says. A variable: "Dim name As type", a member without "Dim" in a Type block. A constant:
// "Public Const" at module level of a standard module, else "Const", name, type and the value as
// a literal; in an Enum block with the type Long the bare member, " = value" when given.
void VarConstCodeInsert(core::Context& ctx, const Str& name, const Str& type, long kind, const Str& value);

// Opens the input box as the quick commands do: the command word ("Dim", "Const", "Property")
// and the type; the word at the caret is the name (and a constant's value).
void OpenInputBox(core::Context& ctx, const std::vector<Str>& args);

}  // namespace quillet::builders
