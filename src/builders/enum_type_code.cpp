#include "builders/enum_type_code.h"

#include "core/command_env.h"
#include "core/err_handler.h"
#include "source/code_placing.h"
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

}  // namespace

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
