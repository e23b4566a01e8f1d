#pragma once
// The base of every dialog model: named controls, looked up ignoring case; event methods by the
// names the system gives them ("cmdOK_Click", "txtName_Change", "optByVal_Click" for a control
// array), hooked to the controls that raise them; methods that other forms call by name
// (ParentForm.ArgInsert ...); and the life of a Basic form: Load, Show (modal or modeless, on a
// FormStack), Hide and Unload, with message and input boxes through the stack's platform.

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "basic/dispatch.h"
#include "dialogs/control.h"

namespace quillet::dialogs {

class FormStack;

// Show modes, as Basic's Show takes them.
constexpr short vbModeless = 0;
constexpr short vbModal = 1;

class Form {
public:
    explicit Form(Str name, FormStack* stack = nullptr) : name_(std::move(name)), stack_(stack) {}
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const Str& Name() const { return name_; }

    // Adds a control; a name that is taken raises 5.
    Control& AddControl(const Str& name, ControlKind kind);
    // Adds the members "name(0)" to "name(count - 1)" of a control array.
    std::vector<Control*> AddControlArray(const Str& name, ControlKind kind, int count);
    // The control of that name, or nothing.
    Control* Find(const Str& name);
    // The control of that name; a missing one raises 730 "Control 'name' not found".
    Control& Controls(const Str& name);
    // All controls in the order they were added.
    std::vector<Control*> AllControls();

    // Registers a handler by its name, replacing an earlier one (not hooked to any control).
    void Handler(const Str& name, std::function<void()> handler);
    // Calls the handler of that name (ignoring case); False when there is none.
    bool CallHandler(const Str& name);

    // An event method: registered by name, and when the name is "<control>_Click" or
    // "<control>_Change", raised by that control's Click or Change (by every member of a control
    // array of that name). The controls must be added first. The indexed form receives the
    // member's Index (-1 for a control that is not in an array).
    void On(const Str& handlerName, std::function<void()> handler);
    void OnIndexed(const Str& handlerName, std::function<void(int index)> handler);

    // A method that other code calls by name, as Basic's CallByName or a late-bound call on a
    // form does (ParentForm.ArgInsert name).
    using MethodFn = std::function<basic::Variant(const basic::Args& args)>;
    void Method(const Str& name, MethodFn method);
    // Calls a method or handler by name, ignoring case; a name the form lacks raises 438.
    basic::Variant CallByName(const Str& name, const basic::Args& args = {});
    bool HasMember(const Str& name) const;

    Str Caption;
    bool Visible = false;
    Str Tag;
    // The dialog that opened this one, which it reports back to by name.
    Form* ParentForm = nullptr;
    // The help topic of the dialog (0: none).
    long HelpContextID = 0;
    // What F1 does in the dialog; the view calls it. Empty: F1 does nothing.
    std::function<void()> OnHelpKey;
    // The control the form asks the keyboard focus for ("txtName" after a refused name); the view
    // moves the focus there and clears the request.
    Str FocusedControl;
    // The window that shows the form (set by the view; 0 without one).
    long long hWnd = 0;

    // The stack this form shows on; a form made with none takes its parent's when shown.
    FormStack* Stack() const { return stack_; }
    void AttachTo(FormStack& stack) { stack_ = &stack; }

    // Form_Load runs once per load: at the first Show, or when called.
    void Load();
    bool Loaded() const { return loaded_; }
    // Loads the form, puts it on top of its stack, makes it visible and runs Form_Activate.
    // Modal: `afterClose` runs once the form is hidden or unloaded, after the event that closed it
    // has ended (as the code behind Show vbModal runs in Basic). Modeless: it runs at once.
    // Showing an open form modally raises 400; a modeless form over a modal one raises 401.
    void Show(short mode = vbModeless, std::function<void()> afterClose = {});
    // Takes the form off the stack; it stays loaded.
    void Hide();
    // Runs Form_Unload, takes the form off the stack and unloads it.
    void Unload();
    bool IsModal() const { return modal_; }

    // Message and input boxes of the stack's platform (a form on no stack raises 91).
    int MsgBox(const Str& prompt, int buttons = 0, const Str& title = {});
    std::optional<Str> InputBox(const Str& prompt, const Str& title = {}, const Str& defaultText = {});

    // Turns off the other option buttons of the same container (used by Control).
    void optionTurnedOn(Control& option);
    // Called by the stack as it takes the form off.
    void stackClosed() { Visible = false; }

protected:
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual void Form_Unload() {}

private:
    void hook(const Str& handlerName, const std::function<void(int)>& raise);
    FormStack& stack();

    Str name_;
    FormStack* stack_;
    std::vector<std::unique_ptr<Control>> controls_;
    std::map<Str, std::function<void()>> handlers_;
    std::map<Str, MethodFn> methods_;
    bool loaded_ = false;
    bool modal_ = false;
};

// A name folded for look-ups that ignore case.
Str foldedName(const Str& name);
// "optByVal(1)" gives "optByVal" and 1; a name without an index gives itself and -1.
Str controlBaseName(const Str& name);
int controlIndex(const Str& name);

}  // namespace quillet::dialogs
