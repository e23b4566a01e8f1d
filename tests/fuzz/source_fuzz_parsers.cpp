// libFuzzer target for the source model's text parsers: the declaration parsers of variables and
// constants, the argument parsers, the procedure signature parser, the statement splitter
// LineDisjunction, SplitArguments, the declaration-lines joiner and the argument put into a
// procedure's header, and a constant's value as a literal of its type. Any input must end in a
// result, never a crash, a hang or an out-of-bounds read.
//
// Not part of the default build. To build and run it with clang, from the repository's root:
//   clang++ -std=c++20 -g -O1 -fsanitize=fuzzer,address,undefined -I src tests/fuzz/source_fuzz_parsers.cpp \
//     src/basic/*.cpp src/source/*.cpp src/settings/*.cpp src/dialogs/*.cpp src/platform/platform.cpp \
//     -o source_fuzz_parsers
//   ./source_fuzz_parsers -max_total_time=60 tests/fuzz/source_corpus
// The input is read as UTF-8 (ill-formed parts become U+FFFD) so that the seed corpus can be plain
// Basic source.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "basic/unicode.h"
#include "source/const_values.h"
#include "source/declaration_scan.h"
#include "source/declarations.h"
#include "source/literals.h"
#include "source/proc_areas.h"
#include "source/proc_def.h"
#include "source/signature_edit.h"
#include "source/statements.h"
#include "source/words.h"

using namespace quillet;
using namespace quillet::source;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    Str text = basic::fromUtf8(std::string_view(reinterpret_cast<const char*>(data), size));

    for (const Str& statement : LineDisjunction(text)) {
        for (const Str& item : SplitArguments(statement)) {
            clsVariable variable;
            variable.init(item);
            clsConstant constant;
            constant.init(item);
            C4_ProcArgument argument;
            argument.init(item);
        }
        C4_ProcArguments arguments;
        arguments.init(statement);
        KindNameGet(u"Enum", statement);
        ProcedureTypeGet(u"A", statement);
    }

    C4_ProcDef def;
    def.Init2(text, u"basFuzz");

    std::vector<Str> statements;
    auto lines = ModuleText::fromText(text);
    ModuleDeclarationLines(lines, lines.CountOfLines(), statements);
    basic::Collection<clsEnumPtr> enums;
    basic::Collection<clsConstantPtr> consts;
    basic::Collection<clsTypePtr> types;
    basic::Collection<C4_ProcDefPtr> procs;
    for (size_t i = 0; i < statements.size(); ++i) {
        EnumAdd(statements[i], statements, static_cast<long>(i) + 1, enums, consts, u"basFuzz", false, u"P");
        TypeAdd(statements[i], types, u"basFuzz", false, u"P");
        DeclaredProcAdd(statements[i], procs, u"basFuzz", true, u"P");
    }

    Str code = text;
    long start = 0, end = 0, defLines = 0;
    ProcDeclAreaGet(start, end, 0, defLines, true, code);
    ProcExitLineGet(0, 0, u"Sub", code, true);
    for (long before = 0; before <= 3; ++before) SignatureArgumentInsert(text, u"x As Long", before, before % 2 == 0);
    WrapText(text);
    QuoteValue(text, u"Variant");
    // A constant's value as typed into the Constant Builder.
    for (long varType : {0L, 3L, 7L, 8L, 11L}) ConstValueFormat(text, varType, [](const Str& n) { return n.size() % 2 == 0; });
    for (const char16_t* type : {u"Boolean", u"Byte", u"Currency", u"Date", u"Long", u"Single", u"String"})
        ValueConvertsTo(text, type);
    WordAtColumns(text, static_cast<long>(size % 7), static_cast<long>(size % 13));
    return 0;
}
