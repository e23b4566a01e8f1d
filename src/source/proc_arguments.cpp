#include "source/proc_arguments.h"

#include "source/statements.h"

namespace quillet::source {

using basic::Left;
using basic::Len;
using basic::Mid;
using basic::Trim;

namespace {

bool startsWith(const Str& text, const Str& start) { return text.compare(0, start.size(), start) == 0; }

// Position (1-based) of the first "(" outside quotes, 0 when none.
long firstOpenOutsideQuotes(const Str& text) {
    bool inQuotes = false;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == u'"') inQuotes = !inQuotes;
        else if (text[i] == u'(' && !inQuotes) return static_cast<long>(i) + 1;
    }
    return 0;
}

// Position (1-based) of the last ")" outside quotes, walking from the end; 0 when none.
long lastCloseOutsideQuotes(const Str& text) {
    bool inQuotes = false;
    for (size_t i = text.size(); i-- > 0;) {
        if (text[i] == u'"') inQuotes = !inQuotes;
        else if (text[i] == u')' && !inQuotes) return static_cast<long>(i) + 1;
    }
    return 0;
}

}  // namespace

void C4_ProcArgument::init(const Str& vstrArgDef) {
    ArgDef_ = vstrArgDef;
    if (Len(Trim(vstrArgDef)) < 1) return;
    Str rest = vstrArgDef;
    if (Len(Trim(vstrArgDef)) > 8 && startsWith(rest, u"Optional")) {
        IsOptional = true;
        rest = Trim(Mid(rest, 9));
    }
    if (Len(rest) > 5) {
        IsPassedByVal = startsWith(rest, u"ByVal");
        PassedBy_ = IsPassedByVal ? u"ByVal" : u"ByRef";
        if (IsPassedByVal || startsWith(rest, u"ByRef")) rest = Trim(Mid(rest, 6));
    } else {
        IsPassedByVal = false;
        PassedBy_ = u"ByRef";
    }
    if (Len(rest) > 10 && startsWith(rest, u"ParamArray")) {
        IsParamArray = true;
        rest = Trim(Mid(rest, 11));
    }
    size_t end = nameEnd(rest);
    Name = rest.substr(0, end);
    rest = end < rest.size() ? Trim(rest.substr(end)) : Str();
    if (startsWith(rest, u"(")) {
        IsArray = true;
        rest = Trim(Mid(rest, basic::InStr(rest, u")") + 1));
    }
    if (rest.empty()) {
        Type_ = u"Variant";
    } else if (startsWith(rest, u"=")) {
        Type_ = u"Variant";
        rest = Trim(Mid(rest, 2));
    } else {
        Str text = Trim(Mid(rest, 3));
        long p = basic::InStr(text, u"=");
        Type_ = p > 0 ? Left(text, p - 1) : text;
        rest = p > 0 && Len(text) > p + 1 ? Trim(Mid(text, p + 1)) : Str();
    }
    Type_ = Trim(Type_);
    if (!rest.empty()) DefaultValue = rest;
}

std::vector<Str> C4_ProcArguments::ArgumentsSplit(const Str& text) {
    std::vector<Str> pieces;
    Str piece;
    bool inQuotes = false;
    for (char16_t c : text) {
        if (c == u'"') inQuotes = !inQuotes;
        if (c == u',' && !inQuotes) {
            pieces.push_back(Trim(piece));
            piece.clear();
        } else {
            piece += c;
        }
    }
    if (!piece.empty()) pieces.push_back(Trim(piece));
    return pieces;
}

void C4_ProcArguments::Add(const C4_ProcArgumentPtr& robjMember) {
    if (!Items.Exists(robjMember->Name)) Items.Add(robjMember, robjMember->Name);
}

void C4_ProcArguments::init(const Str& vstrProcDef) {
    long open = firstOpenOutsideQuotes(vstrProcDef);
    long close = lastCloseOutsideQuotes(vstrProcDef);
    if (open > 0 && close > 0 && open + 1 < close - 1) {
        StringOfArguments_ = Mid(vstrProcDef, open + 1, close - open - 1);
        for (const Str& piece : ArgumentsSplit(StringOfArguments_)) {
            auto argument = std::make_shared<C4_ProcArgument>();
            argument->init(Trim(piece));
            Add(argument);
        }
    }
    ShortStringOfArguments_.clear();
    bool first = true;
    for (const auto& argument : Items) {
        if (!first) ShortStringOfArguments_ += u", ";
        first = false;
        ShortStringOfArguments_ += argument->IsOptional ? u"[" + argument->Name + u"]" : argument->Name;
    }
}

}  // namespace quillet::source
