#pragma once
// The sink of a command bar control's clicks. Two sources raise them: the editor's own
// CommandBarEvents object (Click(control, handled, CancelDefault), DISPID 1 of
// _dispCommandBarControlEvents) and, in Office, the button itself (Click(control,
// CancelDefault), DISPID 1 of _CommandBarButtonEvents). The sink is advised on the source's
// connection point and unadvised when the events object goes or disconnects.

#include <ocidl.h>

#include <functional>

#include "host/objects.h"
#include "hosts/com/com_host.h"
#include "hosts/com/dispatch_object.h"

namespace quillet::hosts::com {

// DIID of the editor's CommandBarEvents source.
inline constexpr GUID kDiidCommandBarControlEvents = {
    0x0002E131, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};
// DIID of an Office button's own events.
inline constexpr GUID kDiidCommandBarButtonEvents = {
    0x000C0351, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};

class ComCommandBarEvents : public host::CommandBarEvents {
public:
    // `source` raises the events of `diid`; `afterEvent` runs after each click is handled.
    ComCommandBarEvents(DispatchObject source, const GUID& diid, AfterEvent afterEvent = nullptr);
    ~ComCommandBarEvents() override;
    ComCommandBarEvents(const ComCommandBarEvents&) = delete;
    ComCommandBarEvents& operator=(const ComCommandBarEvents&) = delete;

    void Connect(ClickHandler handler) override;
    void Disconnect() override;

private:
    class Sink;
    DispatchObject source_;
    GUID diid_;
    AfterEvent afterEvent_;
    ComPtr<IConnectionPoint> point_;
    Sink* sink_ = nullptr;
    DWORD cookie_ = 0;
};

// Whether `source` offers a connection point for `diid`.
bool raisesEvents(const DispatchObject& source, const GUID& diid);

}  // namespace quillet::hosts::com
