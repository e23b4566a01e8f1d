#pragma once
// The MSFT type-library format (what MIDL, widl and ICreateTypeLib2 write), parsed into plain
// records. Every offset and count is checked against the file: a damaged file gives TypeLibError.

#include <cstdint>
#include <vector>

#include "typelib/byte_view.h"

namespace quillet::typelib {

struct MsftParam {
    Str Name;
    int Flags = 0;
    std::int32_t DataType = 0;
    basic::Variant DefaultValue;
};

struct MsftFunc {
    Str Name;
    long MemberId = 0;
    int FuncKind = 0, InvokeKind = 0, Flags = 0;
    int OptionalCount = 0;
    std::int32_t DataType = 0;
    std::vector<MsftParam> Params;
    Str HelpString;
    long HelpContext = 0;
};

struct MsftVar {
    Str Name;
    long MemberId = 0;
    int VarKind = 0, Flags = 0;
    std::int32_t DataType = 0;
    basic::Variant Value;  // of a constant
    Str HelpString;
    long HelpContext = 0;
};

struct MsftTypeInfo {
    int Kind = 0, Flags = 0;
    Str Name, HelpString, Guid;
    long HelpContext = 0;
    std::int32_t DataType1 = -1;  // alias target, or the base interface's reference
    std::vector<std::int32_t> ImplTypes;  // references of a coclass's interfaces
    std::vector<int> ImplFlags;
    std::vector<MsftFunc> Funcs;
    std::vector<MsftVar> Vars;
};

// One entry of the table of type descriptions: a pointer, a safe array or a fixed array to a
// further description, or a user-defined type's reference.
struct MsftTypeDesc {
    int Vt = 0;
    std::int32_t Inner = 0;  // for VT_PTR, VT_SAFEARRAY, VT_CARRAY: a data type as a member gives it
    std::uint32_t Reference = 0;  // for VT_USERDEFINED
};

struct MsftImportFile {
    std::int32_t Offset = 0;
    Str Guid, FileName;
    int Major = 0, Minor = 0;
};

struct MsftImportInfo {
    std::int32_t ImportFile = -1;  // index in ImportFiles, -1 when unknown
    bool ByGuid = false;
    Str Guid;
    long Index = 0;
};

struct MsftFile {
    Str Name, HelpString, HelpFile, Guid;
    long HelpContext = 0;
    int Major = 0, Minor = 0;
    std::vector<MsftTypeInfo> TypeInfos;
    std::vector<MsftTypeDesc> TypeDescs;
    std::vector<MsftImportFile> ImportFiles;
    std::vector<MsftImportInfo> ImportInfos;  // by reference / 12

    // The data type as a member gives it: a plain variant type (negative data types) or an entry of
    // the table.
    static bool IsPlain(std::int32_t dataType) { return dataType < 0; }
    const MsftTypeDesc& TypeDescOf(std::int32_t dataType) const;
    const MsftImportInfo& ImportOf(std::uint32_t reference) const;
};

bool LooksLikeMsft(ByteView bytes);
// Parses the bytes of an MSFT type library; throws TypeLibError.
MsftFile ParseMsft(ByteView bytes);

}  // namespace quillet::typelib
