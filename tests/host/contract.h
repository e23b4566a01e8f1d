#pragma once
// The behaviour every implementation of the editor's object model must show, as one
// value-parameterised suite (HostContract) over a host factory. The memory host instantiates it
// in tests/hosts/memory; tests/wine/contract runs the same checks over the COM host, under Wine.
// The checks use only the abstract classes of host/objects.h.

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "host/objects.h"

namespace quillet::host::contract {

struct ModuleSpec {
    Str name;
    long type = vbext_ct_StdModule;
    std::vector<Str> lines;
};

// Builds editors for the suite.
class HostFactory {
public:
    virtual ~HostFactory() = default;
    // An editor with one open, unlocked project holding these modules (in this order) and no
    // code pane open.
    virtual VBEPtr build(const std::vector<ModuleSpec>& modules) = 0;
    // Opens the module's code pane as the user would, and makes it the active pane.
    virtual CodePanePtr openPane(const VBEPtr& vbe, const Str& moduleName) = 0;
    // Places a pane's selection as the user would.
    virtual void select(const CodePanePtr& pane, long startLine, long startCol, long endLine, long endCol) {
        pane->SetSelection(startLine, startCol, endLine, endCol);
    }
};

struct FactoryParam {
    std::string name;
    std::function<std::shared_ptr<HostFactory>()> make;
};

inline void PrintTo(const FactoryParam& param, std::ostream* os) { *os << param.name; }

inline std::string factoryName(const ::testing::TestParamInfo<FactoryParam>& info) { return info.param.name; }

class HostContract : public ::testing::TestWithParam<FactoryParam> {
protected:
    void SetUp() override { factory_ = GetParam().make(); }

    VBEPtr build(const std::vector<ModuleSpec>& modules) { return factory_->build(modules); }
    // An editor holding one standard module of these lines.
    VBEPtr buildModule(const Str& name, const std::vector<Str>& lines) { return build({ModuleSpec{name, vbext_ct_StdModule, lines}}); }
    // VBE.ActiveVBProject.VBComponents(name).CodeModule
    static CodeModulePtr moduleOf(const VBEPtr& vbe, const Str& name);

    std::shared_ptr<HostFactory> factory_;
};

// The 19-line module of the worked example of procedure boundaries.
std::vector<Str> workedExampleLines();
// Lines joined by CRLF.
Str joined(const std::vector<Str>& lines);
// The number of the VbError the call raises; 0 when it raises none.
long errorOf(const std::function<void()>& call);

}  // namespace quillet::host::contract
