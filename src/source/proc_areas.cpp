#include "source/proc_areas.h"

#include "basic/strings.h"

namespace quillet::source {

using basic::Compare;
using basic::InStr;
using basic::Left;
using basic::Like;
using basic::Trim;

namespace {

bool beginsWith(const Str& text, const Str& start) {
    return basic::StrComp(Left(text, basic::Len(start)), start, Compare::Text) == 0;
}

Str trimRightBreaks(Str text) {
    while (!text.empty() && (text.back() == u'\r' || text.back() == u'\n')) text.pop_back();
    return text;
}

Str readLines(long start, long count, host::CodeModule* module, const ModuleText* text) {
    if (text) return text->lines(start, count);
    return module ? module->Lines(start, count) : Str();
}

}  // namespace

bool IsDeclarationLine(const Str& line, const Str& previous) {
    Str trimmed = Trim(line);
    return beginsWith(trimmed, u"Const ") || beginsWith(trimmed, u"Dim ") || beginsWith(trimmed, u"Static ") ||
           trimmed.empty() || basic::Right(previous, 2) == u" _";
}

bool LineInsideIf(const std::vector<Str>& lines, long index) {
    if (index < 0 || index >= static_cast<long>(lines.size())) return false;
    return Like(Trim(lines[index]), u"If *");
}

Str ProcedureTypeGet(const Str& vstrName, const Str& vstrStatement) {
    long p = InStr(vstrStatement, vstrName + u"(", Compare::Text);
    Str part = p > 0 ? Left(vstrStatement, p + basic::Len(vstrName)) : vstrStatement;
    if (InStr(part, u"Function", Compare::Text) > 0) return u"Function";
    if (InStr(part, u"Property", Compare::Text) > 0) return u"Property";
    return u"Sub";
}

long ProcExitLineGet(long vlngStart, long vlngEnd, const Str& vstrProcType, Str& rstrCode, bool fCheckIf,
                     host::CodeModule* module, const ModuleText* text) {
    if (vlngStart > 0) rstrCode = readLines(vlngStart, vlngEnd - vlngStart + 1, module, text);
    auto lines = basic::Split(trimRightBreaks(rstrCode), u"\r\n");
    long last = static_cast<long>(lines.size()) - 1;
    long answer = last + (vlngStart > 0 ? vlngStart : 1);
    const Str exitWord = u"Exit " + vstrProcType;
    for (long i = last; i >= 1; --i) {
        const Str& line = lines[i - 1];
        long p = InStr(line, exitWord, Compare::Text);
        if (p == 0) continue;
        if (fCheckIf && LineInsideIf(lines, i - 1)) return answer;
        Str before = Left(line, p - 1);
        if (InStr(before, u"'") == 0 && InStr(before, u"Rem") == 0) return i >= 2 ? i + vlngStart - 1 : answer;
    }
    return answer;
}

void ProcDeclAreaGet(long& rStart, long& rEnd, long vlngLine, long& rDefLines, bool fWithOnError, Str& rstrCode,
                     host::CodeModule* module, const ModuleText* text) {
    if (vlngLine < 1) {
        vlngLine = 1;
    } else {
        if (!module) return;
        long kind = 0;
        Str name = module->ProcOfLine(vlngLine, kind);
        long count = module->ProcCountLines(name, kind) -
                     (module->ProcBodyLine(name, kind) - module->ProcStartLine(name, kind));
        rstrCode = readLines(vlngLine, count, module, text);
    }
    auto lines = basic::Split(rstrCode, u"\r\n");
    const long n = static_cast<long>(lines.size());
    auto lineAt = [&](long index) -> Str { return index >= 0 && index < n ? lines[index] : Str(); };

    long i = 0;
    while (i < n && !Trim(lines[i]).empty() && Trim(lines[i]).back() == u'_') ++i;
    rDefLines = i + 1;
    rEnd = vlngLine;
    rStart = i + 1 + vlngLine;
    if (i + 1 >= n) return;

    ++i;
    while (i < n && (Trim(lines[i]).empty() || Trim(lines[i])[0] == u'\'')) ++i;
    rStart = i + vlngLine;
    while (i < n && IsDeclarationLine(lines[i], lineAt(i - 1))) ++i;
    rEnd = i - 1 + vlngLine;
    long e = i - 1;

    if (i < n && beginsWith(Trim(lines[i]), u"On error ")) {
        if (fWithOnError) ++rEnd;
        long j = i + 1, c = 0, blanks = 0;
        while (j < n && IsDeclarationLine(lines[j], lines[j - 1])) {
            if (Trim(lines[j]).empty()) {
                ++blanks;
            } else {
                ++c;
                blanks = 0;
            }
            ++j;
        }
        if (c > 0) {
            e = j - 1 - blanks;
            rEnd = e + vlngLine;
        }
    }
    while (rEnd >= 1 && e >= 0 && Trim(lineAt(e)).empty()) {
        --rEnd;
        --e;
    }
}

}  // namespace quillet::source
