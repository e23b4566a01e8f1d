// The common file dialogs and the folder browser.

#include "platform/win/file_dialogs.h"

#include <commdlg.h>
#include <shlobj.h>

#include <string>
#include <vector>

#include "hosts/com/bstr.h"

namespace quillet::platform::win {

namespace {

using hosts::com::fromWide;
using hosts::com::toWide;

// Room for the names of a multiple choice.
constexpr size_t kFileBufferSize = 32768;
// The folder browser's path buffer.
constexpr size_t kFolderBufferSize = 512;

// "description\0patterns\0 ... \0\0".
std::wstring filterText(const FileDialogRequest& request) {
    std::wstring text;
    for (const auto& [description, patterns] : request.filters) {
        text += toWide(description);
        text.push_back(L'\0');
        text += toWide(patterns);
        text.push_back(L'\0');
    }
    text.push_back(L'\0');
    return text;
}

// The NUL-separated strings of a buffer, up to the empty one.
std::vector<std::wstring> stringsOf(const std::vector<wchar_t>& buffer) {
    std::vector<std::wstring> strings;
    size_t at = 0;
    while (at < buffer.size() && buffer[at] != L'\0') {
        std::wstring s(buffer.data() + at);
        at += s.size() + 1;
        strings.push_back(std::move(s));
    }
    return strings;
}

// One string is the full path; several are the folder followed by the names in it.
std::vector<Str> chosenPaths(const std::vector<wchar_t>& buffer) {
    auto strings = stringsOf(buffer);
    std::vector<Str> paths;
    if (strings.size() == 1) {
        paths.push_back(fromWide(strings[0]));
        return paths;
    }
    for (size_t i = 1; i < strings.size(); ++i) {
        std::wstring folder = strings[0];
        if (!folder.empty() && folder.back() != L'\\') folder += L'\\';
        paths.push_back(fromWide(folder + strings[i]));
    }
    return paths;
}

int CALLBACK browseCallback(HWND window, UINT message, LPARAM, LPARAM data) {
    if (message == BFFM_INITIALIZED && data) SendMessageW(window, BFFM_SETSELECTIONW, TRUE, data);
    return 0;
}

}  // namespace

std::optional<FileDialogChoice> showFileDialog(HWND owner, const FileDialogRequest& request, bool save) {
    std::wstring filters = filterText(request);
    std::wstring title = toWide(request.title);
    std::wstring folder = toWide(request.initialFolder);
    std::vector<wchar_t> buffer(kFileBufferSize, L'\0');
    std::wstring proposed = toWide(request.fileName);
    proposed.copy(buffer.data(), std::min(proposed.size(), buffer.size() - 2));

    OPENFILENAMEW ofn{};
    ofn.lStructSize = sizeof(ofn);
    ofn.hwndOwner = owner;
    ofn.lpstrFilter = request.filters.empty() ? nullptr : filters.c_str();
    ofn.nFilterIndex = static_cast<DWORD>(request.filterIndex > 0 ? request.filterIndex : 1);
    ofn.lpstrFile = buffer.data();
    ofn.nMaxFile = static_cast<DWORD>(buffer.size());
    ofn.lpstrInitialDir = folder.empty() ? nullptr : folder.c_str();
    ofn.lpstrTitle = title.empty() ? nullptr : title.c_str();
    ofn.Flags = static_cast<DWORD>(request.flags) | OFN_EXPLORER;
    if (request.allowMultiSelect && !save) ofn.Flags |= OFN_ALLOWMULTISELECT;
    if (!request.checkBoxVisible) ofn.Flags |= OFN_HIDEREADONLY;

    BOOL chosen = save ? GetSaveFileNameW(&ofn) : GetOpenFileNameW(&ofn);
    if (!chosen) return std::nullopt;
    FileDialogChoice choice;
    choice.paths = chosenPaths(buffer);
    if (choice.paths.empty()) return std::nullopt;
    choice.filterIndex = static_cast<long>(ofn.nFilterIndex);
    choice.checkBoxSelected = (ofn.Flags & OFN_READONLY) != 0;
    return choice;
}

std::optional<Str> browseForFolder(HWND owner, const Str& title, const Str& startFolder) {
    std::wstring caption = toWide(title);
    std::wstring start = toWide(startFolder);
    BROWSEINFOW info{};
    info.hwndOwner = owner;
    info.lpszTitle = caption.c_str();
    info.ulFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE;
    info.lpfn = browseCallback;
    info.lParam = start.empty() ? 0 : reinterpret_cast<LPARAM>(start.c_str());
    PIDLIST_ABSOLUTE item = SHBrowseForFolderW(&info);
    if (!item) return std::nullopt;
    std::vector<wchar_t> path(kFolderBufferSize, L'\0');
    BOOL found = SHGetPathFromIDListEx(item, path.data(), static_cast<DWORD>(path.size()), GPFIDL_DEFAULT);
    CoTaskMemFree(item);
    if (!found) return std::nullopt;
    return fromWide(std::wstring(path.data()));
}

}  // namespace quillet::platform::win
