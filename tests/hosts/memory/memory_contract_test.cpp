// The host contract, run on the in-memory editor.

#include "host/contract.h"
#include "hosts/memory/memory_host.h"

namespace quillet::hosts::memory {
namespace {

using host::contract::HostContract;

class MemoryFactory : public host::contract::HostFactory {
public:
    host::VBEPtr build(const std::vector<host::contract::ModuleSpec>& modules) override {
        auto vbe = MemoryVBE::create();
        auto project = vbe->addProject(u"VBAProject", u"C:\\Work\\Book1.xlsm", u"Excel");
        for (const auto& m : modules) project->addComponent(m.name, m.type, m.lines);
        return vbe;
    }
    host::CodePanePtr openPane(const host::VBEPtr& vbe, const Str& moduleName) override {
        return std::dynamic_pointer_cast<MemoryVBE>(vbe)->openPane(moduleName, true);
    }
};

INSTANTIATE_TEST_SUITE_P(Memory, HostContract,
                         ::testing::Values(host::contract::FactoryParam{
                             "Memory", [] { return std::make_shared<MemoryFactory>(); }}),
                         host::contract::factoryName);

}  // namespace
}  // namespace quillet::hosts::memory
