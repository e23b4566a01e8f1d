#pragma once
// Names that the host application's documents offer to the code: the names of the active Excel
// workbook, the controls of an Access form or report, gathered for "Insert Variable". The
// application objects are reached late-bound, by member name.

#include <chrono>

#include "dialogs/control.h"
#include "source/code_env.h"

namespace quillet::source {

// The Office application objects a command may use; none for a host that is not running.
struct HostAppObjects {
    basic::DispatchPtr ExcelApp, AccessApp;
};

// Range("<name>") for each name of the active workbook, when the active project is that
// workbook's (same file, or a project never saved whose main window's caption holds the
// workbook's name).
std::vector<Str> GetExcelNames(CodeEnv& env, const basic::DispatchPtr& excelApp);

// "Me." & Name for each control of the form or report whose module is `moduleName`
// ("Form_frmOrders", "Report_rptSales"). A form that is not open is opened by the keys
// " {BACKSPACE}" and waited for (DoEvents) at most `wait`; still closed, nothing.
std::vector<Str> GetAccessControls(CodeEnv& env, const basic::DispatchPtr& accessApp, const Str& moduleName,
                                   std::chrono::milliseconds wait = std::chrono::milliseconds(1000));

// The host's objects for the selected module: Excel's names, Access's controls, and "Me." &
// name for each variable of kind Form or Report when the selected component is a document or a
// form; sorted, each once.
std::vector<Str> ObjectsForInsert(CodeEnv& env, const HostAppObjects& apps,
                                  const basic::Collection<clsVariablePtr>* variables = nullptr);
// The same, added to the list.
void ObjectsForInsert(CodeEnv& env, const HostAppObjects& apps, dialogs::Control& combo,
                      const basic::Collection<clsVariablePtr>* variables = nullptr);

}  // namespace quillet::source
