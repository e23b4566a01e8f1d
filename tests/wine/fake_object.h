#pragma once
// The harness's stand-in for an editor object: an IDispatch whose members are looked up by
// name (GetIDsOfNames) and run by Invoke, as the editor's objects are. It checks the calling
// rules the editor enforces (a property put carries the named argument DISPID_PROPERTYPUT),
// raises errors as the editor does (DISP_E_EXCEPTION with the number in EXCEPINFO) and counts
// itself, so the harness can prove that the add-in released everything it was handed.

#include <windows.h>
#include <oaidl.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "host/objects.h"
#include "hosts/com/com_ptr.h"
#include "hosts/com/com_variant.h"

namespace quillet::wine {

using basic::Str;
using hosts::com::ComVariant;

class StandIns;

// What the harness counts across all its objects.
struct FakeLedger {
    StandIns* standIns = nullptr;  // real windows for the editor's windows, when the session has them
    long live = 0;      // fake objects not yet released
    long created = 0;
    std::vector<std::string> violations;  // calls the real editor would refuse
    std::vector<std::string> raised;      // errors the editor raised to the add-in: "Type.Member: n"
    long calls = 0;                       // member calls (Invoke) the add-in made
    long failAt = 0;                      // the call (counting calls) made to fail; 0 none
    long injected = 0;                    // failures injected so far
    // The Picture and Mask set on each control (keyed by the editor's control), as the add-in
    // handed them over.
    std::map<const void*, hosts::com::ComPtr<IDispatch>> pictures, masks;
    long clicks = 0;                      // Click events raised on the add-in's sinks
    long buttonClicks = 0;                // of them, raised by an Office button itself
    // Set, the editor is Office: its buttons raise their own Click through these events.
    std::function<host::CommandBarEventsPtr(const host::CommandBarControlPtr&)> buttonEvents;
    std::vector<HRESULT> clickResults;    // what each sink's Invoke returned, when not S_OK
};

// The arguments of one call, first to last.
class Args {
public:
    Args(DISPPARAMS& params, UINT skip, WORD flags = DISPATCH_PROPERTYGET)
        : params_(params), skip_(skip), flags_(flags) {}
    UINT count() const { return params_.cArgs - skip_; }
    // Called as a method only (not read as a property).
    bool isMethodCall() const { return (flags_ & DISPATCH_PROPERTYGET) == 0; }
    // Present: given and not left out (VT_ERROR DISP_E_PARAMNOTFOUND).
    bool has(UINT i) const;
    VARIANT& at(UINT i) const;
    long asLong(UINT i) const;
    bool asBool(UINT i) const;
    Str asStr(UINT i) const;
    IDispatch* asDispatch(UINT i) const;
    // Writes through a by-reference argument.
    void setLong(UINT i, long value) const;
    void setDispatch(UINT i, IDispatch* value) const;

private:
    DISPPARAMS& params_;
    UINT skip_;  // the value of a property put sits in front
    WORD flags_;
};

// {6C1E7D52-3E8B-4C59-9E0A-3B7F2B6A9D11}: QueryInterface gives the FakeObject itself.
inline constexpr GUID kIidFakeObject = {0x6C1E7D52, 0x3E8B, 0x4C59, {0x9E, 0x0A, 0x3B, 0x7F, 0x2B, 0x6A, 0x9D, 0x11}};

class FakeObject : public IDispatch {
public:
    using Getter = std::function<ComVariant(const Args&)>;
    using Putter = std::function<void(const Args&, const VARIANT& value)>;

    FakeObject(FakeLedger& ledger, Str typeName, std::shared_ptr<void> target = nullptr);
    virtual ~FakeObject();
    FakeObject(const FakeObject&) = delete;
    FakeObject& operator=(const FakeObject&) = delete;

    // A member read as a property or called as a method; with `put`, also assignable.
    void member(const Str& name, Getter get, Putter put = nullptr);

    const Str& typeName() const { return typeName_; }
    // The editor object behind this one.
    template <class T>
    std::shared_ptr<T> target() const {
        return std::static_pointer_cast<T>(target_);
    }
    FakeLedger& ledger() { return ledger_; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++refs_; }
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result,
                                     EXCEPINFO* info, UINT* argError) override;

protected:
    // Interfaces beyond IDispatch, for objects that raise events.
    virtual void* otherInterface(REFIID) { return nullptr; }

private:
    struct Member {
        Str name;
        Getter get;
        Putter put;
    };
    HRESULT call(const Member& m, WORD flags, DISPPARAMS& params, VARIANT* result);

    FakeLedger& ledger_;
    Str typeName_;
    std::shared_ptr<void> target_;
    std::vector<Member> members_;
    ULONG refs_ = 1;
};

// The value of a property put, converted as the editor converts it (13 when it does not).
long longOf(const VARIANT& v);
bool boolOf(const VARIANT& v);
Str strOf(const VARIANT& v);

// The fake behind an IDispatch of this harness, or null.
FakeObject* fakeOf(IDispatch* object);
// A result holding a fresh object (its one reference passes to the result); null gives Nothing.
ComVariant owned(IDispatch* fresh);

}  // namespace quillet::wine
