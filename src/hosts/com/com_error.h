#pragma once
// The one place where a failed COM call becomes Basic's run-time error.

#include <windows.h>
#include <objbase.h>
#include <oleauto.h>

#include "basic/vb_error.h"

namespace quillet::hosts::com {

// The error Basic raises for a call of `member` that returned hr, with the exception the callee
// filled in (when hr is DISP_E_EXCEPTION). Frees the strings of `info`.
basic::VbError errorOf(HRESULT hr, EXCEPINFO* info, const basic::Str& member);

// Raises errorOf(hr, ...) when hr is a failure.
void check(HRESULT hr, const basic::Str& member);

}  // namespace quillet::hosts::com
