#pragma once
// The editor's object model (host/objects.h) over the editor's own COM objects, late-bound
// by member name. Each wrapper holds one reference on its COM object and drops it when the
// last shared pointer to it goes.

#include <functional>

#include "host/objects.h"
#include "hosts/com/dispatch_object.h"

namespace quillet::hosts::com {

// Run after the add-in has handled an event the editor raised into it (a command bar click),
// so that the Windows shell can catch up with what the handler changed. Never throws out.
using AfterEvent = std::function<void()>;

// The editor from the Application object handed to OnConnection; none for null. The click
// sinks made through its Events run `afterEvent` after each click.
host::VBEPtr makeVBE(IDispatch* vbe, AfterEvent afterEvent = nullptr);

// One factory per class; each gives none for a null object.
host::VBProjectsPtr makeVBProjects(DispatchObject object);
host::VBProjectPtr makeVBProject(DispatchObject object);
host::ReferencesPtr makeReferences(DispatchObject object);
host::ReferencePtr makeReference(DispatchObject object);
host::VBComponentsPtr makeVBComponents(DispatchObject object);
host::VBComponentPtr makeVBComponent(DispatchObject object);
host::CodeModulePtr makeCodeModule(DispatchObject object);
host::CodePanePtr makeCodePane(DispatchObject object);
host::CodePanesPtr makeCodePanes(DispatchObject object);
host::WindowPtr makeWindow(DispatchObject object);
host::WindowsPtr makeWindows(DispatchObject object);
host::CommandBarsPtr makeCommandBars(DispatchObject object);
host::CommandBarPtr makeCommandBar(DispatchObject object);
host::CommandBarControlsPtr makeCommandBarControls(DispatchObject object);
host::CommandBarControlPtr makeCommandBarControl(DispatchObject object);
host::EventsPtr makeEvents(DispatchObject object, AfterEvent afterEvent = nullptr);

// The COM object under a wrapper made here, or null (for a wrapper of another host, or none).
IDispatch* comObjectOf(const host::CommandBarControlPtr& control);
IDispatch* comObjectOf(const host::VBComponentPtr& component);

}  // namespace quillet::hosts::com
