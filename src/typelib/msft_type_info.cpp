#include "typelib/msft_type_info.h"

namespace quillet::typelib {

namespace {

constexpr int kMaxInheritance = 32;
const Str kIUnknown = u"{00000000-0000-0000-C000-000000000046}";
const Str kIDispatch = u"{00020400-0000-0000-C000-000000000046}";

}  // namespace

VarTypeInfo MsftTypeInfo_::AliasTarget() {
    if (info_.Kind != TKIND_ALIAS) throw TypeLibError("the type is no alias");
    return library_->DecodeType(info_.DataType1);
}

namespace {

// What a function and a variable record have alike.
template <class Record>
MemberInfo memberOf(const Record& r) {
    MemberInfo m;
    m.Name = r.Name;
    m.MemberId = r.MemberId;
    m.HelpString = r.HelpString;
    m.HelpContext = r.HelpContext;
    m.Flags = r.Flags;
    return m;
}

}  // namespace

MemberInfo MsftTypeInfo_::functionOf(const MsftFunc& f) {
    MemberInfo m = memberOf(f);
    m.InvokeKind = f.InvokeKind;
    m.OptionalCount = f.OptionalCount;
    m.ReturnType = library_->DecodeType(f.DataType);
    for (const MsftParam& p : f.Params) {
        if (p.Flags & PARAMFLAG_FLCID) continue;
        VarTypeInfo type = library_->DecodeType(p.DataType);
        if (p.Flags & PARAMFLAG_FRETVAL) {
            // Automation's view: the [out, retval] parameter is what the function returns.
            if (type.PointerLevel > 0) --type.PointerLevel;
            m.ReturnType = type;
            continue;
        }
        m.Parameters.push_back({p.Name, p.Flags, p.DefaultValue, std::move(type)});
    }
    return m;
}

MemberInfo MsftTypeInfo_::variableOf(const MsftVar& v) {
    MemberInfo m = memberOf(v);
    m.ReturnType = library_->DecodeType(v.DataType);
    m.IsConstant = v.VarKind == 2;
    m.Value = v.Value;
    return m;
}

TypeInfoPtr MsftTypeInfo_::defaultInterface() {
    long pick = -1;
    for (std::size_t i = 0; i < info_.ImplTypes.size(); ++i) {
        bool source = (info_.ImplFlags[i] & 2) != 0;
        if (!source && (info_.ImplFlags[i] & 1)) {
            pick = static_cast<long>(i);
            break;
        }
        if (!source && pick < 0) pick = static_cast<long>(i);
    }
    if (pick < 0) return nullptr;
    return library_->Resolve(static_cast<std::uint32_t>(info_.ImplTypes[static_cast<std::size_t>(pick)]));
}

void MsftTypeInfo_::collect(std::vector<MemberInfo>& out, int depth) {
    if (depth > kMaxInheritance) throw TypeLibError("damaged type library: an interface inherits from itself");
    if ((info_.Kind == TKIND_INTERFACE || info_.Kind == TKIND_DISPATCH) && info_.DataType1 != -1) {
        auto reference = static_cast<std::uint32_t>(info_.DataType1);
        Str guid = library_->ReferenceGuid(reference);
        if (guid != kIUnknown && guid != kIDispatch) {
            TypeInfoPtr base;
            try {
                base = library_->Resolve(reference);
            } catch (const TypeLibError&) {
                // A base that cannot be read leaves the members it would give out.
            }
            auto* msftBase = dynamic_cast<MsftTypeInfo_*>(base.get());
            if (msftBase && base->Guid() != kIUnknown && base->Guid() != kIDispatch) msftBase->collect(out, depth + 1);
        }
    }
    for (const MsftFunc& f : info_.Funcs) out.push_back(functionOf(f));
    for (const MsftVar& v : info_.Vars) out.push_back(variableOf(v));
}

std::vector<MemberInfo> MsftTypeInfo_::Members() {
    std::vector<MemberInfo> out;
    if (info_.Kind == TKIND_COCLASS) {
        TypeInfoPtr first = defaultInterface();
        if (auto* msft = dynamic_cast<MsftTypeInfo_*>(first.get())) msft->collect(out, 1);
        return out;
    }
    if (info_.Kind != TKIND_ALIAS) collect(out, 0);
    return out;
}

}  // namespace quillet::typelib
