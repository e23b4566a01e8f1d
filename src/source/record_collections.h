#pragma once
// The typed collections of the builders and of the library scan: arguments, procedures and
// properties under construction, enums and types of a library.

#include <cstdint>
#include <string>

#include "source/declarations.h"

namespace quillet::source {

// Basic's Rnd: the same sequence the runtime gives before any Randomize (0.7055475, 0.533424 ...).
class BasicRnd {
public:
    float next() {
        state_ = (state_ * 0x43FD43FDu + 0xC39EC3u) & 0xFFFFFFu;
        return static_cast<float>(state_) / 16777216.0f;
    }

private:
    std::uint32_t state_ = 0x50000u;
};

class colArguments : public RecordCollection<clsArgument> {
public:
    // A new member under sKey (its Name when sKey is empty), which is also its ID; a key that is
    // taken raises 457.
    clsArgumentPtr Add(const Str& Name, const Str& ValueType, bool IsOptional, const Str& DefaultValue, bool IsArray,
                       bool IsParamArray, long Number, bool IsByVal, const Str& sKey = {});
};

class colEnums : public RecordCollection<clsEnum> {
public:
    Str LibName;
};

class colTypes : public RecordCollection<clsType> {
public:
    Str LibName;
};

// Members filed under their Name followed by a whole random number (Rnd * 2^31), written to the
// member's key field, so that two members of one name can live side by side; removal goes by
// that key.
template <class T, Str T::*KeyField>
class RandomKeyedCollection : public RecordCollection<T> {
public:
    void Add(const std::shared_ptr<T>& member) {
        std::string digits = std::to_string(static_cast<long long>(static_cast<double>(rnd_.next()) * 2147483648.0));
        member.get()->*KeyField = member->Name + Str(digits.begin(), digits.end());
        RecordCollection<T>::Add(member, member.get()->*KeyField);
    }

private:
    BasicRnd rnd_;
};

// colProcedures and colProperties: the procedure and property models of the generators give
// their record and its key field, e.g. `using colProcedures = RandomKeyedCollection<clsProcedure, &clsProcedure::ID>;`.

}  // namespace quillet::source
