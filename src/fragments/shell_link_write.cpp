// Writing shell links.

#include <vector>

#include "basic/strings.h"
#include "fragments/shell_link.h"
#include "fragments/shell_link_bytes.h"
#include "fragments/shell_link_idlist.h"
#include "settings/ansi_text.h"

namespace quillet::fragments {

using namespace lnk;

namespace {

constexpr std::uint32_t kFileAttributeArchive = 0x20;
constexpr std::uint32_t kShowNormal = 1;
constexpr std::uint32_t kDriveFixed = 3;

std::vector<Str> parts(const Str& path) {
    std::vector<Str> result;
    for (const Str& part : basic::Split(path, u"\\"))
        if (!part.empty()) result.push_back(part);
    return result;
}

bool isNetworkPath(const Str& path) { return path.size() > 2 && path[0] == u'\\' && path[1] == u'\\'; }

// "\\server\share" and the path below it.
std::pair<Str, Str> splitShare(const Str& path) {
    std::size_t server = path.find(u'\\', 2);
    std::size_t share = server == Str::npos ? Str::npos : path.find(u'\\', server + 1);
    if (share == Str::npos || share + 1 == path.size()) return {path, Str()};
    return {path.substr(0, share), path.substr(share + 1)};
}

std::string header(std::uint32_t flags) {
    static const unsigned char clsid[16] = {0x01, 0x14, 0x02, 0x00, 0x00, 0x00, 0x00, 0x00,
                                            0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46};
    std::string out;
    putU32(out, 0x4C);
    out.append(reinterpret_cast<const char*>(clsid), 16);
    putU32(out, flags);
    putU32(out, kFileAttributeArchive);
    out.append(24, '\0');  // creation, access and write times
    putU32(out, 0);        // file size
    putU32(out, 0);        // icon index
    putU32(out, kShowNormal);
    out.append(12, '\0');  // hot key and reserved
    return out;
}

// LinkInfo with a 0x24 header, so that the Unicode local path and suffix can follow.
std::string linkInfo(const Str& target) {
    bool network = isNetworkPath(target);
    auto [share, suffix] = network ? splitShare(target) : std::pair<Str, Str>{target, Str()};
    std::string body;
    std::uint32_t volumeOffset = 0, localOffset = 0, networkOffset = 0, localUnicode = 0;
    auto here = [&] { return static_cast<std::uint32_t>(0x24 + body.size()); };
    if (network) {
        networkOffset = here();
        // The share's name in ANSI and, behind it, in Unicode.
        std::string name = settings::toAnsi(share) + '\0';
        if (name.size() % 2) name.push_back('\0');
        putU32(body, static_cast<std::uint32_t>(0x1C + name.size() + 2 * (share.size() + 1)));
        putU32(body, 0);  // neither device nor provider type given
        putU32(body, 0x1C);
        putU32(body, 0);
        putU32(body, 0);
        putU32(body, static_cast<std::uint32_t>(0x1C + name.size()));
        putU32(body, 0);
        body += name;
        putUtf16(body, share + u'\0');
    } else {
        volumeOffset = here();
        putU32(body, 0x11);
        putU32(body, kDriveFixed);
        putU32(body, 0);     // serial number
        putU32(body, 0x10);  // label offset: an empty label
        body.push_back('\0');
        localOffset = here();
        body += settings::toAnsi(target) + '\0';
    }
    std::uint32_t suffixOffset = here();
    body += settings::toAnsi(suffix) + '\0';
    if (body.size() % 2) body.push_back('\0');
    if (!network) {
        localUnicode = here();
        putUtf16(body, target + u'\0');
    }
    std::uint32_t suffixUnicode = here();
    putUtf16(body, suffix + u'\0');
    std::string out;
    putU32(out, here());
    putU32(out, 0x24);
    putU32(out, network ? 0x2 : 0x1);
    for (std::uint32_t offset : {volumeOffset, localOffset, networkOffset, suffixOffset, localUnicode, suffixUnicode})
        putU32(out, offset);
    return out + body;
}

void putString(std::string& out, const Str& text) {
    if (text.size() > 0xFFFF) throw ShellLinkError("The shortcut's text is too long for a shortcut file.");
    putU16(out, static_cast<std::uint16_t>(text.size()));
    putUtf16(out, text);
}

}  // namespace

ShellLink ShellLinkTo(const Str& target, const Str& linkFolder) {
    ShellLink link;
    if (isNetworkPath(target)) link.NetworkPath = target;
    else link.LocalBasePath = target;
    long slash = basic::InStrRev(target, u"\\");
    link.WorkingDir = basic::Left(target, std::max(0L, slash - 1));
    std::vector<Str> from = parts(linkFolder), to = parts(target);
    if (from.empty() || to.empty() || basic::StrComp(from[0], to[0], basic::Compare::Text) != 0) return link;
    if (isNetworkPath(target) != isNetworkPath(linkFolder)) return link;
    std::size_t common = 0;
    while (common < from.size() && common + 1 < to.size() &&
           basic::StrComp(from[common], to[common], basic::Compare::Text) == 0)
        ++common;
    Str relative = common == from.size() ? Str(u".") : Str();
    for (std::size_t i = common; i < from.size(); ++i) relative += relative.empty() ? u".." : u"\\..";
    for (std::size_t i = common; i < to.size(); ++i) relative += u"\\" + to[i];
    link.RelativePath = relative;
    return link;
}

std::string WriteShellLink(const ShellLink& link) {
    using namespace link_flags;
    Str target = link.TargetPath();
    if (target.empty()) throw ShellLinkError("A shortcut needs a target.");
    std::string idList;
    std::uint32_t flags = HasLinkInfo | IsUnicode;
    if (WriteIdList(idList, target)) flags |= HasLinkTargetIDList;
    const std::pair<std::uint32_t, const Str*> strings[] = {{HasName, &link.Name},
                                                            {HasRelativePath, &link.RelativePath},
                                                            {HasWorkingDir, &link.WorkingDir},
                                                            {HasArguments, &link.Arguments},
                                                            {HasIconLocation, &link.IconLocation}};
    std::string tail;
    for (const auto& [flag, text] : strings) {
        if (text->empty()) continue;
        flags |= flag;
        putString(tail, *text);
    }
    putU32(tail, 0);  // no extra data
    return header(flags) + idList + linkInfo(target) + tail;
}

}  // namespace quillet::fragments
