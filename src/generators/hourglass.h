#pragma once
// The statement that turns the mouse pointer into an hourglass, and back, in each host.

#include "basic/strings.h"

namespace quillet::generators {

using basic::Str;

// "Screen.MousePointer = 11" (Access, VB6), "Application.Cursor=xlWait" (Excel),
// "System.Cursor=wdCursorWait" (Word) with fOn; their counterparts without it; "" in another host.
// The host name is compared binary.
Str HourglassStatement(const Str& hostName, bool fOn);

}  // namespace quillet::generators
