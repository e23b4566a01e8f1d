#pragma once
// An editor in memory with one Excel project, a scripted platform wired to it, and the
// add-in's context: what the add-in's tests start from.

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "core/context.h"
#include "basic/strings.h"
#include "basic/unicode.h"
#include "hosts/memory/memory_host.h"
#include "platform/scripted_platform.h"

namespace quillet::testing {

using basic::Str;
namespace memory = hosts::memory;

inline Str joinLines(const std::vector<Str>& lines) { return basic::Join(lines, u"\r\n"); }

// Connects a scripted platform's focus and paste to the editor in memory.
inline void wirePlatform(platform::ScriptedPlatform& platform, const std::shared_ptr<memory::MemoryVBE>& vbe) {
    std::weak_ptr<memory::MemoryVBE> weak = vbe;
    platform.focusGetter = [weak] {
        auto v = weak.lock();
        return v ? v->focusedWindow() : 0;
    };
    platform.focusSetter = [weak](long long handle) {
        if (auto v = weak.lock()) v->setFocusedWindow(handle);
    };
    platform.pasteSink = [weak](const Str& text) {
        if (auto v = weak.lock()) v->pasteIntoFocusedWindow(text);
    };
}

class AddinFixture : public ::testing::Test {
protected:
    AddinFixture() {
        vbe = memory::MemoryVBE::create();
        platform = std::make_shared<platform::ScriptedPlatform>();
        wirePlatform(*platform, vbe);
        ctx = std::make_unique<core::Context>(vbe, platform);
        ctx->reportListener = [this](const Str& report) { reports.push_back(report); };
    }

    // A project with one standard module holding `lines`, its pane active, caret at (line, col).
    std::shared_ptr<memory::MemoryComponent> openModule(const std::vector<Str>& lines, long line = 1, long col = 1,
                                                        const Str& name = u"basMain") {
        if (!project) project = vbe->addProject(u"VBAProject", u"C:\\Work\\Book1.xlsm", u"Excel");
        auto component = project->addComponent(name, host::vbext_ct_StdModule, lines);
        auto pane = vbe->openPane(component);
        pane->SetSelection(line, col, line, col);
        vbe->setSelectedComponent(component);
        return component;
    }

    Str moduleText(const Str& name = u"basMain") {
        auto module = project->component(name)->CodeModule();
        long count = module->CountOfLines();
        return count == 0 ? Str() : module->Lines(1, count);
    }

    void caret(long& line, long& col) {
        long endLine = 0, endCol = 0;
        vbe->ActiveCodePane()->GetSelection(line, col, endLine, endCol);
    }

    std::shared_ptr<memory::MemoryVBE> vbe;
    std::shared_ptr<memory::MemoryProject> project;
    std::shared_ptr<platform::ScriptedPlatform> platform;
    std::unique_ptr<core::Context> ctx;
    std::vector<Str> reports;
};

}  // namespace quillet::testing
