#include "hosts/memory/code_module.h"

#include <algorithm>

#include "hosts/memory/code_pane.h"
#include "hosts/memory/components.h"
#include "hosts/memory/find.h"
#include "hosts/memory/pin.h"
#include "hosts/memory/vbe.h"

namespace quillet::hosts::memory {

namespace {

using basic::VbError;
using basic::err::InvalidCall;

VbError invalidCall() { return VbError::standard(InvalidCall); }

}  // namespace

const MemoryOptions& MemoryCodeModule::options() const {
    static const MemoryOptions defaults;
    auto component = component_.lock();
    auto vbe = component ? component->vbe() : nullptr;
    return vbe ? vbe->options() : defaults;
}

void MemoryCodeModule::setLines(std::vector<Str> lines) {
    lines_ = std::move(lines);
    changed();
}

void MemoryCodeModule::changed() {
    layout_.reset();
    ++changes_;
}

const ProcLayout& MemoryCodeModule::layout() {
    if (!layout_) {
        const MemoryOptions& o = options();
        layout_ = computeProcLayout(lines_, LayoutRules{o.constBeforeProcIsDeclaration,
                                                        o.endIfClosingDeclarationsIsDeclaration});
    }
    return *layout_;
}

Str MemoryCodeModule::Name() {
    auto component = component_.lock();
    return component ? component->name() : Str();
}

host::VBComponentPtr MemoryCodeModule::Parent() {
    auto component = component_.lock();
    return component ? pinned(component->vbe(), component) : nullptr;
}

host::CodePanePtr MemoryCodeModule::CodePane() {
    auto component = component_.lock();
    auto vbe = component ? component->vbe() : nullptr;
    if (!vbe) throw VbError::standard(basic::err::ObjectNotSet);
    if (auto pane = vbe->paneOf(*component)) return pane;
    return vbe->openPane(component, true);
}

long MemoryCodeModule::CountOfDeclarationLines() { return layout().countOfDeclarationLines; }

Str MemoryCodeModule::Lines(long startLine, long count) {
    const MemoryOptions& o = options();
    if (count < 0 || (startLine < 1 && o.linesStartBelowOneRaises)) throw invalidCall();
    if (startLine > CountOfLines() && o.linesStartPastEndRaises) throw invalidCall();
    if (count == 0 && o.linesZeroCountRaises) throw invalidCall();
    if (startLine < 1) startLine = 1;
    if (count == 0 || startLine > CountOfLines()) return {};
    long available = CountOfLines() - startLine + 1;
    return joinLines(lines_, static_cast<size_t>(startLine - 1), static_cast<size_t>(std::min(count, available)));
}

void MemoryCodeModule::insertAt(size_t index, std::vector<Str> newLines) {
    const MemoryOptions& o = options();
    if (o.normaliseLine)
        for (Str& line : newLines) line = o.normaliseLine(line);
    lines_.insert(lines_.begin() + static_cast<long>(index), newLines.begin(), newLines.end());
    changed();
}

void MemoryCodeModule::InsertLines(long line, const Str& text) {
    if (line < 1) throw invalidCall();
    if (line > CountOfLines() + 1) {
        if (!options().insertPastEndAppends) throw invalidCall();
        line = CountOfLines() + 1;
    }
    insertAt(static_cast<size_t>(line - 1), splitLines(text, options().insertTrailingBreakAddsLine));
}

void MemoryCodeModule::ReplaceLine(long line, const Str& text) {
    if (line < 1 || line > CountOfLines()) throw invalidCall();
    lines_.erase(lines_.begin() + (line - 1));
    insertAt(static_cast<size_t>(line - 1), splitLines(text, options().insertTrailingBreakAddsLine));
}

void MemoryCodeModule::DeleteLines(long startLine, long count) {
    if (startLine < 1 || count < 0 || startLine + count - 1 > CountOfLines()) throw invalidCall();
    if (startLine > CountOfLines()) throw invalidCall();
    lines_.erase(lines_.begin() + (startLine - 1), lines_.begin() + (startLine - 1 + count));
    changed();
}

void MemoryCodeModule::AddFromString(const Str& text) {
    if (text.empty()) return;
    const ProcLayout& l = layout();
    size_t at = l.procs.empty() ? lines_.size() : static_cast<size_t>(l.countOfDeclarationLines);
    insertAt(at, splitLines(text, options().addFromStringTrailingBreakAddsLine));
}

Str MemoryCodeModule::ProcOfLine(long line, long& kind) {
    if (line < 1 || line > CountOfLines()) {
        if (long number = options().procOfLineOutOfRangeError) throw VbError::standard(number);
        kind = host::vbext_pk_Proc;
        return {};
    }
    const ProcInfo* p = layout().ofLine(line);
    kind = p ? p->kind : host::vbext_pk_Proc;
    return p ? p->name : Str();
}

const ProcInfo& MemoryCodeModule::proc(const Str& name, long kind) {
    const ProcInfo* p = layout().find(name, kind);
    if (!p) throw VbError::standard(basic::err::SubNotDefined);
    return *p;
}

long MemoryCodeModule::ProcBodyLine(const Str& name, long kind) { return proc(name, kind).bodyLine; }
long MemoryCodeModule::ProcStartLine(const Str& name, long kind) { return proc(name, kind).startLine; }
long MemoryCodeModule::ProcCountLines(const Str& name, long kind) { return proc(name, kind).countLines(); }

bool MemoryCodeModule::Find(const Str& target, long& startLine, long& startCol, long& endLine, long& endCol,
                            bool wholeWord, bool matchCase, bool patternSearch) {
    auto hit = findInLines(lines_, target, FindRange{startLine, startCol, endLine, endCol},
                           FindFlags{wholeWord, matchCase, patternSearch});
    if (!hit) return false;
    startLine = hit->startLine;
    startCol = hit->startCol;
    endLine = hit->endLine;
    endCol = hit->endCol;
    return true;
}

}  // namespace quillet::hosts::memory
