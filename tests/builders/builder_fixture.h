#pragma once
// The builders over the editor in memory: a project with a standard module (basMain, the caret
// on its blank line) and a class module (clsOrder), settings with every builder option off, the
// builders registered, and UI scripts played against it.

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "../fragments/fragments_fixture.h"
#include "core/command_env.h"
#include "builders/builder_registry.h"
#include "dialogs/ui_player.h"
#include "settings/ini_vars.h"
#include "script_setups.h"
#include "source/keywords.h"
#include "source/prefixes.h"

namespace quillet::testing {

// A test's name for a script file ("variable/cancel.uis" gives "variable_cancel").
inline std::string scriptTestName(const ::testing::TestParamInfo<std::string>& info) {
    std::string name = info.param.substr(0, info.param.size() - 4);
    for (char& c : name)
        if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
    return name;
}

class BuilderFixture : public FragmentsFixture {
public:
    // Every script of a sub-folder of tests/builders/scripts ("variable/cancel.uis"), in name order.
    static std::vector<std::string> scriptsIn(const std::string& folder) {
        std::vector<std::string> names;
        for (const auto& entry :
             std::filesystem::directory_iterator(std::string(QUILLET_SOURCE_DIR) + "/tests/builders/scripts/" + folder))
            if (entry.path().extension() == ".uis") names.push_back(folder + "/" + entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

protected:
    BuilderFixture() {
        applySettings(builderSettings());
        ctx->HostName = u"Excel";
        ctx->Keywords = source::keywordList();
        openModule({u"Option Explicit", u"", u"Public Sub Existing()", u"End Sub"}, 2, 1);
        project->addComponent(u"clsOrder", host::vbext_ct_ClassModule, {u"Option Explicit"});
        builders::RegisterBuilders(*ctx);
        hooks.answer = [this](const Str& answer) { platform->queueAnswer(answer); };
        hooks.moduleText = [this](const Str& module) -> std::optional<Str> {
            auto component = project->component(module);
            if (!component) return std::nullopt;
            return moduleText(module);
        };
    }

    void applySettings(const std::vector<std::pair<long, basic::Variant>>& values) {
        for (const auto& [item, value] : values) settings().IniItemValue[item] = value;
    }
    // A folder's settings and prefix standard (its module is the test's to open).
    void applySetup(const ScriptSetup& setup) {
        applySettings(setup.settings);
        ctx->Prefixes = source::PrefixesCollectionsCreate(source::PrefixSettings{}, setup.prefixes);
    }

    dialogs::UiScriptOutcome play(const std::string& script) {
        return dialogs::playUiScript(basic::fromUtf8(script), *ctx->Forms, hooks);
    }
    static std::string scriptFile(const std::string& name) {
        std::ifstream in(std::string(QUILLET_SOURCE_DIR) + "/tests/builders/scripts/" + name, std::ios::binary);
        std::ostringstream text;
        text << in.rdbuf();
        return text.str();
    }
    // The dialog on top, as its class.
    template <class F>
    F& top() {
        return dynamic_cast<F&>(*ctx->Forms->Top());
    }

    dialogs::UiScriptHooks hooks;
};

}  // namespace quillet::testing
