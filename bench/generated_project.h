#pragma once
// A project of generated, realistic modules for the benchmarks: the same modules every run.

#include <memory>
#include <vector>

#include "../tests/source/basic_generator.h"
#include "basic/unicode.h"
#include "hosts/memory/memory_host.h"

namespace quillet::bench {

// Adds `modules` generated modules of exactly `linesEach` lines to the project; gives the first
// standard module.
inline std::shared_ptr<hosts::memory::MemoryComponent> addGeneratedModules(hosts::memory::MemoryProject& project,
                                                                           int modules, int linesEach) {
    testing::BasicGenerator generator(7);
    std::shared_ptr<hosts::memory::MemoryComponent> first;
    for (int i = 0; i < modules; ++i) {
        auto m = generator.module(i, linesEach);
        m.lines.resize(static_cast<size_t>(linesEach));
        std::vector<basic::Str> text;
        for (const auto& line : m.lines) text.push_back(basic::fromUtf8(line));
        auto component = project.addComponent(basic::fromUtf8(m.name),
                                              m.isClass ? host::vbext_ct_ClassModule : host::vbext_ct_StdModule, text);
        if (!first && !m.isClass) first = component;
    }
    return first;
}

}  // namespace quillet::bench
