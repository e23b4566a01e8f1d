// Code modules and code panes over COM.

#include "hosts/com/com_host.h"
#include "hosts/com/com_object.h"

namespace quillet::hosts::com {

namespace {

class ComCodeModule : public host::CodeModule, public ComObject {
public:
    using ComObject::ComObject;
    Str Name() override { return d_.getStr(u"Name"); }
    host::VBComponentPtr Parent() override { return makeVBComponent(d_.getObject(u"Parent")); }
    host::CodePanePtr CodePane() override { return makeCodePane(d_.getObject(u"CodePane")); }

    long CountOfLines() override { return d_.getLong(u"CountOfLines"); }
    long CountOfDeclarationLines() override { return d_.getLong(u"CountOfDeclarationLines"); }
    Str Lines(long startLine, long count) override { return d_.getStr(u"Lines", {arg(startLine), arg(count)}); }
    void InsertLines(long line, const Str& text) override { d_.call(u"InsertLines", {arg(line), arg(text)}); }
    void ReplaceLine(long line, const Str& text) override { d_.call(u"ReplaceLine", {arg(line), arg(text)}); }
    void DeleteLines(long startLine, long count) override { d_.call(u"DeleteLines", {arg(startLine), arg(count)}); }
    void AddFromString(const Str& text) override { d_.call(u"AddFromString", {arg(text)}); }

    Str ProcOfLine(long line, long& kind) override {
        long k = kind;
        Str name = toStr(d_.get(u"ProcOfLine", {arg(line), ComVariant::byRef(k)}), u"ProcOfLine");
        kind = k;
        return name;
    }
    long ProcBodyLine(const Str& name, long kind) override { return d_.getLong(u"ProcBodyLine", {arg(name), arg(kind)}); }
    long ProcStartLine(const Str& name, long kind) override {
        return d_.getLong(u"ProcStartLine", {arg(name), arg(kind)});
    }
    long ProcCountLines(const Str& name, long kind) override {
        return d_.getLong(u"ProcCountLines", {arg(name), arg(kind)});
    }

    bool Find(const Str& target, long& startLine, long& startCol, long& endLine, long& endCol, bool wholeWord,
              bool matchCase, bool patternSearch) override {
        long sl = startLine, sc = startCol, el = endLine, ec = endCol;
        bool found = toBool(d_.call(u"Find", {arg(target), ComVariant::byRef(sl), ComVariant::byRef(sc),
                                              ComVariant::byRef(el), ComVariant::byRef(ec), arg(wholeWord),
                                              arg(matchCase), arg(patternSearch)}),
                            u"Find");
        if (found) {
            startLine = sl;
            startCol = sc;
            endLine = el;
            endCol = ec;
        }
        return found;
    }
};

class ComCodePane : public host::CodePane, public ComObject {
public:
    using ComObject::ComObject;
    host::CodeModulePtr CodeModule() override { return makeCodeModule(d_.getObject(u"CodeModule")); }
    host::WindowPtr Window() override { return makeWindow(d_.getObject(u"Window")); }
    void GetSelection(long& startLine, long& startCol, long& endLine, long& endCol) override {
        long sl = 0, sc = 0, el = 0, ec = 0;
        d_.call(u"GetSelection",
                {ComVariant::byRef(sl), ComVariant::byRef(sc), ComVariant::byRef(el), ComVariant::byRef(ec)});
        startLine = sl;
        startCol = sc;
        endLine = el;
        endCol = ec;
    }
    void SetSelection(long startLine, long startCol, long endLine, long endCol) override {
        d_.call(u"SetSelection", {arg(startLine), arg(startCol), arg(endLine), arg(endCol)});
    }
    long TopLine() override { return d_.getLong(u"TopLine"); }
    void TopLine(long line) override { d_.put(u"TopLine", arg(line)); }
    long CountOfVisibleLines() override { return d_.getLong(u"CountOfVisibleLines"); }
    void Show() override { d_.call(u"Show"); }
};

class ComCodePanes : public host::CodePanes, public ComObject {
public:
    using ComObject::ComObject;
    long Count() override { return d_.getLong(u"Count"); }
    host::CodePanePtr Item(long index) override { return makeCodePane(d_.getObject(u"Item", {arg(index)})); }
};

}  // namespace

host::CodeModulePtr makeCodeModule(DispatchObject o) { return wrap<ComCodeModule, host::CodeModule>(std::move(o)); }
host::CodePanePtr makeCodePane(DispatchObject o) { return wrap<ComCodePane, host::CodePane>(std::move(o)); }
host::CodePanesPtr makeCodePanes(DispatchObject o) { return wrap<ComCodePanes, host::CodePanes>(std::move(o)); }

}  // namespace quillet::hosts::com
