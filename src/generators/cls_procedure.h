#pragma once
// The model of a procedure that does not exist yet: a builder fills its fields, GenerateCode
// turns them into text in one fixed order, Create puts the text into a module and the caret into
// the new body. Error handler, return line and hourglass are templates with markers merged into
// the text; nothing touches the editor before Create.

#include <memory>

#include "core/context.h"
#include "source/record_collections.h"

namespace quillet::generators {

using basic::Str;

class clsProcedure {
public:
    explicit clsProcedure(core::Context& ctx) : ctx_(&ctx) {}

    Str Name;
    Str ID;                // key in colProcedures
    Str AccessibleType;    // "Public", "Private", "Friend" or ""
    Str ProcType;          // "Sub", "Function" or "Property"
    Str PropertyType;      // "Get", "Let" or "Set", for a Property
    Str ReturnValueType;   // "" for none
    bool IsStatic = false;
    Str ModuleName;        // the target module
    long ModuleType = 0;
    bool IncludeComment = false;  // the procedure header
    bool IncludeErrorHandler = false;
    Str ErrorHandlerFile;  // the name chosen in the list
    Str ErrorHandler;      // the template's text
    bool IncludeHourglass = false;
    Str Description;       // {DESCRIPTION} of the header
    bool ModuleNameConstant = false;
    bool ProcedureNameConstant = false;
    bool AddReturnStatement = false;
    bool ArgumentsOnSeparateLine = false;

    // The procedure's text, lines ended by CRLF; the preset text when one is set. Failures are
    // reported and the text as far as it got comes back.
    Str GenerateCode();
    // The argument list in Number order; with ArgumentsOnSeparateLine and rIndent above 0, each
    // argument behind the first on a line of its own, rIndent blanks in.
    void GetArgString(long rIndent, Str& text);
    // Puts strCode into the module ModuleName of the project: at its end, or (AddFromString)
    // behind its declarations. With blnSetCursor, and that module's pane active, the caret goes
    // to the new body (or a <cursor> marker); otherwise the markers go and the caret stays.
    void Create(const Str& strCode, const host::VBProjectPtr& objVBProject, bool blnToEndOfModule, bool blnSetCursor);
    // Each argument behind the deleted one moves one place up.
    void ArgumentsRenumber(long lngDeletedNumber);
    // 1 when an argument without Optional follows an Optional one, 2 when one without ParamArray
    // follows a ParamArray, else 0.
    long ArgumentsOrderIsBad();
    // A preset text that GenerateCode gives as it is.
    void ProcContent(const Str& text) { ProcContent_ = text; }
    // Created at first use.
    source::colArguments& Arguments();
    // The signature of the last GenerateCode.
    const Str& ProcDefinition() const { return ProcDefinition_; }
    // Merge the error handler template, or the hourglass pair, into the text of a procedure of
    // this model's name and module (the property model wraps each of its procedures so).
    void AddErrorHandler(Str& rstrCode);
    void AddHourglass(Str& rstrCode);

private:
    void BuildHourglass(bool fOn, Str& line);
    void AddReturnLine(Str& rstrCode);
    void CursorPositionSet(const host::VBProjectPtr& objVBProject);
    Str Indent();

    core::Context* ctx_;
    Str ProcDefinition_;
    Str ProcContent_;
    std::unique_ptr<source::colArguments> Arguments_;
};

// The procedures of a class under construction, each under its name and a random number (its ID).
using colProcedures = source::RandomKeyedCollection<clsProcedure, &clsProcedure::ID>;

}  // namespace quillet::generators
