// The clipboard: cleared, then given the text.

#include "support/mod_clipboard.h"

namespace quillet::support {

void ClipboardSetText(platform::Platform& platform, const std::u16string& text) {
    platform.ClipboardClear();
    platform.ClipboardSetText(text);
}

}  // namespace quillet::support
