#include "hosts/memory/dispatch.h"

#include "hosts/memory/text.h"

namespace quillet::hosts::memory {

basic::Variant MemoryDispatch::Get(const Str& member, const basic::Args&) {
    auto it = properties_.find(foldedKey(member));
    if (it == properties_.end()) throw basic::VbError::standard(basic::err::NotSupported);
    return it->second;
}

void MemoryDispatch::Put(const Str& member, const basic::Variant& value, const basic::Args&) {
    properties_[foldedKey(member)] = value;
}

basic::Variant MemoryDispatch::Call(const Str& member, const basic::Args& args) {
    calls_.push_back(CallRecord{member, args});
    return basic::Empty{};
}

}  // namespace quillet::hosts::memory
