#include "hosts/memory/windows.h"

#include "hosts/memory/vbe.h"

namespace quillet::hosts::memory {

MemoryWindow::MemoryWindow(std::weak_ptr<MemoryVBE> vbe, long type, std::function<Str()> caption,
                           host::WindowHandle handle)
    : vbe_(std::move(vbe)), type_(type), caption_(std::move(caption)), handle_(handle) {}

void MemoryWindow::SetFocus() {
    if (auto vbe = vbe_.lock()) vbe->focusWindow(shared_from_this());
}

void MemoryWindow::Close() {
    auto keepAlive = shared_from_this();
    visible_ = false;
    if (onClose_) {
        auto action = onClose_;  // the action may release this window's owner
        action();
    }
}

long MemoryWindows::Count() { return static_cast<long>(vbe_->allWindows().size()); }

host::WindowPtr MemoryWindows::Item(long index) {
    auto all = vbe_->allWindows();
    if (index < 1 || index > static_cast<long>(all.size()))
        throw basic::VbError::standard(basic::err::SubscriptOutOfRange);
    return all[index - 1];
}

host::WindowPtr MemoryWindows::CreateToolWindow(const basic::DispatchPtr&, const Str& progId, const Str& caption,
                                                const Str&, basic::DispatchPtr& docObj) {
    return vbe_->createToolWindow(progId, caption, docObj);
}

}  // namespace quillet::hosts::memory
