// The editor, its projects, references and components, as the harness hands them out.

#include "fake_editor.h"

namespace quillet::wine {

IDispatch* fake(FakeLedger& l, const host::VBEPtr& o) {
    if (!o) return nullptr;
    auto* f = new FakeObject(l, u"VBE", o);
    f->member(u"ActiveVBProject", [&l, o](const Args&) { return obj(l, o->ActiveVBProject()); });
    f->member(u"VBProjects", [&l, o](const Args&) { return obj(l, o->VBProjects()); });
    f->member(u"ActiveCodePane", [&l, o](const Args&) { return obj(l, o->ActiveCodePane()); });
    f->member(u"CodePanes", [&l, o](const Args&) { return obj(l, o->CodePanes()); });
    f->member(u"ActiveWindow", [&l, o](const Args&) { return obj(l, o->ActiveWindow()); });
    f->member(u"SelectedVBComponent", [&l, o](const Args&) { return obj(l, o->SelectedVBComponent()); });
    f->member(u"Windows", [&l, o](const Args&) { return obj(l, o->Windows()); });
    f->member(u"MainWindow", [&l, o](const Args&) { return obj(l, o->MainWindow()); });
    f->member(u"CommandBars", [&l, o](const Args&) { return obj(l, o->CommandBars()); });
    f->member(u"Events", [&l, o](const Args&) { return obj(l, o->Events()); });
    f->member(u"Version", [o](const Args&) { return val(o->Version()); });
    return f;
}

IDispatch* fake(FakeLedger& l, const host::VBProjectsPtr& o) {
    if (!o) return nullptr;
    auto* f = new FakeObject(l, u"VBProjects", o);
    f->member(u"Count", [o](const Args&) { return val(o->Count()); });
    f->member(u"Item", [&l, o](const Args& a) { return obj(l, o->Item(a.asLong(0))); });
    return f;
}

IDispatch* fake(FakeLedger& l, const host::VBProjectPtr& o) {
    if (!o) return nullptr;
    auto* f = new FakeObject(l, u"VBProject", o);
    f->member(
        u"Name", [o](const Args&) { return val(o->Name()); },
        [o](const Args&, const VARIANT& v) { o->Name(strOf(v)); });
    f->member(u"FileName", [o](const Args&) { return val(o->FileName()); });
    f->member(u"Protection", [o](const Args&) { return val(o->Protection()); });
    // The editor in memory runs no code: its projects are always in design (vbext_vm_Design).
    f->member(u"Mode", [](const Args&) { return val(2L); });
    f->member(u"VBComponents", [&l, o](const Args&) { return obj(l, o->VBComponents()); });
    f->member(u"References", [&l, o](const Args&) { return obj(l, o->References()); });
    return f;
}

IDispatch* fake(FakeLedger& l, const host::ReferencesPtr& o) {
    if (!o) return nullptr;
    auto* f = new FakeObject(l, u"References", o);
    f->member(u"Count", [o](const Args&) { return val(o->Count()); });
    f->member(u"Item", [&l, o](const Args& a) { return obj(l, o->Item(a.asLong(0))); });
    return f;
}

IDispatch* fake(FakeLedger& l, const host::ReferencePtr& o) {
    if (!o) return nullptr;
    auto* f = new FakeObject(l, u"Reference", o);
    f->member(u"Name", [o](const Args&) { return val(o->Name()); });
    f->member(u"FullPath", [o](const Args&) { return val(o->FullPath()); });
    f->member(u"GUID", [o](const Args&) { return val(o->GUID()); });
    f->member(u"Major", [o](const Args&) { return val(o->Major()); });
    f->member(u"Minor", [o](const Args&) { return val(o->Minor()); });
    f->member(u"Description", [o](const Args&) { return val(o->Description()); });
    f->member(u"BuiltIn", [o](const Args&) { return val(o->BuiltIn()); });
    f->member(u"IsBroken", [o](const Args&) { return val(o->IsBroken()); });
    return f;
}

IDispatch* fake(FakeLedger& l, const host::VBComponentsPtr& o) {
    if (!o) return nullptr;
    auto* f = new FakeObject(l, u"VBComponents", o);
    f->member(u"Count", [o](const Args&) { return val(o->Count()); });
    f->member(u"Item", [&l, o](const Args& a) {
        if (a.at(0).vt == VT_BSTR) return obj(l, o->Item(a.asStr(0)));
        return obj(l, o->Item(a.asLong(0)));
    });
    f->member(u"Add", [&l, o](const Args& a) { return obj(l, o->Add(a.asLong(0))); });
    f->member(u"Remove", [o](const Args& a) {
        o->Remove(targetOf<host::VBComponent>(a.asDispatch(0), u"VBComponent"));
        return ComVariant();
    });
    f->member(u"Import", [&l, o](const Args& a) { return obj(l, o->Import(a.asStr(0))); });
    return f;
}

IDispatch* fake(FakeLedger& l, const host::VBComponentPtr& o) {
    if (!o) return nullptr;
    auto* f = new FakeObject(l, u"VBComponent", o);
    f->member(
        u"Name", [o](const Args&) { return val(o->Name()); },
        [o](const Args&, const VARIANT& v) { o->Name(strOf(v)); });
    f->member(u"Type", [o](const Args&) { return val(o->Type()); });
    f->member(u"CodeModule", [&l, o](const Args&) { return obj(l, o->CodeModule()); });
    f->member(u"Designer", [&l, o](const Args&) { return obj(l, o->Designer()); });
    f->member(u"DesignerWindow", [&l, o](const Args&) { return obj(l, o->DesignerWindow()); });
    f->member(u"Properties", [&l, o](const Args&) { return obj(l, o->Properties()); });
    f->member(u"Export", [o](const Args& a) {
        o->Export(a.asStr(0));
        return ComVariant();
    });
    f->member(u"Activate", [o](const Args&) {
        o->Activate();
        return ComVariant();
    });
    return f;
}

IDispatch* fakeAddIn(FakeLedger& l) {
    auto* f = new FakeObject(l, u"AddIn");
    f->member(u"ProgId", [](const Args&) { return val(Str(u"Quillet.Connect")); });
    f->member(u"Connect", [](const Args&) { return val(true); });
    return f;
}

}  // namespace quillet::wine
