#include "addin/project_commands.h"

#include <filesystem>

#include "addin/core_names.h"
#include "core/caret.h"
#include "core/err_handler.h"
#include "addin/procedure_commands.h"
#include "core/command_env.h"
#include "basic/strings.h"
#include "settings/code_folders.h"
#include "source/code_placing.h"
#include "source/error_handler_files.h"
#include "source/scan_module.h"
#include "support/com_dlg.h"
#include "support/mod_folder_choose.h"

namespace quillet::addin {

namespace {

constexpr char16_t kModuleFilters[] =
    u"VB Files (*.bas, *.frm, *.cls)|*.bas;*.frm;*.cls|Basic Files (*.bas)|*.bas|Form Files (*.frm)|*.frm|"
    u"Class Files (*.cls)|*.cls|All Files (*.*)|*.*";

bool hasPane(Context& ctx) { return ctx.VBInstance && ctx.VBInstance->ActiveCodePane(); }

void quotedAtCaret(Context& ctx, const Str& path) {
    auto env = codeEnvOf(ctx);
    source::CodeReplace(env, u"\"" + path + u"\"");
}

Str currentFolder(Context& ctx) {
    std::error_code error;
    auto folder = std::filesystem::current_path(error);
    return error ? Str() : ctx.IniSettings->Files.systemPath(folder);
}

// The file filter and extension of a component's kind.
std::pair<Str, Str> exportKind(long type) {
    switch (type) {
        case host::vbext_ct_StdModule: return {u"Basic Files (*.bas)|*.bas", u".bas"};
        case host::vbext_ct_ClassModule: return {u"Class Files (*.cls)|*.cls", u".cls"};
        case host::vbext_ct_PropPage: return {u"Property Pages (*.pag)|*.pag", u".pag"};
        case host::vbext_ct_UserControl: return {u"User Controls (*.ctl)|*.ctl", u".ctl"};
        case host::vbext_ct_DocObject: return {u"User Documents (*.dob)|*.dob", u".dob"};
        case host::vbext_ct_ActiveXDesigner: return {u"Designers (*.dsr)|*.dsr", u".dsr"};
        case host::vbext_ct_Document: return {u"Class Files (*.cls)|*.cls", u".cls"};
        default: return {u"Form Files (*.frm)|*.frm", u".frm"};
    }
}

void openRoutine(Context& ctx, const Str& name, const Str& argument) {
    auto routine = ctx.routines.find(name);
    if (routine != ctx.routines.end() && routine->second) routine->second(ctx, argument);
}

}  // namespace

void FilenameAdd(Context& ctx) {
    guarded(ctx, u"basQuillet.FilenameAdd", [&] {
        if (!hasPane(ctx)) return;
        support::ComDlg dialog(ctx.Platform());
        dialog.DialogTitle = u"Select File";
        dialog.Filter = u"All Files|*.*";
        if (dialog.ShowOpen()) quotedAtCaret(ctx, dialog.FileName);
    });
}

void FoldernameAdd(Context& ctx) {
    guarded(ctx, u"basQuillet.FoldernameAdd", [&] {
        if (!hasPane(ctx)) return;
        Str folder = support::BrowseForFolder(ctx.Platform(), u"Select Folder", currentFolder(ctx));
        if (!folder.empty()) quotedAtCaret(ctx, folder);
    });
}

void ImportFile(Context& ctx) {
    guarded(ctx, u"basCommands.ImportFile", [&] {
        support::ComDlg dialog(ctx.Platform());
        dialog.DialogTitle = u"Import File";
        dialog.Directory = settings::LibraryFolder(*ctx.IniSettings);
        dialog.Filter = kModuleFilters;
        if (!dialog.ShowOpen()) return;
        ctx.VBInstance->ActiveVBProject()->VBComponents()->Import(dialog.FileName);
    });
}

void ExportFile(Context& ctx) {
    guarded(ctx, u"basCommands.ExportFile", [&] {
        auto component = ctx.VBInstance->SelectedVBComponent();
        if (!component) return;
        auto [filter, extension] = exportKind(component->Type());
        support::ComDlg dialog(ctx.Platform());
        dialog.DialogTitle = u"Export File";
        dialog.Filter = filter;
        dialog.FileName = component->Name() + extension;
        if (!dialog.ShowSave()) return;
        auto& files = ctx.IniSettings->Files;
        if (files.FileExists(dialog.FileName)) files.DeleteFile(dialog.FileName);
        component->Export(dialog.FileName);
    });
}

void FormOpen(Context& ctx, const Str& form, bool blnCheckCode, bool blnInit, const Str& arg, bool blnRefresh) {
    guarded(ctx, u"basCommands.FormOpen", [&] {
        if (blnCheckCode && !IsCodeContext(ctx)) return;
        if (blnRefresh) ProjectRefresh(ctx);
        openRoutine(ctx, form, blnInit ? arg : Str());
    });
}

void ControlsAddFormOpen(Context& ctx) {
    guarded(ctx, u"basCommands.ControlsAddFormOpen", [&] {
        Str form;
        if (auto component = ctx.VBInstance->SelectedVBComponent(); component && component->Designer()) {
            form = component->Name();
            auto window = ctx.VBInstance->ActiveWindow();
            if (!window || window->Type() != host::vbext_wt_CodeWindow) {
                auto designer = component->DesignerWindow();
                designer->Visible(true);
                designer->SetFocus();
            }
        }
        openRoutine(ctx, u"frmControlBuilder", form);
    });
}

void LineNumbers(Context& ctx, long mode) {
    guarded(ctx, u"basCommands.LineNumbers", [&] {
        if (!hasPane(ctx)) return;
        openRoutine(ctx, mode == 0 ? u"LineNumbersAdd" : u"LineNumbersRemove", {});
    });
}

void RegisterScanCommands(Context& ctx) {
    auto& routines = ctx.routines;
    routines[u"ImportFile"] = [](Context& c, const Str&) { ImportFile(c); };
    routines[u"ExportFile"] = [](Context& c, const Str&) { ExportFile(c); };
    routines[u"ControlsAddFormOpen"] = [](Context& c, const Str&) { ControlsAddFormOpen(c); };
    routines[u"AccessObjectInventory"] = [](Context& c, const Str&) { AccessObjectInventory(c); };
    routines[u"LineNumbers"] = [](Context& c, const Str& mode) {
        LineNumbers(c, basic::IsNumeric(mode) ? static_cast<long>(basic::CLng(mode)) : 0);
    };
    ctx.ErrorHandlersList = [&ctx] { return source::ErrorHandlersList(*ctx.IniSettings); };
    ctx.ExplicitArgumentAvailable = [&ctx] {
        if (!hasPane(ctx)) return false;
        ignoringErrors([&] { ctx.Quick.ModuleProcs = source::ModuleProperProcsGet(ctx.scanEnv(), nullptr, true); });
        return ExplicitArgumentAvailable(ctx);
    };
}

}  // namespace quillet::addin
