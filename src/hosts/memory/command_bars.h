#pragma once
// Office command bars as the in-memory editor offers them: bars by name, controls (buttons,
// pop-ups with nested controls, drop-down lists), faces through a face slot, click sinks.
// The editor's own bars are seeded: "Menu Bar", "Standard", "Code Window" (Cut, Copy, Paste)
// and "Run" (Run Sub/UserForm, Break, Reset). Executing a built-in control records its caption.
// Bars and controls count every property write, so a test can prove that a property is
// written only when it changes.

#include <map>
#include <optional>
#include <memory>
#include <vector>

#include "host/objects.h"
#include "hosts/memory/options.h"

namespace quillet::hosts::memory {

class MemoryVBE;
class MemoryCommandBarControls;
class MemoryCommandBarControl;

// Ids of the seeded built-in controls.
constexpr long kCutControlId = 21;
constexpr long kCopyControlId = 19;
constexpr long kPasteControlId = 22;
constexpr long kRunControlId = 186;
constexpr long kBreakControlId = 189;
constexpr long kResetControlId = 228;

// Counts of property writes, by property name and in all.
class WriteCounter {
public:
    void count(const char* property);
    long writes(const std::string& property) const;
    long total() const { return total_; }
    void reset();

private:
    std::map<std::string, long> byName_;
    long total_ = 0;
};

struct Face {
    basic::DispatchPtr picture;
    basic::DispatchPtr mask;
};

class MemoryCommandBar;
class MemoryCommandBars;

// The editor of these bars, or none when it is gone.
std::shared_ptr<MemoryVBE> vbeOf(const std::weak_ptr<MemoryCommandBars>& bars);

class MemoryCommandBars : public host::CommandBars, public std::enable_shared_from_this<MemoryCommandBars> {
public:
    static std::shared_ptr<MemoryCommandBars> create(std::weak_ptr<MemoryVBE> vbe);

    const std::vector<std::shared_ptr<MemoryCommandBar>>& bars() const { return bars_; }
    // By name ignoring case, or none.
    std::shared_ptr<MemoryCommandBar> bar(const Str& name) const;
    void removeBar(const MemoryCommandBar& bar);
    // Captions of the built-in controls executed so far (without their "&").
    const std::vector<Str>& executedBuiltIns() const { return executed_; }
    void recordExecuted(const Str& caption) { executed_.push_back(caption); }
    // The face slot CopyFace fills and PasteFace reads (the clipboard, in Office).
    std::optional<Face>& faceSlot() { return faceSlot_; }
    bool oldOfficeFaces() const;
    std::shared_ptr<MemoryVBE> vbe() const { return vbe_.lock(); }

    // host::CommandBars
    long Count() override { return static_cast<long>(bars_.size()); }
    host::CommandBarPtr Item(long index) override;
    host::CommandBarPtr Item(const Str& name) override;
    // A name already taken raises 5.
    host::CommandBarPtr Add(const Str& name, long position, bool menuBar, bool temporary) override;
    host::CommandBarControlPtr FindControl(long type, long id) override;

private:
    explicit MemoryCommandBars(std::weak_ptr<MemoryVBE> vbe) : vbe_(std::move(vbe)) {}
    std::shared_ptr<MemoryCommandBar> addBar(const Str& name, long position, bool builtIn);
    void seed();

    std::weak_ptr<MemoryVBE> vbe_;
    std::vector<std::shared_ptr<MemoryCommandBar>> bars_;
    std::vector<Str> executed_;
    std::optional<Face> faceSlot_;
};

class MemoryCommandBar : public host::CommandBar, public std::enable_shared_from_this<MemoryCommandBar> {
public:
    MemoryCommandBar(std::weak_ptr<MemoryCommandBars> bars, Str name, long position, bool builtIn);

    std::shared_ptr<MemoryCommandBarControls> controls() const { return controls_; }
    bool builtIn() const { return builtIn_; }
    const WriteCounter& writeCounter() const { return writes_; }
    WriteCounter& writeCounter() { return writes_; }

    // host::CommandBar
    Str Name() override { return name_; }
    long Position() override { return position_; }
    void Position(long position) override;
    long RowIndex() override { return rowIndex_; }
    void RowIndex(long row) override;
    long Left() override { return left_; }
    void Left(long left) override;
    long Top() override { return top_; }
    void Top(long top) override;
    bool Visible() override { return visible_; }
    void Visible(bool visible) override;
    bool Enabled() override { return enabled_; }
    void Enabled(bool enabled) override;
    // A built-in bar raises 5.
    void Delete() override;
    host::CommandBarControlsPtr Controls() override;

private:
    std::weak_ptr<MemoryCommandBars> bars_;
    Str name_;
    long position_;
    bool builtIn_;
    long rowIndex_ = 0;
    long left_ = 0;
    long top_ = 0;
    bool visible_;
    bool enabled_ = true;
    std::shared_ptr<MemoryCommandBarControls> controls_;
    WriteCounter writes_;
};

}  // namespace quillet::hosts::memory
