#include "builders/enum_type_code.h"

#include "core/command_env.h"
#include "core/err_handler.h"
#include "source/code_placing.h"
#include "source/decl_blocks.h"
#include "source/declaration_scan.h"
#include "source/scan_state.h"

namespace quillet::builders {

namespace {

constexpr char16_t kCrLf[] = u"\r\n";

// The lines of the items that are not blank, trimmed.
std::vector<Str> itemLines(const Str& items) {
    std::vector<Str> lines;
    if (items.empty()) return lines;
    for (const Str& line : basic::Split(items, kCrLf)) {
        Str trimmed = basic::Trim(line);
        if (!trimmed.empty()) lines.push_back(trimmed);
    }
    return lines;
}

// The new block in the project's enums or types, as the project scan would have found it.
void blockRecord(core::Context& ctx, const Str& name, bool vfEnum, const std::vector<Str>& lines, const Str& module,
                 bool isPrivate) {
    auto& state = ctx.Scan;
    Str project = source::activeProjectName(*ctx.VBInstance);
    if (!vfEnum) {
        if (!state.ProjectTypes) state.ProjectTypes = source::newCollection<source::clsType>();
        source::TypeAdd(name, *state.ProjectTypes, module, isPrivate, project);
        return;
    }
    if (!state.ProjectEnums) state.ProjectEnums = source::newCollection<source::clsEnum>();
    if (!state.ProjectConsts) state.ProjectConsts = source::newCollection<source::clsConstant>();
    std::vector<Str> statements = lines;
    statements.emplace_back(u"End Enum");
    // Only the members of a public Enum are known in the whole project.
    basic::Collection<source::clsConstantPtr> privateMembers;
    source::EnumAdd(name, statements, 0, *state.ProjectEnums, isPrivate ? privateMembers : *state.ProjectConsts, module,
                    isPrivate, project);
}

constexpr char16_t kItemExists[] = u"Item exist.";

Str firstWord(const Str& text) {
    Str trimmed = basic::Trim(text);
    return trimmed.substr(0, trimmed.find_first_of(u" =':"));
}

// Where the block of that name lives: its module, the Enum's record and, for the project's Enums,
// the record that takes the new member.
struct BlockFound {
    Str module;
    source::clsEnumPtr projectEnum;
    source::clsEnumPtr anyEnum;
};

// The record in the module's list (its module the active one when the scan left it empty), else
// in the project's; `onProjects` gets the project's record.
template <class R, class OnProject>
bool recordFind(const basic::Collection<std::shared_ptr<R>>& moduleList,
                const source::CollectionPtr<R>& projectList, const Str& name, const Str& active,
                std::shared_ptr<R>& record, Str& module, OnProject onProject) {
    if (auto* found = moduleList.Find(name)) {
        record = *found;
        module = record->Module.empty() ? active : record->Module;
        return true;
    }
    auto* found = projectList ? projectList->Find(name) : nullptr;
    if (!found) return false;
    record = *found;
    module = record->Module;
    onProject(record);
    return true;
}

bool blockRecordFind(core::Context& ctx, const DeclarationLists& lists, const Str& name, bool vfEnum, BlockFound& block) {
    auto pane = ctx.VBInstance->ActiveCodePane();
    Str active = pane ? pane->CodeModule()->Parent()->Name() : Str();
    if (vfEnum)
        return recordFind(lists.ModuleEnums, ctx.Scan.ProjectEnums, name, active, block.anyEnum, block.module,
                          [&block](const source::clsEnumPtr& record) { block.projectEnum = record; });
    source::clsTypePtr type;
    return recordFind(lists.ModuleTypes, ctx.Scan.ProjectTypes, name, active, type, block.module,
                      [](const source::clsTypePtr&) {});
}

bool blockHasItem(host::CodeModule& module, long header, long endLine, const Str& item) {
    for (long n = header + 1; n < endLine; ++n)
        if (basic::StrComp(firstWord(module.Lines(n, 1)), item, basic::Compare::Text) == 0) return true;
    return false;
}

// The caret's blank line inside that very block, 0 when the caret is elsewhere.
long caretLineInBlock(core::Context& ctx, host::CodeModule& module, long header, long endLine, bool vfEnum) {
    auto pane = ctx.VBInstance->ActiveCodePane();
    if (!pane || pane->CodeModule()->Parent()->Name() != module.Parent()->Name()) return 0;
    if (source::CaretBlockLine(*ctx.VBInstance, vfEnum) == 0) return 0;
    long line = 0, col = 0, endL = 0, endC = 0;
    pane->GetSelection(line, col, endL, endC);
    return line > header && line < endLine && basic::Trim(module.Lines(line, 1)).empty() ? line : 0;
}

void memberRecord(core::Context& ctx, const source::clsEnumPtr& record, const Str& item) {
    auto member = std::make_shared<source::clsConstant>();
    member->Name = item;
    member->EnumName(record->Name);
    member->Project = record->Project;
    member->Type_ = u"Long";
    source::addFirstWins(record->Items, member, item + u"." + record->Name);
    if (!ctx.Scan.ProjectConsts) ctx.Scan.ProjectConsts = source::newCollection<source::clsConstant>();
    source::addFirstWins(*ctx.Scan.ProjectConsts, member, item);
}

}  // namespace

bool EnumItemAdd(core::Context& ctx, const DeclarationLists& lists, const Str& vstrText, const Str& vstrListName,
                 bool vfEnum) {
    bool added = false;
    core::guarded(ctx, u"basQuillet.EnumItemAdd", [&] {
        BlockFound block;
        if (!blockRecordFind(ctx, lists, basic::Trim(vstrListName), vfEnum, block)) return;
        auto component = source::componentNamed(*ctx.VBInstance, block.module);
        if (!component) return;
        auto module = component->CodeModule();
        long header = 0, endLine = 0;
        if (!source::DeclarationBlockFind(*module, basic::Trim(vstrListName), vfEnum, header, endLine)) return;
        Str item = firstWord(vstrText);
        bool known = false;
        if (block.anyEnum)
            for (const auto& member : block.anyEnum->Items)
                known = known || basic::StrComp(member->Name, item, basic::Compare::Text) == 0;
        if (known || blockHasItem(*module, header, endLine, item)) {
            ctx.Platform().MsgBox(kItemExists, 48, source::kProductTitle);
            return;
        }
        Str line = core::codeEnvOf(ctx).tabSpaces() + vstrText;
        if (long at = caretLineInBlock(ctx, *module, header, endLine, vfEnum))
            module->ReplaceLine(at, line);
        else
            module->InsertLines(endLine, line);
        if (block.projectEnum) memberRecord(ctx, block.projectEnum, item);
        added = true;
    });
    return added;
}

long BlockKindOf(const std::vector<Str>& args) {
    return !args.empty() && basic::StrComp(args[0], u"Type", basic::Compare::Text) == 0 ? source::KindType
                                                                                         : source::KindEnum;
}

Str WithPrefix(const Str& text, const Str& prefix) {
    if (prefix.empty()) return text;
    if (basic::StrComp(basic::Left(text, basic::Len(prefix)), prefix, basic::Compare::Text) == 0) return text;
    return prefix + text;
}

Str TypeEnumText(const Str& name, bool vfEnum, const Str& items, const Str& startValue, const Str& prefix,
                 const Str& accessWord, const Str& indent) {
    Str keyword = vfEnum ? u"Enum" : u"Type";
    Str text = accessWord.empty() ? Str() : accessWord + u" ";
    text += keyword + u" " + WithPrefix(name, prefix) + kCrLf;
    auto lines = itemLines(items);
    if (lines.empty()) return text + indent + kCrLf + u"End " + keyword;
    for (size_t i = 0; i < lines.size(); ++i) {
        text += indent + WithPrefix(lines[i], prefix);
        if (i == 0 && !startValue.empty()) text += u" = " + startValue;
        text += kCrLf;
    }
    return text + u"End " + keyword;
}

bool TypeEnumCodeInsert(core::Context& ctx, const Str& name, bool vfEnum, const Str& items, const Str& module,
                        const Str& startValue, const Str& prefix, const Str& accessWord) {
    bool written = false;
    core::guarded(ctx, u"basQuillet.TypeEnumCodeInsert", [&] {
        auto env = core::codeEnvOf(ctx);
        Str target = module;
        if (target.empty()) {
            auto pane = ctx.VBInstance->ActiveCodePane();
            if (!pane) return;
            target = pane->CodeModule()->Parent()->Name();
        } else {
            target = source::TargetModuleResolve(env, module);
            if (target.empty()) return;
        }
        Str text = TypeEnumText(name, vfEnum, items, startValue, prefix, accessWord, env.tabSpaces());
        Str fullName = WithPrefix(name, prefix);
        if (!source::VarConstCodeAdd(env, text, target, true, false, fullName, 0, false)) return;
        written = true;
        std::vector<Str> lines;
        for (const Str& line : itemLines(items)) lines.push_back(WithPrefix(line, prefix));
        bool isPrivate = basic::StrComp(accessWord, u"Private", basic::Compare::Text) == 0;
        blockRecord(ctx, fullName, vfEnum, lines, target, isPrivate);
    });
    return written;
}

}  // namespace quillet::builders
