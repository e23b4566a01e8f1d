#include "hosts/fault/fault_plan.h"

namespace quillet::hosts::fault {

void FaultPlan::failAt(long k, long number, Str description) {
    failAt_ = k;
    number_ = number;
    description_ = std::move(description);
}

void FaultPlan::failFrom(long k, long number, Str description) {
    failFrom_ = k;
    number_ = number;
    description_ = std::move(description);
}

void FaultPlan::reset() {
    calls_ = 0;
    failures_ = 0;
    log_.clear();
}

void FaultPlan::clearFaults() {
    failAt_ = 0;
    failFrom_ = 0;
}

void FaultPlan::tick(const char* object, const char* member) {
    ++calls_;
    log_.push_back(std::string(object) + "." + member);
    if ((failAt_ != 0 && calls_ == failAt_) || (failFrom_ != 0 && calls_ >= failFrom_)) {
        ++failures_;
        throw basic::VbError(number_, description_);
    }
}

}  // namespace quillet::hosts::fault
