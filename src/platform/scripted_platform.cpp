#include "platform/scripted_platform.h"

#include "basic/strings.h"

namespace quillet::platform {

using basic::Compare;
using basic::LCase;

namespace {

struct NamedAnswer {
    const char16_t* name;
    int value;
};
constexpr NamedAnswer kAnswers[] = {
    {u"ok", mb::vbOK},         {u"cancel", mb::vbCancel}, {u"abort", mb::vbAbort}, {u"retry", mb::vbRetry},
    {u"ignore", mb::vbIgnore}, {u"yes", mb::vbYes},       {u"no", mb::vbNo},
};

std::optional<int> answerValue(const Str& name) {
    Str lower = LCase(basic::Trim(name));
    for (const auto& a : kAnswers)
        if (lower == a.name) return a.value;
    return std::nullopt;
}

Str answerName(int value) {
    for (const auto& a : kAnswers)
        if (a.value == value) return a.name;
    return u"?";
}

Str registryKey(const Str& key, const Str& name) { return LCase(key + u"\\" + name); }

}  // namespace

basic::Variant ScriptedPicture::Get(const Str& member, const basic::Args&) {
    if (basic::StrComp(member, u"FaceId", Compare::Text) == 0) return static_cast<long long>(faceId_);
    if (basic::StrComp(member, u"IsMask", Compare::Text) == 0) return mask_;
    throw basic::VbError::standard(basic::err::NotSupported);
}

void ScriptedPicture::Put(const Str&, const basic::Variant&, const basic::Args&) {
    throw basic::VbError::standard(basic::err::NotSupported);
}

basic::Variant ScriptedPicture::Call(const Str&, const basic::Args&) {
    throw basic::VbError::standard(basic::err::NotSupported);
}

ScriptedPlatform::ScriptedPlatform() = default;

void ScriptedPlatform::queueAnswer(const Str& answer) { answers_.push_back(answer); }

int ScriptedPlatform::MsgBox(const Str& prompt, int buttons, const Str& title) {
    int answer = defaultAnswer(buttons);
    if (!answers_.empty()) {
        auto given = answerValue(answers_.front());
        answers_.pop_front();
        if (given && answerFits(buttons, *given)) answer = *given;
    }
    shown_.push_back({ShownBox::Kind::Message, prompt, title, buttons, {}, answerName(answer)});
    return answer;
}

std::optional<Str> ScriptedPlatform::InputBox(const Str& prompt, const Str& title, const Str& defaultText) {
    std::optional<Str> typed;
    if (!answers_.empty()) {
        Str given = answers_.front();
        answers_.pop_front();
        auto named = answerValue(given);
        if (named == mb::vbOK)
            typed = defaultText;
        else if (named != mb::vbCancel)
            typed = given;
    }
    shown_.push_back({ShownBox::Kind::Input, prompt, title, 0, defaultText, typed});
    return typed;
}

std::optional<Str> ScriptedPlatform::dialogAnswer(const Str& proposed) {
    if (answers_.empty()) return std::nullopt;
    Str given = answers_.front();
    answers_.pop_front();
    auto named = answerValue(given);
    if (named == mb::vbOK) return proposed.empty() ? std::nullopt : std::optional<Str>(proposed);
    if (named || given.empty()) return std::nullopt;
    return given;
}

std::optional<FileDialogChoice> ScriptedPlatform::fileDialog(const FileDialogRequest& request, ShownBox::Kind kind) {
    fileDialogs_.push_back(request);
    Str proposed = request.fileName;
    if (!proposed.empty() && !request.initialFolder.empty() && basic::InStr(proposed, u"\\") == 0)
        proposed = (request.initialFolder.back() == u'\\' ? request.initialFolder : request.initialFolder + u"\\") + proposed;
    auto answer = dialogAnswer(proposed);
    shown_.push_back({kind, request.fileName, request.title, 0, request.initialFolder, answer});
    if (!answer) return std::nullopt;
    FileDialogChoice choice;
    choice.filterIndex = request.filterIndex;
    choice.checkBoxSelected = request.checkBoxSelected;
    for (const Str& path : basic::Split(*answer, u"|"))
        if (!path.empty()) choice.paths.push_back(path);
    if (!request.allowMultiSelect && choice.paths.size() > 1) choice.paths.resize(1);
    if (choice.paths.empty()) return std::nullopt;
    return choice;
}

std::optional<FileDialogChoice> ScriptedPlatform::ShowOpenFileDialog(const FileDialogRequest& request) {
    return fileDialog(request, ShownBox::Kind::OpenFile);
}

std::optional<FileDialogChoice> ScriptedPlatform::ShowSaveFileDialog(const FileDialogRequest& request) {
    return fileDialog(request, ShownBox::Kind::SaveFile);
}

std::optional<Str> ScriptedPlatform::BrowseForFolder(const Str& title, const Str& startFolder) {
    auto answer = dialogAnswer(startFolder);
    shown_.push_back({ShownBox::Kind::Folder, Str{}, title, 0, startFolder, answer});
    return answer;
}

void ScriptedPlatform::ClipboardClear() {
    clipboard_.reset();
    clipboardFace_ = 0;
    if (faceSink) faceSink(nullptr);
}

void ScriptedPlatform::ClipboardSetText(const Str& text) {
    clipboard_ = text;
    clipboardFace_ = 0;
    if (faceSink) faceSink(nullptr);
}

basic::DispatchPtr ScriptedPlatform::FacePicture(long faceId, bool mask) {
    if (!faceExists(faceId)) throw resourceNotFound(faceId);
    return std::make_shared<ScriptedPicture>(faceId, mask);
}

void ScriptedPlatform::ClipboardSetFace(long faceId) {
    auto picture = FacePicture(faceId, false);
    clipboard_.reset();
    clipboardFace_ = faceId;
    if (faceSink) faceSink(picture);
}
std::optional<Str> ScriptedPlatform::ClipboardGetText() { return clipboard_; }

void ScriptedPlatform::SendKeys(const Str& keys, bool /*wait*/) {
    keys_.push_back(keys);
    if (keys == u"^v" && clipboard_ && pasteSink) pasteSink(*clipboard_);
}

void ScriptedPlatform::setRegistryValue(const Str& key, const Str& name, const Str& value) {
    registry_[registryKey(key, name)] = value;
}

std::optional<Str> ScriptedPlatform::RegistryValue(const Str& key, const Str& name) {
    auto it = registry_.find(registryKey(key, name));
    if (it == registry_.end()) return std::nullopt;
    return it->second;
}

Str ScriptedPlatform::GetSetting(const Str& app, const Str& section, const Str& key, const Str& defaultValue) {
    auto it = settings_.find(LCase(app + u"\\" + section + u"\\" + key));
    return it == settings_.end() ? defaultValue : it->second;
}

void ScriptedPlatform::SaveSetting(const Str& app, const Str& section, const Str& key, const Str& value) {
    settings_[LCase(app + u"\\" + section + u"\\" + key)] = value;
}

long long ScriptedPlatform::GetFocus() { return focusGetter ? focusGetter() : focus_; }

void ScriptedPlatform::SetFocus(long long window) {
    if (focusSetter)
        focusSetter(window);
    else
        focus_ = window;
}

void ScriptedPlatform::Hourglass(bool on) { hourglass_ = on; }

void ScriptedPlatform::addFile(const Str& path) {
    if (!FileExists(path)) files_.push_back(path);
}

void ScriptedPlatform::removeFile(const Str& path) {
    std::erase_if(files_, [&](const Str& f) { return basic::StrComp(f, path, Compare::Text) == 0; });
}

bool ScriptedPlatform::FileExists(const Str& path) {
    for (const auto& f : files_)
        if (basic::StrComp(f, path, Compare::Text) == 0) return true;
    return false;
}

long long ScriptedPlatform::HtmlHelp(long long window, const Str& file, HtmlHelpCommand command, long data) {
    helpCalls_.push_back({window, file, command, data});
    return command == HtmlHelpCommand::CloseAll ? 0 : nextHelpWindow_++;
}

}  // namespace quillet::platform
