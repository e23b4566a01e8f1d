#pragma once
// BSTR and wide-text conversions. On Windows wchar_t is a UTF-16 unit, as char16_t is, so
// text crosses unchanged.

#include <windows.h>
#include <oleauto.h>

#include <string>
#include <utility>

#include "basic/variant.h"

namespace quillet::hosts::com {

using basic::Str;

inline std::wstring toWide(const Str& s) { return std::wstring(s.begin(), s.end()); }
inline Str fromWide(const wchar_t* s, size_t n) { return Str(reinterpret_cast<const char16_t*>(s), n); }
inline Str fromWide(const std::wstring& s) { return fromWide(s.data(), s.size()); }
// A BSTR's text, with embedded nulls; a null BSTR is "".
inline Str fromBstr(BSTR b) { return b ? fromWide(b, SysStringLen(b)) : Str(); }

// An owned BSTR.
class Bstr {
public:
    Bstr() = default;
    explicit Bstr(const Str& s)
        : b_(SysAllocStringLen(reinterpret_cast<const OLECHAR*>(s.data()), static_cast<UINT>(s.size()))) {}
    Bstr(const Bstr&) = delete;
    Bstr& operator=(const Bstr&) = delete;
    Bstr(Bstr&& other) noexcept : b_(std::exchange(other.b_, nullptr)) {}
    ~Bstr() { SysFreeString(b_); }

    BSTR get() const { return b_; }
    BSTR* put() {
        SysFreeString(std::exchange(b_, nullptr));
        return &b_;
    }
    BSTR detach() { return std::exchange(b_, nullptr); }
    Str str() const { return fromBstr(b_); }

private:
    BSTR b_ = nullptr;
};

}  // namespace quillet::hosts::com
