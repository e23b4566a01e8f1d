#pragma once
// What the routines that place code and fill the builders' lists work with: the editor, the
// machine, the settings, the project scan, where failures go, and the services of layers that
// may not be there (module headers, the referenced libraries' classes and enums).

#include <functional>
#include <vector>

#include "platform/platform.h"
#include "settings/settings.h"
#include "source/scan_state.h"

namespace quillet::source {

// The product's title in questions and input boxes.
inline constexpr char16_t kProductTitle[] = u"Quillet";

// Kind codes carried in ItemData.
enum KindCode : long {
    KindVariable = 10001,
    KindConstant = 10002,
    KindEnum = 10003,
    KindType = 10004,
    KindProcedureHeader = 10005,
    KindProperty = 10007,
    KindModuleHeader = 10008,
    KindClass = 10009,
};

struct CodeEnv {
    host::VBE& vbe;
    platform::Platform& platform;
    settings::Settings& settings;
    ProjectScanState& state;
    ErrorReporter report;
    // ExpandHeader(kind, name, description): the expanded header text, "" for none.
    std::function<Str(long kind, const Str& name, const Str& description)> expandHeader;
    // The class and enum names the referenced libraries offer, in their order.
    std::function<std::vector<Str>()> referenceClasses;
    std::function<std::vector<Str>()> referenceEnums;
    // Brings the libraries' collections in step with the references (and, with blnReferences,
    // the saved reference information).
    std::function<void(bool blnReferences)> librariesRefresh;
    // ErrorHandleModuleAdd: imports the error-handling module named by the settings.
    std::function<void()> errorHandleModuleAdd;

    ScanEnv scanEnv() const { return ScanEnv{vbe, state, report}; }
    // The indent unit: as many blanks as the editor's tab width.
    Str tabSpaces() const;
};

}  // namespace quillet::source
