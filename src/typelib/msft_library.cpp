#include "typelib/msft_library.h"

#include "basic/unicode.h"
#include "typelib/msft_type_info.h"

namespace quillet::typelib {

namespace {

constexpr int kMaxTypeDepth = 32;
constexpr std::uint32_t kTypeInfoSize = 0x64;

int searchKindOf(int typeKind) {
    switch (typeKind) {
        case TKIND_ENUM: return kSearchConstants;
        case TKIND_MODULE: return kSearchDeclarations;
        case TKIND_RECORD: return kSearchRecord;
        case TKIND_ALIAS: return kSearchAlias;
        case TKIND_UNION: return kSearchUnion;
        default: return kSearchClass;
    }
}

}  // namespace

std::vector<SearchItem> MsftLibrary::SearchItems() {
    std::vector<SearchItem> items;
    for (std::size_t i = 0; i < file_.TypeInfos.size(); ++i) {
        const MsftTypeInfo& info = file_.TypeInfos[i];
        if (info.Flags & (TYPEFLAG_FHIDDEN | TYPEFLAG_FRESTRICTED)) continue;
        long number = static_cast<long>(i);
        if (info.Kind == TKIND_COCLASS && (info.Flags & TYPEFLAG_FAPPOBJECT))
            items.push_back({appObjString_.empty() ? info.Name : appObjString_, kSearchAppObject, number});
        items.push_back({info.Name, searchKindOf(info.Kind), number});
    }
    return items;
}

TypeInfoPtr MsftLibrary::TypeInfoAt(long number) {
    if (number < 0 || number >= TypeInfoCount()) throw TypeLibError("no type info of that number");
    if (infos_.empty()) infos_.resize(file_.TypeInfos.size());
    std::weak_ptr<TypeInfo>& cached = infos_[static_cast<std::size_t>(number)];
    TypeInfoPtr info = cached.lock();
    if (!info) {
        info = std::make_shared<MsftTypeInfo_>(shared_from_this(), number);
        cached = info;
    }
    return info;
}

TypeInfoPtr MsftLibrary::FindByGuid(const Str& guid) {
    for (std::size_t i = 0; i < file_.TypeInfos.size(); ++i)
        if (file_.TypeInfos[i].Guid == guid) return TypeInfoAt(static_cast<long>(i));
    return nullptr;
}

Str MsftLibrary::ReferenceGuid(std::uint32_t reference) const {
    if ((reference & 3) == 0) {
        std::uint32_t index = reference / kTypeInfoSize;
        return index < file_.TypeInfos.size() ? file_.TypeInfos[index].Guid : Str();
    }
    const MsftImportInfo& import = file_.ImportOf(reference);
    return import.ByGuid ? import.Guid : Str();
}

TypeInfoPtr MsftLibrary::Resolve(std::uint32_t reference) {
    if ((reference & 3) == 0) {
        if (reference % kTypeInfoSize != 0) throw TypeLibError("damaged type library: a reference is out of step");
        return TypeInfoAt(static_cast<long>(reference / kTypeInfoSize));
    }
    const MsftImportInfo& import = file_.ImportOf(reference);
    if (import.ImportFile < 0) throw TypeLibError("damaged type library: an imported type names no library");
    const MsftImportFile& from = file_.ImportFiles[static_cast<std::size_t>(import.ImportFile)];
    auto session = session_.lock();
    std::shared_ptr<MsftLibrary> other = session ? session->FindByGuid(from.Guid, from.FileName) : nullptr;
    if (!other) throw TypeLibError("the imported library " + basic::toUtf8(from.FileName) + " was not found");
    TypeInfoPtr found = import.ByGuid ? other->FindByGuid(import.Guid) : other->TypeInfoAt(import.Index);
    if (!found) throw TypeLibError("the imported library " + basic::toUtf8(from.FileName) + " lacks a type");
    return found;
}

VarTypeInfo MsftLibrary::DecodeType(std::int32_t dataType) {
    VarTypeInfo type;
    int arrayFlag = 0;
    for (int depth = 0;; ++depth) {
        if (depth > kMaxTypeDepth) throw TypeLibError("damaged type library: a type description loops");
        if (MsftFile::IsPlain(dataType)) {
            type.VarType = (dataType & 0x0FFF) | arrayFlag;
            return type;
        }
        const MsftTypeDesc& desc = file_.TypeDescOf(dataType);
        switch (desc.Vt) {
            case VT_PTR: ++type.PointerLevel; dataType = desc.Inner; break;
            case VT_SAFEARRAY: case VT_CARRAY: arrayFlag = VT_ARRAY; dataType = desc.Inner; break;
            case VT_USERDEFINED:
                type.VarType = VT_EMPTY | arrayFlag;
                try {
                    type.TypeInfo = Resolve(desc.Reference);
                } catch (const TypeLibError& error) {
                    type.ResolveError = error.what();
                }
                return type;
            default: type.VarType = desc.Vt | arrayFlag; return type;
        }
    }
}

}  // namespace quillet::typelib
