#include "bar_walk.h"

#include <algorithm>

namespace quillet::wine {

namespace {

void walk(const host::CommandBarControlsPtr& controls, int depth, const Str& parentTag,
          std::vector<WalkedControl>& out) {
    for (long i = 1; i <= controls->Count(); ++i) {
        auto control = controls->Item(i);
        out.push_back({control, depth, parentTag});
        if (control->Type() == host::msoControlPopup) walk(control->Controls(), depth + 1, control->Tag(), out);
    }
}

void expectUnder(long parentId, int depth, const Str& parentTag, std::vector<ExpectedControl>& out) {
    for (const auto& row : addin::CommandTable()) {
        if (row.parentId != parentId || row.condition != addin::CommandCondition::Always) continue;
        Str caption = addin::LoadResString(row.id);
        Str tag = parentTag.empty() ? caption : parentTag + u" " + caption;
        out.push_back({&row, caption, depth, tag});
        if (row.type == host::msoControlPopup) expectUnder(row.id, depth + 1, tag, out);
    }
}

}  // namespace

std::vector<WalkedControl> walkBar(hosts::memory::MemoryVBE& vbe) {
    std::vector<WalkedControl> out;
    if (auto bar = vbe.commandBars()->bar(u"Quillet")) walk(bar->Controls(), 0, Str(), out);
    return out;
}

std::vector<ExpectedControl> expectedBar() {
    std::vector<ExpectedControl> out;
    expectUnder(addin::popup::Bar, 0, Str(), out);
    return out;
}

// A caption as a user reads it: no access key marks, no closing "...".
Str plainCaption(Str caption) {
    caption.erase(std::remove(caption.begin(), caption.end(), u'&'), caption.end());
    if (caption.size() >= 3 && caption.compare(caption.size() - 3, 3, u"...") == 0) caption.resize(caption.size() - 3);
    return caption;
}

host::CommandBarControlPtr controlAt(hosts::memory::MemoryVBE& vbe, const std::vector<Str>& captions) {
    auto bar = vbe.commandBars()->bar(u"Quillet");
    if (!bar) return nullptr;
    host::CommandBarControlsPtr controls = bar->Controls();
    host::CommandBarControlPtr found;
    for (const auto& caption : captions) {
        found = nullptr;
        for (long i = 1; controls && i <= controls->Count() && !found; ++i) {
            const Str shown = controls->Item(i)->Caption();
            if (shown == caption || plainCaption(shown) == caption) found = controls->Item(i);
        }
        if (!found) return nullptr;
        controls = found->Type() == host::msoControlPopup ? found->Controls() : nullptr;
    }
    return found;
}

std::vector<Str> visibleOnBar(hosts::memory::MemoryVBE& vbe) {
    std::vector<Str> captions;
    auto bar = vbe.commandBars()->bar(u"Quillet");
    if (!bar) return captions;
    auto controls = bar->Controls();
    for (long i = 1; i <= controls->Count(); ++i) {
        if (controls->Item(i)->Visible()) captions.push_back(controls->Item(i)->Caption());
    }
    return captions;
}

bool clickBar(Checks& c, hosts::memory::MemoryVBE& vbe, const std::vector<Str>& captions) {
    std::string name;
    for (const auto& step : captions) name += (name.empty() ? "" : " > ") + narrow(step);
    auto control = controlAt(vbe, captions);
    c.check(control != nullptr, "the bar has " + name);
    if (!control) return false;
    control->Execute();
    return true;
}

Str moduleText(hosts::memory::MemoryVBE& vbe, const Str& name) {
    auto module = vbe.activeProject()->VBComponents()->Item(name)->CodeModule();
    long count = module->CountOfLines();
    return count ? module->Lines(1, count) : Str();
}

}  // namespace quillet::wine
