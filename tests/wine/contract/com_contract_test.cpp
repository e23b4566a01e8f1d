// The host contract over COM: each editor is the memory editor behind the harness's fake COM
// objects, read back through the COM host, so every check goes memory -> IDispatch -> COM host.
// At the end of each test every fake object handed out must have been released, and no call
// may have broken a rule the editor enforces.

#include "fake_editor.h"
#include "host/contract.h"
#include "hosts/com/com_host.h"
#include "hosts/com/com_object.h"
#include "hosts/memory/memory_host.h"

namespace quillet::wine {
namespace {

using host::contract::HostContract;
using hosts::memory::MemoryVBE;

class ComFactory : public host::contract::HostFactory {
public:
    ComFactory() : ledger_(std::make_unique<FakeLedger>()) {}
    ~ComFactory() override {
        EXPECT_TRUE(ledger_->violations.empty()) << ledger_->violations.front();
        if (ledger_->live != 0) {
            ADD_FAILURE() << ledger_->live << " of " << ledger_->created << " editor objects were not released";
            // The objects still alive point at the ledger: it must outlive them.
            (void)ledger_.release();
        }
    }

    host::VBEPtr build(const std::vector<host::contract::ModuleSpec>& modules) override {
        auto memory = MemoryVBE::create();
        auto project = memory->addProject(u"VBAProject", u"C:\\Work\\Book1.xlsm", u"Excel");
        for (const auto& m : modules) project->addComponent(m.name, m.type, m.lines);
        auto editor = hosts::com::ComPtr<IDispatch>::attach(fake(*ledger_, host::VBEPtr(memory)));
        return hosts::com::makeVBE(editor.get());
    }

    host::CodePanePtr openPane(const host::VBEPtr& vbe, const Str& moduleName) override {
        memoryOf(vbe)->openPane(moduleName, true);
        return vbe->ActiveCodePane();
    }

private:
    // The memory editor behind a COM editor made by build().
    static std::shared_ptr<MemoryVBE> memoryOf(const host::VBEPtr& vbe) {
        auto* com = dynamic_cast<hosts::com::ComObject*>(vbe.get());
        FakeObject* editor = com ? fakeOf(com->object().raw()) : nullptr;
        if (!editor) throw std::logic_error("not an editor of this factory");
        return std::dynamic_pointer_cast<MemoryVBE>(editor->target<host::VBE>());
    }

    std::unique_ptr<FakeLedger> ledger_;
};

INSTANTIATE_TEST_SUITE_P(Com, HostContract,
                         ::testing::Values(host::contract::FactoryParam{
                             "Com", [] { return std::make_shared<ComFactory>(); }}),
                         host::contract::factoryName);

}  // namespace
}  // namespace quillet::wine
