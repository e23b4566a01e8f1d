#include "cli/caret_setup.h"

#include "basic/strings.h"
#include "hosts/files/project_error.h"
#include "hosts/memory/code_module.h"
#include "hosts/memory/code_pane.h"
#include "hosts/memory/components.h"

namespace quillet::cli {

namespace memory = hosts::memory;
using hosts::files::ProjectError;

namespace {

std::string utf8(const Str& text) { return basic::toUtf8(text); }

// A caret may stand on any line of the module (line 1 of an empty one), at any column: the
// editor lets the caret stand past the end of a line, where the indentation of a new line puts it.
void checkPlace(const memory::MemoryComponent& component, long line) {
    long count = static_cast<long>(component.lines().size());
    if (line > std::max(count, 1L)) {
        throw ProjectError(utf8(component.name()) + " has " + std::to_string(count) + (count == 1 ? " line" : " lines") +
                           "; there is no line " + std::to_string(line));
    }
}

std::shared_ptr<memory::MemoryComponent> moduleNamed(memory::MemoryProject& project, const Str& name) {
    auto component = project.component(name);
    if (!component) throw ProjectError("the project has no module named " + utf8(name));
    if (!component->codeModule() && !component->CodeModule()) {
        throw ProjectError(utf8(name) + " has no code module");
    }
    return component;
}

}  // namespace

void placeCaret(memory::MemoryVBE& vbe, memory::MemoryProject& project, const ToolOptions& options) {
    Str name = options.at ? options.at->module : options.select->module;
    auto component = moduleNamed(project, name);
    long startLine, startColumn, endLine, endColumn;
    if (options.at) {
        startLine = endLine = options.at->line;
        startColumn = endColumn = options.at->column;
    } else {
        startLine = options.select->startLine;
        startColumn = options.select->startColumn;
        endLine = options.select->endLine;
        endColumn = options.select->endColumn;
    }
    checkPlace(*component, startLine);
    checkPlace(*component, endLine);
    vbe.setActiveProject(project.shared_from_this());
    auto pane = vbe.openPane(component, true);
    vbe.setSelectedComponent(component);
    vbe.setActiveWindow(memory::ActiveWindowKind::Code);
    pane->SetSelection(startLine, startColumn, endLine, endColumn);
}

void wirePlatform(platform::ScriptedPlatform& platform, const std::shared_ptr<memory::MemoryVBE>& vbe) {
    std::weak_ptr<memory::MemoryVBE> weak = vbe;
    platform.focusGetter = [weak] {
        auto editor = weak.lock();
        return editor ? editor->focusedWindow() : 0;
    };
    platform.focusSetter = [weak](long long handle) {
        if (auto editor = weak.lock()) editor->setFocusedWindow(handle);
    };
    platform.pasteSink = [weak](const Str& text) {
        if (auto editor = weak.lock()) editor->pasteIntoFocusedWindow(text);
    };
}

}  // namespace quillet::cli
