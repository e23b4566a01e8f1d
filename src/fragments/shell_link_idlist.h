#pragma once
// The target ID list of a shell link: the shell items from "My Computer" or a network share down
// to the target file.

#include <string>

#include "fragments/shell_link_bytes.h"

namespace quillet::fragments::lnk {

// The path the items spell ("C:\dir\file.bas", "\\server\share\file.bas"); empty when an item is
// of a kind that names no part of a file path (a control panel, a search). items holds the list
// without its size; a damaged item raises ShellLinkError.
Str ReadIdListPath(ByteReader items);

// Appends the ID list (size, items, terminator) of a drive path ("C:\dir\file.bas"); false, and
// nothing appended, when the path is not a drive path or a name has no ANSI bytes.
bool WriteIdList(std::string& out, const Str& drivePath);

}  // namespace quillet::fragments::lnk
