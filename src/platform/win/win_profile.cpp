// The Windows profile functions behind the settings store.

#include "platform/win/win_profile.h"

#include <windows.h>

#include <string>
#include <vector>

#include "settings/ansi_text.h"

namespace quillet::platform::win {

namespace {

using settings::fromAnsi;
using settings::Str;
using settings::toAnsi;

// The buffer as the caller sees it: `size` characters, as Windows filled them.
void fillFrom(const std::vector<char>& bytes, Str& buffer, long size) {
    buffer = fromAnsi(std::string_view(bytes.data(), bytes.size()));
    buffer.resize(size > 0 ? static_cast<size_t>(size) : 0, u'\0');
}

const char* orNull(const std::optional<std::string>& text) { return text ? text->c_str() : nullptr; }

std::optional<std::string> ansi(const std::optional<Str>& text) {
    if (!text) return std::nullopt;
    return toAnsi(*text);
}

}  // namespace

long WinProfile::GetPrivateProfileSectionNamesA(Str& buffer, long size, const Str& fileName) {
    std::vector<char> bytes(size > 0 ? static_cast<size_t>(size) : 1, '\0');
    DWORD n = ::GetPrivateProfileSectionNamesA(bytes.data(), static_cast<DWORD>(size > 0 ? size : 0),
                                               toAnsi(fileName).c_str());
    fillFrom(bytes, buffer, size);
    return static_cast<long>(n);
}

long WinProfile::GetPrivateProfileSectionA(const Str& section, Str& buffer, long size, const Str& fileName) {
    std::vector<char> bytes(size > 0 ? static_cast<size_t>(size) : 1, '\0');
    DWORD n = ::GetPrivateProfileSectionA(toAnsi(section).c_str(), bytes.data(), static_cast<DWORD>(size > 0 ? size : 0),
                                          toAnsi(fileName).c_str());
    if (n == 0) lastError_ = static_cast<long>(::GetLastError());
    fillFrom(bytes, buffer, size);
    return static_cast<long>(n);
}

long WinProfile::WritePrivateProfileSectionA(const Str& section, const std::optional<Str>& text, const Str& fileName) {
    // The lines are NUL-separated and the text ends in a double NUL, which the bytes keep.
    std::optional<std::string> bytes = ansi(text);
    if (bytes) bytes->append(2, '\0');
    BOOL ok = ::WritePrivateProfileSectionA(toAnsi(section).c_str(), bytes ? bytes->data() : nullptr,
                                            toAnsi(fileName).c_str());
    if (!ok) lastError_ = static_cast<long>(::GetLastError());
    return ok ? 1 : 0;
}

long WinProfile::WritePrivateProfileStringA(const Str& section, const std::optional<Str>& key,
                                            const std::optional<Str>& value, const Str& fileName) {
    auto keyBytes = ansi(key);
    auto valueBytes = ansi(value);
    BOOL ok = ::WritePrivateProfileStringA(toAnsi(section).c_str(), orNull(keyBytes), orNull(valueBytes),
                                           toAnsi(fileName).c_str());
    if (!ok) lastError_ = static_cast<long>(::GetLastError());
    return ok ? 1 : 0;
}

}  // namespace quillet::platform::win
