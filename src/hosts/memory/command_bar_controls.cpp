#include "hosts/memory/command_bar_controls.h"

#include <algorithm>

#include "hosts/memory/events.h"
#include "hosts/memory/pin.h"
#include "hosts/memory/text.h"

namespace quillet::hosts::memory {

namespace {

using basic::VbError;

VbError invalidCall() { return VbError::standard(basic::err::InvalidCall); }
VbError notSupported() { return VbError::standard(basic::err::NotSupported); }

Str withoutAccessKey(const Str& caption) { return basic::Replace(caption, u"&", u""); }

bool isListType(long type) { return type == host::msoControlDropdown || type == 4; }
bool isTextType(long type) { return type == 2 || isListType(type); }

}  // namespace

// --- the list of controls ------------------------------------------------------------------

std::shared_ptr<MemoryCommandBarControl> MemoryCommandBarControls::make(long type, long id) {
    bool builtIn = id != 1;
    auto control = std::make_shared<MemoryCommandBarControl>(bars_, weak_from_this(), type, id, builtIn);
    controls_.push_back(control);
    return control;
}

std::shared_ptr<MemoryCommandBarControl> MemoryCommandBarControls::addBuiltIn(long type, long id, const Str& caption) {
    auto control = make(type, id);
    control->setCaptionUnchecked(caption);
    return control;
}

void MemoryCommandBarControls::remove(const MemoryCommandBarControl& control) {
    if (auto vbe = vbeOf(bars_)) return vbe->takeOut(controls_, &control);
    std::erase_if(controls_, [&control](const auto& c) { return c.get() == &control; });
}

long MemoryCommandBarControls::indexOf(const MemoryCommandBarControl& control) const {
    for (size_t i = 0; i < controls_.size(); ++i)
        if (controls_[i].get() == &control) return static_cast<long>(i) + 1;
    return 0;
}

std::shared_ptr<MemoryCommandBarControl> MemoryCommandBarControls::find(long type, long id) const {
    for (const auto& c : controls_) {
        if (c->Id() == id && (type == 0 || c->Type() == type)) return c;
        if (auto nested = c->popupControls())
            if (auto found = nested->find(type, id)) return found;
    }
    return nullptr;
}

host::CommandBarControlPtr MemoryCommandBarControls::Item(long index) {
    if (index < 1 || index > Count()) throw invalidCall();
    return pinned(vbeOf(bars_), controls_[index - 1]);
}

host::CommandBarControlPtr MemoryCommandBarControls::Item(const Str& caption) {
    for (const auto& c : controls_)
        if (sameText(withoutAccessKey(c->Caption()), withoutAccessKey(caption))) return pinned(vbeOf(bars_), c);
    throw invalidCall();
}

host::CommandBarControlPtr MemoryCommandBarControls::Add(long type, long id, bool) {
    bool known = type == host::msoControlButton || type == 2 || type == host::msoControlDropdown || type == 4 ||
                 type == host::msoControlPopup;
    if (!known) throw invalidCall();
    Str caption;
    if (id != 1) {
        auto bars = bars_.lock();
        auto original = bars ? bars->FindControl(0, id) : nullptr;
        if (!original) throw invalidCall();
        caption = original->Caption();
    }
    return pinned(vbeOf(bars_), addBuiltIn(type, id, caption));
}

// --- one control ---------------------------------------------------------------------------

MemoryCommandBarControl::MemoryCommandBarControl(std::weak_ptr<MemoryCommandBars> bars,
                                                 std::weak_ptr<MemoryCommandBarControls> parent, long type, long id,
                                                 bool builtIn)
    : bars_(std::move(bars)), parent_(std::move(parent)), type_(type), id_(id), builtIn_(builtIn),
      width_(isListType(type) ? 100 : 23) {
    if (type == host::msoControlPopup) controls_ = std::make_shared<MemoryCommandBarControls>(bars_);
}

void MemoryCommandBarControl::connectSink(const std::shared_ptr<MemoryCommandBarEvents>& sink) {
    std::erase_if(sinks_, [](const auto& s) { return s.expired(); });
    sinks_.push_back(sink);
}

long MemoryCommandBarControl::Index() {
    auto parent = parent_.lock();
    if (!parent) throw invalidCall();
    return parent->indexOf(*this);
}

host::CommandBarControlsPtr MemoryCommandBarControl::Controls() {
    if (!controls_) throw notSupported();
    return pinned(vbeOf(bars_), controls_);
}

void MemoryCommandBarControl::Caption(const Str& caption) {
    writes_.count("Caption");
    caption_ = caption;
}

void MemoryCommandBarControl::Tag(const Str& tag) {
    writes_.count("Tag");
    tag_ = tag;
}

void MemoryCommandBarControl::TooltipText(const Str& text) {
    writes_.count("TooltipText");
    tooltip_ = text;
}

void MemoryCommandBarControl::Style(long style) {
    if (type_ != host::msoControlButton) throw notSupported();
    writes_.count("Style");
    style_ = style;
}

void MemoryCommandBarControl::BeginGroup(bool group) {
    writes_.count("BeginGroup");
    beginGroup_ = group;
}

void MemoryCommandBarControl::Visible(bool visible) {
    writes_.count("Visible");
    visible_ = visible;
}

void MemoryCommandBarControl::Enabled(bool enabled) {
    writes_.count("Enabled");
    enabled_ = enabled;
}

void MemoryCommandBarControl::requireFaces() const {
    auto owner = bars();
    if (type_ != host::msoControlButton || (owner && owner->oldOfficeFaces())) throw notSupported();
}

basic::DispatchPtr MemoryCommandBarControl::Picture() {
    requireFaces();
    return face_.picture;
}

void MemoryCommandBarControl::Picture(const basic::DispatchPtr& picture) {
    requireFaces();
    writes_.count("Picture");
    face_.picture = picture;
}

basic::DispatchPtr MemoryCommandBarControl::Mask() {
    requireFaces();
    return face_.mask;
}

void MemoryCommandBarControl::Mask(const basic::DispatchPtr& mask) {
    requireFaces();
    writes_.count("Mask");
    face_.mask = mask;
}

void MemoryCommandBarControl::CopyFace() {
    if (type_ != host::msoControlButton) throw notSupported();
    if (auto owner = bars()) owner->faceSlot() = face_;
}

void MemoryCommandBarControl::PasteFace() {
    if (type_ != host::msoControlButton) throw notSupported();
    auto owner = bars();
    if (!owner || !owner->faceSlot()) throw invalidCall();
    writes_.count("Face");
    face_ = *owner->faceSlot();
}

void MemoryCommandBarControl::requireList() const {
    if (!isListType(type_)) throw notSupported();
}

Str MemoryCommandBarControl::Text() {
    if (!isTextType(type_)) throw notSupported();
    return listIndex_ > 0 ? items_[listIndex_ - 1] : text_;
}

void MemoryCommandBarControl::Text(const Str& text) {
    if (!isTextType(type_)) throw notSupported();
    writes_.count("Text");
    text_ = text;
    auto it = std::find(items_.begin(), items_.end(), text);
    listIndex_ = it == items_.end() ? 0 : static_cast<long>(it - items_.begin()) + 1;
}

void MemoryCommandBarControl::AddItem(const Str& text, long index) {
    requireList();
    if (index < 0 || index > ListCount() + 1) throw invalidCall();
    writes_.count("AddItem");
    items_.insert(index == 0 ? items_.end() : items_.begin() + (index - 1), text);
    if (index != 0 && listIndex_ >= index) ++listIndex_;
}

long MemoryCommandBarControl::ListCount() {
    requireList();
    return static_cast<long>(items_.size());
}

Str MemoryCommandBarControl::List(long index) {
    requireList();
    if (index < 1 || index > ListCount()) throw invalidCall();
    return items_[index - 1];
}

long MemoryCommandBarControl::ListIndex() {
    requireList();
    return listIndex_;
}

void MemoryCommandBarControl::ListIndex(long index) {
    requireList();
    if (index < 0 || index > ListCount()) throw invalidCall();
    writes_.count("ListIndex");
    listIndex_ = index;
}

void MemoryCommandBarControl::Width(long width) {
    writes_.count("Width");
    width_ = width;
}

long MemoryCommandBarControl::DropDownWidth() {
    requireList();
    return dropDownWidth_;
}

void MemoryCommandBarControl::DropDownWidth(long width) {
    requireList();
    writes_.count("DropDownWidth");
    dropDownWidth_ = width;
}

void MemoryCommandBarControl::Execute() {
    if (!enabled_) throw invalidCall();
    auto self = pinned(vbeOf(bars_), shared_from_this());
    bool handled = false;
    bool cancelDefault = false;
    auto sinks = sinks_;  // a handler may connect or release sinks
    for (const auto& weak : sinks)
        if (auto sink = weak.lock()) sink->fire(self, handled, cancelDefault);
    if (builtIn_ && !cancelDefault)
        if (auto owner = bars()) owner->recordExecuted(withoutAccessKey(caption_));
}

void MemoryCommandBarControl::Delete() {
    auto parent = parent_.lock();
    if (!parent) throw invalidCall();
    auto keepAlive = shared_from_this();
    parent->remove(*this);
    parent_.reset();
}

}  // namespace quillet::hosts::memory
