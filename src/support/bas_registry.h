#pragma once
// Reading one registry value (basRegistry) through the platform, which answers from the
// Windows registry on Windows and from its script elsewhere. Only the current user's hive is
// reachable; a text value is cut at its first NUL; a missing value gives the default.

#include <string>

#include "platform/platform.h"

namespace quillet::support {

using Str = std::u16string;

constexpr unsigned long HKEY_CURRENT_USER_ROOT = 0x80000001;

Str RegistryValue(platform::Platform& platform, unsigned long root, const Str& key, const Str& valueName,
                  const Str& defaultValue = {});

}  // namespace quillet::support
