#pragma once
// Controls of the in-memory command bars: buttons, pop-ups with their own Controls, and
// drop-down lists. A control knows the click sinks obtained for it (Events.CommandBarEvents)
// and fires them on Execute.

#include <memory>
#include <vector>

#include "hosts/memory/command_bars.h"

namespace quillet::hosts::memory {

class MemoryCommandBarEvents;

class MemoryCommandBarControls : public host::CommandBarControls,
                                 public std::enable_shared_from_this<MemoryCommandBarControls> {
public:
    explicit MemoryCommandBarControls(std::weak_ptr<MemoryCommandBars> bars) : bars_(std::move(bars)) {}

    const std::vector<std::shared_ptr<MemoryCommandBarControl>>& controls() const { return controls_; }
    // Adds a control as the editor's own (Execute records it).
    std::shared_ptr<MemoryCommandBarControl> addBuiltIn(long type, long id, const Str& caption);
    void remove(const MemoryCommandBarControl& control);
    long indexOf(const MemoryCommandBarControl& control) const;
    // The first control with that id (and type, unless 0) here or in nested pop-ups, or none.
    std::shared_ptr<MemoryCommandBarControl> find(long type, long id) const;

    // host::CommandBarControls
    long Count() override { return static_cast<long>(controls_.size()); }
    // 1 to Count; otherwise 5.
    host::CommandBarControlPtr Item(long index) override;
    // By caption, ignoring case and the "&" of the access key; unknown: 5.
    host::CommandBarControlPtr Item(const Str& caption) override;
    // Types 1 (button), 2 (edit), 3 (drop-down), 4 (combo box) and 10 (pop-up); others raise 5.
    // An id other than 1 copies the caption of the built-in control with that id.
    host::CommandBarControlPtr Add(long type, long id = 1, bool temporary = true) override;

private:
    std::shared_ptr<MemoryCommandBarControl> make(long type, long id);

    std::weak_ptr<MemoryCommandBars> bars_;
    std::vector<std::shared_ptr<MemoryCommandBarControl>> controls_;
};

class MemoryCommandBarControl : public host::CommandBarControl,
                                public std::enable_shared_from_this<MemoryCommandBarControl> {
public:
    MemoryCommandBarControl(std::weak_ptr<MemoryCommandBars> bars, std::weak_ptr<MemoryCommandBarControls> parent,
                            long type, long id, bool builtIn);

    const WriteCounter& writeCounter() const { return writes_; }
    WriteCounter& writeCounter() { return writes_; }
    bool builtIn() const { return builtIn_; }
    bool deleted() const { return parent_.expired(); }
    const std::vector<Str>& items() const { return items_; }
    void connectSink(const std::shared_ptr<MemoryCommandBarEvents>& sink);
    std::shared_ptr<MemoryCommandBarControls> popupControls() const { return controls_; }
    void setCaptionUnchecked(const Str& caption) { caption_ = caption; }

    // host::CommandBarControl
    long Type() override { return type_; }
    long Id() override { return id_; }
    long Index() override;
    host::CommandBarControlsPtr Controls() override;
    Str Caption() override { return caption_; }
    void Caption(const Str& caption) override;
    Str Tag() override { return tag_; }
    void Tag(const Str& tag) override;
    Str TooltipText() override { return tooltip_; }
    void TooltipText(const Str& text) override;
    long Style() override { return style_; }
    void Style(long style) override;
    bool BeginGroup() override { return beginGroup_; }
    void BeginGroup(bool group) override;
    bool Visible() override { return visible_; }
    void Visible(bool visible) override;
    bool Enabled() override { return enabled_; }
    void Enabled(bool enabled) override;
    basic::DispatchPtr Picture() override;
    void Picture(const basic::DispatchPtr& picture) override;
    basic::DispatchPtr Mask() override;
    void Mask(const basic::DispatchPtr& mask) override;
    void CopyFace() override;
    // An empty face slot raises 5.
    void PasteFace() override;
    Str Text() override;
    void Text(const Str& text) override;
    void AddItem(const Str& text, long index = 0) override;
    long ListCount() override;
    Str List(long index) override;
    long ListIndex() override;
    void ListIndex(long index) override;
    long Width() override { return width_; }
    void Width(long width) override;
    long DropDownWidth() override;
    void DropDownWidth(long width) override;
    // Fires Click on every connected sink of this control; a built-in control then records
    // itself unless a sink set cancelDefault. A disabled control raises 5.
    void Execute() override;
    void Delete() override;

private:
    void requireList() const;
    void requireFaces() const;
    std::shared_ptr<MemoryCommandBars> bars() const { return bars_.lock(); }

    std::weak_ptr<MemoryCommandBars> bars_;
    std::weak_ptr<MemoryCommandBarControls> parent_;
    long type_;
    long id_;
    bool builtIn_;
    Str caption_;
    Str tag_;
    Str tooltip_;
    long style_ = host::msoButtonAutomatic;
    bool beginGroup_ = false;
    bool visible_ = true;
    bool enabled_ = true;
    Face face_;
    Str text_;
    std::vector<Str> items_;
    long listIndex_ = 0;
    long width_;
    long dropDownWidth_ = -1;
    std::shared_ptr<MemoryCommandBarControls> controls_;
    std::vector<std::weak_ptr<MemoryCommandBarEvents>> sinks_;
    WriteCounter writes_;
};

}  // namespace quillet::hosts::memory
