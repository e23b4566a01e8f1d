#include "hosts/fault/fault_bars.h"
#include "hosts/fault/fault_editor.h"

namespace quillet::hosts::fault {

host::VBEPtr wrapVBE(const host::VBEPtr& inner, const std::shared_ptr<FaultPlan>& plan) {
    auto context = std::make_shared<FaultContext>();
    context->plan = plan;
    return wrap(context, inner);
}

// clang-format off
host::VBEPtr wrap(const ContextPtr& c, const host::VBEPtr& o) { return wrapWith<FaultVBE>(c, o); }
host::VBProjectsPtr wrap(const ContextPtr& c, const host::VBProjectsPtr& o) { return wrapWith<FaultVBProjects>(c, o); }
host::VBProjectPtr wrap(const ContextPtr& c, const host::VBProjectPtr& o) { return wrapWith<FaultVBProject>(c, o); }
host::ReferencesPtr wrap(const ContextPtr& c, const host::ReferencesPtr& o) { return wrapWith<FaultReferences>(c, o); }
host::ReferencePtr wrap(const ContextPtr& c, const host::ReferencePtr& o) { return wrapWith<FaultReference>(c, o); }
host::VBComponentsPtr wrap(const ContextPtr& c, const host::VBComponentsPtr& o) { return wrapWith<FaultVBComponents>(c, o); }
host::VBComponentPtr wrap(const ContextPtr& c, const host::VBComponentPtr& o) { return wrapWith<FaultVBComponent>(c, o); }
host::CodeModulePtr wrap(const ContextPtr& c, const host::CodeModulePtr& o) { return wrapWith<FaultCodeModule>(c, o); }
host::CodePanePtr wrap(const ContextPtr& c, const host::CodePanePtr& o) { return wrapWith<FaultCodePane>(c, o); }
host::CodePanesPtr wrap(const ContextPtr& c, const host::CodePanesPtr& o) { return wrapWith<FaultCodePanes>(c, o); }
host::WindowPtr wrap(const ContextPtr& c, const host::WindowPtr& o) { return wrapWith<FaultWindow>(c, o); }
host::WindowsPtr wrap(const ContextPtr& c, const host::WindowsPtr& o) { return wrapWith<FaultWindows>(c, o); }
host::CommandBarsPtr wrap(const ContextPtr& c, const host::CommandBarsPtr& o) { return wrapWith<FaultCommandBars>(c, o); }
host::CommandBarPtr wrap(const ContextPtr& c, const host::CommandBarPtr& o) { return wrapWith<FaultCommandBar>(c, o); }
host::CommandBarControlsPtr wrap(const ContextPtr& c, const host::CommandBarControlsPtr& o) { return wrapWith<FaultCommandBarControls>(c, o); }
host::CommandBarControlPtr wrap(const ContextPtr& c, const host::CommandBarControlPtr& o) { return wrapWith<FaultCommandBarControl>(c, o); }
host::EventsPtr wrap(const ContextPtr& c, const host::EventsPtr& o) { return wrapWith<FaultEvents>(c, o); }
host::CommandBarEventsPtr wrap(const ContextPtr& c, const host::CommandBarEventsPtr& o) { return wrapWith<FaultCommandBarEvents>(c, o); }
// clang-format on

}  // namespace quillet::hosts::fault
