// The form model: controls, event methods and methods by name, and the life of a form.

#include "dialogs/form.h"

#include "basic/strings.h"
#include "basic/vb_error.h"
#include "dialogs/form_stack.h"

namespace quillet::dialogs {

Str foldedName(const Str& name) { return basic::UCase(name); }

Str controlBaseName(const Str& name) {
    if (name.empty() || name.back() != u')') return name;
    size_t open = name.rfind(u'(');
    return open == Str::npos ? name : name.substr(0, open);
}

int controlIndex(const Str& name) {
    Str base = controlBaseName(name);
    if (base.size() == name.size()) return -1;
    Str digits = name.substr(base.size() + 1, name.size() - base.size() - 2);
    if (digits.empty() || digits.size() > 4) return -1;
    int index = 0;
    for (char16_t c : digits) {
        if (c < u'0' || c > u'9') return -1;
        index = index * 10 + (c - u'0');
    }
    return index;
}

Form::~Form() {
    if (stack_) stack_->forget(*this);
}

Control& Form::AddControl(const Str& name, ControlKind kind) {
    if (Find(name)) throw basic::VbError::standard(basic::err::InvalidCall);
    controls_.push_back(std::make_unique<Control>(this, name, kind));
    return *controls_.back();
}

std::vector<Control*> Form::AddControlArray(const Str& name, ControlKind kind, int count) {
    std::vector<Control*> members;
    for (int i = 0; i < count; ++i) {
        std::string digits = std::to_string(i);
        members.push_back(&AddControl(name + u"(" + Str(digits.begin(), digits.end()) + u")", kind));
    }
    return members;
}

Control* Form::Find(const Str& name) {
    Str key = foldedName(name);
    for (auto& control : controls_)
        if (foldedName(control->Name()) == key) return control.get();
    return nullptr;
}

Control& Form::Controls(const Str& name) {
    if (Control* control = Find(name)) return *control;
    throw basic::VbError(730, u"Control '" + name + u"' not found");
}

std::vector<Control*> Form::AllControls() {
    std::vector<Control*> all;
    for (auto& control : controls_) all.push_back(control.get());
    return all;
}

void Form::Handler(const Str& name, std::function<void()> handler) { handlers_[foldedName(name)] = std::move(handler); }

bool Form::CallHandler(const Str& name) {
    auto it = handlers_.find(foldedName(name));
    if (it == handlers_.end() || !it->second) return false;
    auto handler = it->second;
    handler();
    return true;
}

void Form::On(const Str& handlerName, std::function<void()> handler) {
    Handler(handlerName, handler);
    hook(handlerName, [handler](int) { handler(); });
}

void Form::OnIndexed(const Str& handlerName, std::function<void(int index)> handler) {
    Method(handlerName, [handler](const basic::Args& args) {
        handler(args.empty() ? -1 : static_cast<int>(basic::CLng(args[0])));
        return basic::Variant{};
    });
    hook(handlerName, handler);
}

void Form::hook(const Str& handlerName, const std::function<void(int)>& raise) {
    size_t underscore = handlerName.rfind(u'_');
    if (underscore == Str::npos) return;
    Str control = foldedName(handlerName.substr(0, underscore));
    Str event = foldedName(handlerName.substr(underscore + 1));
    if (event != u"CLICK" && event != u"CHANGE") return;
    for (auto& member : controls_) {
        if (foldedName(controlBaseName(member->Name())) != control) continue;
        int index = controlIndex(member->Name());
        auto call = [this, raise, index](Control&) {
            if (stack_)
                stack_->Raise([&] { raise(index); });
            else
                raise(index);
        };
        (event == u"CLICK" ? member->ClickHandlers : member->ChangeHandlers).push_back(call);
    }
}

void Form::Method(const Str& name, MethodFn method) { methods_[foldedName(name)] = std::move(method); }

bool Form::HasMember(const Str& name) const {
    Str key = foldedName(name);
    return methods_.count(key) > 0 || handlers_.count(key) > 0;
}

basic::Variant Form::CallByName(const Str& name, const basic::Args& args) {
    Str key = foldedName(name);
    if (auto method = methods_.find(key); method != methods_.end() && method->second) {
        auto call = method->second;
        return call(args);
    }
    if (CallHandler(name)) return {};
    throw basic::VbError::standard(basic::err::NotSupported);
}

FormStack& Form::stack() {
    if (!stack_ && ParentForm && ParentForm->Stack()) stack_ = ParentForm->Stack();
    if (!stack_) throw basic::VbError::standard(basic::err::ObjectNotSet);
    return *stack_;
}

void Form::Load() {
    if (loaded_) return;
    loaded_ = true;
    Form_Load();
}

void Form::Show(short mode, std::function<void()> afterClose) {
    FormStack& on = stack();
    Load();
    bool modal = mode != vbModeless;
    on.push(*this, modal, modal ? std::move(afterClose) : std::function<void()>{});
    modal_ = modal;
    Visible = true;
    Form_Activate();
    on.present(*this);
    if (!modal && afterClose) afterClose();
}

void Form::Hide() {
    Visible = false;
    modal_ = false;
    if (stack_) stack_->remove(*this);
}

void Form::Unload() {
    if (!loaded_) return;
    Form_Unload();
    loaded_ = false;
    Hide();
}

int Form::MsgBox(const Str& prompt, int buttons, const Str& title) { return stack().Platform().MsgBox(prompt, buttons, title); }

std::optional<Str> Form::InputBox(const Str& prompt, const Str& title, const Str& defaultText) {
    return stack().Platform().InputBox(prompt, title, defaultText);
}

void Form::optionTurnedOn(Control& option) {
    for (auto& control : controls_) {
        if (control.get() == &option || control->Kind() != ControlKind::OptionButton) continue;
        if (foldedName(control->Container) == foldedName(option.Container) && control->Value() != 0) control->Value(0);
    }
}

}  // namespace quillet::dialogs
