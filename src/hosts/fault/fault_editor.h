#pragma once
// Wrappers of the editor, its projects, components, code modules, panes and windows.

#include "hosts/fault/wrapper.h"

namespace quillet::hosts::fault {

using host::WindowHandle;

class FaultVBE : public Wrapper<host::VBE> {
public:
    FaultVBE(host::VBEPtr inner, ContextPtr c) : Wrapper(std::move(inner), std::move(c), "VBE") {}
    host::VBProjectPtr ActiveVBProject() override { return wrap(context(), in("ActiveVBProject").ActiveVBProject()); }
    host::VBProjectsPtr VBProjects() override { return wrap(context(), in("VBProjects").VBProjects()); }
    host::CodePanePtr ActiveCodePane() override { return wrap(context(), in("ActiveCodePane").ActiveCodePane()); }
    host::CodePanesPtr CodePanes() override { return wrap(context(), in("CodePanes").CodePanes()); }
    host::WindowPtr ActiveWindow() override { return wrap(context(), in("ActiveWindow").ActiveWindow()); }
    host::VBComponentPtr SelectedVBComponent() override {
        return wrap(context(), in("SelectedVBComponent").SelectedVBComponent());
    }
    host::WindowsPtr Windows() override { return wrap(context(), in("Windows").Windows()); }
    host::WindowPtr MainWindow() override { return wrap(context(), in("MainWindow").MainWindow()); }
    host::CommandBarsPtr CommandBars() override { return wrap(context(), in("CommandBars").CommandBars()); }
    host::EventsPtr Events() override { return wrap(context(), in("Events").Events()); }
    Str Version() override { return in("Version").Version(); }
};

class FaultVBProjects : public Wrapper<host::VBProjects> {
public:
    FaultVBProjects(host::VBProjectsPtr inner, ContextPtr c) : Wrapper(std::move(inner), std::move(c), "VBProjects") {}
    long Count() override { return in("Count").Count(); }
    host::VBProjectPtr Item(long index) override { return wrap(context(), in("Item").Item(index)); }
};

class FaultVBProject : public Wrapper<host::VBProject> {
public:
    FaultVBProject(host::VBProjectPtr inner, ContextPtr c) : Wrapper(std::move(inner), std::move(c), "VBProject") {}
    Str Name() override { return in("Name").Name(); }
    void Name(const Str& name) override { in("Name").Name(name); }
    Str FileName() override { return in("FileName").FileName(); }
    long Protection() override { return in("Protection").Protection(); }
    host::VBComponentsPtr VBComponents() override { return wrap(context(), in("VBComponents").VBComponents()); }
    host::ReferencesPtr References() override { return wrap(context(), in("References").References()); }
};

class FaultReferences : public Wrapper<host::References> {
public:
    FaultReferences(host::ReferencesPtr inner, ContextPtr c) : Wrapper(std::move(inner), std::move(c), "References") {}
    long Count() override { return in("Count").Count(); }
    host::ReferencePtr Item(long index) override { return wrap(context(), in("Item").Item(index)); }
};

class FaultReference : public Wrapper<host::Reference> {
public:
    FaultReference(host::ReferencePtr inner, ContextPtr c) : Wrapper(std::move(inner), std::move(c), "Reference") {}
    Str Name() override { return in("Name").Name(); }
    Str FullPath() override { return in("FullPath").FullPath(); }
    Str GUID() override { return in("GUID").GUID(); }
    long Major() override { return in("Major").Major(); }
    long Minor() override { return in("Minor").Minor(); }
    Str Description() override { return in("Description").Description(); }
    bool BuiltIn() override { return in("BuiltIn").BuiltIn(); }
    bool IsBroken() override { return in("IsBroken").IsBroken(); }
};

class FaultVBComponents : public Wrapper<host::VBComponents> {
public:
    FaultVBComponents(host::VBComponentsPtr inner, ContextPtr c)
        : Wrapper(std::move(inner), std::move(c), "VBComponents") {}
    long Count() override { return in("Count").Count(); }
    host::VBComponentPtr Item(long index) override { return wrap(context(), in("Item").Item(index)); }
    host::VBComponentPtr Item(const Str& name) override { return wrap(context(), in("Item").Item(name)); }
    host::VBComponentPtr Add(long type) override { return wrap(context(), in("Add").Add(type)); }
    void Remove(const host::VBComponentPtr& component) override { in("Remove").Remove(unwrap(component)); }
    host::VBComponentPtr Import(const Str& path) override { return wrap(context(), in("Import").Import(path)); }
};

class FaultVBComponent : public Wrapper<host::VBComponent> {
public:
    FaultVBComponent(host::VBComponentPtr inner, ContextPtr c)
        : Wrapper(std::move(inner), std::move(c), "VBComponent") {}
    Str Name() override { return in("Name").Name(); }
    void Name(const Str& name) override { in("Name").Name(name); }
    long Type() override { return in("Type").Type(); }
    host::CodeModulePtr CodeModule() override { return wrap(context(), in("CodeModule").CodeModule()); }
    basic::DispatchPtr Designer() override { return in("Designer").Designer(); }
    host::WindowPtr DesignerWindow() override { return wrap(context(), in("DesignerWindow").DesignerWindow()); }
    basic::DispatchPtr Properties() override { return in("Properties").Properties(); }
    void Export(const Str& path) override { in("Export").Export(path); }
    void Activate() override { in("Activate").Activate(); }
};

class FaultCodeModule : public Wrapper<host::CodeModule> {
public:
    FaultCodeModule(host::CodeModulePtr inner, ContextPtr c) : Wrapper(std::move(inner), std::move(c), "CodeModule") {}
    Str Name() override { return in("Name").Name(); }
    host::VBComponentPtr Parent() override { return wrap(context(), in("Parent").Parent()); }
    host::CodePanePtr CodePane() override { return wrap(context(), in("CodePane").CodePane()); }
    long CountOfLines() override { return in("CountOfLines").CountOfLines(); }
    long CountOfDeclarationLines() override { return in("CountOfDeclarationLines").CountOfDeclarationLines(); }
    Str Lines(long startLine, long count) override { return in("Lines").Lines(startLine, count); }
    void InsertLines(long line, const Str& text) override { in("InsertLines").InsertLines(line, text); }
    void ReplaceLine(long line, const Str& text) override { in("ReplaceLine").ReplaceLine(line, text); }
    void DeleteLines(long startLine, long count = 1) override { in("DeleteLines").DeleteLines(startLine, count); }
    void AddFromString(const Str& text) override { in("AddFromString").AddFromString(text); }
    Str ProcOfLine(long line, long& kind) override { return in("ProcOfLine").ProcOfLine(line, kind); }
    long ProcBodyLine(const Str& name, long kind) override { return in("ProcBodyLine").ProcBodyLine(name, kind); }
    long ProcStartLine(const Str& name, long kind) override { return in("ProcStartLine").ProcStartLine(name, kind); }
    long ProcCountLines(const Str& name, long kind) override {
        return in("ProcCountLines").ProcCountLines(name, kind);
    }
    bool Find(const Str& target, long& startLine, long& startCol, long& endLine, long& endCol, bool wholeWord = false,
              bool matchCase = false, bool patternSearch = false) override {
        return in("Find").Find(target, startLine, startCol, endLine, endCol, wholeWord, matchCase, patternSearch);
    }
};

class FaultCodePane : public Wrapper<host::CodePane> {
public:
    FaultCodePane(host::CodePanePtr inner, ContextPtr c) : Wrapper(std::move(inner), std::move(c), "CodePane") {}
    host::CodeModulePtr CodeModule() override { return wrap(context(), in("CodeModule").CodeModule()); }
    host::WindowPtr Window() override { return wrap(context(), in("Window").Window()); }
    void GetSelection(long& startLine, long& startCol, long& endLine, long& endCol) override {
        in("GetSelection").GetSelection(startLine, startCol, endLine, endCol);
    }
    void SetSelection(long startLine, long startCol, long endLine, long endCol) override {
        in("SetSelection").SetSelection(startLine, startCol, endLine, endCol);
    }
    long TopLine() override { return in("TopLine").TopLine(); }
    void TopLine(long line) override { in("TopLine").TopLine(line); }
    long CountOfVisibleLines() override { return in("CountOfVisibleLines").CountOfVisibleLines(); }
    void Show() override { in("Show").Show(); }
};

class FaultCodePanes : public Wrapper<host::CodePanes> {
public:
    FaultCodePanes(host::CodePanesPtr inner, ContextPtr c) : Wrapper(std::move(inner), std::move(c), "CodePanes") {}
    long Count() override { return in("Count").Count(); }
    host::CodePanePtr Item(long index) override { return wrap(context(), in("Item").Item(index)); }
};

class FaultWindow : public Wrapper<host::Window> {
public:
    FaultWindow(host::WindowPtr inner, ContextPtr c) : Wrapper(std::move(inner), std::move(c), "Window") {}
    long Type() override { return in("Type").Type(); }
    Str Caption() override { return in("Caption").Caption(); }
    bool Visible() override { return in("Visible").Visible(); }
    void Visible(bool visible) override { in("Visible").Visible(visible); }
    WindowHandle hWnd() override { return in("hWnd").hWnd(); }
    void SetFocus() override { in("SetFocus").SetFocus(); }
    void Close() override { in("Close").Close(); }
};

class FaultWindows : public Wrapper<host::Windows> {
public:
    FaultWindows(host::WindowsPtr inner, ContextPtr c) : Wrapper(std::move(inner), std::move(c), "Windows") {}
    long Count() override { return in("Count").Count(); }
    host::WindowPtr Item(long index) override { return wrap(context(), in("Item").Item(index)); }
    host::WindowPtr CreateToolWindow(const basic::DispatchPtr& addInInst, const Str& progId, const Str& caption,
                                     const Str& guidPosition, basic::DispatchPtr& docObj) override {
        return wrap(context(),
                    in("CreateToolWindow").CreateToolWindow(addInInst, progId, caption, guidPosition, docObj));
    }
};

}  // namespace quillet::hosts::fault
