// The editor, its projects, references and components over COM.

#include "host/project_mode.h"
#include "hosts/com/com_host.h"
#include "hosts/com/com_object.h"

namespace quillet::hosts::com {

namespace {

class ComVBE : public host::VBE, public ComObject {
public:
    ComVBE(DispatchObject object, AfterEvent afterEvent) : ComObject(std::move(object)), afterEvent_(std::move(afterEvent)) {}
    host::VBProjectPtr ActiveVBProject() override { return makeVBProject(d_.getObject(u"ActiveVBProject")); }
    host::VBProjectsPtr VBProjects() override { return makeVBProjects(d_.getObject(u"VBProjects")); }
    host::CodePanePtr ActiveCodePane() override { return makeCodePane(d_.getObject(u"ActiveCodePane")); }
    host::CodePanesPtr CodePanes() override { return makeCodePanes(d_.getObject(u"CodePanes")); }
    host::WindowPtr ActiveWindow() override { return makeWindow(d_.getObject(u"ActiveWindow")); }
    host::VBComponentPtr SelectedVBComponent() override {
        return makeVBComponent(d_.getObject(u"SelectedVBComponent"));
    }
    host::WindowsPtr Windows() override { return makeWindows(d_.getObject(u"Windows")); }
    host::WindowPtr MainWindow() override { return makeWindow(d_.getObject(u"MainWindow")); }
    host::CommandBarsPtr CommandBars() override { return makeCommandBars(d_.getObject(u"CommandBars")); }
    host::EventsPtr Events() override { return makeEvents(d_.getObject(u"Events"), afterEvent_); }
    Str Version() override { return d_.getStr(u"Version"); }

private:
    AfterEvent afterEvent_;
};

class ComVBProjects : public host::VBProjects, public ComObject {
public:
    using ComObject::ComObject;
    long Count() override { return d_.getLong(u"Count"); }
    host::VBProjectPtr Item(long index) override { return makeVBProject(d_.getObject(u"Item", {arg(index)})); }
};

class ComVBProject : public host::VBProject, public host::ProjectModeSource, public ComObject {
public:
    using ComObject::ComObject;
    Str Name() override { return d_.getStr(u"Name"); }
    void Name(const Str& name) override { d_.put(u"Name", arg(name)); }
    Str FileName() override { return d_.getStr(u"FileName"); }
    long Protection() override { return d_.getLong(u"Protection"); }
    long Mode() override { return d_.getLong(u"Mode"); }
    host::VBComponentsPtr VBComponents() override { return makeVBComponents(d_.getObject(u"VBComponents")); }
    host::ReferencesPtr References() override { return makeReferences(d_.getObject(u"References")); }
};

class ComReferences : public host::References, public ComObject {
public:
    using ComObject::ComObject;
    long Count() override { return d_.getLong(u"Count"); }
    host::ReferencePtr Item(long index) override { return makeReference(d_.getObject(u"Item", {arg(index)})); }
};

class ComReference : public host::Reference, public ComObject {
public:
    using ComObject::ComObject;
    Str Name() override { return d_.getStr(u"Name"); }
    Str FullPath() override { return d_.getStr(u"FullPath"); }
    Str GUID() override { return d_.getStr(u"GUID"); }
    long Major() override { return d_.getLong(u"Major"); }
    long Minor() override { return d_.getLong(u"Minor"); }
    Str Description() override { return d_.getStr(u"Description"); }
    bool BuiltIn() override { return d_.getBool(u"BuiltIn"); }
    bool IsBroken() override { return d_.getBool(u"IsBroken"); }
};

class ComVBComponents : public host::VBComponents, public ComObject {
public:
    using ComObject::ComObject;
    long Count() override { return d_.getLong(u"Count"); }
    host::VBComponentPtr Item(long index) override { return makeVBComponent(d_.getObject(u"Item", {arg(index)})); }
    host::VBComponentPtr Item(const Str& name) override { return makeVBComponent(d_.getObject(u"Item", {arg(name)})); }
    host::VBComponentPtr Add(long componentType) override {
        return makeVBComponent(toObject(d_.call(u"Add", {arg(componentType)}), u"Add"));
    }
    void Remove(const host::VBComponentPtr& component) override {
        IDispatch* raw = comObjectOf(component);
        if (!raw) throw basic::VbError::standard(basic::err::TypeMismatch, u"Remove");
        d_.call(u"Remove", {ComVariant(raw)});
    }
    host::VBComponentPtr Import(const Str& path) override {
        return makeVBComponent(toObject(d_.call(u"Import", {arg(path)}), u"Import"));
    }
};

class ComVBComponent : public host::VBComponent, public ComObject {
public:
    using ComObject::ComObject;
    Str Name() override { return d_.getStr(u"Name"); }
    void Name(const Str& name) override { d_.put(u"Name", arg(name)); }
    long Type() override { return d_.getLong(u"Type"); }
    host::CodeModulePtr CodeModule() override { return makeCodeModule(d_.getObject(u"CodeModule")); }
    basic::DispatchPtr Designer() override { return wrapDispatch(d_.getObject(u"Designer").raw()); }
    host::WindowPtr DesignerWindow() override { return makeWindow(toObject(d_.call(u"DesignerWindow"), u"DesignerWindow")); }
    basic::DispatchPtr Properties() override { return wrapDispatch(d_.getObject(u"Properties").raw()); }
    void Export(const Str& path) override { d_.call(u"Export", {arg(path)}); }
    void Activate() override { d_.call(u"Activate"); }
};

}  // namespace

host::VBEPtr makeVBE(IDispatch* vbe, AfterEvent afterEvent) {
    if (!vbe) return nullptr;
    return std::make_shared<ComVBE>(DispatchObject(ComPtr<IDispatch>(vbe)), std::move(afterEvent));
}
host::VBProjectsPtr makeVBProjects(DispatchObject o) { return wrap<ComVBProjects, host::VBProjects>(std::move(o)); }
host::VBProjectPtr makeVBProject(DispatchObject o) { return wrap<ComVBProject, host::VBProject>(std::move(o)); }
host::ReferencesPtr makeReferences(DispatchObject o) { return wrap<ComReferences, host::References>(std::move(o)); }
host::ReferencePtr makeReference(DispatchObject o) { return wrap<ComReference, host::Reference>(std::move(o)); }
host::VBComponentsPtr makeVBComponents(DispatchObject o) {
    return wrap<ComVBComponents, host::VBComponents>(std::move(o));
}
host::VBComponentPtr makeVBComponent(DispatchObject o) { return wrap<ComVBComponent, host::VBComponent>(std::move(o)); }

IDispatch* comObjectOf(const host::VBComponentPtr& component) {
    auto* com = dynamic_cast<ComObject*>(component.get());
    return com ? com->object().raw() : nullptr;
}

}  // namespace quillet::hosts::com
