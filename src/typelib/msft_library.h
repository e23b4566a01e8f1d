#pragma once
// One MSFT library and its type infos, as the reader interface gives them.

#include <memory>

#include "typelib/msft_file.h"
#include "typelib/msft_reader.h"

namespace quillet::typelib {

class MsftLibrary : public TypeLibrary, public std::enable_shared_from_this<MsftLibrary> {
public:
    MsftLibrary(MsftFile file, std::string path, std::weak_ptr<ReaderSession> session)
        : file_(std::move(file)), path_(std::move(path)), session_(std::move(session)) {}

    Str Name() const override { return file_.Name; }
    Str HelpString() const override { return file_.HelpString; }
    Str HelpFile() const override { return file_.HelpFile; }
    long HelpContext() const override { return file_.HelpContext; }
    Str Guid() const override { return file_.Guid; }
    int MajorVersion() const override { return file_.Major; }
    int MinorVersion() const override { return file_.Minor; }
    std::string Path() const override { return path_; }
    void AppObjString(const Str& name) override { appObjString_ = name; }
    std::vector<SearchItem> SearchItems() override;
    long TypeInfoCount() const override { return static_cast<long>(file_.TypeInfos.size()); }
    TypeInfoPtr TypeInfoAt(long number) override;

    const MsftFile& File() const { return file_; }
    // The type a member gives by its data type, pointers and arrays unwrapped.
    VarTypeInfo DecodeType(std::int32_t dataType);
    // The type info of a reference (one of this library, or an imported one).
    TypeInfoPtr Resolve(std::uint32_t reference);
    // The GUID a reference names, known without reading an imported library where the library
    // imports it by GUID; "" when it is not known that way.
    Str ReferenceGuid(std::uint32_t reference) const;
    // The type info of the GUID in this library, none when it has none.
    TypeInfoPtr FindByGuid(const Str& guid);

private:
    MsftFile file_;
    std::string path_;
    std::weak_ptr<ReaderSession> session_;
    Str appObjString_;
    std::vector<std::weak_ptr<TypeInfo>> infos_;  // weak: a type info holds its library
};

}  // namespace quillet::typelib
