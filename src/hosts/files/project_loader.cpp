#include <algorithm>
#include <map>

#include "basic/strings.h"
#include "hosts/files/file_project.h"
#include "hosts/files/project_error.h"
#include "hosts/memory/project.h"

namespace quillet::hosts::files {

namespace fs = std::filesystem;
using basic::Compare;
using basic::StrComp;

namespace {

constexpr const char* kModuleExtensions[] = {".bas", ".cls", ".frm", ".doccls", ".ctl", ".pag", ".dob", ".dsr"};

std::string lowered(std::string text) {
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

bool isModuleFile(const fs::path& path) {
    std::string extension = lowered(path.extension().string());
    return std::any_of(std::begin(kModuleExtensions), std::end(kModuleExtensions),
                       [&](const char* known) { return extension == known; });
}

struct Candidate {
    fs::path file;                     // relative to the folder
    std::optional<size_t> memberLine;  // in the project file
    Str listedName;
};

}  // namespace

class ProjectLoader {
public:
    ProjectLoader(const std::shared_ptr<memory::MemoryVBE>& vbe, const LoadOptions& options)
        : vbe_(vbe), options_(options), result_(new FileProject()) {}

    std::unique_ptr<FileProject> load(const fs::path& path) {
        locate(path);
        readProjectFile();
        std::vector<Candidate> candidates = memberCandidates();
        std::vector<ModuleFile> files;
        for (const Candidate& candidate : candidates) files.push_back(readModule(candidate.file));
        auto project = createProject();
        try {
            addComponents(*project, candidates, files);
        } catch (...) {
            vbe_->removeProject(project);
            throw;
        }
        result_->project_ = project;
        vbe_->setActiveProject(project);
        return std::move(result_);
    }

private:
    void locate(const fs::path& path) {
        std::error_code ec;
        if (!fs::exists(path, ec)) throw ProjectError(displayPath(path) + ": no such project file or folder");
        if (!fs::is_directory(path, ec)) {
            result_->folder_ = path.parent_path();
            result_->projectFilePath_ = path;
            return;
        }
        result_->folder_ = path;
        std::vector<fs::path> projectFiles;
        for (const auto& entry : fs::directory_iterator(path, ec)) {
            if (entry.is_regular_file() && lowered(entry.path().extension().string()) == ".vbp") {
                projectFiles.push_back(entry.path());
            }
        }
        if (projectFiles.size() > 1) {
            throw ProjectError(displayPath(path) + ": holds several project files (.vbp); name the one to use");
        }
        if (projectFiles.size() == 1) result_->projectFilePath_ = projectFiles[0];
    }

    void readProjectFile() {
        if (!result_->projectFilePath_) return;
        const fs::path& path = *result_->projectFilePath_;
        std::string bytes = readFileBytes(path);
        result_->projectFile_ = parseProjectFile(readTextLines(bytes, CodePage::Windows1252, displayPath(path)));
        const ProjectFile& file = *result_->projectFile_;
        result_->listsMembers_ = !file.members().empty();
        if (auto value = file.value(u"CodePage")) {
            auto codePage = codePageNamed(basic::toUtf8(*value));
            if (!codePage) {
                throw ProjectError(displayPath(path) + ": unknown code page \"" + basic::toUtf8(*value) +
                                   "\" (use 1252 or 65001)");
            }
            result_->codePage_ = *codePage;
        }
    }

    std::vector<Candidate> memberCandidates() {
        if (options_.codePage) result_->codePage_ = *options_.codePage;
        std::vector<Candidate> candidates;
        if (result_->listsMembers_) {
            for (const ProjectMember& member : result_->projectFile_->members()) {
                candidates.push_back({memberFilePath(member.file), member.line, member.name});
            }
        } else {
            std::error_code ec;
            for (const auto& entry : fs::directory_iterator(result_->folder_, ec)) {
                if (entry.is_regular_file() && isModuleFile(entry.path())) candidates.push_back({entry.path().filename(), {}, {}});
            }
            std::sort(candidates.begin(), candidates.end(), [](const Candidate& a, const Candidate& b) {
                return StrComp(pathText(a.file), pathText(b.file), Compare::Text) < 0;
            });
        }
        if (candidates.empty()) {
            std::string where = displayPath(result_->projectFilePath_ ? *result_->projectFilePath_ : result_->folder_);
            throw ProjectError(where + ": the project has no modules (no .bas, .cls or .frm files)");
        }
        return candidates;
    }

    ModuleFile readModule(const fs::path& file) {
        fs::path path = result_->folder_ / file;
        std::error_code ec;
        if (!fs::exists(path, ec) && result_->projectFilePath_) {
            throw ProjectError(displayPath(*result_->projectFilePath_) + ": names " + displayPath(file) +
                               ", which does not exist");
        }
        std::string bytes = readFileBytes(path);
        return parseModuleFile(readTextLines(bytes, result_->codePage_, displayPath(path)), displayPath(path));
    }

