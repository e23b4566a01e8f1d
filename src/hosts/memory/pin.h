#pragma once
// Handing objects out of the in-memory editor: pinned to the editor when it still lives.

#include <memory>

#include "hosts/memory/vbe.h"

namespace quillet::hosts::memory {

template <class T>
std::shared_ptr<T> pinned(const std::shared_ptr<MemoryVBE>& vbe, const std::shared_ptr<T>& object) {
    return vbe ? vbe->pin(object) : object;
}

}  // namespace quillet::hosts::memory
