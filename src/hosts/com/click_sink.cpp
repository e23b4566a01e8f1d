#include "hosts/com/click_sink.h"

#include <ocidl.h>
#include <olectl.h>

#include "hosts/com/com_error.h"
#include "hosts/com/com_host.h"

namespace quillet::hosts::com {

namespace {

// A Boolean argument passed by reference; null when it is not one.
VARIANT_BOOL* boolRef(VARIANT& v) {
    if (v.vt == (VT_BOOL | VT_BYREF)) return v.pboolVal;
    if (v.vt == (VT_VARIANT | VT_BYREF) && v.pvarVal && v.pvarVal->vt == VT_BOOL) return &v.pvarVal->boolVal;
    return nullptr;
}

IDispatch* dispatchArg(VARIANT& v) {
    if (v.vt == VT_DISPATCH) return v.pdispVal;
    if (v.vt == (VT_DISPATCH | VT_BYREF) && v.ppdispVal) return *v.ppdispVal;
    return nullptr;
}

}  // namespace

class ComCommandBarEvents::Sink final : public IDispatch {
public:
    Sink(const GUID& diid, ClickHandler handler, AfterEvent afterEvent)
        : diid_(diid), handler_(std::move(handler)), afterEvent_(std::move(afterEvent)) {}
    virtual ~Sink() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
        if (!out) return E_POINTER;
        if (iid == IID_IUnknown || iid == IID_IDispatch || iid == diid_) {
            *out = static_cast<IDispatch*>(this);
            AddRef();
            return S_OK;
        }
        *out = nullptr;
        return E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++refs_; }
    ULONG STDMETHODCALLTYPE Release() override {
        ULONG n = --refs_;
        if (n == 0) delete this;
        return n;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        if (count) *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override {
        if (info) *info = nullptr;
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* params, VARIANT*, EXCEPINFO*,
                                     UINT*) override {
        if (id != 1 || !params) return S_OK;
        AfterEvent afterEvent = afterEvent_;  // the handler may disconnect this sink
        try {
            click(*params);
        } catch (...) {
            // A click never hands an error back to the editor.
        }
        try {
            if (afterEvent) afterEvent();
        } catch (...) {
        }
        return S_OK;
    }

    // The handler goes before the source lets the sink go.
    void drop() {
        handler_ = nullptr;
        afterEvent_ = nullptr;
    }

private:
    void click(DISPPARAMS& params) {
        if (!handler_) return;
        // Arguments arrive last first: (control, handled, cancel) or (control, cancel).
        UINT n = params.cArgs;
        if (n < 2 || n > 3) return;
        IDispatch* control = dispatchArg(params.rgvarg[n - 1]);
        VARIANT_BOOL* handledRef = n == 3 ? boolRef(params.rgvarg[1]) : nullptr;
        VARIANT_BOOL* cancelRef = boolRef(params.rgvarg[0]);
        bool handled = handledRef && *handledRef != VARIANT_FALSE;
        bool cancel = cancelRef && *cancelRef != VARIANT_FALSE;
        ClickHandler handler = handler_;  // the handler may disconnect this sink
        handler(makeCommandBarControl(DispatchObject(ComPtr<IDispatch>(control))), handled, cancel);
        if (handledRef) *handledRef = handled ? VARIANT_TRUE : VARIANT_FALSE;
        if (cancelRef) *cancelRef = cancel ? VARIANT_TRUE : VARIANT_FALSE;
    }

    GUID diid_;
    ClickHandler handler_;
    AfterEvent afterEvent_;
    ULONG refs_ = 1;
};

bool raisesEvents(const DispatchObject& source, const GUID& diid) {
    auto container = source.ptr().as<IConnectionPointContainer>(IID_IConnectionPointContainer);
    if (!container) return false;
    ComPtr<IConnectionPoint> point;
    return SUCCEEDED(container->FindConnectionPoint(diid, point.put())) && point;
}

ComCommandBarEvents::ComCommandBarEvents(DispatchObject source, const GUID& diid, AfterEvent afterEvent)
    : source_(std::move(source)), diid_(diid), afterEvent_(std::move(afterEvent)) {}

ComCommandBarEvents::~ComCommandBarEvents() {
    try {
        Disconnect();
    } catch (...) {
    }
}

void ComCommandBarEvents::Connect(ClickHandler handler) {
    Disconnect();
    auto container = source_.ptr().as<IConnectionPointContainer>(IID_IConnectionPointContainer);
    if (!container) throw basic::VbError::standard(basic::err::NotSupported, u"CommandBarEvents");
    ComPtr<IConnectionPoint> point;
    check(container->FindConnectionPoint(diid_, point.put()), u"CommandBarEvents");
    auto* sink = new Sink(diid_, std::move(handler), afterEvent_);
    DWORD cookie = 0;
    HRESULT hr = point->Advise(sink, &cookie);
    if (FAILED(hr)) {
        sink->Release();
        check(hr, u"CommandBarEvents");
    }
    point_ = point;
    sink_ = sink;
    cookie_ = cookie;
}

void ComCommandBarEvents::Disconnect() {
    if (!sink_) return;
    sink_->drop();
    if (point_) point_->Unadvise(cookie_);
    point_.reset();
    sink_->Release();
    sink_ = nullptr;
    cookie_ = 0;
}

}  // namespace quillet::hosts::com
