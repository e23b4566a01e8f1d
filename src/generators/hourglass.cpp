// Hourglass statements per host.

#include "generators/hourglass.h"

namespace quillet::generators {

namespace {

struct Hourglass {
    const char16_t* host;
    const char16_t* on;
    const char16_t* off;
};

constexpr Hourglass kHourglasses[] = {
    {u"Access", u"Screen.MousePointer = 11", u"Screen.MousePointer = 0"},
    {u"VBRUN", u"Screen.MousePointer = 11", u"Screen.MousePointer = 0"},
    {u"Excel", u"Application.Cursor=xlWait", u"Application.Cursor=xlDefault"},
    {u"Word", u"System.Cursor=wdCursorWait", u"System.Cursor=wdCursorNormal"},
};

}  // namespace

Str HourglassStatement(const Str& hostName, bool fOn) {
    for (const auto& hourglass : kHourglasses)
        if (hostName == hourglass.host) return fOn ? hourglass.on : hourglass.off;
    return {};
}

}  // namespace quillet::generators
