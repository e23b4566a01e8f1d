#pragma once
// Code panes of the in-memory editor: one selection per pane, a top line, a fixed height.

#include <memory>

#include "host/objects.h"
#include "hosts/memory/options.h"

namespace quillet::hosts::memory {

class MemoryVBE;
class MemoryCodeModule;
class MemoryWindow;

struct Selection {
    long startLine = 1;
    long startCol = 1;
    long endLine = 1;
    long endCol = 1;
    bool operator==(const Selection&) const = default;
};

class MemoryCodePane : public host::CodePane, public std::enable_shared_from_this<MemoryCodePane> {
public:
    MemoryCodePane(std::weak_ptr<MemoryVBE> vbe, std::shared_ptr<MemoryCodeModule> module);
    // Makes the pane's code window (done by the VBE when it opens the pane).
    void attachWindow(std::shared_ptr<MemoryWindow> window) { window_ = std::move(window); }

    const Selection& selection() const { return selection_; }
    // Sets the selection as it is, without the checks and side effects of SetSelection.
    void setSelectionRaw(const Selection& selection) { selection_ = selection; }
    std::shared_ptr<MemoryCodeModule> codeModule() const { return module_; }
    std::shared_ptr<MemoryWindow> window() const { return window_; }
    // Caption of the code window: "Project - Module (Code)".
    Str caption() const;

    // host::CodePane
    host::CodeModulePtr CodeModule() override;
    host::WindowPtr Window() override;
    void GetSelection(long& startLine, long& startCol, long& endLine, long& endCol) override;
    // Out-of-range values are clamped to the text (or raise 5 with selectionOutOfRangeRaises);
    // the pane becomes the active pane, its window the active window, and the top line moves
    // so that the start of the selection is visible.
    void SetSelection(long startLine, long startCol, long endLine, long endCol) override;
    long TopLine() override { return topLine_; }
    // Below 1 raises 5; past the last line it is set to the last line.
    void TopLine(long line) override;
    long CountOfVisibleLines() override;
    void Show() override;

private:
    long clampLine(long line) const;
    long clampCol(long line, long col) const;

    std::weak_ptr<MemoryVBE> vbe_;
    std::shared_ptr<MemoryCodeModule> module_;
    std::shared_ptr<MemoryWindow> window_;
    Selection selection_;
    long topLine_ = 1;
};

class MemoryCodePanes : public host::CodePanes {
public:
    explicit MemoryCodePanes(std::shared_ptr<MemoryVBE> vbe) : vbe_(std::move(vbe)) {}
    long Count() override;
    host::CodePanePtr Item(long index) override;

private:
    std::shared_ptr<MemoryVBE> vbe_;
};

}  // namespace quillet::hosts::memory
