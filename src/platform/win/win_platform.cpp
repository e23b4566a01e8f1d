#include "platform/win/win_platform.h"

#include <olectl.h>
#include <shellapi.h>

#include <vector>

#include "basic/variant.h"
#include "hosts/com/bstr.h"
#include "hosts/com/com_dispatch.h"

namespace quillet::platform::win {

namespace {

using hosts::com::fromWide;
using hosts::com::toWide;

// Basic keeps GetSetting and SaveSetting values here.
constexpr wchar_t kSettingsRoot[] = L"Software\\VB and VBA Program Settings\\";

std::wstring settingsKey(const Str& app, const Str& section) {
    return kSettingsRoot + toWide(app) + L"\\" + toWide(section);
}

std::optional<Str> readString(HKEY root, const std::wstring& key, const std::wstring& name) {
    DWORD size = 0;
    // REG_EXPAND_SZ comes expanded under RRF_RT_REG_SZ; asking for it by type would fail every read.
    DWORD flags = RRF_RT_REG_SZ | RRF_RT_REG_DWORD;
    DWORD type = 0;
    if (RegGetValueW(root, key.c_str(), name.c_str(), flags, &type, nullptr, &size) != ERROR_SUCCESS) return std::nullopt;
    std::vector<BYTE> data(size + sizeof(wchar_t));
    if (RegGetValueW(root, key.c_str(), name.c_str(), flags, &type, data.data(), &size) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    if (type == REG_DWORD) {
        DWORD value = *reinterpret_cast<DWORD*>(data.data());
        std::string digits = std::to_string(value);
        return Str(digits.begin(), digits.end());
    }
    return Str(reinterpret_cast<const char16_t*>(data.data()));
}

class Clipboard {
public:
    Clipboard() : open_(OpenClipboard(nullptr) != FALSE) {}
    ~Clipboard() {
        if (open_) CloseClipboard();
    }
    bool open() const { return open_; }

private:
    bool open_;
};

}  // namespace

HWND ownerWindow() {
    HWND owner = GetActiveWindow();
    return owner ? owner : GetForegroundWindow();
}

int WinPlatform::MsgBox(const Str& prompt, int buttons, const Str& title) {
    // Basic's button values are those of MessageBox.
    return MessageBoxW(ownerWindow(), toWide(prompt).c_str(), toWide(title).c_str(),
                       static_cast<UINT>(buttons) | MB_SETFOREGROUND);
}

std::optional<Str> WinPlatform::InputBox(const Str& prompt, const Str& title, const Str& defaultText) {
    return showInputBox(module_, ownerWindow(), prompt, title, defaultText);
}

void WinPlatform::ClipboardClear() {
    Clipboard clipboard;
    if (clipboard.open()) EmptyClipboard();
}

void WinPlatform::ClipboardSetText(const Str& text) {
    Clipboard clipboard;
    if (!clipboard.open()) throw basic::VbError(521, u"Can't open Clipboard");
    EmptyClipboard();
    size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
    if (!memory) throw basic::VbError::standard(basic::err::OutOfMemory);
    auto* target = static_cast<wchar_t*>(GlobalLock(memory));
    std::copy(text.begin(), text.end(), target);
    target[text.size()] = L'\0';
    GlobalUnlock(memory);
    if (!SetClipboardData(CF_UNICODETEXT, memory)) GlobalFree(memory);
}

std::optional<Str> WinPlatform::ClipboardGetText() {
    Clipboard clipboard;
    if (!clipboard.open()) return std::nullopt;
    HANDLE data = GetClipboardData(CF_UNICODETEXT);
    if (!data) return std::nullopt;
    const auto* text = static_cast<const wchar_t*>(GlobalLock(data));
    if (!text) return std::nullopt;
    Str result = fromWide(text, wcslen(text));
    GlobalUnlock(data);
    return result;
}

void WinPlatform::SendKeys(const Str& keys, bool wait) {
    std::vector<INPUT> events = keyEvents(keys);
    if (!events.empty()) SendInput(static_cast<UINT>(events.size()), events.data(), sizeof(INPUT));
    if (wait) DoEvents();
}

std::optional<Str> WinPlatform::RegistryValue(const Str& key, const Str& name) {
    return readString(HKEY_CURRENT_USER, toWide(key), toWide(name));
}

Str WinPlatform::GetSetting(const Str& app, const Str& section, const Str& key, const Str& defaultValue) {
    return readString(HKEY_CURRENT_USER, settingsKey(app, section), toWide(key)).value_or(defaultValue);
}

void WinPlatform::SaveSetting(const Str& app, const Str& section, const Str& key, const Str& value) {
    std::wstring wide = toWide(value);
    LSTATUS status = RegSetKeyValueW(HKEY_CURRENT_USER, settingsKey(app, section).c_str(), toWide(key).c_str(), REG_SZ,
                                     wide.c_str(), static_cast<DWORD>((wide.size() + 1) * sizeof(wchar_t)));
    if (status != ERROR_SUCCESS) throw basic::VbError::standard(basic::err::PathFileAccess, u"SaveSetting");
}

long long WinPlatform::GetFocus() { return reinterpret_cast<long long>(::GetFocus()); }

void WinPlatform::SetFocus(long long window) { ::SetFocus(reinterpret_cast<HWND>(window)); }

void WinPlatform::Hourglass(bool on) {
    if (on) {
        HCURSOR previous = SetCursor(LoadCursor(nullptr, IDC_WAIT));
        if (!savedCursor_) savedCursor_ = previous;
    } else {
        SetCursor(savedCursor_ ? savedCursor_ : LoadCursor(nullptr, IDC_ARROW));
        savedCursor_ = nullptr;
    }
}

void WinPlatform::DoEvents() {
    MSG msg;
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
}

Str WinPlatform::AddinFolder() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        DWORD n = GetModuleFileNameW(module_, path.data(), static_cast<DWORD>(path.size()));
        if (n == 0) return Str();
        if (n < path.size()) {
            path.resize(n);
            break;
        }
        path.resize(path.size() * 2);
    }
    size_t slash = path.find_last_of(L"\\/");
    return fromWide(path.substr(0, slash == std::wstring::npos ? 0 : slash + 1));
}

