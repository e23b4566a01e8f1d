#include "hosts/memory/code_pane.h"

#include <algorithm>

#include "hosts/memory/code_module.h"
#include "hosts/memory/components.h"
#include "hosts/memory/pin.h"
#include "hosts/memory/project.h"
#include "hosts/memory/vbe.h"
#include "hosts/memory/windows.h"

namespace quillet::hosts::memory {

namespace {

using basic::VbError;

}  // namespace

MemoryCodePane::MemoryCodePane(std::weak_ptr<MemoryVBE> vbe, std::shared_ptr<MemoryCodeModule> module)
    : vbe_(std::move(vbe)), module_(std::move(module)) {}

Str MemoryCodePane::caption() const {
    auto component = module_->component();
    auto project = component ? component->project() : nullptr;
    if (!component || !project) return {};
    return project->name() + u" - " + component->name() + u" (Code)";
}

host::CodeModulePtr MemoryCodePane::CodeModule() { return pinned(vbe_.lock(), module_); }

host::WindowPtr MemoryCodePane::Window() { return pinned(vbe_.lock(), window_); }

void MemoryCodePane::GetSelection(long& startLine, long& startCol, long& endLine, long& endCol) {
    startLine = selection_.startLine;
    startCol = selection_.startCol;
    endLine = selection_.endLine;
    endCol = selection_.endCol;
}

long MemoryCodePane::clampLine(long line) const {
    return std::clamp(line, 1L, std::max(1L, module_->CountOfLines()));
}

long MemoryCodePane::clampCol(long line, long col) const {
    const auto& lines = module_->lines();
    long length = line <= static_cast<long>(lines.size()) ? static_cast<long>(lines[line - 1].size()) : 0;
    return std::clamp(col, 1L, length + 1);
}

void MemoryCodePane::SetSelection(long startLine, long startCol, long endLine, long endCol) {
    Selection wanted{startLine, startCol, endLine, endCol};
    Selection clamped;
    clamped.startLine = clampLine(startLine);
    clamped.startCol = clampCol(clamped.startLine, startCol);
    clamped.endLine = clampLine(endLine);
    clamped.endCol = clampCol(clamped.endLine, endCol);
    auto vbe = vbe_.lock();
    if (vbe && vbe->options().selectionOutOfRangeRaises && !(clamped == wanted))
        throw VbError::standard(basic::err::InvalidCall);
    if (std::pair(clamped.endLine, clamped.endCol) < std::pair(clamped.startLine, clamped.startCol)) {
        std::swap(clamped.startLine, clamped.endLine);
        std::swap(clamped.startCol, clamped.endCol);
    }
    selection_ = clamped;
    long visible = CountOfVisibleLines();
    if (selection_.startLine < topLine_) topLine_ = selection_.startLine;
    if (selection_.startLine >= topLine_ + visible) topLine_ = selection_.startLine - visible + 1;
    if (vbe) vbe->setActivePane(shared_from_this());
}

void MemoryCodePane::TopLine(long line) {
    if (line < 1) throw VbError::standard(basic::err::InvalidCall);
    topLine_ = std::min(line, std::max(1L, module_->CountOfLines()));
}

long MemoryCodePane::CountOfVisibleLines() {
    auto vbe = vbe_.lock();
    return vbe ? vbe->options().countOfVisibleLines : MemoryOptions().countOfVisibleLines;
}

void MemoryCodePane::Show() {
    window_->Visible(true);
    auto vbe = vbe_.lock();
    if (!vbe) return;
    vbe->setActivePane(shared_from_this());
    vbe->focusWindow(window_);
}

long MemoryCodePanes::Count() { return static_cast<long>(vbe_->panes().size()); }

host::CodePanePtr MemoryCodePanes::Item(long index) {
    const auto& all = vbe_->panes();
    if (index < 1 || index > static_cast<long>(all.size())) throw VbError::standard(basic::err::SubscriptOutOfRange);
    return vbe_->pin(all[index - 1]);
}

}  // namespace quillet::hosts::memory
