#pragma once
// The editor's objects as the harness hands them to the add-in: each wraps an object of the
// in-memory editor behind IDispatch, under the editor's member names. Every read makes a
// fresh wrapper, as the editor's own objects may; null gives Nothing.

#include "fake_object.h"

namespace quillet::wine {

IDispatch* fake(FakeLedger& l, const host::VBEPtr& o);
IDispatch* fake(FakeLedger& l, const host::VBProjectsPtr& o);
IDispatch* fake(FakeLedger& l, const host::VBProjectPtr& o);
IDispatch* fake(FakeLedger& l, const host::ReferencesPtr& o);
IDispatch* fake(FakeLedger& l, const host::ReferencePtr& o);
IDispatch* fake(FakeLedger& l, const host::VBComponentsPtr& o);
IDispatch* fake(FakeLedger& l, const host::VBComponentPtr& o);
IDispatch* fake(FakeLedger& l, const host::CodeModulePtr& o);
IDispatch* fake(FakeLedger& l, const host::CodePanePtr& o);
IDispatch* fake(FakeLedger& l, const host::CodePanesPtr& o);
IDispatch* fake(FakeLedger& l, const host::WindowPtr& o);
IDispatch* fake(FakeLedger& l, const host::WindowsPtr& o);
IDispatch* fake(FakeLedger& l, const host::CommandBarsPtr& o);
IDispatch* fake(FakeLedger& l, const host::CommandBarPtr& o);
IDispatch* fake(FakeLedger& l, const host::CommandBarControlsPtr& o);
IDispatch* fake(FakeLedger& l, const host::CommandBarControlPtr& o);
IDispatch* fake(FakeLedger& l, const host::EventsPtr& o);
// A plain late-bound object of the memory editor (designer, properties, tool window document).
IDispatch* fake(FakeLedger& l, const basic::DispatchPtr& o);
// The AddIn object handed to OnConnection beside the editor.
IDispatch* fakeAddIn(FakeLedger& l);

// The editor object behind an argument that must be one of the harness's own; 13 otherwise.
template <class T>
std::shared_ptr<T> targetOf(IDispatch* object, const Str& typeName) {
    FakeObject* f = fakeOf(object);
    if (!f || f->typeName() != typeName) throw basic::VbError::standard(basic::err::TypeMismatch);
    return f->target<T>();
}

template <class T>
ComVariant obj(FakeLedger& l, const std::shared_ptr<T>& o) {
    return owned(fake(l, o));
}
inline ComVariant val(long n) { return ComVariant(n); }
inline ComVariant val(bool b) { return ComVariant(b); }
inline ComVariant val(const Str& s) { return ComVariant(s); }

}  // namespace quillet::wine
