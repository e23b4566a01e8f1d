#pragma once
// What the logic needs from the machine, behind one interface: message and input boxes,
// the clipboard, keys, registry values, focus, the hourglass, folders and files.
// ScriptedPlatform answers from a queue (tests and the quillet tool); the Windows half of this
// folder answers from the real system.

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "basic/dispatch.h"
#include "basic/vb_error.h"

namespace quillet::platform {

using basic::Str;

// MsgBox button values and answers.
namespace mb {
constexpr int vbOKOnly = 0;
constexpr int vbOKCancel = 1;
constexpr int vbAbortRetryIgnore = 2;
constexpr int vbYesNoCancel = 3;
constexpr int vbYesNo = 4;
constexpr int vbRetryCancel = 5;
constexpr int vbCritical = 16;
constexpr int vbQuestion = 32;
constexpr int vbExclamation = 48;
constexpr int vbInformation = 64;
constexpr int vbDefaultButton2 = 256;
constexpr int vbDefaultButton3 = 512;

constexpr int vbOK = 1;
constexpr int vbCancel = 2;
constexpr int vbAbort = 3;
constexpr int vbRetry = 4;
constexpr int vbIgnore = 5;
constexpr int vbYes = 6;
constexpr int vbNo = 7;
}  // namespace mb

// The answers a box with these buttons can give, first to last, and the one its default button gives.
int defaultAnswer(int buttons);
bool answerFits(int buttons, int answer);

// A common file dialog, to open or to save: its title; the filters as pairs of a description and
// its patterns ("Basic Files (*.bas)", "*.bas"), several patterns joined by ";"; the filter shown
// first (1-based); the folder it opens in; the name proposed; whether several files may be
// chosen; extra OFN_ flags as Windows defines them; the read-only check box.
struct FileDialogRequest {
    Str title;
    std::vector<std::pair<Str, Str>> filters;
    long filterIndex = 1;
    Str initialFolder;
    Str fileName;
    bool allowMultiSelect = false;
    long flags = 0;
    bool checkBoxVisible = false;
    bool checkBoxSelected = false;
};

// What was chosen in a file dialog: the full path of each file (one unless several may be
// chosen), the filter in use at the end (1-based) and the state of the read-only check box.
struct FileDialogChoice {
    std::vector<Str> paths;
    long filterIndex = 1;
    bool checkBoxSelected = false;
};

// The key of the editor's own settings (tab width, code font).
inline constexpr char16_t kEditorSettingsKey[] = u"Software\\Microsoft\\VBA\\6.0\\Common";

// The HTML Help commands the add-in uses, with HHCtrl's numbers.
enum class HtmlHelpCommand : unsigned {
    DisplayTopic = 0x0000,   // data: none (the topic path is part of the file name)
    DisplayToc = 0x0001,
    DisplayIndex = 0x0002,
    DisplaySearch = 0x0003,
    HelpContext = 0x000F,    // data: the context id
    CloseAll = 0x0012,
};

class Platform {
public:
    virtual ~Platform() = default;

    // MsgBox(prompt, buttons, title): one of the mb:: answers.
    virtual int MsgBox(const Str& prompt, int buttons, const Str& title) = 0;
    // InputBox(prompt, title, default): the text, or none for Cancel.
    virtual std::optional<Str> InputBox(const Str& prompt, const Str& title, const Str& defaultText) = 0;

    virtual void ClipboardClear() = 0;
    virtual void ClipboardSetText(const Str& text) = 0;
    virtual std::optional<Str> ClipboardGetText() = 0;

    // SendKeys with Basic's key syntax ("^v", " ", "{BACKSPACE}").
    virtual void SendKeys(const Str& keys, bool wait) = 0;

    // A value under HKEY_CURRENT_USER\key; none when absent.
    virtual std::optional<Str> RegistryValue(const Str& key, const Str& name) = 0;
    // Basic's GetSetting / SaveSetting (the application's own settings store).
    virtual Str GetSetting(const Str& app, const Str& section, const Str& key, const Str& defaultValue) = 0;
    virtual void SaveSetting(const Str& app, const Str& section, const Str& key, const Str& value) = 0;

    // Keyboard focus, as window handles (0 none).
    virtual long long GetFocus() = 0;
    virtual void SetFocus(long long window) = 0;

    virtual void Hourglass(bool on) = 0;
    // Lets pending messages run (Basic's DoEvents).
    virtual void DoEvents() = 0;

    // The add-in's own folder and the temporary folder, with a trailing backslash.
    virtual Str AddinFolder() = 0;
    virtual Str TempFolder() = 0;
    // PathFileExistsA on a path in the system's form.
    virtual bool FileExists(const Str& path) = 0;
    // ShellExecute "open" on a document or address.
    virtual void ShellOpen(const Str& target) = 0;
    // FindWindowA(className) then CloseWindow on it (minimises a window that is in the way);
    // nothing when there is none.
    virtual void CloseWindowOfClass(const Str& className) = 0;

    // The file dialogs and the folder browser: the choice, or none for Cancel. A platform without
    // them answers Cancel.
    virtual std::optional<FileDialogChoice> ShowOpenFileDialog(const FileDialogRequest& request);
    virtual std::optional<FileDialogChoice> ShowSaveFileDialog(const FileDialogRequest& request);
    // The folder chosen, without a final "\" unless it is a drive's root.
    virtual std::optional<Str> BrowseForFolder(const Str& title, const Str& startFolder);

    // HTML Help (the control HHCtrl.ocx): runs one command on a compiled help file for a window
    // and gives the handle of the help window it opened, 0 when none. A platform without it does
    // nothing.
    virtual long long HtmlHelp(long long window, const Str& file, HtmlHelpCommand command, long data);
    // Asks a window (a help window) to close; nothing when it is gone.
    virtual void CloseHelpWindow(long long window);

    // The bitmap of a command bar face (or of its mask) as a picture object, for
    // CommandBarControl.Picture and Mask. A face not in kFaceIds raises 326.
    virtual basic::DispatchPtr FacePicture(long faceId, bool mask) = 0;
    // Puts the bitmap of a face on the clipboard, where PasteFace takes it from. A face not in
    // kFaceIds raises 326.
    virtual void ClipboardSetFace(long faceId) = 0;
};

// The command bar faces that the add-in carries as bitmaps, each with its mask ("m" and the
// number).
inline constexpr long kFaceIds[] = {101, 102, 103, 104, 105, 106, 111, 181, 182, 183, 194, 195};
inline bool faceExists(long faceId) {
    for (long id : kFaceIds)
        if (id == faceId) return true;
    return false;
}
// What a resource (a face, a string) that does not exist raises: 326, as LoadResPicture does.
inline basic::VbError resourceNotFound(long id) {
    std::string digits = std::to_string(id);
    return basic::VbError(326, u"Resource with identifier '" + Str(digits.begin(), digits.end()) + u"' not found");
}

// The editor's settings, read from kEditorSettingsKey.
long editorTabWidth(Platform& platform);            // 4 when absent or not a positive number
std::optional<Str> editorFontFace(Platform& platform);  // only a face containing "Courier New"
std::optional<long> editorFontHeight(Platform& platform);

}  // namespace quillet::platform
