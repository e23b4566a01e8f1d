// Names, strings, GUIDs and values of an MSFT file, and the member records of a type info.

#include <cstdio>
#include <cstring>

#include "settings/ansi_text.h"
#include "typelib/msft_parser.h"

namespace quillet::typelib::msft {

namespace {

constexpr std::int64_t kFuncFixedSize = 24;  // Info .. nrargs: what every function record holds
constexpr std::int64_t kVarFixedSize = 20;
constexpr int kFuncHasDefaults = 0x1000;

}  // namespace

Str Parser::Name(std::int32_t offset) const {
    if (offset < 0) return {};
    const ByteView& names = segments[kNameTab];
    std::int64_t length = names.i32(static_cast<std::int64_t>(offset) + 8, "name") & 0xFF;
    return settings::fromAnsi(names.bytes(static_cast<std::int64_t>(offset) + 12, length, "name"));
}

Str Parser::String(std::int32_t offset) const {
    if (offset < 0) return {};
    const ByteView& strings = segments[kStringTab];
    std::int64_t length = strings.u16(offset, "string");
    return settings::fromAnsi(strings.bytes(static_cast<std::int64_t>(offset) + 2, length, "string"));
}

Str Parser::Guid(std::int32_t offset) const {
    if (offset < 0) return {};
    const ByteView& guids = segments[kGuidTab];
    guids.require(offset, 16, "GUID");
    char text[40];
    std::snprintf(text, sizeof text, "{%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}", guids.u32(offset, "GUID"),
                  guids.u16(offset + 4, "GUID"), guids.u16(offset + 6, "GUID"), guids.u8(offset + 8, "GUID"),
                  guids.u8(offset + 9, "GUID"), guids.u8(offset + 10, "GUID"), guids.u8(offset + 11, "GUID"),
                  guids.u8(offset + 12, "GUID"), guids.u8(offset + 13, "GUID"), guids.u8(offset + 14, "GUID"),
                  guids.u8(offset + 15, "GUID"));
    return Str(text, text + std::strlen(text));
}

basic::Variant Parser::Value(std::int32_t offset) const {
    if (offset < 0) {
        // Small values stand in the offset itself: the type in bits 26 to 30, the value below.
        int vt = (offset & 0x7C000000) >> 26;
        long long value = offset & 0x03FFFFFF;
        if (vt == VT_BOOL) return value != 0;
        if (vt == VT_EMPTY || vt == VT_NULL) return basic::Empty{};
        if (vt == VT_I2) return static_cast<long long>(static_cast<std::int16_t>(value));
        if (vt == VT_R4) return static_cast<double>(value);
        return value;
    }
    const ByteView& data = segments[kCustData];
    int vt = data.u16(offset, "value");
    std::int64_t at = static_cast<std::int64_t>(offset) + 2;
    switch (vt) {
        case VT_EMPTY: case VT_NULL: return basic::Empty{};
        case VT_BOOL: return data.i16(at, "value") != 0;
        case VT_I1: return static_cast<long long>(static_cast<std::int8_t>(data.u8(at, "value")));
        case VT_UI1: return static_cast<long long>(data.u8(at, "value"));
        case VT_I2: return static_cast<long long>(data.i16(at, "value"));
        case VT_UI2: return static_cast<long long>(data.u16(at, "value"));
        case VT_I4: case VT_INT: case VT_ERROR: case VT_HRESULT: return static_cast<long long>(data.i32(at, "value"));
        case VT_UI4: case VT_UINT: return static_cast<long long>(data.u32(at, "value"));
        case VT_I8: return static_cast<long long>(data.u64(at, "value"));
        case VT_UI8: return static_cast<long long>(data.u64(at, "value"));
        case VT_R4: {
            std::uint32_t bits = data.u32(at, "value");
            float f;
            std::memcpy(&f, &bits, sizeof f);
            return static_cast<double>(f);
        }
        case VT_R8: case VT_DATE: {
            std::uint64_t bits = data.u64(at, "value");
            double d;
            std::memcpy(&d, &bits, sizeof d);
            return d;
        }
        case VT_CY: return static_cast<double>(static_cast<long long>(data.u64(at, "value"))) / 10000.0;
        case VT_BSTR: {
            std::int32_t length = data.i32(at, "value");
            if (length < 0) return Str();
            return settings::fromAnsi(data.bytes(at + 4, length, "string value"));
        }
        default: return basic::Empty{};
    }
}

void Parser::ImplTypes(MsftTypeInfo& info, std::int32_t offset, int count) const {
    const ByteView& refs = segments[kRefTab];
    for (int i = 0; i < count && offset >= 0; ++i) {
        info.ImplTypes.push_back(refs.i32(offset, "implemented interface"));
        info.ImplFlags.push_back(refs.i32(static_cast<std::int64_t>(offset) + 4, "implemented interface"));
        offset = refs.i32(static_cast<std::int64_t>(offset) + 12, "implemented interface");
    }
}

// The member block: a length, the records, then per member its id, its name's offset and its
// record's offset (functions first, then variables).
void Parser::Members(MsftTypeInfo& info, std::int32_t memOffset, int funcCount, int varCount) const {
    std::int64_t infoLength = file.i32(memOffset, "member block");
    if (infoLength < 0) throw TypeLibError("damaged type library: negative member block");
    std::int64_t records = static_cast<std::int64_t>(memOffset) + 4;
    std::int64_t tables = records + infoLength;
    std::int64_t members = funcCount + varCount;
    file.require(records, infoLength + members * 12, "member block");
    auto idAt = [&](std::int64_t i) { return file.i32(tables + i * 4, "member id"); };
    auto nameAt = [&](std::int64_t i) { return file.i32(tables + (members + i) * 4, "member name"); };
    auto recordAt = [&](std::int64_t i) { return file.i32(tables + (2 * members + i) * 4, "member record"); };
    info.Funcs.reserve(static_cast<std::size_t>(funcCount));
    for (int i = 0; i < funcCount; ++i) {
        std::int64_t at = records + recordAt(i);
        std::int64_t length = file.i32(at, "function record") & 0xFFFF;
        if (at < records || length < kFuncFixedSize || at + length > tables)
            throw TypeLibError("damaged type library: a function record lies outside its block");
        MsftFunc f;
        f.MemberId = idAt(i);
        std::int32_t nameOffset = nameAt(i);
        // The second half of a property pair may leave its name out.
        if (nameOffset == -1 && !info.Funcs.empty()) f.Name = info.Funcs.back().Name;
        else f.Name = Name(nameOffset);
        f.DataType = file.i32(at + 4, "function record");
        f.Flags = file.i32(at + 8, "function record") & 0xFFFF;
        std::int32_t bits = file.i32(at + 16, "function record");
        f.FuncKind = bits & 7;
        f.InvokeKind = (bits >> 3) & 0xF;
        std::int64_t paramCount = file.u16(at + 20, "function record");
        f.OptionalCount = file.i16(at + 22, "function record");
        bool defaults = (bits & kFuncHasDefaults) != 0;
        std::int64_t optional = length - paramCount * 12 - (defaults ? paramCount * 4 : 0);
        if (optional < kFuncFixedSize) throw TypeLibError("damaged type library: too many parameters for the record");
        if (optional > 24) f.HelpContext = file.i32(at + 24, "function record");
        if (optional > 28) f.HelpString = String(file.i32(at + 28, "function record"));
        std::int64_t paramInfo = at + length - paramCount * 12;
        std::int64_t defaultValues = paramInfo - paramCount * 4;
        f.Params.reserve(static_cast<std::size_t>(paramCount));
        for (std::int64_t j = 0; j < paramCount; ++j) {
            MsftParam param;
            param.DataType = file.i32(paramInfo + j * 12, "parameter");
            param.Name = Name(file.i32(paramInfo + j * 12 + 4, "parameter"));
            param.Flags = file.i32(paramInfo + j * 12 + 8, "parameter") & 0xFFFF;
            if (defaults && (param.Flags & PARAMFLAG_FHASDEFAULT))
                param.DefaultValue = Value(file.i32(defaultValues + j * 4, "default value"));
            f.Params.push_back(std::move(param));
        }
        info.Funcs.push_back(std::move(f));
    }
    info.Vars.reserve(static_cast<std::size_t>(varCount));
    for (int i = 0; i < varCount; ++i) {
        std::int64_t at = records + recordAt(funcCount + i);
        std::int64_t length = file.i32(at, "variable record") & 0xFF;
        if (at < records || length < kVarFixedSize || at + length > tables)
            throw TypeLibError("damaged type library: a variable record lies outside its block");
        MsftVar v;
        v.MemberId = idAt(funcCount + i);
        v.Name = Name(nameAt(funcCount + i));
        v.DataType = file.i32(at + 4, "variable record");
        v.Flags = file.i32(at + 8, "variable record") & 0xFFFF;
        v.VarKind = file.i16(at + 12, "variable record");
        if (v.VarKind == 2) v.Value = Value(file.i32(at + 16, "variable record"));
        if (length > 20) v.HelpContext = file.i32(at + 20, "variable record");
        if (length > 24) v.HelpString = String(file.i32(at + 24, "variable record"));
        info.Vars.push_back(std::move(v));
    }
}

}  // namespace quillet::typelib::msft
