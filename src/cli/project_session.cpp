#include "cli/project_session.h"

#include "addin/lifecycle.h"
#include "basic/unicode.h"
#include "cli/caret_setup.h"
#include "settings/file_system.h"
#include "cli/diff.h"

namespace quillet::cli {

namespace files = hosts::files;
namespace memory = hosts::memory;

namespace {

void printDiff(const std::vector<files::FileChange>& changes, std::ostream& out) {
    for (const files::FileChange& change : changes) {
        std::string path = files::displayPath(change.path);
        bool created = change.kind == files::FileChange::Kind::Created;
        bool removed = change.kind == files::FileChange::Kind::Removed;
        if (removed && change.oldLines.empty()) {
            out << "Binary file a/" << path << " removed\n";
            continue;
        }
        DiffNames names{created ? "/dev/null" : "a/" + path, removed ? "/dev/null" : "b/" + path};
        out << unifiedDiff(change.oldLines, change.newLines, names);
    }
}

}  // namespace

std::unique_ptr<files::FileProject> loadProjectFiles(const ToolOptions& options,
                                                     const std::shared_ptr<memory::MemoryVBE>& vbe) {
    files::LoadOptions load;
    load.codePage = options.codePage;
    const std::string& path = *options.project;
    return files::FileProject::load(vbe, std::filesystem::path(std::u8string(path.begin(), path.end())), load);
}

ProjectSession openSession(const ToolOptions& options) {
    ProjectSession session;
    session.vbe = memory::MemoryVBE::create();
    session.project = loadProjectFiles(options, session.vbe);
    files::installFileImportExport(*session.vbe, options.codePage.value_or(files::CodePage::Windows1252));
    session.platform = std::make_shared<platform::ScriptedPlatform>();
    // Files the commands make on the way (the error-handling module's import) go to the
    // machine's own temporary folder.
    Str temp = settings::FileSystem().systemPath(std::filesystem::temp_directory_path());
    session.platform->setTempFolder(temp.empty() || temp.back() == u'\\' ? temp : temp + u"\\");
    placeCaret(*session.vbe, *session.project->project(), options);
    wirePlatform(*session.platform, session.vbe);
    for (const Str& answer : options.answers) session.platform->queueAnswer(answer);
    return session;
}

void startAddin(core::Context& ctx, const ToolOptions& options, std::ostream& err) {
    ctx.reportListener = [&err](const Str& message) { err << basic::toUtf8(message) << "\n"; };
    if (options.settings) ctx.IniSettings->SettingsFolder = *options.settings;
    addin::AddInInitialize(ctx, false);
    addin::ProjectInitialize(ctx, true);
}

void finishSession(ProjectSession& session, const ToolOptions& options, std::ostream& out) {
    if (options.dryRun) {
        printDiff(session.project->changes(), out);
        return;
    }
    for (const files::FileChange& change : session.project->save()) out << files::displayPath(change.path) << "\n";
}

}  // namespace quillet::cli