    std::shared_ptr<memory::MemoryProject> createProject() {
        const auto& file = result_->projectFile_;
        bool vb6 = file && file->value(u"Type");
        Str host = file && file->value(u"Host") ? *file->value(u"Host") : vb6 ? Str(u"VBRUN") : options_.defaultHost;
        Str name = file && file->value(u"Name") ? *file->value(u"Name") : vb6 ? Str(u"Project1") : Str(u"VBAProject");
        fs::path where = result_->projectFilePath_ ? *result_->projectFilePath_ : result_->folder_;
        auto project = vbe_->addProject(name, pathText(fs::absolute(where).make_preferred()), host);
        auto& references = project->references();
        if (vb6) addVb6References(references);
        if (file) {
            for (const Str& value : file->values(u"Reference")) {
                auto reference = parseReference(value);
                bool known = reference && std::any_of(references.begin(), references.end(), [&](const auto& r) {
                                 return StrComp(r.guid, reference->guid, Compare::Text) == 0;
                             });
                if (reference && !known) references.push_back(*reference);
            }
        }
        return project;
    }

    // VB6 projects: VBA is the runtime's, and the VB objects library follows VBRUN.
    static void addVb6References(std::vector<memory::ReferenceInfo>& references) {
        if (!references.empty()) {
            references[0].fullPath = u"C:\\Windows\\SysWOW64\\MSVBVM60.DLL";
            references[0].major = 6;
            references[0].minor = 0;
        }
        references.push_back({u"VB", u"C:\\Program Files (x86)\\Microsoft Visual Studio\\VB98\\VB6.OLB",
                              u"{FCFB3D2E-A0FA-1068-A738-08002B3371B5}", 6, 0, u"Visual Basic objects and procedures",
                              true, false});
    }

    bool isDocument(const fs::path& file, const Str& name) const {
        if (lowered(file.extension().string()) == ".doccls") return true;
        if (!result_->projectFile_) return false;
        for (const Str& value : result_->projectFile_->values(u"Document")) {
            Str declared = basic::Trim(value.substr(0, value.find(u';')));
            if (StrComp(declared, name, Compare::Text) == 0) return true;
        }
        return false;
    }

    void addComponents(memory::MemoryProject& project, const std::vector<Candidate>& candidates,
                       std::vector<ModuleFile>& files) {
        std::vector<size_t> order(candidates.size());
        for (size_t i = 0; i < order.size(); ++i) order[i] = i;
        std::vector<Str> names(candidates.size());
        for (size_t i = 0; i < candidates.size(); ++i) names[i] = nameOf(candidates[i], files[i]);
        // The editor lists document modules first.
        std::stable_partition(order.begin(), order.end(),
                              [&](size_t i) { return isDocument(candidates[i].file, names[i]); });
        std::map<Str, size_t> taken;  // by name in upper case, as names compare
        for (size_t i : order) {
            auto [first, added] = taken.emplace(basic::UCase(names[i]), i);
            if (!added) {
                throw ProjectError(displayPath(result_->folder_ / candidates[i].file) + ": holds the module " +
                                   basic::toUtf8(names[i]) + ", which " +
                                   displayPath(result_->folder_ / candidates[first->second].file) + " holds already");
            }
            long type = isDocument(candidates[i].file, names[i]) ? host::vbext_ct_Document
                                                                 : componentTypeOf(files[i].metadata);
            auto component = project.addComponent(names[i], type, files[i].code);
            component->metadata() = files[i].metadata;
            result_->modules_.push_back({component, candidates[i].file, names[i], std::move(files[i].code),
                                         std::move(files[i].metadata), files[i].layout, candidates[i].memberLine});
        }
    }

    static Str nameOf(const Candidate& candidate, const ModuleFile& file) {
        Str name = moduleNameOf(file.metadata);
        if (name.empty()) name = candidate.listedName;
        if (name.empty()) name = pathText(candidate.file.stem());
        return name;
    }

    std::shared_ptr<memory::MemoryVBE> vbe_;
    LoadOptions options_;
    std::unique_ptr<FileProject> result_;
};

std::unique_ptr<FileProject> FileProject::load(const std::shared_ptr<memory::MemoryVBE>& vbe, const fs::path& path,
                                               const LoadOptions& options) {
    return ProjectLoader(vbe, options).load(path);
}

std::optional<fs::path> FileProject::fileOf(const memory::MemoryComponent& component) const {
    for (const auto& module : modules_) {
        if (module.component.get() == &component) return folder_ / module.file;
    }
    return std::nullopt;
}

}  // namespace quillet::hosts::files
