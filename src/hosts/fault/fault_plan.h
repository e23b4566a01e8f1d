#pragma once
// The fault-injecting host: wraps any editor so that every call of any member of any object it
// hands out goes through one shared counter, and the k-th call raises an error instead of
// reaching the editor. A test first counts the calls a command makes, then fails each one in
// turn and checks that the command reports and goes on:
//
//     auto plan = std::make_shared<FaultPlan>();
//     host::VBEPtr vbe = wrapVBE(memoryVbe, plan);
//     runCommand(vbe);                       // counts
//     long n = plan->calls();
//     for (long k = 1; k <= n; ++k) {
//         plan->reset();
//         plan->failAt(k);                   // 440 "Automation error"
//         runCommand(vbe);
//     }

#include <memory>
#include <string>
#include <vector>

#include "host/objects.h"

namespace quillet::hosts::fault {

using basic::Str;

class FaultPlan {
public:
    // Calls counted since the last reset.
    long calls() const { return calls_; }
    // Errors raised since the last reset.
    long failures() const { return failures_; }
    // "CodeModule.Lines", "VBE.ActiveCodePane" ... for each call since the last reset.
    const std::vector<std::string>& log() const { return log_; }

    // The k-th call (counted from the last reset) raises number/description; 0 never.
    void failAt(long k, long number = basic::err::Automation, Str description = u"Automation error");
    // Every call from the k-th on raises (the editor has gone away); 0 never.
    void failFrom(long k, long number = basic::err::Automation, Str description = u"Automation error");
    // Counter, log and failures back to 0; the faults set stay.
    void reset();
    // No more faults.
    void clearFaults();

    // Called by the wrappers before each call: counts it and raises when it is the one.
    void tick(const char* object, const char* member);

private:
    long calls_ = 0;
    long failures_ = 0;
    long failAt_ = 0;
    long failFrom_ = 0;
    long number_ = basic::err::Automation;
    Str description_ = u"Automation error";
    std::vector<std::string> log_;
};

// The editor, wrapped. Objects handed out by the wrapper are wrappers too (the same wrapper for
// the same object while someone holds it), objects passed in are unwrapped, and the control
// given to a click handler is wrapped.
host::VBEPtr wrapVBE(const host::VBEPtr& inner, const std::shared_ptr<FaultPlan>& plan);

}  // namespace quillet::hosts::fault
