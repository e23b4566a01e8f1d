#pragma once
// What making a collection class needs of a test: the file host's Import on the editor in
// memory, a temporary folder, and the shipped collection class template in the settings.

#include <filesystem>
#include <fstream>
#include <sstream>

#include "hosts/files/file_project.h"
#include "hosts/files/temp_dir.h"
#include "platform/scripted_platform.h"
#include "settings/catalogue.h"
#include "settings/settings.h"

namespace quillet::testing {

inline void collectionClassReady(hosts::memory::MemoryVBE& vbe, platform::ScriptedPlatform& platform,
                                 settings::Settings& settings, const hosts::files::testing::TempDir& dir) {
    hosts::files::installFileImportExport(vbe);
    std::filesystem::create_directories(dir / "tmp");
    platform.setTempFolder(settings.Files.systemPath(dir / "tmp") + u"\\");
    settings.IniItemValue[settings::iiCollectionClassTemplate] = basic::Str(u"Templates\\CollectionClass.cls");
    auto shipped = std::filesystem::path(QUILLET_SOURCE_DIR) / "data/quillet/Templates/CollectionClass/CollectionClass.cls";
    std::filesystem::create_directories(dir / "Templates");
    std::filesystem::copy_file(shipped, dir / "Templates" / "CollectionClass.cls",
                               std::filesystem::copy_options::overwrite_existing);
}

}  // namespace quillet::testing
