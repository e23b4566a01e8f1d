#pragma once
// The portable type-library reader: MSFT libraries from .tlb/.olb files and from the TYPELIB
// resources of PE files. Types that a library imports from another are resolved by the other
// library's GUID: a library already read, else its file name in each folder of the search list,
// else every library file of those folders.

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "typelib/typelib_reader.h"

namespace quillet::typelib {

class MsftLibrary;

// What the libraries of one reader share: the search list and the libraries read so far.
class ReaderSession : public std::enable_shared_from_this<ReaderSession> {
public:
    explicit ReaderSession(std::vector<std::string> folders) : folders_(std::move(folders)) {}
    std::shared_ptr<MsftLibrary> Load(const std::string& path);
    // The library of the GUID, none when the search list has none.
    std::shared_ptr<MsftLibrary> FindByGuid(const Str& guid, const Str& fileName);

private:
    std::shared_ptr<MsftLibrary> tryFile(const std::string& path, const Str& guid);
    void indexFolders();

    std::vector<std::string> folders_;
    std::map<std::string, std::shared_ptr<MsftLibrary>> byPath_;
    std::map<Str, std::shared_ptr<MsftLibrary>> byGuid_;
    std::map<Str, std::string> guidIndex_;
    bool indexed_ = false;
};

class MsftReader : public TypeLibReader {
public:
    explicit MsftReader(std::vector<std::string> searchFolders = {})
        : session_(std::make_shared<ReaderSession>(std::move(searchFolders))) {}
    TypeLibraryPtr Open(const std::string& path) override;

private:
    std::shared_ptr<ReaderSession> session_;
};

// The bytes of a library file ("file.dll\2" names a resource); throws TypeLibError.
std::vector<std::uint8_t> ReadLibraryFile(const std::string& path, long& resourceNumber, std::string& filePath);

// A library read from bytes already in memory (the fuzz target and tests use it), with no search
// list.
TypeLibraryPtr OpenLibraryBytes(const std::vector<std::uint8_t>& bytes, long resourceNumber = 0);

}  // namespace quillet::typelib
