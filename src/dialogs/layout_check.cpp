// The rules of dialog layouts.

#include "dialogs/layout_check.h"

#include <map>

namespace quillet::dialogs {

namespace {

Str number(int value) {
    std::string digits = std::to_string(value);
    return Str(digits.begin(), digits.end());
}

class Checker {
public:
    Checker(const FormLayout& layout, Form& form) : layout_(layout), form_(form) {}

    std::vector<Str> run() {
        placedOnce();
        insideMargins();
        noOverlaps();
        accessKeysUnique();
        tabOrderReads();
        labelsReachTheirControls();
        buttonsExist();
        return problems_;
    }

private:
    void problem(const Str& text) { problems_.push_back(text); }

    void placedOnce() {
        std::map<Str, int> count;
        for (const auto& item : layout_.items) {
            ++count[foldedName(item.name)];
            if (item.decoration && form_.Find(item.name)) problem(u"decoration " + item.name + u" has a control's name");
            if (!item.decoration && !form_.Find(item.name)) problem(item.name + u" is not a control of the form");
            if (item.decoration && item.kind != ControlKind::Label && item.kind != ControlKind::Frame)
                problem(u"decoration " + item.name + u" is neither a label nor a frame");
        }
        for (const auto& [name, times] : count)
            if (times > 1) problem(name + u" is placed " + number(times) + u" times");
        for (Control* control : form_.AllControls())
            if (!layout_.find(control->Name())) problem(control->Name() + u" has no placement");
    }

    void insideMargins() {
        DluRect inner{kDluMargin, kDluMargin, layout_.width - 2 * kDluMargin, layout_.height - 2 * kDluMargin};
        for (const auto& item : layout_.items) {
            if (item.rect.cx <= 0 || item.rect.cy <= 0) problem(item.name + u" has no size");
            if (!inner.contains(item.rect)) problem(item.name + u" lies outside the client area's margins");
        }
    }

    bool isFrame(const Placement& item) { return kindOf(item, form_) == ControlKind::Frame; }
    static bool onOtherPages(const Placement& a, const Placement& b) {
        return !a.page.empty() && !b.page.empty() && a.page != b.page;
    }

    void noOverlaps() {
        const auto& items = layout_.items;
        for (size_t i = 0; i < items.size(); ++i)
            for (size_t j = i + 1; j < items.size(); ++j) {
                const auto &a = items[i], &b = items[j];
                if (!a.rect.overlaps(b.rect) || onOtherPages(a, b)) continue;
                bool framed = (isFrame(a) && a.rect.contains(b.rect)) || (isFrame(b) && b.rect.contains(a.rect));
                if (!framed) problem(a.name + u" overlaps " + b.name);
            }
    }

    void accessKeysUnique() {
        std::map<char16_t, Str> owner;
        for (const auto& item : layout_.items) {
            char16_t key = accessKey(shownCaption(item, form_));
            if (!key) continue;
            auto [at, added] = owner.emplace(key, item.name);
            if (!added) problem(u"access key " + Str(1, key) + u" of " + item.name + u" is taken by " + at->second);
        }
    }

    // A control inside a frame reads as part of the frame: the frame's rectangle stands for it
    // among the controls outside.
    const Placement* frameOf(const Placement& item) {
        for (const auto& other : layout_.items)
            if (&other != &item && isFrame(other) && !onOtherPages(other, item) && other.rect.contains(item.rect))
                return &other;
        return nullptr;
    }

    void tabOrderReads() {
        const Placement* previous = nullptr;
        for (const auto& item : layout_.items) {
            if (!takesFocus(kindOf(item, form_))) continue;
            // A page starts its own reading order.
            if (previous && !onOtherPages(*previous, item)) {
                const Placement* a = frameOf(*previous);
                const Placement* b = frameOf(item);
                DluRect p = previous->rect, q = item.rect;
                if (a != b) {
                    if (a) p = a->rect;
                    if (b) q = b->rect;
                }
                if (!readsBefore(p, q)) problem(u"Tab order: " + item.name + u" comes after " + previous->name);
            }
            previous = &item;
        }
    }

    void labelsReachTheirControls() {
        const auto& items = layout_.items;
        for (size_t i = 0; i < items.size(); ++i) {
            const auto& item = items[i];
            if (kindOf(item, form_) != ControlKind::Label || !accessKey(shownCaption(item, form_))) continue;
            if (item.labelFor.empty()) {
                problem(u"label " + item.name + u" has an access key but names no control");
                continue;
            }
            const Placement* next = nullptr;
            for (size_t j = i + 1; j < items.size() && !next; ++j)
                if (takesFocus(kindOf(items[j], form_))) next = &items[j];
            if (!next || foldedName(next->name) != foldedName(item.labelFor))
                problem(u"label " + item.name + u" does not come just before " + item.labelFor + u" in Tab order");
        }
    }

    void buttonsExist() {
        for (const Str& name : {layout_.defaultButton, layout_.cancelButton}) {
            if (name.empty()) continue;
            Control* control = form_.Find(name);
            if (!control || control->Kind() != ControlKind::CommandButton) problem(name + u" is not a button of the form");
        }
    }

    const FormLayout& layout_;
    Form& form_;
    std::vector<Str> problems_;
};

}  // namespace

bool readsBefore(const DluRect& p, const DluRect& q) {
    bool sameRow = p.y < q.bottom() && q.y < p.bottom();
    return sameRow ? q.x >= p.right() : q.y >= p.bottom();
}

std::vector<Str> LayoutProblems(const FormLayout& layout, Form& form) { return Checker(layout, form).run(); }

}  // namespace quillet::dialogs
