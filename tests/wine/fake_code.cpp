// Code modules, panes and windows, as the harness hands them out.

#include "fake_editor.h"
#include "stand_ins.h"

namespace quillet::wine {

namespace {

ComVariant nothing() { return ComVariant(); }

}  // namespace

IDispatch* fake(FakeLedger& l, const host::CodeModulePtr& o) {
    if (!o) return nullptr;
    auto* f = new FakeObject(l, u"CodeModule", o);
    f->member(u"Name", [o](const Args&) { return val(o->Name()); });
    f->member(u"Parent", [&l, o](const Args&) { return obj(l, o->Parent()); });
    f->member(u"CodePane", [&l, o](const Args&) { return obj(l, o->CodePane()); });
    f->member(u"CountOfLines", [o](const Args&) { return val(o->CountOfLines()); });
    f->member(u"CountOfDeclarationLines", [o](const Args&) { return val(o->CountOfDeclarationLines()); });
    f->member(u"Lines", [o](const Args& a) { return val(o->Lines(a.asLong(0), a.asLong(1))); });
    f->member(u"InsertLines", [o](const Args& a) { return o->InsertLines(a.asLong(0), a.asStr(1)), nothing(); });
    f->member(u"ReplaceLine", [o](const Args& a) { return o->ReplaceLine(a.asLong(0), a.asStr(1)), nothing(); });
    f->member(u"DeleteLines", [o](const Args& a) {
        return o->DeleteLines(a.asLong(0), a.has(1) ? a.asLong(1) : 1), nothing();
    });
    f->member(u"AddFromString", [o](const Args& a) { return o->AddFromString(a.asStr(0)), nothing(); });
    f->member(u"ProcOfLine", [o](const Args& a) {
        long kind = 0;
        Str name = o->ProcOfLine(a.asLong(0), kind);
        a.setLong(1, kind);
        return val(name);
    });
    f->member(u"ProcBodyLine", [o](const Args& a) { return val(o->ProcBodyLine(a.asStr(0), a.asLong(1))); });
    f->member(u"ProcStartLine", [o](const Args& a) { return val(o->ProcStartLine(a.asStr(0), a.asLong(1))); });
    f->member(u"ProcCountLines", [o](const Args& a) { return val(o->ProcCountLines(a.asStr(0), a.asLong(1))); });
    f->member(u"Find", [o](const Args& a) {
        long sl = a.asLong(1), sc = a.asLong(2), el = a.asLong(3), ec = a.asLong(4);
        bool found = o->Find(a.asStr(0), sl, sc, el, ec, a.has(5) && a.asBool(5), a.has(6) && a.asBool(6),
                             a.has(7) && a.asBool(7));
        a.setLong(1, sl);
        a.setLong(2, sc);
        a.setLong(3, el);
        a.setLong(4, ec);
        return val(found);
    });
    return f;
}

IDispatch* fake(FakeLedger& l, const host::CodePanePtr& o) {
    if (!o) return nullptr;
    auto* f = new FakeObject(l, u"CodePane", o);
    f->member(u"CodeModule", [&l, o](const Args&) { return obj(l, o->CodeModule()); });
    f->member(u"Window", [&l, o](const Args&) { return obj(l, o->Window()); });
    f->member(u"GetSelection", [o](const Args& a) {
        long sl = 0, sc = 0, el = 0, ec = 0;
        o->GetSelection(sl, sc, el, ec);
        a.setLong(0, sl);
        a.setLong(1, sc);
        a.setLong(2, el);
        a.setLong(3, ec);
        return nothing();
    });
    f->member(u"SetSelection", [o](const Args& a) {
        return o->SetSelection(a.asLong(0), a.asLong(1), a.asLong(2), a.asLong(3)), nothing();
    });
    f->member(
        u"TopLine", [o](const Args&) { return val(o->TopLine()); },
        [o](const Args&, const VARIANT& v) { o->TopLine(longOf(v)); });
    f->member(u"CountOfVisibleLines", [o](const Args&) { return val(o->CountOfVisibleLines()); });
    f->member(u"Show", [o](const Args&) { return o->Show(), nothing(); });
    return f;
}

IDispatch* fake(FakeLedger& l, const host::CodePanesPtr& o) {
    if (!o) return nullptr;
    auto* f = new FakeObject(l, u"CodePanes", o);
    f->member(u"Count", [o](const Args&) { return val(o->Count()); });
    f->member(u"Item", [&l, o](const Args& a) { return obj(l, o->Item(a.asLong(0))); });
    return f;
}

IDispatch* fake(FakeLedger& l, const host::WindowPtr& o) {
    if (!o) return nullptr;
    auto* f = new FakeObject(l, u"Window", o);
    f->member(u"Type", [o](const Args&) { return val(o->Type()); });
    f->member(u"Caption", [o](const Args&) { return val(o->Caption()); });
    f->member(
        u"Visible", [o](const Args&) { return val(o->Visible()); },
        [o](const Args&, const VARIANT& v) { o->Visible(boolOf(v)); });
    f->member(u"HWnd", [&l, o](const Args&) {
        HWND real = l.standIns ? l.standIns->of(*o) : nullptr;
        return val(real ? static_cast<long>(reinterpret_cast<LONG_PTR>(real)) : static_cast<long>(o->hWnd()));
    });
    f->member(u"SetFocus", [&l, o](const Args&) {
        o->SetFocus();
        if (HWND real = l.standIns ? l.standIns->of(*o) : nullptr) ::SetFocus(real);
        return nothing();
    });
    f->member(u"Close", [o](const Args&) { return o->Close(), nothing(); });
    return f;
}

IDispatch* fake(FakeLedger& l, const host::WindowsPtr& o) {
    if (!o) return nullptr;
    auto* f = new FakeObject(l, u"Windows", o);
    f->member(u"Count", [o](const Args&) { return val(o->Count()); });
    f->member(u"Item", [&l, o](const Args& a) { return obj(l, o->Item(a.asLong(0))); });
    f->member(u"CreateToolWindow", [&l, o](const Args& a) {
        basic::DispatchPtr doc;
        auto window = o->CreateToolWindow(nullptr, a.asStr(1), a.asStr(2), a.asStr(3), doc);
        // The document the editor made goes back through the by-reference argument.
        auto docObject = hosts::com::ComPtr<IDispatch>::attach(fake(l, doc));
        a.setDispatch(4, docObject.get());
        return obj(l, window);
    });
    return f;
}

}  // namespace quillet::wine
