#pragma once
// One connection of the add-in to an in-memory editor, as the editor makes it: Quillet.Connect
// created through its ProgID, OnConnection with the editor wrapped as COM objects, and, at the
// end, OnBeginShutdown and OnDisconnection. The editor's message loop is played by pump().

#include <functional>
#include <memory>

#include "fake_editor.h"
#include "harness.h"
#include "hosts/com/com_ptr.h"
#include "hosts/memory/memory_host.h"
#include "stand_ins.h"
#include "win32/extensibility.h"

namespace quillet::wine {

using hosts::com::ComPtr;
using hosts::memory::MemoryVBE;

constexpr long ext_cm_AfterStartup = 0;
constexpr long ext_cm_Startup = 1;

// The editor's SAFEARRAY of custom arguments: empty, as the VBE passes it.
class Custom {
public:
    Custom() : array_(SafeArrayCreateVector(VT_VARIANT, 0, 0)) {}
    ~Custom() { SafeArrayDestroy(array_); }
    Custom(const Custom&) = delete;
    Custom& operator=(const Custom&) = delete;
    SAFEARRAY** get() { return &array_; }

private:
    SAFEARRAY* array_;
};

// The add-in object made through a ProgID, checked for the two interfaces the editor asks.
ComPtr<win32::IDTExtensibility2> createConnect(Checks& c, const wchar_t* progId);

// An editor with one project "VBAProject" (C:\Work\Book1.xlsm, Excel) and Module1:
//     Option Explicit / (blank) / Sub Main() / (blank) / End Sub
// its pane open with the caret on line 4 (inside Main).
std::shared_ptr<MemoryVBE> editorWithProject();

// Runs the message loop for up to `ms` milliseconds, or until `done` says so; whether `done`
// was met (true when there is none).
bool pump(DWORD ms, const std::function<bool()>& done = nullptr);

class Session {
public:
    Session(Checks& c, std::shared_ptr<MemoryVBE> vbe);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // The editor plays Office's: its buttons raise their own Click (call before connect).
    void officeButtons();
    // OnConnection, with the keyboard focus in the active window as the user left it; its HRESULT.
    HRESULT connect(long mode = ext_cm_Startup);
    // Puts the keyboard focus on the stand-in of the editor's active window (after a test changed
    // the active window, as the user's click would).
    void focusActiveWindow();
    // OnBeginShutdown then OnDisconnection; the worst HRESULT.
    HRESULT disconnect();
    // Releases the editor objects handed to OnConnection and the add-in itself.
    void release();

    bool created() const { return static_cast<bool>(addin_); }
    MemoryVBE& vbe() { return *vbe_; }
    // What the add-in pasted into the Immediate window.
    std::wstring immediateText() { return standIns_.immediateText(); }
    FakeLedger& ledger() { return ledger_; }
    win32::IDTExtensibility2* addin() { return addin_.get(); }

private:
    Checks& c_;
    std::shared_ptr<MemoryVBE> vbe_;
    StandIns standIns_;
    FakeLedger ledger_;
    ComPtr<win32::IDTExtensibility2> addin_;
    IDispatch* application_ = nullptr;
    IDispatch* addInInst_ = nullptr;
    Custom custom_;
    bool connected_ = false;
};

}  // namespace quillet::wine
