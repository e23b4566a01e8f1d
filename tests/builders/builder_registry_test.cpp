// Builders open by name from a UI script and from the command bar's routines alike.

#include "builders/builder_registry.h"

#include <gtest/gtest.h>

#include "addin/command_handlers.h"
#include "hosts/memory/vbe.h"
#include "platform/scripted_platform.h"

namespace quillet::builders {
namespace {

TEST(BuilderRegistry, ABuilderOpensByNameFromScriptsAndRoutines) {
    core::Context ctx(hosts::memory::MemoryVBE::create(), std::make_shared<platform::ScriptedPlatform>());
    std::vector<std::vector<Str>> calls;
    RegisterBuilder(ctx, u"frmTest", [&](const std::vector<Str>& args) {
        calls.push_back(args);
        auto& form = ctx.Forms->Adopt(std::make_unique<dialogs::Form>(u"frmTest"));
        form.Show(dialogs::vbModal);
    });
    core::RoutineRun(ctx, u"frmTest", u"Quillet_Startup");
    core::RoutineRun(ctx, u"frmTest");
    EXPECT_TRUE(ctx.Forms->Open(u"FRMTEST", {u"a", u"b"}));
    EXPECT_EQ(calls, (std::vector<std::vector<Str>>{{u"Quillet_Startup"}, {}, {u"a", u"b"}}));
    ASSERT_NE(ctx.Forms->Top(), nullptr);
    EXPECT_EQ(ctx.Forms->Top()->Name(), u"frmTest");
}

}  // namespace
}  // namespace quillet::builders
