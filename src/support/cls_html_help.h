#pragma once
// Help linkage. clsHtmlHelp opens topics of the add-in's compiled help file through the platform's
// HTML Help and remembers the help windows it opened, each as "<context id>_<window handle>";
// clsHtmlHelpForForm ties a dialog's help button and F1 to it. basHTMLHelp keeps the one
// clsHtmlHelp of the add-in, made at its first use. Without the help file nothing is opened and
// nothing fails.

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "dialogs/form.h"
#include "platform/platform.h"

namespace quillet::core {
class Context;
}

namespace quillet::support {

using Str = std::u16string;

class clsHtmlHelp {
public:
    explicit clsHtmlHelp(platform::Platform& platform) : platform_(platform) {}

    void SetFile(const Str& file) { file_ = file; }
    const Str& File() const { return file_; }
    Str Title;

    // Each opens the help file at a place for a window and gives the help window, 0 when none
    // opened (no file, or no help on this machine).
    long long OpenTOC(long long window);
    long long OpenIndex(long long window);
    long long OpenSearch(long long window);
    // A topic by its path inside the file ("html/procedure_builder.htm").
    long long OpenTopic(long long window, const Str& topic);
    // A topic by its context id; an id below 1 opens nothing.
    long long OpenContext(long long window, long contextId);

    // Closes the remembered help windows, from the last to the first: those showing that window,
    // or all of them when no window (0) is given.
    void CloseHelpWindows(long long helpWindow = 0);
    // Closes every help window HTML Help has open.
    void CloseAll();

    // "<id>_<handle>" for each open help window, oldest first.
    const std::vector<Str>& OpenWindows() const { return openWindows_; }

private:
    long long open(long long window, const Str& file, platform::HtmlHelpCommand command, long data, long contextId);
    bool fileThere();
    void remember(long contextId, long long helpWindow);

    platform::Platform& platform_;
    Str file_;
    std::vector<Str> openWindows_;
};

// The add-in's clsHtmlHelp, made at the first call with "Quillet.chm" in the add-in's folder.
clsHtmlHelp& basHTMLHelp(core::Context& ctx);

class clsHtmlHelpForForm {
public:
    // Hooks the button's click and the form's F1 to the help of contextId; -1 takes the form's
    // HelpContextID.
    void init(dialogs::Form& form, dialogs::Control& button, long contextId, clsHtmlHelp& help);
    // Closes the help windows this form opened (as the form unloads; the hooks stay, since the
    // form may be shown again).
    void Terminate();
    // Opens a topic as the button does, after BeforeHelp.
    void OpenHelpEx(long contextId);
    // The button's and F1's open step with the id given at init.
    void CustomOpenHelp();

    // Raised before a topic opens: a form may change the id, or cancel.
    std::function<void(dialogs::Form& form, long& contextId, bool& cancel)> BeforeHelp;
    // What's-this help of the form (kept for forms that ask for it; the topic is the same).
    bool WhatsThisHelp = false;

private:
    dialogs::Form* mfrm_ = nullptr;
    dialogs::Control* mcmdHelp_ = nullptr;
    clsHtmlHelp* help_ = nullptr;
    long contextId_ = 0;
    std::vector<long long> opened_;
};

// The help topics of the dialogs.
namespace help_topics {
constexpr long ProcedureBuilder = 1100;
constexpr long ArgumentBuilder = 1110;
constexpr long VariableBuilder = 1200;
constexpr long ConstantBuilder = 1210;
constexpr long EnumTypeBuilder = 1220;
constexpr long SelectCaseBuilder = 1230;
}  // namespace help_topics

}  // namespace quillet::support
