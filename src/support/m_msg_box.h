#pragma once
// The message box the code uses in place of the plain one (mMsgBox). With a logger set (quiet
// mode, for automated runs) nothing is shown: the default button of the box gives the answer,
// and the prompt, the answer's name and the source go to the logger.

#include <functional>
#include <string>

#include "platform/platform.h"

namespace quillet::support {

using Str = std::u16string;

class mMsgBox {
public:
    explicit mMsgBox(platform::Platform& platform) : platform_(platform) {}

    // Quiet mode: set a logger; clear it to show boxes again.
    std::function<void(const Str& line)> Logger;

    int MsgBox(const Str& prompt, int buttons = 0, const Str& title = {}, const Str& source = {});
    // "prompt => vbYes, source = source" to the logger.
    void addMessage(const Str& prompt, const Str& answer, const Str& source);

    // "vbOK", "vbCancel", "vbAbort", "vbRetry", "vbIgnore", "vbYes", "vbNo".
    static Str AnswerName(int answer);

private:
    platform::Platform& platform_;
};

}  // namespace quillet::support
