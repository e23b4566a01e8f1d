#include "scenarios.h"

#include "addin_loader.h"
#include "session.h"

namespace quillet::wine {

namespace {

bool hasBar(const std::shared_ptr<MemoryVBE>& vbe) { return vbe->commandBars()->bar(u"Quillet") != nullptr; }

// The editor connects the add-in, then takes it down, as at its start and its end.
void connectAndDisconnect(Checks& c) {
    FakeLedger ledger;
    auto vbe = editorWithProject();
    {
        auto connect = createConnect(c, L"Quillet.Connect");
        if (!connect) return;
        IDispatch* application = fake(ledger, host::VBEPtr(vbe));
        IDispatch* addIn = fakeAddIn(ledger);
        Custom custom;
        HRESULT hr = connect->OnConnection(application, ext_cm_Startup, addIn, custom.get());
        c.check(hr == S_OK, "OnConnection returns S_OK", hex(hr));
        c.check(hasBar(vbe), "the command bar \"Quillet\" stands after connection");
        if (auto bar = vbe->commandBars()->bar(u"Quillet")) {
            c.check(bar->Controls()->Count() > 0, "the bar has controls", std::to_string(bar->Controls()->Count()));
        }
        hr = connect->OnStartupComplete(custom.get());
        c.check(hr == S_OK, "OnStartupComplete returns S_OK", hex(hr));
        hr = connect->OnBeginShutdown(custom.get());
        c.check(hr == S_OK, "OnBeginShutdown returns S_OK", hex(hr));
        hr = connect->OnDisconnection(win32::ext_dm_HostShutdown, custom.get());
        c.check(hr == S_OK, "OnDisconnection returns S_OK", hex(hr));
        c.check(!hasBar(vbe), "the bar is removed at disconnection");
        if (!vbe->immediateText().empty()) c.note("Immediate window: " + narrow(vbe->immediateText()));
        application->Release();
        addIn->Release();
        c.check(ledger.live == 0, "every editor object handed out was released at disconnection",
                std::to_string(ledger.live) + " of " + std::to_string(ledger.created) + " still held");
    }
    c.check(ledger.violations.empty(), "every call kept the editor's calling rules",
            ledger.violations.empty() ? "" : ledger.violations.front());
}

// Some hosts call the add-in through IDispatch by name.
void connectThroughDispatch(Checks& c) {
    FakeLedger ledger;
    auto vbe = editorWithProject();
    ComPtr<IUnknown> unknown;
    createAddin(L"Quillet.Connect", unknown);
    auto dispatch = unknown.as<IDispatch>(IID_IDispatch);
    if (!dispatch) return c.check(false, "Quillet.Connect through IDispatch");
    unknown.reset();
    auto invoke = [&](const wchar_t* name, std::vector<ComVariant> args) {
        DISPID id = DISPID_UNKNOWN;
        LPOLESTR names[] = {const_cast<LPOLESTR>(name)};
        HRESULT hr = dispatch->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
        if (FAILED(hr)) return hr;
        std::vector<VARIANT> reversed;
        for (auto it = args.rbegin(); it != args.rend(); ++it) reversed.push_back(*it->get());
        DISPPARAMS params{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
        return dispatch->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params, nullptr, nullptr, nullptr);
    };
    IDispatch* application = fake(ledger, host::VBEPtr(vbe));
    IDispatch* addIn = fakeAddIn(ledger);
    HRESULT hr = invoke(L"OnConnection", {ComVariant(application), ComVariant(ext_cm_AfterStartup), ComVariant(addIn),
                                          ComVariant()});
    c.check(hr == S_OK, "OnConnection by name through IDispatch returns S_OK", hex(hr));
    c.check(hasBar(vbe), "the bar stands after a connection by name");
    hr = invoke(L"OnDisconnection", {ComVariant(1L), ComVariant()});
    c.check(hr == S_OK, "OnDisconnection by name returns S_OK", hex(hr));
    c.check(!hasBar(vbe), "the bar is removed after a disconnection by name");
    application->Release();
    addIn->Release();
    dispatch.reset();
    c.check(ledger.live == 0, "every object handed out by name was released", std::to_string(ledger.live));
}

// An editor whose every member fails, and no editor at all: the connection still succeeds.
void connectToBrokenEditor(Checks& c) {
    FakeLedger ledger;
    auto connect = createConnect(c, L"Quillet.Connect");
    if (!connect) return;
    auto* broken = new FakeObject(ledger, u"VBE");
    Custom custom;
    HRESULT hr = connect->OnConnection(broken, ext_cm_Startup, nullptr, custom.get());
    c.check(hr == S_OK, "OnConnection to an editor whose every member fails returns S_OK", hex(hr));
    hr = connect->OnDisconnection(win32::ext_dm_UserClosed, custom.get());
    c.check(hr == S_OK, "and its disconnection returns S_OK", hex(hr));
    hr = connect->OnConnection(nullptr, ext_cm_Startup, nullptr, nullptr);
    c.check(hr == S_OK, "OnConnection with no editor and no custom array returns S_OK", hex(hr));
    hr = connect->OnDisconnection(win32::ext_dm_HostShutdown, nullptr);
    c.check(hr == S_OK, "and its disconnection returns S_OK", hex(hr));
    broken->Release();
    connect.reset();
    c.check(ledger.live == 0, "the failing editor's objects were released", std::to_string(ledger.live));
}

void connectConnectors(Checks& c) {
    for (const wchar_t* progId : {L"Quillet.ExcelConnect", L"Quillet.WordConnect", L"Quillet.AccessConnect"}) {
        FakeLedger ledger;
        auto connector = createConnect(c, progId);
        if (!connector) continue;
        auto* application = new FakeObject(ledger, u"Application");
        Custom custom;
        HRESULT connected = connector->OnConnection(application, ext_cm_Startup, nullptr, custom.get());
        HRESULT disconnected = connector->OnDisconnection(win32::ext_dm_HostShutdown, custom.get());
        c.check(connected == S_OK && disconnected == S_OK, narrow(std::wstring(progId)) + " connects and disconnects",
                hex(connected) + " " + hex(disconnected));
        application->Release();
        connector.reset();
        c.check(ledger.live == 0, narrow(std::wstring(progId)) + " released the application object");
    }
}

}  // namespace

void runConnectionScenarios(Checks& c) {
    connectAndDisconnect(c);
    connectThroughDispatch(c);
    connectToBrokenEditor(c);
    connectConnectors(c);
}

}  // namespace quillet::wine
