#pragma once
// The add-in's COM classes and the add-in entries each one registers for its host.

#include <windows.h>

#include <vector>

#include "win32/guids.h"

namespace quillet::win32 {

// An add-in entry under HKEY_CURRENT_USER: the host lists the class under this key.
struct AddinEntry {
    const wchar_t* key;  // ends in the ProgID
    const wchar_t* friendlyName;
    const wchar_t* description;
    DWORD loadBehavior;
    bool commandLineSafe;  // written (as 0) only for the VB6 IDE
    bool sharedByBothBuilds;  // the 32-bit and the 64-bit DLL write the same key
};

struct ComClassInfo {
    const ClassId* id;
    const wchar_t* progId;
    std::vector<AddinEntry> addins;
};

// The classes of this DLL, with the add-in entries of its bitness.
const std::vector<ComClassInfo>& comClasses();

}  // namespace quillet::win32
