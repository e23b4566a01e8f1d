#pragma once
// An editor in memory with one project and a scripted platform: what the source model's tests
// start from.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "basic/strings.h"
#include "basic/unicode.h"
#include "hosts/memory/memory_host.h"
#include "platform/scripted_platform.h"

namespace quillet::testing {

using basic::Str;
namespace memory = hosts::memory;

// UTF-8 text of a test as the system's text.
inline Str u(const std::string& text) { return basic::fromUtf8(text); }

class SourceFixture : public ::testing::Test {
protected:
    SourceFixture() {
        vbe = memory::MemoryVBE::create();
        platform = std::make_shared<platform::ScriptedPlatform>();
        project = vbe->addProject(u"VBAProject", u"C:\\Work\\Book1.xlsm", u"Excel");
    }

    // Adds a module, opens its pane with the caret at (line, col) and selects it.
    std::shared_ptr<memory::MemoryComponent> openModule(const Str& name, const std::vector<Str>& lines, long line = 1,
                                                        long col = 1, long type = host::vbext_ct_StdModule) {
        auto component = project->addComponent(name, type, lines);
        auto pane = vbe->openPane(component);
        pane->SetSelection(line, col, line, col);
        vbe->setSelectedComponent(component);
        return component;
    }

    void caretAt(long line, long col, long endLine = 0, long endCol = 0) {
        vbe->ActiveCodePane()->SetSelection(line, col, endLine ? endLine : line, endCol ? endCol : col);
    }

    std::shared_ptr<memory::MemoryVBE> vbe;
    std::shared_ptr<platform::ScriptedPlatform> platform;
    std::shared_ptr<memory::MemoryProject> project;
};

}  // namespace quillet::testing
