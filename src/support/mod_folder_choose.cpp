// Choosing a folder.

#include "support/mod_folder_choose.h"

namespace quillet::support {

std::u16string BrowseForFolder(platform::Platform& platform, const std::u16string& title,
                               const std::u16string& startFolder) {
    auto chosen = platform.BrowseForFolder(title, startFolder);
    if (!chosen) return {};
    return chosen->substr(0, chosen->find(u'\0'));
}

}  // namespace quillet::support
