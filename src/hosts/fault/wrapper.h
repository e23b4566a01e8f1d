#pragma once
// What every wrapper of the fault host shares: the plan, the identity cache, and the wrapping
// and unwrapping of the objects that cross.

#include <map>
#include <memory>
#include <typeindex>
#include <utility>

#include "hosts/fault/fault_plan.h"

namespace quillet::hosts::fault {

struct FaultContext {
    std::shared_ptr<FaultPlan> plan;
    // The wrapper of each wrapped object while it lives, so that one object keeps one wrapper.
    std::map<std::pair<const void*, std::type_index>, std::weak_ptr<void>> wrappers;
};
using ContextPtr = std::shared_ptr<FaultContext>;

template <class I>
class Wrapper : public I {
public:
    Wrapper(std::shared_ptr<I> inner, ContextPtr context, const char* objectName)
        : inner_(std::move(inner)), context_(std::move(context)), objectName_(objectName) {}
    const std::shared_ptr<I>& inner() const { return inner_; }

protected:
    // Counts the call (which may raise) and gives the object to forward it to.
    I& in(const char* member) {
        context_->plan->tick(objectName_, member);
        return *inner_;
    }
    const ContextPtr& context() const { return context_; }

private:
    std::shared_ptr<I> inner_;
    ContextPtr context_;
    const char* objectName_;
};

// The wrapper W of an object, made once per living object; none for none.
template <class W, class I>
std::shared_ptr<I> wrapWith(const ContextPtr& context, const std::shared_ptr<I>& inner) {
    if (!inner) return nullptr;
    auto key = std::make_pair(static_cast<const void*>(inner.get()), std::type_index(typeid(I)));
    if (auto known = context->wrappers[key].lock()) return std::static_pointer_cast<W>(known);
    std::erase_if(context->wrappers, [](const auto& entry) { return entry.second.expired(); });
    auto made = std::make_shared<W>(inner, context);
    context->wrappers[key] = made;
    return made;
}

// The object a wrapper stands for; anything else as it is.
template <class I>
std::shared_ptr<I> unwrap(const std::shared_ptr<I>& object) {
    if (auto wrapper = std::dynamic_pointer_cast<Wrapper<I>>(object)) return wrapper->inner();
    return object;
}

// One overload per object of the editor (defined with the wrappers).
host::VBEPtr wrap(const ContextPtr& c, const host::VBEPtr& o);
host::VBProjectsPtr wrap(const ContextPtr& c, const host::VBProjectsPtr& o);
host::VBProjectPtr wrap(const ContextPtr& c, const host::VBProjectPtr& o);
host::ReferencesPtr wrap(const ContextPtr& c, const host::ReferencesPtr& o);
host::ReferencePtr wrap(const ContextPtr& c, const host::ReferencePtr& o);
host::VBComponentsPtr wrap(const ContextPtr& c, const host::VBComponentsPtr& o);
host::VBComponentPtr wrap(const ContextPtr& c, const host::VBComponentPtr& o);
host::CodeModulePtr wrap(const ContextPtr& c, const host::CodeModulePtr& o);
host::CodePanePtr wrap(const ContextPtr& c, const host::CodePanePtr& o);
host::CodePanesPtr wrap(const ContextPtr& c, const host::CodePanesPtr& o);
host::WindowPtr wrap(const ContextPtr& c, const host::WindowPtr& o);
host::WindowsPtr wrap(const ContextPtr& c, const host::WindowsPtr& o);
host::CommandBarsPtr wrap(const ContextPtr& c, const host::CommandBarsPtr& o);
host::CommandBarPtr wrap(const ContextPtr& c, const host::CommandBarPtr& o);
host::CommandBarControlsPtr wrap(const ContextPtr& c, const host::CommandBarControlsPtr& o);
host::CommandBarControlPtr wrap(const ContextPtr& c, const host::CommandBarControlPtr& o);
host::EventsPtr wrap(const ContextPtr& c, const host::EventsPtr& o);
host::CommandBarEventsPtr wrap(const ContextPtr& c, const host::CommandBarEventsPtr& o);

}  // namespace quillet::hosts::fault
