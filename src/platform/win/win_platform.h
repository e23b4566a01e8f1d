#pragma once
// The platform services from the real Windows: message and input boxes, the clipboard,
// SendInput, the registry, focus, the cursor, the message queue and the file system.

#include <windows.h>

#include "platform/platform.h"

namespace quillet::platform::win {

class WinPlatform : public Platform {
public:
    // `module` is the add-in's own DLL: its folder is AddinFolder, and dialogs belong to it.
    explicit WinPlatform(HMODULE module) : module_(module) {}
    ~WinPlatform() override;
    WinPlatform(const WinPlatform&) = delete;
    WinPlatform& operator=(const WinPlatform&) = delete;

    int MsgBox(const Str& prompt, int buttons, const Str& title) override;
    std::optional<Str> InputBox(const Str& prompt, const Str& title, const Str& defaultText) override;
    void ClipboardClear() override;
    void ClipboardSetText(const Str& text) override;
    std::optional<Str> ClipboardGetText() override;
    void SendKeys(const Str& keys, bool wait) override;
    std::optional<Str> RegistryValue(const Str& key, const Str& name) override;
    Str GetSetting(const Str& app, const Str& section, const Str& key, const Str& defaultValue) override;
    void SaveSetting(const Str& app, const Str& section, const Str& key, const Str& value) override;
    long long GetFocus() override;
    void SetFocus(long long window) override;
    void Hourglass(bool on) override;
    void DoEvents() override;
    Str AddinFolder() override;
    Str TempFolder() override;
    bool FileExists(const Str& path) override;
    void ShellOpen(const Str& target) override;
    void CloseWindowOfClass(const Str& className) override;
    // The common dialogs of file_dialogs.h (win_platform_dialogs.cpp).
    std::optional<FileDialogChoice> ShowOpenFileDialog(const FileDialogRequest& request) override;
    std::optional<FileDialogChoice> ShowSaveFileDialog(const FileDialogRequest& request) override;
    std::optional<Str> BrowseForFolder(const Str& title, const Str& startFolder) override;
    basic::DispatchPtr FacePicture(long faceId, bool mask) override;
    void ClipboardSetFace(long faceId) override;
    // HtmlHelpW of HHCtrl.ocx, loaded at the first call (html_help.cpp).
    long long HtmlHelp(long long window, const Str& file, HtmlHelpCommand command, long data) override;
    void CloseHelpWindow(long long window) override;

private:
    // A face's bitmap (or its mask's) from the DLL's resources; raises 326 for an unknown face.
    HBITMAP faceBitmap(long faceId, bool mask) const;

    static constexpr long kMaskResourceOffset = 1000;
    HMODULE module_;
    HCURSOR savedCursor_ = nullptr;
    // HHCtrl.ocx once loaded; failedHelpLoad_ once it could not be.
    HMODULE helpLibrary_ = nullptr;
    bool failedHelpLoad_ = false;
};

// The window that owns the add-in's boxes: the active window of this thread, else the
// foreground window.
HWND ownerWindow();

// A modal box with a prompt, a text field and OK/Cancel; none for Cancel.
std::optional<Str> showInputBox(HMODULE module, HWND owner, const Str& prompt, const Str& title,
                                const Str& defaultText);

// Keys in Basic's SendKeys syntax as input events; an unknown {NAME} raises 5.
std::vector<INPUT> keyEvents(const Str& keys);

}  // namespace quillet::platform::win
