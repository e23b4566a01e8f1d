#pragma once
// The code module of the in-memory editor: the visible lines of a component, and the procedure
// layout computed from them on demand (every write drops it).

#include <memory>
#include <optional>
#include <vector>

#include "host/objects.h"
#include "hosts/memory/options.h"
#include "hosts/memory/proc_layout.h"
#include "hosts/memory/text.h"

namespace quillet::hosts::memory {

class MemoryComponent;
class MemoryVBE;

class MemoryCodeModule : public host::CodeModule, public std::enable_shared_from_this<MemoryCodeModule> {
public:
    explicit MemoryCodeModule(std::weak_ptr<MemoryComponent> component) : component_(std::move(component)) {}

    const std::vector<Str>& lines() const { return lines_; }
    void setLines(std::vector<Str> lines);
    long changeCount() const { return changes_; }
    const ProcLayout& layout();
    std::shared_ptr<MemoryComponent> component() const { return component_.lock(); }

    // host::CodeModule
    Str Name() override;
    host::VBComponentPtr Parent() override;
    host::CodePanePtr CodePane() override;
    long CountOfLines() override { return static_cast<long>(lines_.size()); }
    long CountOfDeclarationLines() override;
    Str Lines(long startLine, long count) override;
    void InsertLines(long line, const Str& text) override;
    void ReplaceLine(long line, const Str& text) override;
    void DeleteLines(long startLine, long count = 1) override;
    void AddFromString(const Str& text) override;
    Str ProcOfLine(long line, long& kind) override;
    long ProcBodyLine(const Str& name, long kind) override;
    long ProcStartLine(const Str& name, long kind) override;
    long ProcCountLines(const Str& name, long kind) override;
    bool Find(const Str& target, long& startLine, long& startCol, long& endLine, long& endCol,
              bool wholeWord = false, bool matchCase = false, bool patternSearch = false) override;

private:
    const MemoryOptions& options() const;
    void insertAt(size_t index, std::vector<Str> newLines);
    void changed();
    const ProcInfo& proc(const Str& name, long kind);

    std::weak_ptr<MemoryComponent> component_;
    std::vector<Str> lines_;
    std::optional<ProcLayout> layout_;
    long changes_ = 0;
};

}  // namespace quillet::hosts::memory
