// The editor's plain late-bound objects (designers, a component's properties, tool window
// documents) as the harness hands them out: every member name is taken, and the call goes to
// the in-memory object, which raises 438 for a member it lacks.

#include "basic/strings.h"
#include "fake_editor.h"
#include "hosts/com/com_dispatch.h"

namespace quillet::wine {

namespace {

basic::Args basicArgsOf(const Args& a) {
    basic::Args args;
    for (UINT i = 0; i < a.count(); ++i) args.push_back(hosts::com::toBasic(a.at(i)));
    return args;
}

ComVariant comValueOf(FakeLedger& l, const basic::Variant& v) {
    // An object of the memory editor goes out behind a fake of its own.
    if (auto* object = std::get_if<basic::DispatchPtr>(&v); object && *object && !hosts::com::comObjectOf(*object)) {
        return obj(l, *object);
    }
    return hosts::com::fromBasic(v);
}

class FakeDispatch : public FakeObject {
public:
    FakeDispatch(FakeLedger& l, const basic::DispatchPtr& o) : FakeObject(l, o->TypeName(), o), o_(o) {}

    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID lcid, DISPID* ids) override {
        if (names && count == 1) learn(hosts::com::fromWide(names[0], wcslen(names[0])));
        return FakeObject::GetIDsOfNames(iid, names, count, lcid, ids);
    }

private:
    void learn(const Str& name) {
        for (const Str& known : known_) {
            if (basic::StrComp(known, name, basic::Compare::Text) == 0) return;
        }
        known_.push_back(name);
        FakeLedger& l = ledger();
        basic::DispatchPtr o = o_;
        member(
            name,
            [&l, o, name](const Args& a) {
                basic::Args args = basicArgsOf(a);
                return comValueOf(l, a.isMethodCall() ? o->Call(name, args) : o->Get(name, args));
            },
            [o, name](const Args& a, const VARIANT& v) { o->Put(name, hosts::com::toBasic(v), basicArgsOf(a)); });
    }

    basic::DispatchPtr o_;
    std::vector<Str> known_;
};

}  // namespace

IDispatch* fake(FakeLedger& l, const basic::DispatchPtr& o) {
    if (!o) return nullptr;
    return new FakeDispatch(l, o);
}

}  // namespace quillet::wine
