#pragma once
// Helpers shared by the memory host's tests.

#include <functional>

#include "basic/vb_error.h"

namespace quillet::hosts::memory::testing {

// The number of the VbError the call raises; 0 when it raises none.
inline long errorOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const basic::VbError& e) {
        return e.Number();
    }
    return 0;
}

}  // namespace quillet::hosts::memory::testing
