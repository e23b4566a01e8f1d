#pragma once
// The identities of the add-in's COM classes: fixed once, shared by the 32-bit and the 64-bit
// DLL. Each is written once, as text, and parsed at compile time.

#include <windows.h>
#include <guiddef.h>

namespace quillet::win32 {

// "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}" as a GUID.
consteval GUID parseGuid(const wchar_t (&s)[39]) {
    auto hex = [](wchar_t c) -> unsigned {
        if (c >= L'0' && c <= L'9') return c - L'0';
        if (c >= L'A' && c <= L'F') return c - L'A' + 10;
        if (c >= L'a' && c <= L'f') return c - L'a' + 10;
        throw "not a hexadecimal digit";
    };
    auto field = [&](int from, int digits) {
        unsigned long long v = 0;
        for (int i = 0; i < digits; ++i) v = v * 16 + hex(s[from + i]);
        return v;
    };
    if (s[0] != L'{' || s[9] != L'-' || s[14] != L'-' || s[19] != L'-' || s[24] != L'-' || s[37] != L'}') {
        throw "not a GUID";
    }
    GUID g{};
    g.Data1 = static_cast<unsigned long>(field(1, 8));
    g.Data2 = static_cast<unsigned short>(field(10, 4));
    g.Data3 = static_cast<unsigned short>(field(15, 4));
    g.Data4[0] = static_cast<unsigned char>(field(20, 2));
    g.Data4[1] = static_cast<unsigned char>(field(22, 2));
    for (int i = 0; i < 6; ++i) g.Data4[2 + i] = static_cast<unsigned char>(field(25 + 2 * i, 2));
    return g;
}

struct ClassId {
    const wchar_t* text;
    GUID guid;
};

#define QUILLET_CLASS_ID(name, text) inline constexpr ClassId name{text, parseGuid(text)}

QUILLET_CLASS_ID(kClsidConnect, L"{C5EEF408-FC43-466F-AB57-E9BA3967557A}");
QUILLET_CLASS_ID(kClsidExcelConnect, L"{4D14D7E1-3C12-45ED-87C1-43A809B6D825}");
QUILLET_CLASS_ID(kClsidWordConnect, L"{6BDCF190-9B4A-4E05-B53E-9DE2D6148462}");
QUILLET_CLASS_ID(kClsidAccessConnect, L"{611EE99F-D475-4622-8C3C-9239A0318450}");
QUILLET_CLASS_ID(kClsidDirectAccessDoc, L"{FE84BEEE-8A67-4D13-A06C-B2185F8C5BC9}");
QUILLET_CLASS_ID(kClsidCodeExplorerDoc, L"{208363D6-61E4-4D1F-9848-0986B18B01B0}");

// The add-in designer's extensibility interface (_IDTExtensibility2, dual).
QUILLET_CLASS_ID(kIidExtensibility2, L"{B65AD801-ABAF-11D0-BB8B-00A0C90F2744}");

#undef QUILLET_CLASS_ID

}  // namespace quillet::win32
