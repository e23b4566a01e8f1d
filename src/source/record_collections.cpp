#include "source/record_collections.h"

namespace quillet::source {

clsArgumentPtr colArguments::Add(const Str& Name, const Str& ValueType, bool IsOptional, const Str& DefaultValue,
                                 bool IsArray, bool IsParamArray, long Number, bool IsByVal, const Str& sKey) {
    auto member = std::make_shared<clsArgument>();
    member->Name = Name;
    member->ValueType = ValueType;
    member->IsOptional = IsOptional;
    member->DefaultValue = DefaultValue;
    member->IsArray = IsArray;
    member->IsParamArray = IsParamArray;
    member->Number = Number;
    member->IsByVal = IsByVal;
    member->ID = sKey.empty() ? Name : sKey;
    RecordCollection<clsArgument>::Add(member, member->ID);
    return member;
}

}  // namespace quillet::source
