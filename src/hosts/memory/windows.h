#pragma once
// Windows of the in-memory editor: the main window, the Project, Properties and Immediate
// windows, one code window per pane, designer windows and tool windows.

#include <functional>
#include <memory>

#include "host/objects.h"
#include "hosts/memory/options.h"

namespace quillet::hosts::memory {

class MemoryVBE;

class MemoryWindow : public host::Window, public std::enable_shared_from_this<MemoryWindow> {
public:
    // The caption is computed when asked, so that it follows renames.
    MemoryWindow(std::weak_ptr<MemoryVBE> vbe, long type, std::function<Str()> caption, host::WindowHandle handle);

    // The Immediate window's text, and what a tool window holds.
    Str& text() { return text_; }
    basic::DispatchPtr document() const { return document_; }
    void setDocument(basic::DispatchPtr document) { document_ = std::move(document); }
    // What Close does beyond hiding the window (a code window closes its pane).
    void onClose(std::function<void()> action) { onClose_ = std::move(action); }

    // host::Window
    long Type() override { return type_; }
    Str Caption() override { return caption_ ? caption_() : Str(); }
    bool Visible() override { return visible_; }
    void Visible(bool visible) override { visible_ = visible; }
    host::WindowHandle hWnd() override { return handle_; }
    // Gives the window the focus (a modal dialog keeps it); a code window becomes active.
    void SetFocus() override;
    void Close() override;

private:
    std::weak_ptr<MemoryVBE> vbe_;
    long type_;
    std::function<Str()> caption_;
    host::WindowHandle handle_;
    bool visible_ = true;
    Str text_;
    basic::DispatchPtr document_;
    std::function<void()> onClose_;
};

class MemoryWindows : public host::Windows {
public:
    explicit MemoryWindows(std::shared_ptr<MemoryVBE> vbe) : vbe_(std::move(vbe)) {}
    long Count() override;
    host::WindowPtr Item(long index) override;
    host::WindowPtr CreateToolWindow(const basic::DispatchPtr& addInInst, const Str& progId, const Str& caption,
                                     const Str& guidPosition, basic::DispatchPtr& docObj) override;

private:
    std::shared_ptr<MemoryVBE> vbe_;
};

}  // namespace quillet::hosts::memory
