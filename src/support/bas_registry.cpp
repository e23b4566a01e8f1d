// One registry value.

#include "support/bas_registry.h"

namespace quillet::support {

Str RegistryValue(platform::Platform& platform, unsigned long root, const Str& key, const Str& valueName,
                  const Str& defaultValue) {
    if (root != HKEY_CURRENT_USER_ROOT) return defaultValue;
    auto value = platform.RegistryValue(key, valueName);
    if (!value) return defaultValue;
    size_t nul = value->find(u'\0');
    return nul == Str::npos ? *value : value->substr(0, nul);
}

}  // namespace quillet::support
