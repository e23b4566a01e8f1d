#pragma once
// Helpers shared by the Basic runtime tests.

#include <gtest/gtest.h>

#include <functional>
#include <ostream>

#include "basic/unicode.h"
#include "basic/vb_error.h"

namespace quillet::basic {

// Prints text readably in failure messages.
inline void PrintTo(const Str& text, std::ostream* os) { *os << '"' << toUtf8(text) << '"'; }

// The number of the VbError the call raises, or 0 when it raises none.
inline long errorNumberOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const VbError& e) {
        return e.Number();
    }
    return 0;
}

}  // namespace quillet::basic
