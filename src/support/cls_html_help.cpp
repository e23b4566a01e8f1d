#include "support/cls_html_help.h"

#include "core/context.h"
#include "basic/strings.h"

namespace quillet::support {

using platform::HtmlHelpCommand;

namespace {

Str numberText(long long value) {
    std::string digits = std::to_string(value);
    return Str(digits.begin(), digits.end());
}

}  // namespace

bool clsHtmlHelp::fileThere() { return !file_.empty() && platform_.FileExists(file_); }

long long clsHtmlHelp::open(long long window, const Str& file, HtmlHelpCommand command, long data, long contextId) {
    if (!fileThere()) return 0;
    long long helpWindow = platform_.HtmlHelp(window, file, command, data);
    if (helpWindow) remember(contextId, helpWindow);
    return helpWindow;
}

long long clsHtmlHelp::OpenTOC(long long window) { return open(window, file_, HtmlHelpCommand::DisplayToc, 0, 0); }

long long clsHtmlHelp::OpenIndex(long long window) { return open(window, file_, HtmlHelpCommand::DisplayIndex, 0, 0); }

long long clsHtmlHelp::OpenSearch(long long window) { return open(window, file_, HtmlHelpCommand::DisplaySearch, 0, 0); }

long long clsHtmlHelp::OpenTopic(long long window, const Str& topic) {
    return open(window, file_ + u"::/" + topic, HtmlHelpCommand::DisplayTopic, 0, 0);
}

long long clsHtmlHelp::OpenContext(long long window, long contextId) {
    if (contextId < 1) return 0;
    return open(window, file_, HtmlHelpCommand::HelpContext, contextId, contextId);
}

void clsHtmlHelp::remember(long contextId, long long helpWindow) {
    if (contextId < 1) return;
    openWindows_.push_back(numberText(contextId) + u"_" + numberText(helpWindow));
}

void clsHtmlHelp::CloseHelpWindows(long long helpWindow) {
    for (size_t i = openWindows_.size(); i-- > 0;) {
        const Str& entry = openWindows_[i];
        long separator = basic::InStr(entry, u"_");
        long long handle = std::stoll(std::string(entry.begin() + separator, entry.end()));
        if (helpWindow != 0 && handle != helpWindow) continue;
        platform_.CloseHelpWindow(handle);
        openWindows_.erase(openWindows_.begin() + static_cast<long>(i));
    }
}

void clsHtmlHelp::CloseAll() {
    openWindows_.clear();
    platform_.HtmlHelp(0, {}, HtmlHelpCommand::CloseAll, 0);
}

clsHtmlHelp& basHTMLHelp(core::Context& ctx) {
    if (!ctx.HtmlHelpObject) {
        ctx.HtmlHelpObject = std::make_shared<clsHtmlHelp>(ctx.Platform());
        ctx.HtmlHelpObject->SetFile(ctx.Platform().AddinFolder() + u"Quillet.chm");
        ctx.HtmlHelpObject->Title = u"Quillet";
    }
    return *ctx.HtmlHelpObject;
}

void clsHtmlHelpForForm::init(dialogs::Form& form, dialogs::Control& button, long contextId, clsHtmlHelp& help) {
    mfrm_ = &form;
    mcmdHelp_ = &button;
    help_ = &help;
    contextId_ = contextId;
    button.ClickHandlers.push_back([this](dialogs::Control&) { CustomOpenHelp(); });
    form.OnHelpKey = [this] { CustomOpenHelp(); };
}

void clsHtmlHelpForForm::CustomOpenHelp() { OpenHelpEx(contextId_); }

void clsHtmlHelpForForm::OpenHelpEx(long contextId) {
    if (!mfrm_ || !help_) return;
    long id = contextId == -1 ? mfrm_->HelpContextID : contextId;
    bool cancel = false;
    if (BeforeHelp) BeforeHelp(*mfrm_, id, cancel);
    if (cancel) return;
    long long helpWindow = help_->OpenContext(mfrm_->hWnd, id);
    if (helpWindow) opened_.push_back(helpWindow);
}

void clsHtmlHelpForForm::Terminate() {
    if (help_)
        for (long long helpWindow : opened_) help_->CloseHelpWindows(helpWindow);
    opened_.clear();
}

}  // namespace quillet::support
