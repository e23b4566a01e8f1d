#pragma once
// The four profile functions the INI store is built on, with the contract of the Windows ANSI
// functions of the same names: section names in file order, the lines of a section separated
// by NUL, a buffer too small gives its size less 2; a null text deletes a section with its header,
// an empty one leaves the header; sections and keys match ignoring case.
//
// Buffers are texts: the caller sizes one (as Basic's String$(n, " ")), the function fills it and
// returns the number of characters it put there, without the closing NUL.

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "settings/file_system.h"
#include "settings/profile_document.h"

namespace quillet::settings {

class ProfileApi {
public:
    virtual ~ProfileApi() = default;
    virtual long GetPrivateProfileSectionNamesA(Str& buffer, long size, const Str& fileName) = 0;
    virtual long GetPrivateProfileSectionA(const Str& section, Str& buffer, long size, const Str& fileName) = 0;
    // text: lines separated by NUL, ended by an empty line (a double NUL); none deletes the section.
    virtual long WritePrivateProfileSectionA(const Str& section, const std::optional<Str>& text,
                                             const Str& fileName) = 0;
    // No key deletes the section; no value deletes the key.
    virtual long WritePrivateProfileStringA(const Str& section, const std::optional<Str>& key,
                                            const std::optional<Str>& value, const Str& fileName) = 0;
    // The error of the last call that failed (a Windows error number).
    virtual long LastError() const = 0;
};

// The same contract over the portable file layer. The file is edited in place: the lines of
// sections that a call does not touch keep their bytes, blank lines and comments ("; ...")
// included; a rewritten section keeps its comment lines ahead of the new lines and the blank
// lines that end it. Every write replaces the file atomically. The last file read is kept parsed
// while its size and time stay the same, as Windows keeps its profile cache.
class PortableProfile : public ProfileApi {
public:
    explicit PortableProfile(const FileSystem& files) : files_(files) {}

    long GetPrivateProfileSectionNamesA(Str& buffer, long size, const Str& fileName) override;
    long GetPrivateProfileSectionA(const Str& section, Str& buffer, long size, const Str& fileName) override;
    long WritePrivateProfileSectionA(const Str& section, const std::optional<Str>& text,
                                     const Str& fileName) override;
    long WritePrivateProfileStringA(const Str& section, const std::optional<Str>& key,
                                    const std::optional<Str>& value, const Str& fileName) override;
    long LastError() const override { return lastError_; }

private:
    struct Cached {
        Str fileName;
        std::pair<std::uintmax_t, long long> stamp;
        ProfileDocument doc;
    };
    // The parsed file, or nothing with the error of the read.
    const ProfileDocument* load(const Str& fileName, int& error);
    long writeChange(const Str& fileName, const std::function<bool(ProfileDocument&)>& change);

    const FileSystem& files_;
    long lastError_ = 0;
    std::optional<Cached> cache_;
};

}  // namespace quillet::settings
