#pragma once
// The reliability sweep: a command run once on a clean editor, then again with each of its host
// calls failing in turn. Each faulty run must leave the module with its old text or with the
// whole change, and a run that did not make the whole change must have reported.

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "basic/unicode.h"

namespace quillet::testing {

struct SweepOutcome {
    basic::Str text;   // the module's text afterwards
    long reports = 0;  // reports through HandleError
    long calls = 0;    // host calls counted
};

// `run(k)` runs the command with the k-th host call failing (0: none); `before` is the module's text.
inline void expectEachFaultLeavesOldTextOrWholeChange(const std::function<SweepOutcome(long)>& run,
                                                      const basic::Str& before) {
    SweepOutcome clean = run(0);
    ASSERT_NE(clean.text, before) << "the command should change the module";
    ASSERT_EQ(clean.reports, 0);
    ASSERT_GT(clean.calls, 0);
    for (long k = 1; k <= clean.calls; ++k) {
        SCOPED_TRACE("failing call " + std::to_string(k) + " of " + std::to_string(clean.calls));
        SweepOutcome faulty = run(k);
        EXPECT_TRUE(faulty.text == before || faulty.text == clean.text) << basic::toUtf8(faulty.text);
        // A call made with errors ignored may fail silently, but then the command must still
        // have done its whole work.
        EXPECT_TRUE(faulty.reports > 0 || faulty.text == clean.text);
    }
}

}  // namespace quillet::testing
