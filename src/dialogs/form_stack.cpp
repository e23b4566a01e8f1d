// The stack of open dialogs and the openers by name.

#include "dialogs/form_stack.h"

#include <algorithm>

#include "basic/vb_error.h"

namespace quillet::dialogs {

namespace {
constexpr long kFormAlreadyDisplayed = 400;
constexpr long kModelessOverModal = 401;
}  // namespace

FormStack::FormStack(std::shared_ptr<platform::Platform> platform) : platform_(std::move(platform)) {}

FormStack::~FormStack() {
    // The forms go first, while the stack they call on still stands.
    released_.clear();
    adopted_.clear();
}

void FormStack::Register(const Str& formName, Opener opener) { openers_[foldedName(formName)] = std::move(opener); }

bool FormStack::IsRegistered(const Str& formName) const { return openers_.count(foldedName(formName)) > 0; }

std::vector<Str> FormStack::RegisteredNames() const {
    std::vector<Str> names;
    for (const auto& [name, opener] : openers_) names.push_back(name);
    return names;
}

bool FormStack::Open(const Str& formName, const std::vector<Str>& args) {
    auto it = openers_.find(foldedName(formName));
    if (it == openers_.end() || !it->second) return false;
    released_.clear();
    Opener opener = it->second;
    Raise([&] { opener(args); });
    return true;
}

Form* FormStack::FindOpen(const Str& formName) const {
    Str key = foldedName(formName);
    for (auto it = open_.rbegin(); it != open_.rend(); ++it)
        if (foldedName((*it)->Name()) == key) return *it;
    return nullptr;
}

bool FormStack::HasModal() const {
    return std::any_of(open_.begin(), open_.end(), [](const Form* form) { return form->IsModal(); });
}

void FormStack::Raise(const std::function<void()>& event) {
    ++depth_;
    try {
        event();
    } catch (...) {
        --depth_;
        throw;
    }
    --depth_;
    settle();
}

void FormStack::settle() {
    while (depth_ == 0 && !pending_.empty()) {
        auto batch = std::move(pending_);
        pending_.clear();
        Raise([&] {
            for (auto& callback : batch) callback();
        });
    }
}

void FormStack::push(Form& form, bool modal, std::function<void()> afterClose) {
    auto at = std::find(open_.begin(), open_.end(), &form);
    if (at != open_.end()) {
        if (modal || form.IsModal()) throw basic::VbError(kFormAlreadyDisplayed, u"Form already displayed; can't show modally");
        open_.erase(at);
    } else if (!modal && HasModal()) {
        throw basic::VbError(kModelessOverModal, u"Can't show non-modal form when modal form is displayed");
    }
    open_.push_back(&form);
    if (modal) afterClose_[&form] = std::move(afterClose);
}

void FormStack::present(Form& form) {
    if (shown && std::find(open_.begin(), open_.end(), &form) != open_.end()) shown(form);
}

void FormStack::remove(Form& form) {
    auto at = std::find(open_.begin(), open_.end(), &form);
    if (at == open_.end()) return;
    open_.erase(at);
    form.stackClosed();
    if (closed) closed(form);
    auto callback = afterClose_.find(&form);
    if (callback != afterClose_.end()) {
        if (callback->second) pending_.push_back(std::move(callback->second));
        afterClose_.erase(callback);
    }
    auto kept = std::find_if(adopted_.begin(), adopted_.end(), [&](const auto& owned) { return owned.get() == &form; });
    if (kept != adopted_.end()) {
        // Released at the next Open: whoever drove it may still read it.
        released_.push_back(std::move(*kept));
        adopted_.erase(kept);
    }
    settle();
}

void FormStack::forget(Form& form) {
    open_.erase(std::remove(open_.begin(), open_.end(), &form), open_.end());
    afterClose_.erase(&form);
}

void FormStack::adopt(std::unique_ptr<Form> form) {
    form->AttachTo(*this);
    adopted_.push_back(std::move(form));
}

}  // namespace quillet::dialogs
