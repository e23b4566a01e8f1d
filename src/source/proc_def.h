#pragma once
// One procedure that stands in source text (or one half of a property: Let, Set and Get are
// procedures of their own): its signature, kind, place and arguments.

#include <memory>

#include "host/objects.h"
#include "source/errors.h"
#include "source/module_text.h"
#include "source/proc_arguments.h"

namespace quillet::source {

// "Sub/Function", "Property Let", "Property Set" or "Property Get"; "" for another number.
Str ProcKindStrOf(long kind);

class C4_ProcDef {
public:
    C4_ProcDef() : ProcArguments(std::make_shared<C4_ProcArguments>()) {}

    // Fills the record from the module: place, code, signature and arguments. `activeProjectName`
    // is the active project's name (GroupName is the project's name when they are the same,
    // ignoring case). With `text`, the module's lines come from it instead of the host.
    void init(const Str& vstrProjName, host::CodeModule& rmdl, const Str& vstrProcName, long vlngProcKind,
              const Str& activeProjectName, const ModuleText* text = nullptr);
    // Fills the record from a stored piece of library code.
    void Init2(const Str& rstrProcedureCode, const Str& vstrModuleName);
    // Reads the line numbers and ProcCode from the host (or from `text`).
    void ProcedureParameters(host::CodeModule& rmdl, const ModuleText* text = nullptr);
    // Parses ProcCode: signature, kind of access, name, return type.
    void ProcDefGet();

    // Where failures are reported ("C4_ProcDef.ProcDefGet" ...).
    ErrorReporter Report;

    Str Project;
    Str ModuleName;
    Str Name;
    long ProcKind = 0;
    Str ProcKindStr;
    long ProcBodyLine = 0;
    long ProcCountLines = 0;
    long ProcStartLine = 0;
    bool IsDeclarationSection() const { return false; }
    bool ProcIsPublic = false;
    bool ProcIsStatic = false;
    Str ProcCode;
    bool ProcIsFunction = false;
    Str ProcReturnType;
    Str HelpStr;
    Str GroupName;
    Str HelpFile;
    long HelpContext = 0;
    long ProcDefStartLine = 0;
    long ProcDefCountOfLines = 0;
    Str ProcDef;
    Str OneLineProcDef;
    std::shared_ptr<C4_ProcArguments> ProcArguments;
    bool IsLibraryProcedure = false;
};

using C4_ProcDefPtr = std::shared_ptr<C4_ProcDef>;

}  // namespace quillet::source
