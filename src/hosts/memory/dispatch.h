#pragma once
// A plain late-bound object of the in-memory editor (tool window documents, designers,
// properties): a bag of properties that keeps what is put into it and records the calls.

#include <map>
#include <vector>

#include "basic/dispatch.h"

namespace quillet::hosts::memory {

using basic::Str;

class MemoryDispatch : public basic::Dispatch {
public:
    explicit MemoryDispatch(Str typeName) : typeName_(std::move(typeName)) {}

    struct CallRecord {
        Str member;
        basic::Args args;
    };
    const std::vector<CallRecord>& calls() const { return calls_; }

    Str TypeName() const override { return typeName_; }
    // A property put before; another member raises 438.
    basic::Variant Get(const Str& member, const basic::Args& args = {}) override;
    void Put(const Str& member, const basic::Variant& value, const basic::Args& args = {}) override;
    // Recorded; returns Empty.
    basic::Variant Call(const Str& member, const basic::Args& args = {}) override;

private:
    Str typeName_;
    std::map<Str, basic::Variant> properties_;  // by folded name
    std::vector<CallRecord> calls_;
};

}  // namespace quillet::hosts::memory
