#pragma once
// Choosing a folder (modFolderChoose), over the platform's folder browser.

#include <string>

#include "platform/platform.h"

namespace quillet::support {

// The folder chosen, opened at startFolder; an empty text for Cancel. The text is cut at its
// first NUL, as the browser's buffer is.
std::u16string BrowseForFolder(platform::Platform& platform, const std::u16string& title,
                               const std::u16string& startFolder);

}  // namespace quillet::support
