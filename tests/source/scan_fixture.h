#pragma once
// The source fixture with the project-wide collections and a record of reported failures.

#include "source/scan_state.h"
#include "source_fixture.h"

namespace quillet::testing {

class ScanFixture : public SourceFixture {
protected:
    source::ScanEnv env() {
        return {*vbe, state, [this](const basic::VbError& e, const Str& where) {
                    reported.push_back(where + u": " + e.Description());
                }};
    }
    // The names in a collection of records, in order.
    template <class C>
    static std::vector<Str> names(const C& collection) {
        std::vector<Str> out;
        for (const auto& item : collection) out.push_back(item->Name);
        return out;
    }

    source::ProjectScanState state;
    std::vector<Str> reported;
};

}  // namespace quillet::testing
