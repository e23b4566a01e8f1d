#pragma once
// The run-time error of Basic: what the editor's objects raise and what the
// system's own routines raise (name checks, collections, file access).

#include <exception>
#include <string>

namespace quillet::basic {

using Str = std::u16string;

class VbError : public std::exception {
public:
    VbError(long number, Str description, Str source = {});

    // An error with Basic's standard text for its number ("Subscript out of range" for 9 ...).
    static VbError standard(long number, Str source = {});
    // Basic's standard text for an error number; "Application-defined or object-defined error" otherwise.
    static Str standardDescription(long number);

    long Number() const { return number_; }
    const Str& Description() const { return description_; }
    const Str& Source() const { return source_; }

    const char* what() const noexcept override { return what_.c_str(); }

private:
    long number_;
    Str description_;
    Str source_;
    std::string what_;
};

// Standard error numbers the system meets.
namespace err {
constexpr long InvalidCall = 5;            // Invalid procedure call or argument
constexpr long Overflow = 6;
constexpr long OutOfMemory = 7;
constexpr long SubscriptOutOfRange = 9;
constexpr long TypeMismatch = 13;
constexpr long SubNotDefined = 35;         // Sub or Function not defined
constexpr long FileNotFound = 53;
constexpr long FileAlreadyOpen = 55;
constexpr long FileExists = 58;
constexpr long PathFileAccess = 75;
constexpr long PathNotFound = 76;
constexpr long ObjectNotSet = 91;
constexpr long InvalidPattern = 93;       // Invalid pattern string
constexpr long ObjectRequired = 424;
constexpr long NotSupported = 438;         // Object doesn't support this property or method
constexpr long KeyTaken = 457;             // This key is already associated with an element of this collection
constexpr long Automation = 440;
constexpr long ApplicationDefined = 1004;
}  // namespace err

}  // namespace quillet::basic
