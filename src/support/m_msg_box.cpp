// The message box wrapper with its quiet mode.

#include "support/m_msg_box.h"

namespace quillet::support {

Str mMsgBox::AnswerName(int answer) {
    switch (answer) {
    case platform::mb::vbOK: return u"vbOK";
    case platform::mb::vbCancel: return u"vbCancel";
    case platform::mb::vbAbort: return u"vbAbort";
    case platform::mb::vbRetry: return u"vbRetry";
    case platform::mb::vbIgnore: return u"vbIgnore";
    case platform::mb::vbYes: return u"vbYes";
    case platform::mb::vbNo: return u"vbNo";
    default: return {};
    }
}

int mMsgBox::MsgBox(const Str& prompt, int buttons, const Str& title, const Str& source) {
    if (!Logger) return platform_.MsgBox(prompt, buttons, title);
    int answer = platform::defaultAnswer(buttons & (0x07 | 0x700));
    addMessage(prompt, AnswerName(answer), source);
    return answer;
}

void mMsgBox::addMessage(const Str& prompt, const Str& answer, const Str& source) {
    if (Logger) Logger(prompt + u" => " + answer + u", source = " + source);
}

}  // namespace quillet::support
