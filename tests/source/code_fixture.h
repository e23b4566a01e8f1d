#pragma once
// The scan fixture with what the code-placing routines need: settings and a code environment.

#include "scan_fixture.h"
#include "settings/catalogue.h"
#include "settings/settings.h"
#include "source/code_env.h"

namespace quillet::testing {

class CodeFixture : public ScanFixture {
protected:
    CodeFixture() : settings(*platform) {
        settings.IniItemValue.resize(settings::IniItemCount);
        for (long item = 0; item < settings::IniItemCount; ++item) settings.IniItemValue[item] = settings::ItemDefault(item);
    }

    source::CodeEnv codeEnv() {
        source::CodeEnv out{*vbe, *platform, settings, state, env().report, {}, {}, {}, {}, {}};
        return out;
    }

    Str text(const Str& name) {
        auto module = project->component(name)->CodeModule();
        long count = module->CountOfLines();
        return count == 0 ? Str() : module->Lines(1, count);
    }

    void caret(long& line, long& col) {
        long endLine = 0, endCol = 0;
        vbe->ActiveCodePane()->GetSelection(line, col, endLine, endCol);
    }

    settings::Settings settings;
};

inline Str lines(const std::vector<Str>& parts) { return basic::Join(parts, u"\r\n"); }

}  // namespace quillet::testing
