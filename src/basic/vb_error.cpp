#include "basic/vb_error.h"

#include "basic/unicode.h"

namespace quillet::basic {

VbError::VbError(long number, Str description, Str source)
    : number_(number), description_(std::move(description)), source_(std::move(source)) {
    what_ = std::to_string(number_) + ": " + toUtf8(description_);
}

VbError VbError::standard(long number, Str source) {
    return VbError(number, standardDescription(number), std::move(source));
}

Str VbError::standardDescription(long number) {
    switch (number) {
    case err::InvalidCall: return u"Invalid procedure call or argument";
    case err::Overflow: return u"Overflow";
    case err::OutOfMemory: return u"Out of memory";
    case err::SubscriptOutOfRange: return u"Subscript out of range";
    case err::TypeMismatch: return u"Type mismatch";
    case err::SubNotDefined: return u"Sub or Function not defined";
    case err::FileNotFound: return u"File not found";
    case err::FileAlreadyOpen: return u"File already open";
    case err::FileExists: return u"File already exists";
    case err::PathFileAccess: return u"Path/File access error";
    case err::PathNotFound: return u"Path not found";
    case err::ObjectNotSet: return u"Object variable or With block variable not set";
    case err::InvalidPattern: return u"Invalid pattern string";
    case err::ObjectRequired: return u"Object required";
    case err::NotSupported: return u"Object doesn't support this property or method";
    case err::KeyTaken: return u"This key is already associated with an element of this collection";
    case err::Automation: return u"Automation error";
    default: return u"Application-defined or object-defined error";
    }
}

}  // namespace quillet::basic
