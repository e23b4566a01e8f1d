#include "hosts/com/com_error.h"

#include "hosts/com/bstr.h"

namespace quillet::hosts::com {

namespace {

using basic::Str;
using basic::VbError;

// The text Windows has for an HRESULT, without its trailing line break.
Str systemText(HRESULT hr) {
    wchar_t* buffer = nullptr;
    DWORD n = FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                             nullptr, static_cast<DWORD>(hr), 0, reinterpret_cast<wchar_t*>(&buffer), 0, nullptr);
    Str text = n ? fromWide(buffer, n) : Str();
    LocalFree(buffer);
    while (!text.empty() && (text.back() == u'\r' || text.back() == u'\n' || text.back() == u' ')) text.pop_back();
    return text;
}

// Basic's own numbers for the errors of late binding; 0 when there is none.
long basicNumberOf(HRESULT hr) {
    switch (hr) {
    case DISP_E_MEMBERNOTFOUND:
    case DISP_E_UNKNOWNNAME: return basic::err::NotSupported;
    case DISP_E_TYPEMISMATCH: return basic::err::TypeMismatch;
    case DISP_E_BADINDEX: return basic::err::SubscriptOutOfRange;
    case DISP_E_OVERFLOW: return basic::err::Overflow;
    case DISP_E_BADPARAMCOUNT:
    case DISP_E_PARAMNOTOPTIONAL:
    case DISP_E_PARAMNOTFOUND: return 450;  // Wrong number of arguments or invalid property assignment
    case E_OUTOFMEMORY: return basic::err::OutOfMemory;
    case E_INVALIDARG: return basic::err::InvalidCall;
    case E_POINTER: return basic::err::ObjectNotSet;
    default: break;
    }
    // Errors raised by Basic code travel as FACILITY_CONTROL with the number in the low word.
    if (HRESULT_FACILITY(hr) == FACILITY_CONTROL) return HRESULT_CODE(hr);
    return 0;
}

VbError fromException(EXCEPINFO& info, const Str& member) {
    if (info.pfnDeferredFillIn) info.pfnDeferredFillIn(&info);
    Str description = fromBstr(info.bstrDescription);
    Str source = fromBstr(info.bstrSource);
    SysFreeString(info.bstrDescription);
    SysFreeString(info.bstrSource);
    SysFreeString(info.bstrHelpFile);
    info.bstrDescription = info.bstrSource = info.bstrHelpFile = nullptr;
    if (source.empty()) source = member;
    long number = info.wCode;
    if (number == 0) {
        number = basicNumberOf(info.scode);
        if (number == 0) number = static_cast<long>(info.scode);
    }
    if (description.empty()) {
        description = number == static_cast<long>(info.scode) ? systemText(info.scode) : VbError::standardDescription(number);
    }
    return VbError(number, description, source);
}

}  // namespace

basic::VbError errorOf(HRESULT hr, EXCEPINFO* info, const Str& member) {
    if (hr == DISP_E_EXCEPTION && info) return fromException(*info, member);
    if (info) {
        SysFreeString(info->bstrDescription);
        SysFreeString(info->bstrSource);
        SysFreeString(info->bstrHelpFile);
    }
    if (long number = basicNumberOf(hr)) return VbError::standard(number, member);
    Str text = systemText(hr);
    if (text.empty()) text = u"Automation error";
    return VbError(static_cast<long>(hr), text, member);
}

void check(HRESULT hr, const Str& member) {
    if (FAILED(hr)) throw errorOf(hr, nullptr, member);
}

}  // namespace quillet::hosts::com
