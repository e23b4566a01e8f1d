#pragma once
// The profile functions of the settings store over the Windows API itself
// (GetPrivateProfileSectionNamesA and its kin), for the add-in on Windows. Text goes to and
// from Windows-1252, as the portable functions write it.

#include "settings/profile.h"

namespace quillet::platform::win {

class WinProfile : public settings::ProfileApi {
public:
    long GetPrivateProfileSectionNamesA(settings::Str& buffer, long size, const settings::Str& fileName) override;
    long GetPrivateProfileSectionA(const settings::Str& section, settings::Str& buffer, long size,
                                   const settings::Str& fileName) override;
    long WritePrivateProfileSectionA(const settings::Str& section, const std::optional<settings::Str>& text,
                                     const settings::Str& fileName) override;
    long WritePrivateProfileStringA(const settings::Str& section, const std::optional<settings::Str>& key,
                                    const std::optional<settings::Str>& value,
                                    const settings::Str& fileName) override;
    long LastError() const override { return lastError_; }

private:
    long lastError_ = 0;
};

}  // namespace quillet::platform::win
