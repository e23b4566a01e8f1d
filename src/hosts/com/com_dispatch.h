#pragma once
// The system's late-bound object (basic::Dispatch) over a COM object.

#include "basic/dispatch.h"
#include "hosts/com/dispatch_object.h"

namespace quillet::hosts::com {

class ComDispatch : public basic::Dispatch {
public:
    explicit ComDispatch(DispatchObject object) : object_(std::move(object)) {}

    Str TypeName() const override;
    basic::Variant Get(const Str& member, const basic::Args& args = {}) override;
    void Put(const Str& member, const basic::Variant& value, const basic::Args& args = {}) override;
    basic::Variant Call(const Str& member, const basic::Args& args = {}) override;

    const DispatchObject& object() const { return object_; }

private:
    DispatchObject object_;
};

// A system object for a COM one; none for null.
basic::DispatchPtr wrapDispatch(IDispatch* object);
// The COM object inside a system object, or null when it holds none (or is none).
IDispatch* comObjectOf(const basic::DispatchPtr& object);

}  // namespace quillet::hosts::com
