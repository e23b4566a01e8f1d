// Whole-file reading and writing.

#include "settings/cls_file.h"

#include "basic/strings.h"
#include "settings/ansi_text.h"

namespace quillet::settings {

namespace {

// The Basic error of a file layer failure.
long basicError(int fileError) {
    switch (fileError) {
    case fserr::FileNotFound: return basic::err::FileNotFound;
    case fserr::PathNotFound: return basic::err::PathNotFound;
    default: return basic::err::PathFileAccess;
    }
}

Str nameWithExtension(const Str& fullName) {
    long slash = basic::InStrRev(fullName, u"\\");
    return basic::Mid(fullName, slash + 1);
}

}  // namespace

Str clsFile::Path() const {
    long slash = basic::InStrRev(fullName_, u"\\");
    return slash > 0 ? basic::Left(fullName_, slash - 1) : Str{};
}

Str clsFile::NameWithExtension() const { return nameWithExtension(fullName_); }

Str clsFile::Name() const {
    Str name = NameWithExtension();
    long point = basic::InStrRev(name, u".");
    return point > 0 ? basic::Left(name, point - 1) : name;
}

Str clsFile::Extension() const {
    Str name = NameWithExtension();
    long point = basic::InStrRev(name, u".");
    return point > 0 ? basic::Mid(name, point + 1) : Str{};
}

void clsFile::fail(long number) {
    error_ = number;
    if (!silent_)
        settings_.Platform().MsgBox(basic::VbError::standardDescription(number) + u"\r\n" + fullName_,
                                    platform::mb::vbExclamation, Str{});
}

Str clsFile::Contents() {
    error_ = 0;
    std::string bytes;
    if (int e = settings_.Files.ReadAll(fullName_, bytes)) {
        fail(basicError(e));
        return {};
    }
    return fromAnsi(bytes);
}

void clsFile::Contents(const Str& text) {
    error_ = 0;
    if (int e = settings_.Files.WriteAll(fullName_, toAnsi(text))) fail(basicError(e));
}

bool clsFile::Delete() {
    error_ = 0;
    if (int e = settings_.Files.DeleteFile(fullName_)) fail(basicError(e));
    return error_ == 0;
}

}  // namespace quillet::settings
