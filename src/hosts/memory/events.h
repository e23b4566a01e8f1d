#pragma once
// Events.CommandBarEvents of the in-memory editor: a sink per call, fired by the control's
// Execute while connected and alive.

#include <memory>

#include "host/objects.h"

namespace quillet::hosts::memory {

class MemoryCommandBarControl;

class MemoryCommandBarEvents : public host::CommandBarEvents {
public:
    explicit MemoryCommandBarEvents(std::shared_ptr<MemoryCommandBarControl> control) : control_(std::move(control)) {}
    void Connect(ClickHandler handler) override { handler_ = std::move(handler); }
    void Disconnect() override { handler_ = nullptr; }
    bool connected() const { return static_cast<bool>(handler_); }
    // Calls the handler, if connected.
    void fire(const host::CommandBarControlPtr& control, bool& handled, bool& cancelDefault);

private:
    std::shared_ptr<MemoryCommandBarControl> control_;
    ClickHandler handler_;
};

class MemoryEvents : public host::Events {
public:
    // A control not of this editor raises 13; none raises 91.
    host::CommandBarEventsPtr CommandBarEvents(const host::CommandBarControlPtr& control) override;
};

}  // namespace quillet::hosts::memory
