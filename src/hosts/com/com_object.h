#pragma once
// What every wrapper of com_host.h shares: the COM object, and the factory helper.

#include <memory>

#include "hosts/com/com_dispatch.h"
#include "hosts/com/dispatch_object.h"

namespace quillet::hosts::com {

class ComObject {
public:
    explicit ComObject(DispatchObject object) : d_(std::move(object)) {}
    virtual ~ComObject() = default;
    const DispatchObject& object() const { return d_; }

protected:
    DispatchObject d_;
};

template <class Wrapper, class Interface = Wrapper>
std::shared_ptr<Interface> wrap(DispatchObject object) {
    if (!object) return nullptr;
    return std::make_shared<Wrapper>(std::move(object));
}

inline ComVariant arg(long n) { return ComVariant(n); }
inline ComVariant arg(const Str& s) { return ComVariant(s); }
inline ComVariant arg(bool b) { return ComVariant(b); }

}  // namespace quillet::hosts::com
