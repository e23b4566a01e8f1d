#pragma once
// Puts a text on the clipboard for the code-insert commands (modClipboard).

#include <string>

#include "platform/platform.h"

namespace quillet::support {

void ClipboardSetText(platform::Platform& platform, const std::u16string& text);

}  // namespace quillet::support
