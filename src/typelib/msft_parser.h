#pragma once
// The inner steps of the MSFT parser: the segments of the file and reads of names, strings,
// GUIDs and values from them.

#include <array>

#include "typelib/msft_file.h"

namespace quillet::typelib::msft {

enum Segment {
    kTypeInfoTab, kImpInfo, kImpFiles, kRefTab, kLibTab, kGuidTab, kRes07, kNameTab, kStringTab, kTypeDescTab,
    kArrayDescriptions, kCustData, kCDGuids, kRes0E, kRes0F, kSegmentCount
};

struct Parser {
    ByteView file;
    std::array<ByteView, kSegmentCount> segments;

    Str Name(std::int32_t offset) const;
    Str String(std::int32_t offset) const;
    Str Guid(std::int32_t offset) const;
    basic::Variant Value(std::int32_t offset) const;

    void Members(MsftTypeInfo& info, std::int32_t memOffset, int funcCount, int varCount) const;
    void ImplTypes(MsftTypeInfo& info, std::int32_t offset, int count) const;
};

}  // namespace quillet::typelib::msft
