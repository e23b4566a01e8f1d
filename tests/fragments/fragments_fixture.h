#pragma once
// The add-in's editor in memory with settings of its own: a root folder on a fresh temporary
// folder, the placeholder settings filled in, a fixed date and time.

#include "../addin/addin_fixture.h"
#include "hosts/files/temp_dir.h"
#include "settings/catalogue.h"

namespace quillet::testing {

class FragmentsFixture : public AddinFixture {
protected:
    FragmentsFixture() {
        auto& s = settings();
        s.SettingsFolder = dir.path().string();
        s.Environment = [](const std::string&) { return std::nullopt; };
        s.IniItemValue.assign(settings::IniItemCount, Str());
        set(settings::iiDeveloper, u"Ann Smith");
        set(settings::iiInitials, u"AS");
        set(settings::iiOrganization, u"Smith & Co");
        set(settings::iiCopyright, u"(c) 2024 Smith & Co");
        set(settings::iiExitHandler, u"HandleExit");
        set(settings::iiErrorHandler, u"HandleError");
        set(settings::iiErrorHandleModule, u"basErrorHandle");
        set(settings::iiErrorHandleProcedure, u"ErrorReport");
        ctx->DateText = [] { return Str(u"2024-05-31"); };
        ctx->TimeText = [] { return Str(u"14:05:09"); };
    }

    settings::Settings& settings() { return *ctx->IniSettings; }
    void set(long item, const Str& value) { settings().IniItemValue[item] = value; }
    // A file below the root folder ("Templates/x.bas"), ASCII text.
    void write(const std::string& relative, const std::string& text) {
        std::filesystem::create_directories((dir / relative).parent_path());
        dir.write(relative, text);
    }
    void tabWidth(const Str& width) { platform->setRegistryValue(platform::kEditorSettingsKey, u"TabWidth", width); }

    hosts::files::testing::TempDir dir;
};

}  // namespace quillet::testing
