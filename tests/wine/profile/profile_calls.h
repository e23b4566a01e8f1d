#pragma once
// The sequences of profile calls that profile_compare runs through both implementations: each
// starts from the same file (or none) and goes through reads and writes of every kind.

#include <optional>
#include <string>
#include <vector>

namespace quillet::profile_compare {

enum class CallKind { SectionNames, Section, WriteSection, WriteString };

// One call. Texts are the 8-bit bytes the ANSI functions take. For WriteSection, `value` holds
// the lines, each followed by a NUL (none: the null text); for WriteString, `key` and `value`
// are the key and the value (none: the null pointer). `size` is the buffer of a read.
struct ProfileCall {
    CallKind kind;
    std::string section;
    std::optional<std::string> key;
    std::optional<std::string> value;
    long size = 512;
    // Where Wine's function is known to answer otherwise: why. A difference in such a call is
    // reported as known, not as a failure.
    const char* wineDiffers = nullptr;
};

struct CallSequence {
    std::string name;
    std::optional<std::string> start;  // the file's bytes before the first call; none: no file
    std::vector<ProfileCall> calls;
};

std::vector<CallSequence> profileCallSequences();

// "GetPrivateProfileSectionA(\"Main\", 512)" and the like, for the report.
std::string describe(const ProfileCall& call);

}  // namespace quillet::profile_compare
