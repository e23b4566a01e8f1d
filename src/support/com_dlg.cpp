// The common file dialogs.

#include "support/com_dlg.h"

#include "basic/strings.h"

namespace quillet::support {

namespace {

// OFN_ values of the Windows common dialog.
constexpr long kReadOnly = 0x1;
constexpr long kOverwritePrompt = 0x2;
constexpr long kHideReadOnly = 0x4;
constexpr long kNoChangeDir = 0x8;
constexpr long kPathMustExist = 0x800;
constexpr long kFileMustExist = 0x1000;

Str nameOf(const Str& path) { return basic::Mid(path, basic::InStrRev(path, u"\\") + 1); }

Str folderOf(const Str& path) {
    long slash = basic::InStrRev(path, u"\\");
    return slash > 0 ? basic::Left(path, slash - 1) : Str{};
}

}  // namespace

std::vector<std::pair<Str, Str>> ComDlg::ParseFilter(const Str& filter) {
    std::vector<std::pair<Str, Str>> pairs;
    if (filter.empty()) return pairs;
    auto parts = basic::Split(filter, u"|");
    for (size_t i = 0; i < parts.size(); i += 2) {
        Str description = parts[i];
        Str patterns = i + 1 < parts.size() ? parts[i + 1] : description;
        if (description.empty() && patterns.empty()) continue;
        pairs.emplace_back(description, patterns);
    }
    return pairs;
}

std::vector<Str> ComDlg::FileTitles() const {
    std::vector<Str> titles;
    for (const Str& path : fileNames_) titles.push_back(nameOf(path));
    return titles;
}

Str ComDlg::FileTitle() const { return fileNames_.empty() ? Str{} : nameOf(fileNames_.front()); }

Str ComDlg::Extension() const {
    Str title = FileTitle();
    long point = basic::InStrRev(title, u".");
    return point > 0 ? basic::Mid(title, point + 1) : Str{};
}

platform::FileDialogRequest ComDlg::request(bool save) const {
    platform::FileDialogRequest r;
    r.title = DialogTitle;
    r.filters = ParseFilter(Filter);
    r.filterIndex = FilterIndex;
    r.initialFolder = Directory;
    r.fileName = FileName;
    r.allowMultiSelect = AllowMultiSelect && !save;
    r.checkBoxVisible = CheckBoxVisible && !save;
    r.checkBoxSelected = CheckBoxSelected;
    if (RestoreCurDir) r.flags |= kNoChangeDir;
    if (ExistFlags) r.flags |= save ? kOverwritePrompt : kPathMustExist | kFileMustExist;
    if (!r.checkBoxVisible) r.flags |= kHideReadOnly;
    if (r.checkBoxVisible && CheckBoxSelected) r.flags |= kReadOnly;
    return r;
}

bool ComDlg::show(bool save) {
    auto r = request(save);
    auto choice = save ? platform_.ShowSaveFileDialog(r) : platform_.ShowOpenFileDialog(r);
    if (!choice || choice->paths.empty()) return false;
    fileNames_ = choice->paths;
    FileName = fileNames_.front();
    Directory = folderOf(FileName);
    FilterIndex = choice->filterIndex;
    if (r.checkBoxVisible) CheckBoxSelected = choice->checkBoxSelected;
    return true;
}

bool ComDlg::ShowOpen() { return show(false); }
bool ComDlg::ShowSave() { return show(true); }

}  // namespace quillet::support
