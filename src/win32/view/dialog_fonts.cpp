#include "win32/view/dialog_fonts.h"

#include "support/bas_registry.h"

namespace quillet::win32::view {

namespace {

constexpr wchar_t kCodeFace[] = L"Courier New";
constexpr int kCodePoints = 10;
constexpr char16_t kEditorKey[] = u"Software\\Microsoft\\VBA\\6.0\\Common";

int pixelsPerInch() {
    HDC screen = GetDC(nullptr);
    int dpi = screen ? GetDeviceCaps(screen, LOGPIXELSY) : 96;
    if (screen) ReleaseDC(nullptr, screen);
    return dpi > 0 ? dpi : 96;
}

void put(std::wstring& buffer, DWORD value) {
    buffer.push_back(static_cast<wchar_t>(value & 0xFFFF));
    buffer.push_back(static_cast<wchar_t>(value >> 16));
}

}  // namespace

MessageFont systemMessageFont() noexcept {
    MessageFont font;
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    if (!SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0)) return font;
    const LOGFONTW& message = metrics.lfMessageFont;
    if (message.lfFaceName[0]) font.face = message.lfFaceName;
    LONG height = message.lfHeight < 0 ? -message.lfHeight : message.lfHeight;
    if (height > 0) font.points = static_cast<WORD>(MulDiv(height, 72, pixelsPerInch()));
    if (font.points < 6) font.points = 8;
    return font;
}

HFONT createCodeFont(platform::Platform& platform) noexcept {
    std::wstring face = kCodeFace;
    int points = kCodePoints;
    try {
        auto storedFace = support::RegistryValue(platform, support::HKEY_CURRENT_USER_ROOT, kEditorKey, u"FontFace");
        if (!storedFace.empty()) face.assign(storedFace.begin(), storedFace.end());
        auto storedHeight = support::RegistryValue(platform, support::HKEY_CURRENT_USER_ROOT, kEditorKey, u"FontHeight");
        int height = storedHeight.empty() ? 0 : std::stoi(std::string(storedHeight.begin(), storedHeight.end()));
        if (height > 0 && height < 100) points = height;
    } catch (...) {
        // The editor's settings unreadable: the default font.
    }
    LOGFONTW font{};
    font.lfHeight = -MulDiv(points, pixelsPerInch(), 72);
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
    lstrcpynW(font.lfFaceName, face.c_str(), LF_FACESIZE);
    return CreateFontIndirectW(&font);
}

std::wstring dialogTemplate(const wchar_t* windowClass, DWORD style, DWORD exStyle, short cx, short cy,
                            const std::wstring& caption, const MessageFont& font) {
    // DLGTEMPLATE, then the menu, class, title and font as WORD-aligned arrays; wchar_t is a WORD
    // here, and a std::wstring's buffer is aligned for the DWORDs at its start.
    std::wstring buffer;
    put(buffer, style | DS_SETFONT);
    put(buffer, exStyle);
    buffer.push_back(0);  // no controls: they are made on the window
    for (short value : {short(0), short(0), cx, cy}) buffer.push_back(static_cast<wchar_t>(value));
    buffer.push_back(0);  // no menu
    buffer += windowClass;
    buffer.push_back(0);
    buffer += caption;
    buffer.push_back(0);
    buffer.push_back(static_cast<wchar_t>(font.points));
    buffer += font.face;
    buffer.push_back(0);
    return buffer;
}

}  // namespace quillet::win32::view
