#pragma once
// The open dialogs, last shown on top, and the dialogs that can be opened by name.
//
// A form's Show puts it on the stack; Hide and Unload take it off. A modal form's caller goes on
// in a callback once the form closes: since a model cannot block as a real modal window does, the
// callback runs when the event that closed the form has ended (an EventScope marks an event), so
// the code behind Show runs in the order Basic runs it. The Windows views follow the stack through
// `shown` and `closed`.
//
// Openers are registered by form name ("frmProcedure"): each opens its dialog as its command does.
// A form made by an opener is handed to Adopt, which keeps it alive until it closes.

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "dialogs/form.h"
#include "platform/platform.h"

namespace quillet::dialogs {

class FormStack {
public:
    explicit FormStack(std::shared_ptr<platform::Platform> platform);
    ~FormStack();
    FormStack(const FormStack&) = delete;
    FormStack& operator=(const FormStack&) = delete;

    platform::Platform& Platform() { return *platform_; }

    // Openers by form name, compared ignoring case; the arguments are those of `open FORM ARG ...`
    // (a command bar handler passes its one argument).
    using Opener = std::function<void(const std::vector<Str>& args)>;
    void Register(const Str& formName, Opener opener);
    bool IsRegistered(const Str& formName) const;
    std::vector<Str> RegisteredNames() const;
    // Runs the opener; False for a name nobody registered.
    bool Open(const Str& formName, const std::vector<Str>& args = {});

    // Keeps a form alive until it closes; attaches it to this stack.
    template <class F>
    F& Adopt(std::unique_ptr<F> form) {
        F& kept = *form;
        adopt(std::move(form));
        return kept;
    }

    // The dialog on top, or none.
    Form* Top() const { return open_.empty() ? nullptr : open_.back(); }
    // The open form of that name, topmost first, or none.
    Form* FindOpen(const Str& formName) const;
    const std::vector<Form*>& OpenForms() const { return open_; }
    bool HasModal() const;

    // Runs one event of a form (a click, a change): the callbacks of modal forms closed inside it
    // run when the outermost event ends. When the event throws, they wait for the next one.
    void Raise(const std::function<void()>& event);

    // Views of the forms (the Windows dialogs) follow the stack through these.
    std::function<void(Form& form)> shown;
    std::function<void(Form& form)> closed;

    // Used by Form.
    void push(Form& form, bool modal, std::function<void()> afterClose);
    void present(Form& form);
    void remove(Form& form);
    void forget(Form& form);

private:
    void adopt(std::unique_ptr<Form> form);
    void settle();

    std::shared_ptr<platform::Platform> platform_;
    std::map<Str, Opener> openers_;
    std::vector<Form*> open_;
    std::map<Form*, std::function<void()>> afterClose_;
    std::vector<std::unique_ptr<Form>> adopted_;
    std::vector<std::function<void()>> pending_;
    std::vector<std::unique_ptr<Form>> released_;
    int depth_ = 0;
};

}  // namespace quillet::dialogs
