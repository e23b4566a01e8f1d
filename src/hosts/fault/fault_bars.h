#pragma once
// Wrappers of the command bars, their controls and the click sinks.

#include "hosts/fault/wrapper.h"

namespace quillet::hosts::fault {

class FaultCommandBars : public Wrapper<host::CommandBars> {
public:
    FaultCommandBars(host::CommandBarsPtr inner, ContextPtr c) : Wrapper(std::move(inner), std::move(c), "CommandBars") {}
    long Count() override { return in("Count").Count(); }
    host::CommandBarPtr Item(long index) override { return wrap(context(), in("Item").Item(index)); }
    host::CommandBarPtr Item(const Str& name) override { return wrap(context(), in("Item").Item(name)); }
    host::CommandBarPtr Add(const Str& name, long position, bool menuBar, bool temporary) override {
        return wrap(context(), in("Add").Add(name, position, menuBar, temporary));
    }
    host::CommandBarControlPtr FindControl(long type, long id) override {
        return wrap(context(), in("FindControl").FindControl(type, id));
    }
};

class FaultCommandBar : public Wrapper<host::CommandBar> {
public:
    FaultCommandBar(host::CommandBarPtr inner, ContextPtr c) : Wrapper(std::move(inner), std::move(c), "CommandBar") {}
    Str Name() override { return in("Name").Name(); }
    long Position() override { return in("Position").Position(); }
    void Position(long position) override { in("Position").Position(position); }
    long RowIndex() override { return in("RowIndex").RowIndex(); }
    void RowIndex(long row) override { in("RowIndex").RowIndex(row); }
    long Left() override { return in("Left").Left(); }
    void Left(long left) override { in("Left").Left(left); }
    long Top() override { return in("Top").Top(); }
    void Top(long top) override { in("Top").Top(top); }
    bool Visible() override { return in("Visible").Visible(); }
    void Visible(bool visible) override { in("Visible").Visible(visible); }
    bool Enabled() override { return in("Enabled").Enabled(); }
    void Enabled(bool enabled) override { in("Enabled").Enabled(enabled); }
    void Delete() override { in("Delete").Delete(); }
    host::CommandBarControlsPtr Controls() override { return wrap(context(), in("Controls").Controls()); }
};

class FaultCommandBarControls : public Wrapper<host::CommandBarControls> {
public:
    FaultCommandBarControls(host::CommandBarControlsPtr inner, ContextPtr c)
        : Wrapper(std::move(inner), std::move(c), "CommandBarControls") {}
    long Count() override { return in("Count").Count(); }
    host::CommandBarControlPtr Item(long index) override { return wrap(context(), in("Item").Item(index)); }
    host::CommandBarControlPtr Item(const Str& caption) override { return wrap(context(), in("Item").Item(caption)); }
    host::CommandBarControlPtr Add(long type, long id = 1, bool temporary = true) override {
        return wrap(context(), in("Add").Add(type, id, temporary));
    }
};

class FaultCommandBarControl : public Wrapper<host::CommandBarControl> {
public:
    FaultCommandBarControl(host::CommandBarControlPtr inner, ContextPtr c)
        : Wrapper(std::move(inner), std::move(c), "CommandBarControl") {}
    long Type() override { return in("Type").Type(); }
    long Id() override { return in("Id").Id(); }
    long Index() override { return in("Index").Index(); }
    host::CommandBarControlsPtr Controls() override { return wrap(context(), in("Controls").Controls()); }
    Str Caption() override { return in("Caption").Caption(); }
    void Caption(const Str& caption) override { in("Caption").Caption(caption); }
    Str Tag() override { return in("Tag").Tag(); }
    void Tag(const Str& tag) override { in("Tag").Tag(tag); }
    Str TooltipText() override { return in("TooltipText").TooltipText(); }
    void TooltipText(const Str& text) override { in("TooltipText").TooltipText(text); }
    long Style() override { return in("Style").Style(); }
    void Style(long style) override { in("Style").Style(style); }
    bool BeginGroup() override { return in("BeginGroup").BeginGroup(); }
    void BeginGroup(bool group) override { in("BeginGroup").BeginGroup(group); }
    bool Visible() override { return in("Visible").Visible(); }
    void Visible(bool visible) override { in("Visible").Visible(visible); }
    bool Enabled() override { return in("Enabled").Enabled(); }
    void Enabled(bool enabled) override { in("Enabled").Enabled(enabled); }
    basic::DispatchPtr Picture() override { return in("Picture").Picture(); }
    void Picture(const basic::DispatchPtr& picture) override { in("Picture").Picture(picture); }
    basic::DispatchPtr Mask() override { return in("Mask").Mask(); }
    void Mask(const basic::DispatchPtr& mask) override { in("Mask").Mask(mask); }
    void CopyFace() override { in("CopyFace").CopyFace(); }
    void PasteFace() override { in("PasteFace").PasteFace(); }
    Str Text() override { return in("Text").Text(); }
    void Text(const Str& text) override { in("Text").Text(text); }
    void AddItem(const Str& text, long index = 0) override { in("AddItem").AddItem(text, index); }
    long ListCount() override { return in("ListCount").ListCount(); }
    Str List(long index) override { return in("List").List(index); }
    long ListIndex() override { return in("ListIndex").ListIndex(); }
    void ListIndex(long index) override { in("ListIndex").ListIndex(index); }
    long Width() override { return in("Width").Width(); }
    void Width(long width) override { in("Width").Width(width); }
    long DropDownWidth() override { return in("DropDownWidth").DropDownWidth(); }
    void DropDownWidth(long width) override { in("DropDownWidth").DropDownWidth(width); }
    void Execute() override { in("Execute").Execute(); }
    void Delete() override { in("Delete").Delete(); }
};

class FaultCommandBarEvents : public Wrapper<host::CommandBarEvents> {
public:
    FaultCommandBarEvents(host::CommandBarEventsPtr inner, ContextPtr c)
        : Wrapper(std::move(inner), std::move(c), "CommandBarEvents") {}
    // The control the editor passes to the handler reaches it wrapped.
    void Connect(ClickHandler handler) override {
        auto c = context();
        in("Connect").Connect([c, handler = std::move(handler)](const host::CommandBarControlPtr& control,
                                                                bool& handled, bool& cancelDefault) {
            handler(wrap(c, control), handled, cancelDefault);
        });
    }
    void Disconnect() override { in("Disconnect").Disconnect(); }
};

class FaultEvents : public Wrapper<host::Events> {
public:
    FaultEvents(host::EventsPtr inner, ContextPtr c) : Wrapper(std::move(inner), std::move(c), "Events") {}
    host::CommandBarEventsPtr CommandBarEvents(const host::CommandBarControlPtr& control) override {
        return wrap(context(), in("CommandBarEvents").CommandBarEvents(unwrap(control)));
    }
};

}  // namespace quillet::hosts::fault
