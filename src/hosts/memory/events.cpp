#include "hosts/memory/events.h"

#include "hosts/memory/command_bar_controls.h"

namespace quillet::hosts::memory {

void MemoryCommandBarEvents::fire(const host::CommandBarControlPtr& control, bool& handled, bool& cancelDefault) {
    if (!handler_) return;
    auto handler = handler_;  // the handler may disconnect itself
    handler(control, handled, cancelDefault);
}

host::CommandBarEventsPtr MemoryEvents::CommandBarEvents(const host::CommandBarControlPtr& control) {
    if (!control) throw basic::VbError::standard(basic::err::ObjectNotSet);
    auto memory = std::dynamic_pointer_cast<MemoryCommandBarControl>(control);
    if (!memory) throw basic::VbError::standard(basic::err::TypeMismatch);
    auto sink = std::make_shared<MemoryCommandBarEvents>(memory);
    memory->connectSink(sink);
    return sink;
}

}  // namespace quillet::hosts::memory
