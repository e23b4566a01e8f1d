#pragma once
// Real windows standing in for the editor's windows. The add-in reads a window's HWnd, moves
// the keyboard focus with SetFocus and GetFocus, and pastes its reports into the Immediate
// window with Ctrl+V: each editor window gets an edit control of its own, so those calls act on
// real windows here as they do in the editor. Focus given to a stand-in activates its editor
// window, as clicking into it would. The stand-ins are child windows of one visible top-level
// window, brought to the foreground once and kept for the whole run, so that focus moves between
// them at once.

#include <windows.h>

#include <map>
#include <memory>

#include "hosts/memory/memory_host.h"

namespace quillet::wine {

class StandIns {
public:
    explicit StandIns(std::weak_ptr<hosts::memory::MemoryVBE> vbe) : vbe_(std::move(vbe)) {}
    ~StandIns();
    StandIns(const StandIns&) = delete;
    StandIns& operator=(const StandIns&) = delete;

    // The stand-in of an editor window, made on first use.
    HWND of(host::Window& window);
    // The text of the Immediate window's stand-in (what was pasted into it).
    std::wstring immediateText();

private:
    static LRESULT CALLBACK proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void focused(HWND window);
    HWND frame();

    HWND frame_ = nullptr;
    std::weak_ptr<hosts::memory::MemoryVBE> vbe_;
    std::map<host::WindowHandle, HWND> windows_;
    std::map<HWND, WNDPROC> editProcs_;
};

}  // namespace quillet::wine
