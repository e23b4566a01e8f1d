#pragma once
// The common file dialogs to open and to save a file (ComDlg), over the platform's dialogs. Set
// the members, call ShowOpen or ShowSave, and read the choice back from the same members.
//
// Directory is the folder the dialog opens in, and after a choice the folder of the file chosen.
// FileName is the name proposed, and after a choice the full path of the (first) file chosen.

#include <string>
#include <vector>

#include "platform/platform.h"

namespace quillet::support {

using Str = std::u16string;

class ComDlg {
public:
    explicit ComDlg(platform::Platform& platform) : platform_(platform) {}

    bool AllowMultiSelect = false;
    Str DialogTitle;
    // Descriptions and patterns in turn, separated by "|": "Basic Files (*.bas)|*.bas|All Files|*.*".
    Str Filter;
    // The filter shown first (1-based), and the one in use after a choice.
    long FilterIndex = 1;
    // Leave the process's current folder as it was (OFN_NOCHANGEDIR).
    bool RestoreCurDir = true;
    // Open: the file and its folder must exist; save: ask before replacing a file.
    bool ExistFlags = true;
    // The read-only check box of the open dialog.
    bool CheckBoxVisible = false;
    bool CheckBoxSelected = false;
    Str FileName;
    Str Directory;

    // Every file chosen, full paths and names with extension; empty before a choice.
    const std::vector<Str>& FileNames() const { return fileNames_; }
    std::vector<Str> FileTitles() const;
    // The name with extension of the file chosen.
    Str FileTitle() const;
    // The text behind the last point of the file chosen's name; empty without a point.
    Str Extension() const;

    // True on a choice; Cancel leaves every member as it was.
    bool ShowOpen();
    bool ShowSave();

    // The filter text as pairs of description and patterns; a description with no pattern
    // behind it serves as its own pattern.
    static std::vector<std::pair<Str, Str>> ParseFilter(const Str& filter);

private:
    bool show(bool save);
    platform::FileDialogRequest request(bool save) const;

    platform::Platform& platform_;
    std::vector<Str> fileNames_;
};

}  // namespace quillet::support
