// libFuzzer target for the Basic runtime's Like operator, IsNumeric and the Variant conversions
// that read numbers. Any input must end in a result or a VbError, never a crash.
//
// Not part of the default build. To build and run it with clang, from the repository's root:
//   clang++ -std=c++20 -g -O1 -fsanitize=fuzzer,address,undefined -I src tests/fuzz/basic_fuzz.cpp src/basic/*.cpp -o basic_fuzz
//   ./basic_fuzz -max_total_time=60
// The input's first byte picks the compare mode; the rest, read as UTF-16 units (two bytes each),
// is split at the first U+0000 into the text and the pattern.

#include <cstddef>
#include <cstdint>

#include "basic/strings.h"
#include "basic/variant.h"

using namespace quillet::basic;

namespace {

Str unitsOf(const uint8_t* data, size_t size) {
    Str out;
    for (size_t i = 0; i + 1 < size; i += 2) out += static_cast<char16_t>(data[i] | (data[i + 1] << 8));
    return out;
}

template <class Call>
void tolerateVbError(Call call) {
    try {
        call();
    } catch (const VbError&) {
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    Compare compare = (data[0] & 1) ? Compare::Text : Compare::Binary;
    Str units = unitsOf(data + 1, size - 1);
    size_t split = units.find(u'\0');
    Str text = split == Str::npos ? units : units.substr(0, split);
    Str pattern = split == Str::npos ? Str() : units.substr(split + 1);

    tolerateVbError([&] { Like(text, pattern, compare); });
    tolerateVbError([&] { Like(pattern, text, compare); });
    bool numeric = IsNumeric(text);
    tolerateVbError([&] {
        double value = CDbl(Variant(text));
        if (!numeric) __builtin_trap();  // CDbl must refuse what IsNumeric refuses
        (void)value;
    });
    tolerateVbError([&] { CLng(Variant(text)); });
    tolerateVbError([&] { CBool(Variant(text)); });
    return 0;
}
