// The editor's windows over COM.

#include "hosts/com/com_host.h"
#include "hosts/com/com_object.h"

namespace quillet::hosts::com {

namespace {

class ComWindow : public host::Window, public ComObject {
public:
    using ComObject::ComObject;
    long Type() override { return d_.getLong(u"Type"); }
    Str Caption() override { return d_.getStr(u"Caption"); }
    bool Visible() override { return d_.getBool(u"Visible"); }
    void Visible(bool visible) override { d_.put(u"Visible", arg(visible)); }
    // A hidden Long on the editor's windows; handles fit 32 bits even in a 64-bit process.
    host::WindowHandle hWnd() override { return d_.getLong(u"HWnd"); }
    void SetFocus() override { d_.call(u"SetFocus"); }
    void Close() override { d_.call(u"Close"); }
};

class ComWindows : public host::Windows, public ComObject {
public:
    using ComObject::ComObject;
    long Count() override { return d_.getLong(u"Count"); }
    host::WindowPtr Item(long index) override { return makeWindow(d_.getObject(u"Item", {arg(index)})); }
    host::WindowPtr CreateToolWindow(const basic::DispatchPtr& addInInst, const Str& progId, const Str& caption,
                                     const Str& guidPosition, basic::DispatchPtr& docObj) override {
        IDispatch* doc = nullptr;
        ComVariant result;
        try {
            result = d_.call(u"CreateToolWindow", {ComVariant(comObjectOf(addInInst)), arg(progId), arg(caption),
                                                   arg(guidPosition), ComVariant::byRef(doc)});
        } catch (...) {
            if (doc) doc->Release();
            throw;
        }
        docObj = wrapDispatch(doc);
        if (doc) doc->Release();
        return makeWindow(toObject(result, u"CreateToolWindow"));
    }
};

}  // namespace

host::WindowPtr makeWindow(DispatchObject o) { return wrap<ComWindow, host::Window>(std::move(o)); }
host::WindowsPtr makeWindows(DispatchObject o) { return wrap<ComWindows, host::Windows>(std::move(o)); }

}  // namespace quillet::hosts::com
