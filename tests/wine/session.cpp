#include "session.h"

#include <algorithm>

#include "addin_loader.h"
#include "win32/guids.h"

namespace quillet::wine {

ComPtr<win32::IDTExtensibility2> createConnect(Checks& c, const wchar_t* progId) {
    ComPtr<IUnknown> unknown;
    HRESULT hr = createAddin(progId, unknown);
    c.check(SUCCEEDED(hr) && unknown, narrow(std::wstring(progId)) + " is created through its ProgID", hex(hr));
    auto dispatch = unknown.as<IDispatch>(IID_IDispatch);
    c.check(static_cast<bool>(dispatch), narrow(std::wstring(progId)) + " answers IDispatch");
    auto ext = unknown.as<win32::IDTExtensibility2>(win32::kIidExtensibility2.guid);
    c.check(static_cast<bool>(ext), narrow(std::wstring(progId)) + " answers IDTExtensibility2");
    return ext;
}

std::shared_ptr<MemoryVBE> editorWithProject() {
    auto vbe = MemoryVBE::create();
    auto project = vbe->addProject(u"VBAProject", u"C:\\Work\\Book1.xlsm", u"Excel");
    auto module = project->addComponent(u"Module1", host::vbext_ct_StdModule,
                                        {u"Option Explicit", u"", u"Sub Main()", u"", u"End Sub"});
    vbe->openPane(module)->SetSelection(4, 1, 4, 1);
    return vbe;
}

bool pump(DWORD ms, const std::function<bool()>& done) {
    const ULONGLONG end = GetTickCount64() + ms;
    for (;;) {
        if (done && done()) return true;
        ULONGLONG now = GetTickCount64();
        if (now >= end) return !done;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(std::min<ULONGLONG>(end - now, 20)), QS_ALLINPUT);
        MSG msg;
        while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&msg);
            DispatchMessageW(&msg);
        }
    }
}

Session::Session(Checks& c, std::shared_ptr<MemoryVBE> vbe) : c_(c), vbe_(std::move(vbe)), standIns_(vbe_) {
    ledger_.standIns = &standIns_;
    addin_ = createConnect(c_, L"Quillet.Connect");
    application_ = fake(ledger_, host::VBEPtr(vbe_));
    addInInst_ = fakeAddIn(ledger_);
}

Session::~Session() {
    if (connected_) disconnect();
    release();
}

void Session::officeButtons() {
    std::weak_ptr<MemoryVBE> vbe = vbe_;
    ledger_.buttonEvents = [vbe](const host::CommandBarControlPtr& control) -> host::CommandBarEventsPtr {
        auto editor = vbe.lock();
        if (!editor) throw basic::VbError::standard(basic::err::ObjectNotSet);
        return editor->Events()->CommandBarEvents(control);
    };
}

void Session::focusActiveWindow() {
    if (auto window = vbe_->activeWindow()) {
        if (HWND real = standIns_.of(*window)) ::SetFocus(real);
    }
}

HRESULT Session::connect(long mode) {
    if (!addin_) return E_POINTER;
    focusActiveWindow();
    HRESULT hr = addin_->OnConnection(application_, mode, addInInst_, custom_.get());
    connected_ = true;
    return hr;
}

HRESULT Session::disconnect() {
    if (!addin_) return E_POINTER;
    connected_ = false;
    HRESULT shutdown = addin_->OnBeginShutdown(custom_.get());
    HRESULT hr = addin_->OnDisconnection(win32::ext_dm_HostShutdown, custom_.get());
    return FAILED(shutdown) ? shutdown : hr;
}

void Session::release() {
    if (application_) application_->Release();
    if (addInInst_) addInInst_->Release();
    application_ = nullptr;
    addInInst_ = nullptr;
    addin_.reset();
}

}  // namespace quillet::wine
