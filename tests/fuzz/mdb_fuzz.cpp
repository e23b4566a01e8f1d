// libFuzzer target for the reader of Access database files: the input is a database file. Reading
// it must end in its tables or a VbError, never a crash, a hang or unbounded memory. scripts/fuzz.sh
// builds and runs it over tests/fuzz/mdb_fuzz_corpus (a Jet 4 sample file).

#include <cstddef>
#include <cstdint>
#include <string>

#include "hosts/mdb/access_file.h"

using namespace quillet;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    try {
        hosts::mdb::ReadAccessDatabase(std::string(reinterpret_cast<const char*>(data), size), u"fuzz.mdb");
    } catch (const basic::VbError&) {
    }
    return 0;
}
