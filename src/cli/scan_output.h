#pragma once
// The scans as the quillet tool prints them: as JSON (keys are the collections' and records'
// field names, collections are arrays in their order) or as text for reading.

#include <memory>
#include <ostream>

#include "source/scan_module.h"
#include "source/scan_proc.h"
#include "source/scan_state.h"

namespace quillet::cli {

struct ScanOutput {
    const source::ProjectScanState* project = nullptr;  // the five project-wide collections
    std::unique_ptr<source::clsScanModule> module;       // or a module's scan
    std::unique_ptr<source::clsScanProc> procedure;       // and the procedure scan
};

void writeScanJson(const ScanOutput& scan, std::ostream& out);
void writeScanText(const ScanOutput& scan, std::ostream& out);

}  // namespace quillet::cli
