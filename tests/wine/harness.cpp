#include "harness.h"

#include <windows.h>

namespace quillet::wine {

std::string narrow(const std::wstring& s) {
    if (s.empty()) return {};
    int n = WideCharToMultiByte(CP_UTF8, 0, s.data(), static_cast<int>(s.size()), nullptr, 0, nullptr, nullptr);
    std::string out(static_cast<size_t>(n), '\0');
    WideCharToMultiByte(CP_UTF8, 0, s.data(), static_cast<int>(s.size()), out.data(), n, nullptr, nullptr);
    return out;
}

std::string narrow(const std::u16string& s) { return narrow(std::wstring(s.begin(), s.end())); }

std::string hex(long value) {
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "0x%08lX", static_cast<unsigned long>(value));
    return buffer;
}

std::u16string joinLines(const std::vector<std::u16string>& lines) {
    std::u16string text;
    for (size_t i = 0; i < lines.size(); ++i) text += (i ? u"\r\n" : u"") + lines[i];
    return text;
}

std::string shown(const std::u16string& text) {
    std::string out;
    for (char16_t ch : text) {
        if (ch == u'\r') out += "\\r";
        else if (ch == u'\n') out += "\\n";
        else out += narrow(std::u16string(1, ch));
    }
    return out;
}

}  // namespace quillet::wine
