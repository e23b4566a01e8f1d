// The file dialogs and the folder browser of the Windows platform, owned by the window the
// add-in's boxes belong to.

#include "platform/win/file_dialogs.h"
#include "platform/win/win_platform.h"

namespace quillet::platform::win {

std::optional<FileDialogChoice> WinPlatform::ShowOpenFileDialog(const FileDialogRequest& request) {
    return showFileDialog(ownerWindow(), request, false);
}

std::optional<FileDialogChoice> WinPlatform::ShowSaveFileDialog(const FileDialogRequest& request) {
    return showFileDialog(ownerWindow(), request, true);
}

std::optional<Str> WinPlatform::BrowseForFolder(const Str& title, const Str& startFolder) {
    return browseForFolder(ownerWindow(), title, startFolder);
}

}  // namespace quillet::platform::win
