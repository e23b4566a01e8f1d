#pragma once
// One type info of an MSFT library.

#include <set>

#include "typelib/msft_library.h"

namespace quillet::typelib {

class MsftTypeInfo_ : public TypeInfo {
public:
    MsftTypeInfo_(std::shared_ptr<MsftLibrary> library, long number)
        : library_(std::move(library)), number_(number), info_(library_->File().TypeInfos[number]) {}

    Str Name() const override { return info_.Name; }
    int TypeKind() const override { return info_.Kind; }
    int TypeFlags() const override { return info_.Flags; }
    long Number() const override { return number_; }
    Str HelpString() const override { return info_.HelpString; }
    long HelpContext() const override { return info_.HelpContext; }
    Str Guid() const override { return info_.Guid; }
    Str LibraryName() const override { return library_->Name(); }
    VarTypeInfo AliasTarget() override;
    std::vector<MemberInfo> Members() override;

private:
    // Own members after those inherited; `depth` bounds a chain of bases that loops.
    void collect(std::vector<MemberInfo>& out, int depth);
    MemberInfo functionOf(const MsftFunc& f);
    MemberInfo variableOf(const MsftVar& v);
    TypeInfoPtr defaultInterface();

    std::shared_ptr<MsftLibrary> library_;
    long number_;
    const MsftTypeInfo& info_;
};

}  // namespace quillet::typelib
