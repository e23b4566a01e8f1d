#pragma once
// The add-in fixture with the command bar: faces reach the editor's PasteFace through the
// scripted clipboard, the bar is built as at connection, and controls are found by their Tag.

#include <memory>
#include <vector>

#include "addin/command_bar.h"
#include "addin/command_table.h"
#include "addin_fixture.h"
#include "basic/unicode.h"

namespace quillet::testing {

// Connects the scripted clipboard's faces to the face slot the editor's PasteFace reads.
inline void wireFaces(platform::ScriptedPlatform& platform, const std::shared_ptr<memory::MemoryVBE>& vbe) {
    std::weak_ptr<memory::MemoryCommandBars> weak = vbe->commandBars();
    platform.faceSink = [weak](const basic::DispatchPtr& face) {
        auto bars = weak.lock();
        if (!bars) return;
        if (face)
            bars->faceSlot() = memory::Face{face, nullptr};
        else
            bars->faceSlot().reset();
    };
}

// An Office application object as its connector holds it.
inline std::shared_ptr<memory::MemoryDispatch> officeApplication(const Str& name) {
    auto app = std::make_shared<memory::MemoryDispatch>(u"Application");
    app->Put(u"Name", name);
    return app;
}

// The face a control shows: the face number of its picture, 0 for none.
inline long faceOf(host::CommandBarControl& control) {
    auto picture = std::dynamic_pointer_cast<platform::ScriptedPicture>(control.Picture());
    return picture ? picture->faceId() : 0;
}

// One control of the bar met in a walk, with how deep it stands (0 on the bar).
struct WalkedControl {
    host::CommandBarControlPtr control;
    int depth = 0;
    host::CommandBarControlPtr parent;
};

inline void walkControls(const host::CommandBarControlsPtr& controls, int depth,
                         const host::CommandBarControlPtr& parent, std::vector<WalkedControl>& out) {
    for (long i = 1; i <= controls->Count(); ++i) {
        auto control = controls->Item(i);
        out.push_back({control, depth, parent});
        if (control->Type() == host::msoControlPopup) walkControls(control->Controls(), depth + 1, control, out);
    }
}

class CommandBarFixture : public AddinFixture {
protected:
    CommandBarFixture() { wireFaces(*platform, vbe); }

    // ToolBarCreate and the table, as at connection.
    host::CommandBarPtr build() {
        bar = addin::ToolBarCreate(*ctx, vbe->CommandBars(), u"");
        addin::CommandTableCreate(*ctx, bar);
        return bar;
    }

    // Every control of the bar, depth first, in order.
    std::vector<WalkedControl> walk() {
        std::vector<WalkedControl> out;
        walkControls(bar->Controls(), 0, nullptr, out);
        return out;
    }

    // The control with that Tag anywhere on the bar; none when there is no such one.
    host::CommandBarControlPtr tagged(const Str& tag) {
        for (const auto& walked : walk())
            if (walked.control->Tag() == tag) return walked.control;
        return nullptr;
    }

    host::CommandBarControlPtr control(const Str& tag) {
        auto found = tagged(tag);
        EXPECT_TRUE(found) << "no control tagged " << basic::toUtf8(tag);
        return found;
    }

    void click(const Str& tag) {
        if (auto found = control(tag)) found->Execute();
    }

    // The whole text of the active code pane's module.
    Str activeModuleText() {
        auto module = vbe->ActiveCodePane()->CodeModule();
        long count = module->CountOfLines();
        return count == 0 ? Str() : module->Lines(1, count);
    }

    host::CommandBarPtr bar;
};

}  // namespace quillet::testing
