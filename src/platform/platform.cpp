#include "platform/platform.h"

#include <vector>

#include "basic/strings.h"
#include "basic/variant.h"

namespace quillet::platform {

namespace {

// The answers of each button set, in the order of its buttons.
std::vector<int> answersOf(int buttons) {
    switch (buttons & 0x0F) {
    case mb::vbOKCancel: return {mb::vbOK, mb::vbCancel};
    case mb::vbAbortRetryIgnore: return {mb::vbAbort, mb::vbRetry, mb::vbIgnore};
    case mb::vbYesNoCancel: return {mb::vbYes, mb::vbNo, mb::vbCancel};
    case mb::vbYesNo: return {mb::vbYes, mb::vbNo};
    case mb::vbRetryCancel: return {mb::vbRetry, mb::vbCancel};
    default: return {mb::vbOK};
    }
}

std::optional<long> positiveNumber(const std::optional<Str>& value) {
    if (!value || !basic::IsNumeric(*value)) return std::nullopt;
    try {
        long long n = basic::CLng(*value);
        if (n > 0 && n < 1000) return static_cast<long>(n);
    } catch (const basic::VbError&) {
    }
    return std::nullopt;
}

}  // namespace

std::optional<FileDialogChoice> Platform::ShowOpenFileDialog(const FileDialogRequest&) { return std::nullopt; }
std::optional<FileDialogChoice> Platform::ShowSaveFileDialog(const FileDialogRequest&) { return std::nullopt; }
std::optional<Str> Platform::BrowseForFolder(const Str&, const Str&) { return std::nullopt; }
long long Platform::HtmlHelp(long long, const Str&, HtmlHelpCommand, long) { return 0; }
void Platform::CloseHelpWindow(long long) {}

int defaultAnswer(int buttons) {
    auto answers = answersOf(buttons);
    size_t index = static_cast<size_t>((buttons >> 8) & 0x03);
    return index < answers.size() ? answers[index] : answers.front();
}

bool answerFits(int buttons, int answer) {
    for (int a : answersOf(buttons))
        if (a == answer) return true;
    return false;
}

long editorTabWidth(Platform& platform) {
    return positiveNumber(platform.RegistryValue(kEditorSettingsKey, u"TabWidth")).value_or(4);
}

std::optional<Str> editorFontFace(Platform& platform) {
    auto face = platform.RegistryValue(kEditorSettingsKey, u"FontFace");
    if (face && basic::InStr(*face, u"Courier New", basic::Compare::Text) > 0) return face;
    return std::nullopt;
}

std::optional<long> editorFontHeight(Platform& platform) {
    return positiveNumber(platform.RegistryValue(kEditorSettingsKey, u"FontHeight"));
}

}  // namespace quillet::platform
