#pragma once
// The common file dialogs and the folder browser of Windows, for the platform's
// ShowOpenFileDialog, ShowSaveFileDialog and BrowseForFolder. The wide functions are used, so
// that any path the system can name comes back whole.

#include <windows.h>

#include <optional>

#include "platform/platform.h"

namespace quillet::platform::win {

// GetOpenFileNameW or GetSaveFileNameW; none for Cancel or a failure of the dialog.
std::optional<FileDialogChoice> showFileDialog(HWND owner, const FileDialogRequest& request, bool save);

// SHBrowseForFolderW opened at startFolder; none for Cancel or a choice that is no file system folder.
std::optional<Str> browseForFolder(HWND owner, const Str& title, const Str& startFolder);

}  // namespace quillet::platform::win
