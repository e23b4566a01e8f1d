#pragma once
// The hidden form that carries the add-in's timers. The timers are plain models: the Windows
// view starts a real timer for each Interval above 0 and calls the matching method; tests call
// the methods themselves. Timer1's work, the look at the editor that follows the active project,
// belongs to the add-in's commands, which hand it over as ProjectWatch (addin/project_watch.h).

#include <functional>
#include <utility>

#include "core/context.h"

namespace quillet::core {

class frmTimer {
public:
    explicit frmTimer(Context& ctx, std::function<void(Context&)> projectWatch = {})
        : ProjectWatch(std::move(projectWatch)), ctx_(ctx) {}

    struct Timer {
        long Interval = 0;
        Str Tag;
    };
    Timer Timer1{500, {}};  // project watch and bar state
    Timer Timer2;           // one shot: opens a builder after a Select block stands
    Str Timer2Name;         // the name the caller keeps for the builder Timer2 opens
    Timer Timer3;           // retries a report to the Immediate window

    // What Timer1 runs at each tick while the editor is there.
    std::function<void(Context&)> ProjectWatch;

    // Each never throws.
    void Timer1_Timer() noexcept;
    void Timer2_Timer() noexcept;
    void Timer3_Timer() noexcept;

private:
    Context& ctx_;
    bool busy_ = false;  // guards against re-entrance through DoEvents
};

}  // namespace quillet::core
