#include <algorithm>

#include "basic/strings.h"
#include "hosts/files/atomic_write.h"
#include "hosts/files/file_project.h"
#include "hosts/files/project_error.h"
#include "hosts/memory/project.h"

namespace quillet::hosts::files {

namespace fs = std::filesystem;

namespace {

bool sameMembers(const std::vector<memory::MemberAttributes>& a, const std::vector<memory::MemberAttributes>& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto& x, const auto& y) {
        return x.member == y.member && x.kind == y.kind && x.lines == y.lines;
    });
}

bool sameMetadata(const memory::ModuleMetadata& a, const memory::ModuleMetadata& b) {
    return a.header == b.header && a.moduleAttributes == b.moduleAttributes &&
           sameMembers(a.memberAttributes, b.memberAttributes);
}

bool isForm(long type) {
    return type == host::vbext_ct_MSForm || type == host::vbext_ct_VBForm || type == host::vbext_ct_VBMDIForm;
}

// The file's lines: hidden ones, with VB_Name following a rename, and the code.
std::vector<Str> currentLines(const memory::MemoryComponent& component) {
    memory::ModuleMetadata metadata = component.metadata();
    if (moduleNameOf(metadata) != component.name()) {
        metadata.moduleAttributes = withModuleName(metadata.moduleAttributes, component.name());
    }
    return moduleFileLines(metadata, component.lines());
}

// Tracks the project file's lines as members come and go.
class ProjectFileEdit {
public:
    explicit ProjectFileEdit(const std::optional<ProjectFile>& file) : file_(file) {
        if (file_) lines_.assign(file_->lines.begin(), file_->lines.end());
    }
    void replace(size_t line, const Str& text) { lines_[line] = text; }
    void remove(size_t line) { lines_[line].reset(); }
    void add(const Str& text) { added_.push_back(text); }

    // The lines, new member lines after the last member line; none when nothing changed.
    std::optional<std::vector<Str>> result() const {
        if (!file_) return std::nullopt;
        std::vector<Str> out;
        size_t insertAt = file_->keyLinesEnd();
        auto members = file_->members();
        if (!members.empty()) insertAt = members.back().line + 1;
        for (size_t i = 0; i <= lines_.size(); ++i) {
            if (i == insertAt) out.insert(out.end(), added_.begin(), added_.end());
            if (i < lines_.size() && lines_[i]) out.push_back(*lines_[i]);
        }
        if (out == file_->lines) return std::nullopt;
        return out;
    }

private:
    const std::optional<ProjectFile>& file_;
    std::vector<std::optional<Str>> lines_;
    std::vector<Str> added_;
};

}  // namespace

std::vector<FileChange> FileProject::changes() const {
    std::vector<FileChange> out;
    ProjectFileEdit projectEdit(projectFile_);
    const auto& components = project_->components();
    for (const LoadedModule& module : modules_) {
        auto& component = *module.component;
        fs::path path = folder_ / module.file;
        bool present = std::find(components.begin(), components.end(), module.component) != components.end();
        if (!present) {
            out.push_back({FileChange::Kind::Removed, path, moduleFileLines(module.metadata, module.code), {}, {}});
            fs::path frx = fs::path(path).replace_extension(".frx");
            std::error_code ec;
            if (isForm(component.Type()) && fs::exists(frx, ec)) out.push_back({FileChange::Kind::Removed, frx, {}, {}, {}});
            if (module.memberLine) projectEdit.remove(*module.memberLine);
            continue;
        }
        bool renamed = component.name() != module.name;
        if (renamed && module.memberLine) {
            auto listed = projectFile_->memberAt(*module.memberLine);
            projectEdit.replace(*module.memberLine,
                                memberLine(component.Type(), component.name(), listed ? listed->file : Str()));
        }
        if (!renamed && component.lines() == module.code && sameMetadata(component.metadata(), module.metadata)) continue;
        std::vector<Str> newLines = currentLines(component);
        out.push_back({FileChange::Kind::Modified, path, moduleFileLines(module.metadata, module.code), newLines,
                       writeTextLines(newLines, module.layout)});
    }
    for (const auto& component : components) {
        bool loaded = std::any_of(modules_.begin(), modules_.end(),
                                  [&](const LoadedModule& module) { return module.component == component; });
        if (loaded) continue;
        fs::path file = pathOf(component->name() + basic::fromUtf8(extensionFor(component->Type())));
        std::error_code ec;
        if (fs::exists(folder_ / file, ec)) {
            throw ProjectError(displayPath(folder_ / file) + ": already exists; the new module " +
                               basic::toUtf8(component->name()) + " cannot be saved there");
        }
        if (component->metadata().header.empty() && component->metadata().moduleAttributes.empty()) {
            component->metadata() = standardMetadata(component->Type(), component->name());
        }
        std::vector<Str> newLines = currentLines(*component);
        TextLayout layout;
        layout.codePage = codePage_;
        out.push_back({FileChange::Kind::Created, folder_ / file, {}, newLines, writeTextLines(newLines, layout)});
        if (listsMembers_) projectEdit.add(memberLine(component->Type(), component->name(), pathText(file)));
    }
    if (auto lines = projectEdit.result()) {
        out.push_back({FileChange::Kind::Modified, *projectFilePath_, projectFile_->lines, *lines,
                       writeTextLines(*lines, projectFile_->layout)});
    }
    return out;
}

std::vector<FileChange> FileProject::save() {
    std::vector<FileChange> written = changes();
    for (const FileChange& change : written) {
        if (change.kind == FileChange::Kind::Removed) {
            std::error_code ec;
            fs::remove(change.path, ec);
            if (ec) throw ProjectError(displayPath(change.path) + ": cannot be removed (" + ec.message() + ")");
        } else {
            writeFileAtomically(change.path, change.newBytes);
        }
    }
    rebase();
    return written;
}

void FileProject::rebase() {
    const auto& components = project_->components();
    std::erase_if(modules_, [&](const LoadedModule& module) {
        return std::find(components.begin(), components.end(), module.component) == components.end();
    });
    for (const auto& component : components) {
        auto known = std::find_if(modules_.begin(), modules_.end(),
                                  [&](const LoadedModule& module) { return module.component == component; });
        if (known == modules_.end()) {
            TextLayout layout;
            layout.codePage = codePage_;
            modules_.push_back({component, pathOf(component->name() + basic::fromUtf8(extensionFor(component->Type()))),
                                {}, {}, {}, layout, {}});
            known = modules_.end() - 1;
        }
        if (moduleNameOf(component->metadata()) != component->name()) {
            component->metadata().moduleAttributes =
                withModuleName(component->metadata().moduleAttributes, component->name());
        }
        known->name = component->name();
        known->code = component->lines();
        known->metadata = component->metadata();
    }
    if (!projectFilePath_) return;
    projectFile_ = parseProjectFile(readTextLines(readFileBytes(*projectFilePath_), CodePage::Windows1252,
                                                  displayPath(*projectFilePath_)));
    for (LoadedModule& module : modules_) {
        module.memberLine.reset();
        for (const ProjectMember& member : projectFile_->members()) {
            if (memberFilePath(member.file) == module.file) module.memberLine = member.line;
        }
    }
}

}  // namespace quillet::hosts::files
