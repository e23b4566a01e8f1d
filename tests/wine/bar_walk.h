#pragma once
// The add-in's bar as the editor holds it, walked depth first, and the tree the command table
// says it must have.

#include <vector>

#include "addin/command_table.h"
#include "harness.h"
#include "hosts/memory/memory_host.h"

namespace quillet::wine {

using basic::Str;

struct WalkedControl {
    host::CommandBarControlPtr control;
    int depth = 0;
    Str parentTag;  // empty on the bar
};

// Every control under the bar "Quillet", depth first, in order; empty when there is no bar.
std::vector<WalkedControl> walkBar(hosts::memory::MemoryVBE& vbe);

// One control the table says the bar holds, in the same walk order.
struct ExpectedControl {
    const addin::CommandRow* row = nullptr;
    Str caption;
    int depth = 0;
    Str tag;
};

// The rows made in a connection with no Office application and not in testing mode.
std::vector<ExpectedControl> expectedBar();

// The control reached through these captions from the bar ("&Quillet", "&If", "Then &Else");
// none when a step is missing.
host::CommandBarControlPtr controlAt(hosts::memory::MemoryVBE& vbe, const std::vector<Str>& captions);

// Clicks a control as the editor does: through the sinks advised on it. Each caption matches as
// shown ("Collectio&n...") or as read ("Collection"). A missing control fails a check and gives false.
bool clickBar(Checks& c, hosts::memory::MemoryVBE& vbe, const std::vector<Str>& captions);

// The whole text of a module of the active project, lines joined by CRLF.
Str moduleText(hosts::memory::MemoryVBE& vbe, const Str& name);

// Captions of the visible controls straight on the bar.
std::vector<Str> visibleOnBar(hosts::memory::MemoryVBE& vbe);

}  // namespace quillet::wine
