#include "addin/quillet_handle.h"

#include "addin/block_commands.h"
#include "addin/core_names.h"
#include "core/caret.h"
#include "core/err_handler.h"
#include "addin/command_handlers.h"
#include "addin/procedure_commands.h"
#include "addin/project_commands.h"
#include "core/command_env.h"
#include "basic/strings.h"

namespace quillet::addin {

namespace {

using Action = void (*)(Context&, const Str& command, const Str& type);

struct Route {
    const char16_t* command;
    Action action;
};

void insertCommandText(Context& ctx, const Str& command, const Str&) { CodeInsert(ctx, command); }

void exitProcedure(Context& ctx, const Str&, const Str&) {
    const auto& scan = ctx.Quick.ProcScan;
    if (scan && !scan->ProcTypeStr().empty()) CodeInsert(ctx, u"Exit " + scan->ProcTypeStr());
}

void errorHandling(Context& ctx, const Str&, const Str& type) { ErrorHandlingAdd(ctx, type); }
void explicitArgument(Context& ctx, const Str&, const Str&) { ExplicitArgumentAdd(ctx); }
void filename(Context& ctx, const Str&, const Str&) { FilenameAdd(ctx); }
void folder(Context& ctx, const Str&, const Str&) { FoldernameAdd(ctx); }

void ifBlock(Context& ctx, const Str& command, const Str&) { IfCodeInsert(ctx, command); }
void loopBlock(Context& ctx, const Str& command, const Str&) { LoopCodeInsert(ctx, command); }

// The commands of the source tools, registered under their command words.
void toolRoutine(Context& ctx, const Str& command, const Str&) { RoutineRun(ctx, command); }

void lineNumbers(Context& ctx, const Str& command, const Str&) {
    LineNumbers(ctx, command == u"Line Numbers Add" ? 0 : 1);
}

// The commands whose dialogs, scans or tools are built elsewhere: they are known words and
// leave the code as it is until those parts are there.
void notAvailableYet(Context&, const Str&, const Str&) {}

// A builder registered under its form name, opened with the command's type as its argument.
void openBuilder(Context& ctx, const Str& formName, const Str& type) {
    auto routine = ctx.routines.find(formName);
    if (routine != ctx.routines.end() && routine->second) routine->second(ctx, type);
}

void propertyBuilder(Context& ctx, const Str&, const Str& type) { openBuilder(ctx, u"frmProperty", type); }

// A new Enum or Type block, named after the word at the caret; "Item" adds to a block that exists.
void enumOrType(Context& ctx, const Str& command, const Str& type) {
    if (type == u"Item") {
        if (ctx.Forms->IsRegistered(u"frmItemAdd")) ctx.Forms->Open(u"frmItemAdd", {command});
        return;
    }
    ctx.Forms->Open(u"frmEnumOrType", {command, ctx.Quick.CurrentWord});
}

// The quick input box of a declaration: the command word says variable or constant.
void inputBox(Context& ctx, const Str& command, const Str& type) { ctx.Forms->Open(u"frmInputBox", {command, type}); }

const std::vector<Route>& routes() {
    static const std::vector<Route> table = {
        {u"Dim", inputBox},
        {u"Const", inputBox},
        {u"Property", propertyBuilder},
        {u"Enum", enumOrType},
        {u"Type", enumOrType},
        {u"GoTo", notAvailableYet},
        {u"On Error GoTo", notAvailableYet},
        {u"Resume ", notAvailableYet},
        {u"With", notAvailableYet},
        {u"Select From Enum", notAvailableYet},
        {u"Insert Variable", notAvailableYet},
        {u"Debug.Print ", notAvailableYet},
        {u"Select Case", notAvailableYet},
        {u"Select Case Else", notAvailableYet},
        {u"Select Case UCase", notAvailableYet},
        {u"On Error Resume Next", insertCommandText},
        {u"On Error GoTo 0", insertCommandText},
        {u"Resume", insertCommandText},
        {u"Resume Next", insertCommandText},
        {u"Exit For", insertCommandText},
        {u"Exit", exitProcedure},
        {u"ErrorHandling", errorHandling},
        {u"If Then", ifBlock},
        {u"If Then Else", ifBlock},
        {u"If Then Else If", ifBlock},
        {u"If Then ElseIf Else", ifBlock},
        {u"End If", ifBlock},
        {u"IfDoLoopUntil", loopBlock},
        {u"IfDoLoopWhile", loopBlock},
        {u"ForEachNext", loopBlock},
        {u"ForNext", loopBlock},
        {u"While", loopBlock},
        {u"Explicit Argument", explicitArgument},
        {u"Filename", filename},
        {u"Folder", folder},
        {u"Comment Lines Add", toolRoutine},
        {u"Comment Lines Remove", toolRoutine},
        {u"Insert Objectname", notAvailableYet},
        {u"Line Numbers Add", lineNumbers},
        {u"Line Numbers Remove", lineNumbers},
    };
    return table;
}

}  // namespace

bool isQuickCommand(const Str& command) {
    for (const auto& route : routes())
        if (command == route.command) return true;
    return false;
}

bool quickCommandAvailable(const Str& command) {
    for (const auto& route : routes())
        if (command == route.command) return route.action != notAvailableYet;
    return false;
}

std::vector<Str> quickCommandWords() {
    std::vector<Str> words;
    for (const auto& route : routes()) words.emplace_back(route.command);
    return words;
}

void QuilletHandle(Context& ctx, const Str& command, const Str& type) {
    const Str where = u"basQuillet.QuilletHandle";
    bool inCode = false;
    if (!guarded(ctx, where, [&] { inCode = IsCodeContext(ctx); }) || !inCode) return;
    ctx.CurrentCommand = command + u"." + type;
    initialize(ctx, command, type);
    for (const auto& route : routes()) {
        if (command != route.command) continue;
        guarded(ctx, where, [&] { route.action(ctx, command, type); });
        return;
    }
}

}  // namespace quillet::addin
