// Office command bars and the editor's click events over COM.

#include "hosts/com/click_sink.h"
#include "hosts/com/com_host.h"
#include "hosts/com/com_object.h"

namespace quillet::hosts::com {

namespace {

ComVariant pictureArg(const basic::DispatchPtr& picture) {
    IDispatch* raw = comObjectOf(picture);
    if (picture && !raw) throw basic::VbError::standard(basic::err::TypeMismatch, u"Picture");
    return ComVariant(raw);
}

class ComCommandBars : public host::CommandBars, public ComObject {
public:
    using ComObject::ComObject;
    long Count() override { return d_.getLong(u"Count"); }
    host::CommandBarPtr Item(long index) override { return makeCommandBar(d_.getObject(u"Item", {arg(index)})); }
    host::CommandBarPtr Item(const Str& name) override { return makeCommandBar(d_.getObject(u"Item", {arg(name)})); }
    host::CommandBarPtr Add(const Str& name, long position, bool menuBar, bool temporary) override {
        return makeCommandBar(
            toObject(d_.call(u"Add", {arg(name), arg(position), arg(menuBar), arg(temporary)}), u"Add"));
    }
    host::CommandBarControlPtr FindControl(long type, long id) override {
        ComVariant typeArg = type > 0 ? arg(type) : ComVariant::missing();
        return makeCommandBarControl(toObject(d_.call(u"FindControl", {typeArg, arg(id)}), u"FindControl"));
    }
};

class ComCommandBar : public host::CommandBar, public ComObject {
public:
    using ComObject::ComObject;
    Str Name() override { return d_.getStr(u"Name"); }
    long Position() override { return d_.getLong(u"Position"); }
    void Position(long position) override { d_.put(u"Position", arg(position)); }
    long RowIndex() override { return d_.getLong(u"RowIndex"); }
    void RowIndex(long row) override { d_.put(u"RowIndex", arg(row)); }
    long Left() override { return d_.getLong(u"Left"); }
    void Left(long left) override { d_.put(u"Left", arg(left)); }
    long Top() override { return d_.getLong(u"Top"); }
    void Top(long top) override { d_.put(u"Top", arg(top)); }
    bool Visible() override { return d_.getBool(u"Visible"); }
    void Visible(bool visible) override { d_.put(u"Visible", arg(visible)); }
    bool Enabled() override { return d_.getBool(u"Enabled"); }
    void Enabled(bool enabled) override { d_.put(u"Enabled", arg(enabled)); }
    void Delete() override { d_.call(u"Delete"); }
    host::CommandBarControlsPtr Controls() override { return makeCommandBarControls(d_.getObject(u"Controls")); }
};

class ComCommandBarControls : public host::CommandBarControls, public ComObject {
public:
    using ComObject::ComObject;
    long Count() override { return d_.getLong(u"Count"); }
    host::CommandBarControlPtr Item(long index) override {
        return makeCommandBarControl(d_.getObject(u"Item", {arg(index)}));
    }
    host::CommandBarControlPtr Item(const Str& caption) override {
        return makeCommandBarControl(d_.getObject(u"Item", {arg(caption)}));
    }
    host::CommandBarControlPtr Add(long type, long id, bool temporary) override {
        ComVariant idArg = id != 1 ? arg(id) : ComVariant::missing();
        return makeCommandBarControl(toObject(
            d_.call(u"Add", {arg(type), idArg, ComVariant::missing(), ComVariant::missing(), arg(temporary)}), u"Add"));
    }
};

class ComCommandBarControl : public host::CommandBarControl, public ComObject {
public:
    using ComObject::ComObject;
    long Type() override { return d_.getLong(u"Type"); }
    long Id() override { return d_.getLong(u"Id"); }
    long Index() override { return d_.getLong(u"Index"); }
    host::CommandBarControlsPtr Controls() override { return makeCommandBarControls(d_.getObject(u"Controls")); }
    Str Caption() override { return d_.getStr(u"Caption"); }
    void Caption(const Str& caption) override { d_.put(u"Caption", arg(caption)); }
    Str Tag() override { return d_.getStr(u"Tag"); }
    void Tag(const Str& tag) override { d_.put(u"Tag", arg(tag)); }
    Str TooltipText() override { return d_.getStr(u"TooltipText"); }
    void TooltipText(const Str& text) override { d_.put(u"TooltipText", arg(text)); }
    long Style() override { return d_.getLong(u"Style"); }
    void Style(long style) override { d_.put(u"Style", arg(style)); }
    bool BeginGroup() override { return d_.getBool(u"BeginGroup"); }
    void BeginGroup(bool group) override { d_.put(u"BeginGroup", arg(group)); }
    bool Visible() override { return d_.getBool(u"Visible"); }
    void Visible(bool visible) override { d_.put(u"Visible", arg(visible)); }
    bool Enabled() override { return d_.getBool(u"Enabled"); }
    void Enabled(bool enabled) override { d_.put(u"Enabled", arg(enabled)); }
    basic::DispatchPtr Picture() override { return wrapDispatch(d_.getObject(u"Picture").raw()); }
    void Picture(const basic::DispatchPtr& picture) override { d_.putRef(u"Picture", pictureArg(picture)); }
    basic::DispatchPtr Mask() override { return wrapDispatch(d_.getObject(u"Mask").raw()); }
    void Mask(const basic::DispatchPtr& mask) override { d_.putRef(u"Mask", pictureArg(mask)); }
    void CopyFace() override { d_.call(u"CopyFace"); }
    void PasteFace() override { d_.call(u"PasteFace"); }
    Str Text() override { return d_.getStr(u"Text"); }
    void Text(const Str& text) override { d_.put(u"Text", arg(text)); }
    void AddItem(const Str& text, long index) override {
        d_.call(u"AddItem", {arg(text), index > 0 ? arg(index) : ComVariant::missing()});
    }
    long ListCount() override { return d_.getLong(u"ListCount"); }
    Str List(long index) override { return d_.getStr(u"List", {arg(index)}); }
    long ListIndex() override { return d_.getLong(u"ListIndex"); }
    void ListIndex(long index) override { d_.put(u"ListIndex", arg(index)); }
    long Width() override { return d_.getLong(u"Width"); }
    void Width(long width) override { d_.put(u"Width", arg(width)); }
    long DropDownWidth() override { return d_.getLong(u"DropDownWidth"); }
    void DropDownWidth(long width) override { d_.put(u"DropDownWidth", arg(width)); }
    void Execute() override { d_.call(u"Execute"); }
    void Delete() override { d_.call(u"Delete"); }
};

class ComEvents : public host::Events, public ComObject {
public:
    ComEvents(DispatchObject object, AfterEvent afterEvent)
        : ComObject(std::move(object)), afterEvent_(std::move(afterEvent)) {}
    // An Office button raises its own Click, which the editor's CommandBarEvents object
    // forwards less reliably (64-bit Office): the button's own events are taken where they
    // exist, the editor's object elsewhere (the VB6 IDE).
    host::CommandBarEventsPtr CommandBarEvents(const host::CommandBarControlPtr& control) override {
        IDispatch* raw = comObjectOf(control);
        if (!control) throw basic::VbError::standard(basic::err::ObjectNotSet, u"CommandBarEvents");
        if (!raw) throw basic::VbError::standard(basic::err::TypeMismatch, u"CommandBarEvents");
        DispatchObject button{ComPtr<IDispatch>(raw)};
        if (raisesEvents(button, kDiidCommandBarButtonEvents)) {
            return std::make_shared<ComCommandBarEvents>(std::move(button), kDiidCommandBarButtonEvents, afterEvent_);
        }
        DispatchObject source = d_.getObject(u"CommandBarEvents", {ComVariant(raw)});
        if (!source) throw basic::VbError::standard(basic::err::ObjectNotSet, u"CommandBarEvents");
        return std::make_shared<ComCommandBarEvents>(std::move(source), kDiidCommandBarControlEvents, afterEvent_);
    }

private:
    AfterEvent afterEvent_;
};

}  // namespace

host::CommandBarsPtr makeCommandBars(DispatchObject o) { return wrap<ComCommandBars, host::CommandBars>(std::move(o)); }
host::CommandBarPtr makeCommandBar(DispatchObject o) { return wrap<ComCommandBar, host::CommandBar>(std::move(o)); }
host::CommandBarControlsPtr makeCommandBarControls(DispatchObject o) {
    return wrap<ComCommandBarControls, host::CommandBarControls>(std::move(o));
}
host::CommandBarControlPtr makeCommandBarControl(DispatchObject o) {
    return wrap<ComCommandBarControl, host::CommandBarControl>(std::move(o));
}
host::EventsPtr makeEvents(DispatchObject o, AfterEvent afterEvent) {
    if (!o) return nullptr;
    return std::make_shared<ComEvents>(std::move(o), std::move(afterEvent));
}

IDispatch* comObjectOf(const host::CommandBarControlPtr& control) {
    auto* com = dynamic_cast<ComObject*>(control.get());
    return com ? com->object().raw() : nullptr;
}

}  // namespace quillet::hosts::com
