#pragma once
// The platform of tests and of the quillet tool: answers to boxes come from a queue, in order;
// a message box with no answer left takes its default button, and an input box with no answer
// left counts as Cancel. The file dialogs and the folder browser take their answer from the same
// queue: "cancel" (or no answer left) is Cancel, "ok" takes what the dialog proposes, any other
// text is the path chosen (several paths of a multiple choice separated by "|"). Everything
// shown is logged so tests can read it back.

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <vector>

#include "platform/platform.h"

namespace quillet::platform {

struct ShownBox {
    enum class Kind { Message, Input, OpenFile, SaveFile, Folder } kind;
    Str prompt;
    Str title;
    int buttons = 0;      // message boxes
    Str defaultText;      // input boxes; the folder a dialog or browser opens in
    std::optional<Str> answer;  // the text typed, or the answer's name ("yes", "cancel" ...)
};

// The picture of a command bar face (or of its mask), as FacePicture makes it.
class ScriptedPicture : public basic::Dispatch {
public:
    ScriptedPicture(long faceId, bool mask) : faceId_(faceId), mask_(mask) {}
    long faceId() const { return faceId_; }
    bool isMask() const { return mask_; }

    Str TypeName() const override { return u"Picture"; }
    // "FaceId" and "IsMask" read back what the picture shows; other members raise 438.
    basic::Variant Get(const Str& member, const basic::Args& args = {}) override;
    void Put(const Str& member, const basic::Variant& value, const basic::Args& args = {}) override;
    basic::Variant Call(const Str& member, const basic::Args& args = {}) override;

private:
    long faceId_;
    bool mask_;
};

class ScriptedPlatform : public Platform {
public:
    ScriptedPlatform();

    // One answer for the next box: "ok", "cancel", "yes", "no", "abort", "retry", "ignore", or
    // the text typed into an input box. ("cancel" answers an input box with Cancel.)
    void queueAnswer(const Str& answer);
    size_t pendingAnswers() const { return answers_.size(); }
    const std::vector<ShownBox>& shownBoxes() const { return shown_; }
    const std::vector<Str>& sentKeys() const { return keys_; }

    // Registry values under HKEY_CURRENT_USER, for tests ("key" + "\\" + "name").
    void setRegistryValue(const Str& key, const Str& name, const Str& value);
    void setAddinFolder(const Str& folder) { addinFolder_ = folder; }
    void setTempFolder(const Str& folder) { tempFolder_ = folder; }
    // Files that FileExists reports, in the system's path form (compared ignoring case).
    void addFile(const Str& path);
    void removeFile(const Str& path);

    // Hooks to the editor being played: focus and pasting ("^v").
    std::function<long long()> focusGetter;
    std::function<void(long long)> focusSetter;
    std::function<void(const Str& text)> pasteSink;
    // The picture the clipboard holds for the editor's PasteFace: a face after ClipboardSetFace,
    // none once the clipboard is cleared or takes text.
    std::function<void(const basic::DispatchPtr& face)> faceSink;

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
    void DoEvents() override {}
    Str AddinFolder() override { return addinFolder_; }
    Str TempFolder() override { return tempFolder_; }
    bool FileExists(const Str& path) override;
    void ShellOpen(const Str& target) override { opened_.push_back(target); }
    void CloseWindowOfClass(const Str& className) override { closedWindowClasses_.push_back(className); }
    const std::vector<Str>& closedWindowClasses() const { return closedWindowClasses_; }
    std::optional<FileDialogChoice> ShowOpenFileDialog(const FileDialogRequest& request) override;
    std::optional<FileDialogChoice> ShowSaveFileDialog(const FileDialogRequest& request) override;
    std::optional<Str> BrowseForFolder(const Str& title, const Str& startFolder) override;
    // The requests of the file dialogs shown, in order.
    const std::vector<FileDialogRequest>& fileDialogs() const { return fileDialogs_; }
    basic::DispatchPtr FacePicture(long faceId, bool mask) override;
    void ClipboardSetFace(long faceId) override;
    // The face on the clipboard, 0 for none.
    long clipboardFace() const { return clipboardFace_; }

    // HTML Help calls are recorded; each opening command gives the next handle from 9001 on.
    struct HelpCall {
        long long window;
        Str file;
        HtmlHelpCommand command;
        long data;
    };
    long long HtmlHelp(long long window, const Str& file, HtmlHelpCommand command, long data) override;
    void CloseHelpWindow(long long window) override { closedHelpWindows_.push_back(window); }
    const std::vector<HelpCall>& helpCalls() const { return helpCalls_; }
    const std::vector<long long>& closedHelpWindows() const { return closedHelpWindows_; }

    bool hourglassOn() const { return hourglass_; }
    const std::vector<Str>& opened() const { return opened_; }

private:
    std::optional<FileDialogChoice> fileDialog(const FileDialogRequest& request, ShownBox::Kind kind);
    // The next answer for a dialog: none for Cancel, "ok" replaced by the proposed text.
    std::optional<Str> dialogAnswer(const Str& proposed);

    std::deque<Str> answers_;
    std::vector<FileDialogRequest> fileDialogs_;
    std::vector<ShownBox> shown_;
    std::vector<Str> keys_;
    std::optional<Str> clipboard_;
    std::map<Str, Str> registry_;
    std::map<Str, Str> settings_;
    std::vector<Str> files_;
    std::vector<Str> opened_;
    std::vector<Str> closedWindowClasses_;
    Str addinFolder_ = u"C:\\Quillet\\";
    Str tempFolder_ = u"C:\\Temp\\";
    long clipboardFace_ = 0;
    std::vector<HelpCall> helpCalls_;
    std::vector<long long> closedHelpWindows_;
    long long nextHelpWindow_ = 9001;
    long long focus_ = 0;
    bool hourglass_ = false;
};

}  // namespace quillet::platform
