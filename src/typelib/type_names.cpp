#include "typelib/typelib_reader.h"

namespace quillet::typelib {

namespace {

Str plainName(int vt) {
    switch (vt) {
        case VT_I2: case VT_UI2: return u"Integer";
        case VT_I4: case VT_UI4: case VT_INT: case VT_UINT: case VT_ERROR: return u"Long";
        case VT_R4: return u"Single";
        case VT_R8: return u"Double";
        case VT_CY: return u"Currency";
        case VT_DATE: return u"Date";
        case VT_BSTR: case VT_LPSTR: case VT_LPWSTR: return u"String";
        case VT_DISPATCH: return u"Object";
        case VT_BOOL: return u"Boolean";
        case VT_VARIANT: return u"Variant";
        case VT_UNKNOWN: return u"IUnknown";
        case VT_DECIMAL: return u"Decimal";
        case VT_I1: case VT_UI1: return u"Byte";
        case VT_I8: case VT_UI8: return u"LongLong";
        case VT_VOID: return u"Any";
        case VT_HRESULT: return u"HRESULT";
        default: return {};
    }
}

}  // namespace

Str TypeNameOf(const VarTypeInfo& type) {
    if (type.IsUserDefined()) return {};
    Str name = plainName(type.VarType & 0x0FFF);
    return type.IsArray() ? name + u"()" : name;
}

}  // namespace quillet::typelib
