// Office command bars and the editor's click events, as the harness hands them out.

#include <ocidl.h>
#include <olectl.h>

#include "fake_editor.h"

namespace quillet::wine {

namespace {

ComVariant nothing() { return ComVariant(); }

// {0002E131-0000-0000-C000-000000000046}: the editor's _dispCommandBarControlEvents.
constexpr GUID kDiidCommandBarControlEvents = {
    0x0002E131, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};
// {000C0351-0000-0000-C000-000000000046}: an Office button's own _CommandBarButtonEvents.
constexpr GUID kDiidCommandBarButtonEvents = {
    0x000C0351, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};

// A source of a control's Click on the one sink advised on its connection point, raised
// whenever the memory editor's control is executed: the object Events.CommandBarEvents(control)
// returns (Click(control, handled, CancelDefault)), or, in Office, the button itself
// (Click(control, CancelDefault)).
class FakeClickSource : public FakeObject, public IConnectionPointContainer, public IConnectionPoint {
public:
    using EventsOf = std::function<host::CommandBarEventsPtr()>;
    FakeClickSource(FakeLedger& l, Str typeName, host::CommandBarControlPtr control, std::shared_ptr<void> target,
                    EventsOf eventsOf, const GUID& diid)
        : FakeObject(l, std::move(typeName), std::move(target)),
          control_(std::move(control)),
          eventsOf_(std::move(eventsOf)),
          diid_(diid) {}
    ~FakeClickSource() override { dropSink(); }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override { return FakeObject::QueryInterface(iid, out); }
    ULONG STDMETHODCALLTYPE AddRef() override { return FakeObject::AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return FakeObject::Release(); }

    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID iid, IConnectionPoint** out) override {
        if (!out) return E_POINTER;
        *out = nullptr;
        if (iid != diid_) return CONNECT_E_NOCONNECTION;
        *out = this;
        AddRef();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* iid) override {
        if (!iid) return E_POINTER;
        *iid = diid_;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer** out) override {
        if (!out) return E_POINTER;
        *out = this;
        AddRef();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) override {
        if (!sink || !cookie) return E_POINTER;
        if (sink_) return CONNECT_E_ADVISELIMIT;
        IDispatch* dispatch = nullptr;
        if (FAILED(sink->QueryInterface(diid_, reinterpret_cast<void**>(&dispatch)))) return CONNECT_E_CANNOTCONNECT;
        sink_ = dispatch;
        events_ = eventsOf_();
        events_->Connect([this](const host::CommandBarControlPtr& control, bool& handled, bool& cancel) {
            fire(control, handled, cancel);
        });
        *cookie = 1;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override {
        if (cookie != 1 || !sink_) return CONNECT_E_NOCONNECTION;
        dropSink();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections**) override { return E_NOTIMPL; }

protected:
    void* otherInterface(REFIID iid) override {
        if (iid == IID_IConnectionPointContainer) return static_cast<IConnectionPointContainer*>(this);
        if (iid == IID_IConnectionPoint) return static_cast<IConnectionPoint*>(this);
        return nullptr;
    }

private:
    void dropSink() {
        if (!sink_) return;
        if (events_) events_->Disconnect();
        events_.reset();
        sink_->Release();
        sink_ = nullptr;
    }

    void fire(const host::CommandBarControlPtr& control, bool& handled, bool& cancel) {
        if (!sink_) return;
        bool button = diid_ == kDiidCommandBarButtonEvents;
        IDispatch* sink = sink_;
        sink->AddRef();
        VARIANT_BOOL handledValue = handled ? VARIANT_TRUE : VARIANT_FALSE;
        VARIANT_BOOL cancelValue = cancel ? VARIANT_TRUE : VARIANT_FALSE;
        // Arguments last to first: CancelDefault, then handled (the editor's events only), then
        // the control.
        VARIANT args[3];
        for (auto& a : args) VariantInit(&a);
        UINT count = button ? 2 : 3;
        args[0].vt = VT_BOOL | VT_BYREF;
        args[0].pboolVal = &cancelValue;
        if (!button) {
            args[1].vt = VT_BOOL | VT_BYREF;
            args[1].pboolVal = &handledValue;
        }
        VARIANT& first = args[count - 1];
        first.vt = VT_DISPATCH;
        first.pdispVal = fake(ledger(), control ? control : control_);
        DISPPARAMS params{args, nullptr, count, 0};
        ++ledger().clicks;
        if (button) ++ledger().buttonClicks;
        HRESULT hr = sink->Invoke(1, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params, nullptr, nullptr, nullptr);
        if (hr != S_OK) ledger().clickResults.push_back(hr);
        if (first.pdispVal) first.pdispVal->Release();
        sink->Release();
        handled = handledValue != VARIANT_FALSE;
        cancel = cancelValue != VARIANT_FALSE;
    }

    host::CommandBarControlPtr control_;
    EventsOf eventsOf_;
    GUID diid_;
    host::CommandBarEventsPtr events_;
    IDispatch* sink_ = nullptr;
};

}  // namespace

IDispatch* fake(FakeLedger& l, const host::CommandBarsPtr& o) {
    if (!o) return nullptr;
    auto* f = new FakeObject(l, u"CommandBars", o);
    f->member(u"Count", [o](const Args&) { return val(o->Count()); });
    f->member(u"Item", [&l, o](const Args& a) {
        if (a.at(0).vt == VT_BSTR) return obj(l, o->Item(a.asStr(0)));
        return obj(l, o->Item(a.asLong(0)));
    });
    f->member(u"Add", [&l, o](const Args& a) {
        return obj(l, o->Add(a.asStr(0), a.has(1) ? a.asLong(1) : host::msoBarTop, a.has(2) && a.asBool(2),
                             a.has(3) && a.asBool(3)));
    });
    f->member(u"FindControl", [&l, o](const Args& a) {
        return obj(l, o->FindControl(a.has(0) ? a.asLong(0) : 0, a.has(1) ? a.asLong(1) : 0));
    });
    return f;
}

IDispatch* fake(FakeLedger& l, const host::CommandBarPtr& o) {
    if (!o) return nullptr;
    auto* f = new FakeObject(l, u"CommandBar", o);
    f->member(u"Name", [o](const Args&) { return val(o->Name()); });
    f->member(
        u"Position", [o](const Args&) { return val(o->Position()); },
        [o](const Args&, const VARIANT& v) { o->Position(longOf(v)); });
    f->member(
        u"RowIndex", [o](const Args&) { return val(o->RowIndex()); },
        [o](const Args&, const VARIANT& v) { o->RowIndex(longOf(v)); });
    f->member(
        u"Left", [o](const Args&) { return val(o->Left()); }, [o](const Args&, const VARIANT& v) { o->Left(longOf(v)); });
    f->member(
        u"Top", [o](const Args&) { return val(o->Top()); }, [o](const Args&, const VARIANT& v) { o->Top(longOf(v)); });
    f->member(
        u"Visible", [o](const Args&) { return val(o->Visible()); },
        [o](const Args&, const VARIANT& v) { o->Visible(boolOf(v)); });
    f->member(
        u"Enabled", [o](const Args&) { return val(o->Enabled()); },
        [o](const Args&, const VARIANT& v) { o->Enabled(boolOf(v)); });
    f->member(u"Delete", [o](const Args&) { return o->Delete(), nothing(); });
    f->member(u"Controls", [&l, o](const Args&) { return obj(l, o->Controls()); });
    return f;
}

IDispatch* fake(FakeLedger& l, const host::CommandBarControlsPtr& o) {
    if (!o) return nullptr;
    auto* f = new FakeObject(l, u"CommandBarControls", o);
    f->member(u"Count", [o](const Args&) { return val(o->Count()); });
    f->member(u"Item", [&l, o](const Args& a) {
        if (a.at(0).vt == VT_BSTR) return obj(l, o->Item(a.asStr(0)));
        return obj(l, o->Item(a.asLong(0)));
    });
    f->member(u"Add", [&l, o](const Args& a) {
        return obj(l, o->Add(a.has(0) ? a.asLong(0) : host::msoControlButton, a.has(1) ? a.asLong(1) : 1,
                             a.has(4) && a.asBool(4)));
    });
    return f;
}

IDispatch* fake(FakeLedger& l, const host::CommandBarControlPtr& o) {
    if (!o) return nullptr;
    // In Office a button raises its own Click.
    FakeObject* f = nullptr;
    if (l.buttonEvents && o->Type() == host::msoControlButton) {
        auto eventsOf = [events = l.buttonEvents, o] { return events(o); };
        f = new FakeClickSource(l, u"CommandBarControl", o, o, eventsOf, kDiidCommandBarButtonEvents);
    } else {
        f = new FakeObject(l, u"CommandBarControl", o);
    }
    f->member(u"Type", [o](const Args&) { return val(o->Type()); });
    f->member(u"Id", [o](const Args&) { return val(o->Id()); });
    f->member(u"Index", [o](const Args&) { return val(o->Index()); });
    f->member(u"Controls", [&l, o](const Args&) { return obj(l, o->Controls()); });
    auto text = [f, o](const Str& name, Str (host::CommandBarControl::*get)(),
                       void (host::CommandBarControl::*set)(const Str&)) {
        f->member(
            name, [o, get](const Args&) { return val(((*o).*get)()); },
            [o, set](const Args&, const VARIANT& v) { ((*o).*set)(strOf(v)); });
    };
    text(u"Caption", &host::CommandBarControl::Caption, &host::CommandBarControl::Caption);
    text(u"Tag", &host::CommandBarControl::Tag, &host::CommandBarControl::Tag);
    text(u"TooltipText", &host::CommandBarControl::TooltipText, &host::CommandBarControl::TooltipText);
    text(u"Text", &host::CommandBarControl::Text, &host::CommandBarControl::Text);
    auto number = [f, o](const Str& name, long (host::CommandBarControl::*get)(),
                         void (host::CommandBarControl::*set)(long)) {
        f->member(
            name, [o, get](const Args&) { return val(((*o).*get)()); },
            [o, set](const Args&, const VARIANT& v) { ((*o).*set)(longOf(v)); });
    };
    number(u"Style", &host::CommandBarControl::Style, &host::CommandBarControl::Style);
    number(u"ListIndex", &host::CommandBarControl::ListIndex, &host::CommandBarControl::ListIndex);
    number(u"Width", &host::CommandBarControl::Width, &host::CommandBarControl::Width);
    number(u"DropDownWidth", &host::CommandBarControl::DropDownWidth, &host::CommandBarControl::DropDownWidth);
    auto flag = [f, o](const Str& name, bool (host::CommandBarControl::*get)(), void (host::CommandBarControl::*set)(bool)) {
        f->member(
            name, [o, get](const Args&) { return val(((*o).*get)()); },
            [o, set](const Args&, const VARIANT& v) { ((*o).*set)(boolOf(v)); });
    };
    flag(u"BeginGroup", &host::CommandBarControl::BeginGroup, &host::CommandBarControl::BeginGroup);
    flag(u"Visible", &host::CommandBarControl::Visible, &host::CommandBarControl::Visible);
    flag(u"Enabled", &host::CommandBarControl::Enabled, &host::CommandBarControl::Enabled);
    f->member(u"AddItem", [o](const Args& a) { return o->AddItem(a.asStr(0), a.has(1) ? a.asLong(1) : 0), nothing(); });
    f->member(u"ListCount", [o](const Args&) { return val(o->ListCount()); });
    f->member(u"List", [o](const Args& a) { return val(o->List(a.asLong(0))); });
    auto picture = [f, o, &l](const Str& name, std::map<const void*, hosts::com::ComPtr<IDispatch>> FakeLedger::*slot) {
        f->member(
            name, [o, &l, slot](const Args&) { return ComVariant((l.*slot)[o.get()].get()); },
            [o, &l, slot](const Args&, const VARIANT& v) {
                if (v.vt != VT_DISPATCH) throw basic::VbError::standard(basic::err::TypeMismatch);
                (l.*slot)[o.get()] = hosts::com::ComPtr<IDispatch>(v.pdispVal);
            });
    };
    picture(u"Picture", &FakeLedger::pictures);
    picture(u"Mask", &FakeLedger::masks);
    f->member(u"CopyFace", [o](const Args&) { return o->CopyFace(), nothing(); });
    f->member(u"PasteFace", [o](const Args&) { return o->PasteFace(), nothing(); });
    f->member(u"Execute", [o](const Args&) { return o->Execute(), nothing(); });
    f->member(u"Delete", [o](const Args&) { return o->Delete(), nothing(); });
    return f;
}

IDispatch* fake(FakeLedger& l, const host::EventsPtr& o) {
    if (!o) return nullptr;
    auto* f = new FakeObject(l, u"Events", o);
    f->member(u"CommandBarEvents", [&l, o](const Args& a) {
        auto control = targetOf<host::CommandBarControl>(a.asDispatch(0), u"CommandBarControl");
        auto events = o->CommandBarEvents(control);
        return owned(new FakeClickSource(l, u"CommandBarEvents", control, events, [events] { return events; },
                                         kDiidCommandBarControlEvents));
    });
    return f;
}

}  // namespace quillet::wine
