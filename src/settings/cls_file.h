#pragma once
// One file, read and written whole in one call (clsFile). The parts of its name come from
// FullName; Contents reads or replaces the whole file. Errors set Error (Basic's error number)
// and, unless Silent, show their text in a message box.

#include <string>

#include "settings/settings.h"

namespace quillet::settings {

class clsFile {
public:
    explicit clsFile(Settings& settings) : settings_(settings) {}
    clsFile(Settings& settings, Str fullName) : settings_(settings), fullName_(std::move(fullName)) {}

    void Silent(bool silent) { silent_ = silent; }
    long Error() const { return error_; }
    const Str& FullName() const { return fullName_; }
    void FullName(const Str& fullName) { fullName_ = fullName; }
    // The folder without its final "\".
    Str Path() const;
    Str NameWithExtension() const;
    // The name less the text behind its last point.
    Str Name() const;
    // The text behind the last point; empty without a point.
    Str Extension() const;
    // The whole file as text; empty with Error set when it cannot be read.
    Str Contents();
    // Replaces the file with the text, in one piece and with no added line end.
    void Contents(const Str& text);
    // True when the file was deleted without an error.
    bool Delete();

private:
    void fail(long number);

    Settings& settings_;
    Str fullName_;
    bool silent_ = false;
    long error_ = 0;
};

}  // namespace quillet::settings
