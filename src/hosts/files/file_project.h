#pragma once
// A project on disk, loaded into the in-memory editor: a VB6 project (.vbp), or a folder of
// exported modules with an optional project file (any single *.vbp in it; see project_file.h).
//
// Loading reads every member into a component of a new project of the editor, its hidden lines
// on the component's metadata. Saving writes back only what changed: a module whose code,
// metadata and name are as loaded is not touched; a changed one is written atomically in its
// own code page and line ends; a new component gets a new file (and a member line when the
// project file lists its members); a removed component's file (and .frx) is deleted and its
// member line dropped. A renamed component keeps its file; its VB_Name and member line change.

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "hosts/files/module_file.h"
#include "hosts/files/project_file.h"
#include "hosts/memory/vbe.h"

namespace quillet::hosts::files {

struct LoadOptions {
    // Overrides the project file's CodePage= (Windows-1252 when neither says).
    std::optional<CodePage> codePage;
    // The host of a folder whose project file names none (and of a folder without one).
    Str defaultHost = u"Excel";
};

struct FileChange {
    enum class Kind { Modified, Created, Removed } kind = Kind::Modified;
    std::filesystem::path path;   // the project folder as given, joined with the file
    std::vector<Str> oldLines;    // the file's text before (none for a new file)
    std::vector<Str> newLines;    // after (none for a removed file)
    std::string newBytes;
};

class FileProject {
public:
    // Loads `path` (a project file or a folder) into a new project of `vbe`, which becomes the
    // active project. Throws ProjectError when the project cannot be read; the editor then holds
    // no part of it.
    static std::unique_ptr<FileProject> load(const std::shared_ptr<memory::MemoryVBE>& vbe,
                                             const std::filesystem::path& path, const LoadOptions& options = {});

    std::shared_ptr<memory::MemoryProject> project() const { return project_; }
    const std::filesystem::path& folder() const { return folder_; }
    // The project file, if there is one.
    const std::optional<std::filesystem::path>& projectFilePath() const { return projectFilePath_; }
    // The file a component was loaded from; none for a component added since.
    std::optional<std::filesystem::path> fileOf(const memory::MemoryComponent& component) const;

    // What saving would write, in project order, the project file last. Throws ProjectError
    // when a new component's file name is taken.
    std::vector<FileChange> changes() const;
    // Writes the changes and returns them.
    std::vector<FileChange> save();

    struct LoadedModule {
        std::shared_ptr<memory::MemoryComponent> component;
        std::filesystem::path file;  // relative to the folder
        Str name;
        std::vector<Str> code;
        memory::ModuleMetadata metadata;
        TextLayout layout;
        std::optional<size_t> memberLine;  // its line in the project file
    };

private:
    FileProject() = default;
    friend class ProjectLoader;
    // After a save: what is on disk now is the starting point.
    void rebase();

    std::shared_ptr<memory::MemoryProject> project_;
    std::filesystem::path folder_;
    std::optional<std::filesystem::path> projectFilePath_;
    std::optional<ProjectFile> projectFile_;
    bool listsMembers_ = false;
    CodePage codePage_ = CodePage::Windows1252;
    std::vector<LoadedModule> modules_;
};

// The memory editor's VBComponents.Import and VBComponent.Export over module files.
void installFileImportExport(memory::MemoryVBE& vbe, CodePage codePage = CodePage::Windows1252);

}  // namespace quillet::hosts::files
