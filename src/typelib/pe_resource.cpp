#include "typelib/pe_resource.h"

#include <vector>

namespace quillet::typelib {

namespace {

struct Section {
    std::uint32_t virtualAddress, virtualSize, rawSize, rawOffset;
};

struct PeImage {
    ByteView file;
    std::vector<Section> sections;
    std::uint32_t resourceRva = 0;

    // The file offset of an RVA that lies in a section's raw data.
    std::int64_t offsetOf(std::uint32_t rva, std::uint32_t length) const {
        for (const Section& s : sections) {
            std::uint64_t span = s.rawSize;
            if (rva >= s.virtualAddress && rva - s.virtualAddress < span &&
                length <= span - (rva - s.virtualAddress))
                return static_cast<std::int64_t>(s.rawOffset) + (rva - s.virtualAddress);
        }
        throw TypeLibError("damaged PE file: an address lies outside every section");
    }
};

PeImage readHeaders(ByteView file) {
    if (!LooksLikePeFile(file)) throw TypeLibError("not a type library or PE file");
    PeImage image{file, {}, 0};
    std::int64_t pe = file.u32(0x3C, "DOS header");
    if (file.u32(pe, "PE signature") != 0x00004550) throw TypeLibError("not a PE file (no PE signature)");
    std::uint16_t sectionCount = file.u16(pe + 6, "COFF header");
    std::uint16_t optionalSize = file.u16(pe + 20, "COFF header");
    std::int64_t optional = pe + 24;
    std::uint16_t magic = file.u16(optional, "optional header");
    std::int64_t directories;
    std::uint32_t directoryCount;
    if (magic == 0x10b) {
        directoryCount = file.u32(optional + 92, "optional header");
        directories = optional + 96;
    } else if (magic == 0x20b) {
        directoryCount = file.u32(optional + 108, "optional header");
        directories = optional + 112;
    } else {
        throw TypeLibError("not a PE32 or PE32+ file");
    }
    if (directoryCount <= 2 || directories + 24 > optional + optionalSize)
        throw TypeLibError("the PE file has no resources");
    image.resourceRva = file.u32(directories + 16, "resource directory entry");
    if (image.resourceRva == 0) throw TypeLibError("the PE file has no resources");
    std::int64_t table = optional + optionalSize;
    file.require(table, static_cast<std::int64_t>(sectionCount) * 40, "section table");
    for (int i = 0; i < sectionCount; ++i) {
        std::int64_t at = table + i * 40;
        image.sections.push_back({file.u32(at + 12, "section"), file.u32(at + 8, "section"),
                                  file.u32(at + 16, "section"), file.u32(at + 20, "section")});
    }
    return image;
}

bool nameIs(ByteView file, std::int64_t at, std::u16string_view name) {
    std::uint16_t length = file.u16(at, "resource name");
    if (length != name.size()) return false;
    for (std::size_t i = 0; i < name.size(); ++i) {
        char16_t c = file.u16(at + 2 + 2 * static_cast<std::int64_t>(i), "resource name");
        if (c >= u'a' && c <= u'z') c = static_cast<char16_t>(c - 32);
        if (c != name[i]) return false;
    }
    return true;
}

// The entry of a resource directory that matches: by name, by number, or the first one
// (number 0); -1 when none does. Gives the entry's OffsetToData.
std::int64_t findEntry(ByteView file, std::int64_t root, std::int64_t directory, std::u16string_view name,
                       long number) {
    std::int64_t named = file.u16(directory + 12, "resource directory");
    std::int64_t ids = file.u16(directory + 14, "resource directory");
    file.require(directory + 16, (named + ids) * 8, "resource directory entries");
    for (std::int64_t i = 0; i < named + ids; ++i) {
        std::int64_t entry = directory + 16 + i * 8;
        std::uint32_t id = file.u32(entry, "resource entry");
        std::uint32_t target = file.u32(entry + 4, "resource entry");
        bool match;
        if (!name.empty())
            match = (id & 0x80000000u) && nameIs(file, root + (id & 0x7FFFFFFFu), name);
        else
            match = number == 0 || (!(id & 0x80000000u) && static_cast<long>(id) == number);
        if (match) return target;
    }
    return -1;
}

std::int64_t subdirectory(ByteView file, std::int64_t root, std::int64_t target, const char* what) {
    if (target < 0) throw TypeLibError(what);
    if (!(target & 0x80000000u)) throw TypeLibError("damaged resource directory");
    std::int64_t at = root + (target & 0x7FFFFFFF);
    file.require(at, 16, "resource directory");
    return at;
}

}  // namespace

bool LooksLikePeFile(ByteView file) { return file.size() >= 64 && file.data()[0] == 'M' && file.data()[1] == 'Z'; }

ByteView TypeLibResource(ByteView file, long number) {
    PeImage image = readHeaders(file);
    std::int64_t root = image.offsetOf(image.resourceRva, 16);
    std::int64_t types = subdirectory(file, root, findEntry(file, root, root, u"TYPELIB", 0),
                                      "the PE file has no type library");
    std::string missing = "the PE file has no type library number " + std::to_string(number);
    std::int64_t numbers = subdirectory(file, root, findEntry(file, root, types, {}, number), missing.c_str());
    std::int64_t language = findEntry(file, root, numbers, {}, 0);
    if (language < 0 || (language & 0x80000000u)) throw TypeLibError("damaged resource directory");
    std::int64_t dataEntry = root + language;
    std::uint32_t rva = file.u32(dataEntry, "resource data entry");
    std::uint32_t size = file.u32(dataEntry + 4, "resource data entry");
    return file.sub(image.offsetOf(rva, size), size, "type library resource");
}

}  // namespace quillet::typelib