Str WinPlatform::TempFolder() {
    wchar_t buffer[MAX_PATH + 1];
    DWORD n = GetTempPathW(MAX_PATH + 1, buffer);
    return n ? fromWide(buffer, n) : Str();
}

bool WinPlatform::FileExists(const Str& path) {
    return GetFileAttributesW(toWide(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

void WinPlatform::ShellOpen(const Str& target) {
    auto result = reinterpret_cast<INT_PTR>(
        ShellExecuteW(ownerWindow(), L"open", toWide(target).c_str(), nullptr, nullptr, SW_SHOWNORMAL));
    if (result <= 32) throw basic::VbError::standard(basic::err::FileNotFound, u"ShellOpen");
}

void WinPlatform::CloseWindowOfClass(const Str& className) {
    if (HWND window = FindWindowW(toWide(className).c_str(), nullptr)) CloseWindow(window);
}

HBITMAP WinPlatform::faceBitmap(long faceId, bool mask) const {
    if (!faceExists(faceId)) throw resourceNotFound(faceId);
    // The faces are bitmap resources of the DLL (src/win32/faces.rc): a face's mask is 1000 + face.
    long id = mask ? kMaskResourceOffset + faceId : faceId;
    auto bitmap = static_cast<HBITMAP>(LoadImageW(module_, MAKEINTRESOURCEW(id), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
    if (!bitmap) throw resourceNotFound(faceId);
    return bitmap;
}

basic::DispatchPtr WinPlatform::FacePicture(long faceId, bool mask) {
    HBITMAP bitmap = faceBitmap(faceId, mask);
    PICTDESC desc{};
    desc.cbSizeofstruct = sizeof desc;
    desc.picType = PICTYPE_BITMAP;
    desc.bmp.hbitmap = bitmap;
    IPictureDisp* picture = nullptr;
    // The picture owns the bitmap from here on.
    HRESULT hr = OleCreatePictureIndirect(&desc, IID_IPictureDisp, TRUE, reinterpret_cast<void**>(&picture));
    if (FAILED(hr) || !picture) {
        DeleteObject(bitmap);
        throw basic::VbError::standard(basic::err::OutOfMemory, u"FacePicture");
    }
    basic::DispatchPtr result = hosts::com::wrapDispatch(picture);
    picture->Release();
    return result;
}

void WinPlatform::ClipboardSetFace(long faceId) {
    HBITMAP bitmap = faceBitmap(faceId, false);
    Clipboard clipboard;
    if (!clipboard.open()) {
        DeleteObject(bitmap);
        throw basic::VbError(521, u"Can't open Clipboard");
    }
    EmptyClipboard();
    // The clipboard owns the bitmap once it takes it.
    if (!SetClipboardData(CF_BITMAP, bitmap)) DeleteObject(bitmap);
}

}  // namespace quillet::platform::win
