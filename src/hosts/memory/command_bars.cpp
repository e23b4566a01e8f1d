#include "hosts/memory/command_bars.h"

#include "hosts/memory/command_bar_controls.h"
#include "hosts/memory/pin.h"
#include "hosts/memory/text.h"
#include "hosts/memory/vbe.h"

namespace quillet::hosts::memory {

namespace {

using basic::VbError;

VbError invalidCall() { return VbError::standard(basic::err::InvalidCall); }

}  // namespace

std::shared_ptr<MemoryVBE> vbeOf(const std::weak_ptr<MemoryCommandBars>& bars) {
    auto owner = bars.lock();
    return owner ? owner->vbe() : nullptr;
}

void WriteCounter::count(const char* property) {
    ++byName_[property];
    ++total_;
}

long WriteCounter::writes(const std::string& property) const {
    auto it = byName_.find(property);
    return it == byName_.end() ? 0 : it->second;
}

void WriteCounter::reset() {
    byName_.clear();
    total_ = 0;
}

std::shared_ptr<MemoryCommandBars> MemoryCommandBars::create(std::weak_ptr<MemoryVBE> vbe) {
    std::shared_ptr<MemoryCommandBars> bars(new MemoryCommandBars(std::move(vbe)));
    bars->seed();
    return bars;
}

void MemoryCommandBars::seed() {
    auto menu = addBar(u"Menu Bar", host::msoBarTop, true);
    for (const char16_t* caption : {u"&File", u"&Edit", u"&View", u"&Insert", u"F&ormat", u"&Debug", u"&Run",
                                    u"&Tools", u"&Add-Ins", u"&Window", u"&Help"})
        menu->controls()->addBuiltIn(host::msoControlPopup, 30002, caption);
    addBar(u"Standard", host::msoBarTop, true)->Visible(true);
    auto code = addBar(u"Code Window", host::msoBarPopup, true);
    code->controls()->addBuiltIn(host::msoControlButton, kCutControlId, u"Cu&t");
    code->controls()->addBuiltIn(host::msoControlButton, kCopyControlId, u"&Copy");
    code->controls()->addBuiltIn(host::msoControlButton, kPasteControlId, u"&Paste");
    auto run = addBar(u"Run", host::msoBarPopup, true);
    run->controls()->addBuiltIn(host::msoControlButton, kRunControlId, u"&Run Sub/UserForm");
    run->controls()->addBuiltIn(host::msoControlButton, kBreakControlId, u"Brea&k");
    run->controls()->addBuiltIn(host::msoControlButton, kResetControlId, u"&Reset");
    for (const auto& bar : bars_) bar->writeCounter().reset();
}

std::shared_ptr<MemoryCommandBar> MemoryCommandBars::addBar(const Str& name, long position, bool builtIn) {
    auto bar = std::make_shared<MemoryCommandBar>(weak_from_this(), name, position, builtIn);
    bars_.push_back(bar);
    return bar;
}

std::shared_ptr<MemoryCommandBar> MemoryCommandBars::bar(const Str& name) const {
    for (const auto& b : bars_)
        if (sameText(b->Name(), name)) return b;
    return nullptr;
}

void MemoryCommandBars::removeBar(const MemoryCommandBar& bar) {
    if (auto owner = vbe()) owner->takeOut(bars_, &bar);
    else std::erase_if(bars_, [&bar](const auto& b) { return b.get() == &bar; });
}

bool MemoryCommandBars::oldOfficeFaces() const {
    auto vbe = vbe_.lock();
    return vbe && vbe->options().oldOfficeFaces;
}

host::CommandBarPtr MemoryCommandBars::Item(long index) {
    if (index < 1 || index > Count()) throw invalidCall();
    return pinned(vbe(), bars_[index - 1]);
}

host::CommandBarPtr MemoryCommandBars::Item(const Str& name) {
    auto found = bar(name);
    if (!found) throw invalidCall();
    return pinned(vbe(), found);
}

host::CommandBarPtr MemoryCommandBars::Add(const Str& name, long position, bool, bool) {
    if (position < host::msoBarLeft || position > host::msoBarPopup) throw invalidCall();
    Str actual = name;
    for (long n = 1; actual.empty(); ++n)
        if (!bar(u"Custom " + numberText(n))) actual = u"Custom " + numberText(n);
    if (bar(actual)) throw invalidCall();
    return pinned(vbe(), addBar(actual, position, false));
}

host::CommandBarControlPtr MemoryCommandBars::FindControl(long type, long id) {
    for (const auto& b : bars_)
        if (auto found = b->controls()->find(type, id)) return pinned(vbe(), found);
    return nullptr;
}

MemoryCommandBar::MemoryCommandBar(std::weak_ptr<MemoryCommandBars> bars, Str name, long position, bool builtIn)
    : bars_(bars), name_(std::move(name)), position_(position), builtIn_(builtIn), visible_(false),
      controls_(std::make_shared<MemoryCommandBarControls>(bars)) {}

void MemoryCommandBar::Position(long position) {
    writes_.count("Position");
    if (position < host::msoBarLeft || position > host::msoBarPopup) throw invalidCall();
    position_ = position;
}

void MemoryCommandBar::RowIndex(long row) {
    writes_.count("RowIndex");
    rowIndex_ = row;
}

void MemoryCommandBar::Left(long left) {
    writes_.count("Left");
    left_ = left;
}

void MemoryCommandBar::Top(long top) {
    writes_.count("Top");
    top_ = top;
}

void MemoryCommandBar::Visible(bool visible) {
    writes_.count("Visible");
    visible_ = visible;
}

void MemoryCommandBar::Enabled(bool enabled) {
    writes_.count("Enabled");
    enabled_ = enabled;
}

void MemoryCommandBar::Delete() {
    if (builtIn_) throw invalidCall();
    if (auto bars = bars_.lock()) bars->removeBar(*this);
}

host::CommandBarControlsPtr MemoryCommandBar::Controls() { return pinned(vbeOf(bars_), controls_); }

}  // namespace quillet::hosts::memory
