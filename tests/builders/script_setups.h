#pragma once
// What the builders' UI scripts of each folder of tests/builders/scripts assume of the settings,
// the prefix standard and the project. Shared by the unit tests, which play the scripts over the
// editor in memory, and by the Wine harness, which plays them on the real windows and writes the
// same settings into the files the add-in reads.

#include <string>
#include <utility>
#include <vector>

#include "basic/variant.h"
#include "settings/catalogue.h"
#include "settings/settings.h"

namespace quillet::testing {

struct ScriptSetup {
    // Catalogue items and their values.
    std::vector<std::pair<long, basic::Variant>> settings;
    // The type prefix standard (the [Prefix] section of the prefix standards file).
    std::vector<settings::TypePrefixRow> prefixes;
    // The text of the module that a script's "# at MODULE:LINE:COL" names, added to the builders'
    // project; empty when the scripts play on the builders' project as it is, caret on basMain's
    // blank line.
    std::vector<basic::Str> module;
};

// The builders' project: every Procedure Builder option off, the usual name constants.
inline std::vector<std::pair<long, basic::Variant>> builderSettings() {
    using namespace settings;
    std::vector<std::pair<long, basic::Variant>> values;
    for (long item : {iiAddHeaderProcedure, iiAddProcedureConstant, iiAddModuleConstantProcedure,
                      iiAddHourglassProcedure, iiArgumentsOnSeparateLines, iiAddReturnStatement})
        values.emplace_back(item, false);
    values.emplace_back(iiModuleNameConstant, basic::Str(u"cstrModule"));
    values.emplace_back(iiProcedureNameConstant, basic::Str(u"cstrProcedure"));
    // No error handler chosen, and no module header for a new module.
    values.emplace_back(iiAddErrorHandlingProcedure, basic::Str());
    values.emplace_back(iiModuleHeaderFile, basic::Str());
    return values;
}

// A prefix standard for the built-in types and the project's classes; the types left out
// (enums, user types, Variant's kin) have no type prefix.
inline std::vector<settings::TypePrefixRow> variablePrefixRows() {
    return {
        {u"Byte", u"byt", u"", u"", u""},       {u"Boolean", u"bln", u"f", u"", u""},
        {u"Integer", u"int", u"i", u"", u""},   {u"Long", u"lng", u"l", u"", u""},
        {u"Single", u"sng", u"", u"", u""},     {u"Double", u"dbl", u"d", u"", u""},
        {u"Currency", u"cur", u"", u"", u""},   {u"Date", u"dtm", u"dat", u"", u""},
        {u"String", u"str", u"s", u"", u""},    {u"Variant", u"var", u"", u"", u""},
        {u"Object", u"obj", u"", u"", u""},     {u"Collection", u"col", u"", u"", u""},
        {u"Decimal", u"dec", u"", u"", u""},
    };
}

// The declaration builders: declarations indented, arguments of a call on one line, and a module
// of their own with a module-level variable and a procedure.
inline ScriptSetup variableScriptSetup() {
    using namespace settings;
    return {{{iiDeclarationIndented, true}, {iiEachArgumentOnANewLine, false}},
            variablePrefixRows(),
            {u"Option Explicit", u"", u"Private mlngCount As Long", u"", u"Public Sub Save(ByVal strPath As String, _",
             u"                lngMode As Long)", u"    Debug.Print strPath", u"End Sub"}};
}

// The Property Builder: its options off, the module prefix "m" and the type prefixes of Long,
// String, Boolean and Collection.
inline ScriptSetup propertyScriptSetup() {
    using namespace settings;
    return {{{iiAddPropertyConstant, false},
             {iiAddModuleConstantProperty, false},
             {iiAddErrorHandlingProperty, basic::Str()},
             {iiPrefixModule, basic::Str(u"m")}},
            {{u"Long", u"lng", u"", u"", u""},
             {u"String", u"str", u"", u"", u""},
             {u"Boolean", u"bln", u"", u"", u""},
             {u"Collection", u"col", u"", u"", u""}},
            {}};
}

// The Class Builder: the Property Builder's setup, and the Method Builder's options off.
inline ScriptSetup classScriptSetup() {
    using namespace settings;
    ScriptSetup setup = propertyScriptSetup();
    for (long item : {iiAddHeaderMethod, iiAddMethodConstant, iiAddModuleConstantMethod, iiAddHourglassMethod})
        setup.settings.emplace_back(item, false);
    setup.settings.emplace_back(iiAddErrorHandlingMethod, basic::Str());
    return setup;
}

// The caret of a script's comment "# at MODULE:LINE[:COL]" (column 1 when left out); false when
// the script has none.
inline bool scriptCaret(const std::string& script, std::string& module, long& line, long& col) {
    size_t at = script.find("# at ");
    if (at == std::string::npos) return false;
    size_t end = script.find('\n', at);
    std::string spec = script.substr(at + 5, end == std::string::npos ? std::string::npos : end - at - 5);
    if (!spec.empty() && spec.back() == '\r') spec.pop_back();
    size_t first = spec.find(':');
    if (first == std::string::npos) return false;
    size_t second = spec.find(':', first + 1);
    module = spec.substr(0, first);
    try {
        line = std::stol(spec.substr(first + 1, second == std::string::npos ? std::string::npos : second - first - 1));
        col = second == std::string::npos ? 1 : std::stol(spec.substr(second + 1));
    } catch (const std::exception&) {
        return false;
    }
    return true;
}

}  // namespace quillet::testing
