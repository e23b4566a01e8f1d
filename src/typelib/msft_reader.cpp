#include "typelib/msft_reader.h"

#include <filesystem>
#include <fstream>

#include "basic/strings.h"
#include "basic/unicode.h"
#include "typelib/msft_library.h"
#include "typelib/pe_resource.h"

namespace quillet::typelib {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t kMaxFileSize = 256u * 1024 * 1024;
constexpr std::size_t kMaxIndexedFiles = 5000;

MsftFile parseLibrary(const std::vector<std::uint8_t>& bytes, long resourceNumber) {
    ByteView view(bytes.data(), bytes.size());
    if (LooksLikePeFile(view)) return ParseMsft(TypeLibResource(view, resourceNumber));
    return ParseMsft(view);
}

bool isLibraryFile(const fs::path& path) {
    std::string ext = path.extension().string();
    for (char& c : ext) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return ext == ".tlb" || ext == ".olb" || ext == ".dll" || ext == ".ocx" || ext == ".exe";
}

// The bare file name of an import, which may be written as a Windows path.
std::string bareName(const Str& fileName) {
    std::string name = basic::toUtf8(fileName);
    std::size_t cut = name.find_last_of("\\/");
    return cut == std::string::npos ? name : name.substr(cut + 1);
}

}  // namespace

std::vector<std::uint8_t> ReadLibraryFile(const std::string& path, long& resourceNumber, std::string& filePath) {
    filePath = path;
    resourceNumber = 0;
    std::error_code ec;
    if (!fs::is_regular_file(path, ec)) {
        // "file.dll\2": the type library resource of that number.
        std::size_t cut = path.find_last_of('\\');
        bool digits = cut != std::string::npos && cut + 1 < path.size() && path.size() - cut <= 6 &&
                      path.find_first_not_of("0123456789", cut + 1) == std::string::npos;
        if (digits && fs::is_regular_file(path.substr(0, cut), ec)) {
            filePath = path.substr(0, cut);
            resourceNumber = std::stol(path.substr(cut + 1));
        } else {
            throw TypeLibError("no such library file: " + path);
        }
    }
    std::uintmax_t size = fs::file_size(filePath, ec);
    if (ec) throw TypeLibError("cannot read " + filePath);
    if (size > kMaxFileSize) throw TypeLibError("the file is too large for a type library: " + filePath);
    std::ifstream in(filePath, std::ios::binary);
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
    if (!in.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(size)))
        throw TypeLibError("cannot read " + filePath);
    return bytes;
}

std::shared_ptr<MsftLibrary> ReaderSession::Load(const std::string& path) {
    auto known = byPath_.find(path);
    if (known != byPath_.end()) return known->second;
    long number = 0;
    std::string filePath;
    std::vector<std::uint8_t> bytes = ReadLibraryFile(path, number, filePath);
    auto library = std::make_shared<MsftLibrary>(parseLibrary(bytes, number), path, weak_from_this());
    byPath_[path] = library;
    byGuid_.emplace(library->Guid(), library);
    return library;
}

std::shared_ptr<MsftLibrary> ReaderSession::tryFile(const std::string& path, const Str& guid) {
    try {
        std::shared_ptr<MsftLibrary> library = Load(path);
        return library->Guid() == guid ? library : nullptr;
    } catch (const TypeLibError&) {
        return nullptr;
    }
}

void ReaderSession::indexFolders() {
    indexed_ = true;
    std::size_t seen = 0;
    for (const std::string& folder : folders_) {
        std::error_code ec;
        for (fs::directory_iterator it(folder, ec), end; !ec && it != end && seen < kMaxIndexedFiles; it.increment(ec)) {
            if (!isLibraryFile(it->path()) || !it->is_regular_file(ec)) continue;
            ++seen;
            try {
                long number = 0;
                std::string filePath;
                std::vector<std::uint8_t> bytes = ReadLibraryFile(it->path().string(), number, filePath);
                guidIndex_.emplace(parseLibrary(bytes, 0).Guid, it->path().string());
            } catch (const TypeLibError&) {
                // Not a library: nothing to index.
            }
        }
    }
}

std::shared_ptr<MsftLibrary> ReaderSession::FindByGuid(const Str& guid, const Str& fileName) {
    auto known = byGuid_.find(guid);
    if (known != byGuid_.end()) return known->second;
    std::string name = bareName(fileName);
    if (!name.empty())
        for (const std::string& folder : folders_)
            if (auto library = tryFile((fs::path(folder) / name).string(), guid)) return library;
    if (!indexed_) indexFolders();
    auto indexed = guidIndex_.find(guid);
    return indexed == guidIndex_.end() ? nullptr : tryFile(indexed->second, guid);
}

TypeLibraryPtr MsftReader::Open(const std::string& path) { return session_->Load(path); }

TypeLibraryPtr OpenLibraryBytes(const std::vector<std::uint8_t>& bytes, long resourceNumber) {
    return std::make_shared<MsftLibrary>(parseLibrary(bytes, resourceNumber), std::string(),
                                         std::weak_ptr<ReaderSession>());
}

}  // namespace quillet::typelib
