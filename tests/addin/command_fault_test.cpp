// The bar built on an editor that fails calls on purpose: a control the editor refuses leaves
// every other in place, and no failure anywhere in the building escapes.

#include "addin/command_bar.h"
#include "addin/connect.h"

#include "command_fixture.h"
#include "hosts/fault/fault_plan.h"

namespace quillet::testing {
namespace {

namespace fault = hosts::fault;

class CommandBarFaults : public ::testing::Test {
protected:
    // A fresh editor, wrapped; a fresh add-in state on it.
    void start() {
        memoryVbe = memory::MemoryVBE::create();
        platform = std::make_shared<platform::ScriptedPlatform>();
        wireFaces(*platform, memoryVbe);
        plan->reset();
        ctx = std::make_unique<core::Context>(fault::wrapVBE(memoryVbe, plan), platform);
        reports.clear();
        ctx->reportListener = [this](const Str& report) { reports.push_back(report); };
    }
    void build() {
        auto bars = ctx->VBInstance->CommandBars();
        auto bar = addin::ToolBarCreate(*ctx, bars, u"");
        addin::CommandTableCreate(*ctx, bar);
    }
    size_t controlCount() {
        auto bar = memoryVbe->commandBars()->bar(u"Quillet");
        if (!bar) return 0;
        std::vector<WalkedControl> walked;
        walkControls(bar->Controls(), 0, nullptr, walked);
        return walked.size();
    }
    // The calls of a clean build that add a control, in order (1-based call numbers).
    std::vector<long> addCalls() {
        std::vector<long> calls;
        const auto& log = plan->log();
        for (size_t i = 0; i < log.size(); ++i)
            if (log[i] == "CommandBarControls.Add") calls.push_back(static_cast<long>(i) + 1);
        return calls;
    }
    // How many controls the n-th row made carries with it: itself and, for a pop-up, all below.
    static size_t subtreeOfRow(size_t n) {
        std::vector<const addin::CommandRow*> made;
        for (const auto& row : addin::CommandTable())
            if (row.condition == addin::CommandCondition::Always) made.push_back(&row);
        std::vector<long> lost = {made[n]->id};
        size_t count = 1;
        for (size_t i = n + 1; i < made.size(); ++i) {
            if (std::find(lost.begin(), lost.end(), made[i]->parentId) == lost.end()) continue;
            ++count;
            if (made[i]->type == host::msoControlPopup) lost.push_back(made[i]->id);
        }
        return count;
    }

    std::shared_ptr<fault::FaultPlan> plan = std::make_shared<fault::FaultPlan>();
    std::shared_ptr<memory::MemoryVBE> memoryVbe;
    std::shared_ptr<platform::ScriptedPlatform> platform;
    std::unique_ptr<core::Context> ctx;
    std::vector<Str> reports;
};

TEST_F(CommandBarFaults, EachRefusedControlLeavesTheOthersInPlace) {
    start();
    build();
    const size_t whole = controlCount();
    const auto adds = addCalls();
    ASSERT_EQ(adds.size(), whole);
    // A sample of rows: buttons, the bar's pop-ups, nested pop-ups and the drop-down among them.
    for (size_t n = 0; n < adds.size(); n += (n < 12 ? 5 : 9)) {
        SCOPED_TRACE("row " + std::to_string(n));
        start();
        plan->failAt(adds[n]);
        EXPECT_NO_THROW(build());
        EXPECT_EQ(controlCount(), whole - subtreeOfRow(n));
        EXPECT_EQ(reports.size(), 1u);
    }
}

TEST_F(CommandBarFaults, NoFailureWhileConnectingEscapes) {
    auto connectOnce = [this] {
        start();
        addin::Connect connect(platform);
        connect.AddinInstance_OnConnection(fault::wrapVBE(memoryVbe, plan), addin::ext_cm_Startup, nullptr);
        return connect.connected();
    };
    connectOnce();
    const long calls = plan->calls();
    ASSERT_GT(calls, 500);
    // A spread of calls, so the sweep stays quick yet meets every stage of the connection.
    for (long k = 1; k <= calls; k += calls / 20) {
        SCOPED_TRACE(k);
        plan->failAt(k);
        EXPECT_TRUE(connectOnce());
        plan->clearFaults();
    }
}

// A failure in any editor call of the disconnection leaves no bar: left behind it would stay in
// the editor's bars for good, so a failed removal is tried a second time.
TEST_F(CommandBarFaults, AFailedCallWhileDisconnectingLeavesNoBar) {
    auto connectAndDisconnect = [this](long failAt) {
        start();
        addin::Connect connect(platform);
        connect.AddinInstance_OnConnection(fault::wrapVBE(memoryVbe, plan), addin::ext_cm_Startup, nullptr);
        const long connecting = plan->calls();
        if (failAt > 0) plan->failAt(connecting + failAt);
        connect.AddinInstance_OnDisconnection(0);
        plan->clearFaults();
        return plan->calls() - connecting;
    };
    const long calls = connectAndDisconnect(0);
    ASSERT_GT(calls, 3);
    for (long k = 1; k <= calls; ++k) {
        SCOPED_TRACE(k);
        connectAndDisconnect(k);
        EXPECT_FALSE(memoryVbe->commandBars()->bar(u"Quillet"));
    }
}

}  // namespace
}  // namespace quillet::testing
