// libFuzzer target for the type-library reader: the input is a library file (MSFT bytes, or a PE
// file with a TYPELIB resource). Reading everything it offers must end in results or a
// TypeLibError, never a crash, a hang or unbounded memory. scripts/fuzz.sh builds and runs it over
// tests/fuzz/typelib_fuzz_corpus.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "typelib/msft_reader.h"

using namespace quillet::typelib;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::vector<std::uint8_t> bytes(data, data + size);
    try {
        TypeLibraryPtr library = OpenLibraryBytes(bytes);
        library->AppObjString(library->Name() + u"_Unqualified");
        library->SearchItems();
        for (long i = 0; i < library->TypeInfoCount(); ++i) {
            TypeInfoPtr info = library->TypeInfoAt(i);
            if (info->TypeKind() == TKIND_ALIAS) TypeNameOf(info->AliasTarget());
            for (const MemberInfo& member : info->Members()) {
                TypeNameOf(member.ReturnType);
                for (const ParameterInfo& parameter : member.Parameters) TypeNameOf(parameter.Type);
            }
        }
    } catch (const TypeLibError&) {
    }
    return 0;
}
