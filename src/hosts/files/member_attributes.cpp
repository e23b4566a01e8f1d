#include "hosts/files/member_attributes.h"

#include <algorithm>
#include <string_view>

namespace quillet::hosts::files {

using basic::Compare;
using basic::StrComp;

namespace {

bool same(const Str& a, const Str& b) { return StrComp(a, b, Compare::Text) == 0; }

// A word against one of Basic's keywords (ASCII), ignoring case, without building strings:
// this runs on every line of every module loaded.
bool isKeyword(const Str& word, std::u16string_view keyword) {
    if (word.size() != keyword.size()) return false;
    for (size_t i = 0; i < word.size(); ++i) {
        char16_t c = word[i];
        if (c >= u'a' && c <= u'z') c = static_cast<char16_t>(c - u'a' + u'A');
        char16_t k = keyword[i];
        if (k >= u'a' && k <= u'z') k = static_cast<char16_t>(k - u'a' + u'A');
        if (c != k) return false;
    }
    return true;
}

bool isWordStart(char16_t c) { return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || c == u'_' || c > 0x7F; }
bool isWordChar(char16_t c) { return isWordStart(c) || (c >= u'0' && c <= u'9'); }
bool isBlank(char16_t c) { return c == u' ' || c == u'\t'; }

// Reads words off a statement, left to right.
class Scanner {
public:
    explicit Scanner(const Str& text) : text_(text) {}

    void skipBlanks() {
        while (pos_ < text_.size() && isBlank(text_[pos_])) ++pos_;
    }
    // The next identifier ("[name]" gives name), "" when something else comes next.
    Str word() {
        skipBlanks();
        if (pos_ < text_.size() && text_[pos_] == u'[') {
            size_t close = text_.find(u']', pos_);
            if (close == Str::npos) return {};
            Str name = text_.substr(pos_ + 1, close - pos_ - 1);
            pos_ = close + 1;
            return name;
        }
        size_t start = pos_;
        if (pos_ < text_.size() && isWordStart(text_[pos_])) {
            while (pos_ < text_.size() && isWordChar(text_[pos_])) ++pos_;
        }
        return text_.substr(start, pos_ - start);
    }
    size_t position() const { return pos_; }
    void moveTo(size_t pos) { pos_ = pos; }
    Str rest() const { return text_.substr(pos_); }

private:
    const Str& text_;
    size_t pos_ = 0;
};

// The items of a list separated by commas outside parentheses and strings.
std::vector<Str> topLevelItems(const Str& text) {
    std::vector<Str> items(1);
    int depth = 0;
    bool inString = false;
    for (char16_t c : text) {
        if (c == u'"') inString = !inString;
        if (!inString && c == u'\'') break;
        if (!inString && c == u'(') ++depth;
        if (!inString && c == u')') --depth;
        if (!inString && depth == 0 && c == u',') {
            items.emplace_back();
            continue;
        }
        items.back() += c;
    }
    return items;
}

std::vector<Str> variableNames(const Str& list) {
    std::vector<Str> names;
    for (const Str& item : topLevelItems(list)) {
        Scanner scanner(item);
        Str name = scanner.word();
        if (isKeyword(name, u"WithEvents")) name = scanner.word();
        if (!name.empty()) names.push_back(name);
    }
    return names;
}

bool isModifier(const Str& word) {
    return isKeyword(word, u"Public") || isKeyword(word, u"Private") || isKeyword(word, u"Friend") || isKeyword(word, u"Global") ||
           isKeyword(word, u"Static");
}

// Words after which a modifier does not start a variable list.
bool isDeclarationKeyword(const Str& word) {
    for (std::u16string_view keyword : {u"Sub", u"Function", u"Property", u"Declare", u"Event", u"Type", u"Enum",
                                        u"Const", u"Dim", u"WithEvents", u"Implements"}) {
        if (isKeyword(word, keyword)) return true;
    }
    return false;
}

Declaration procedureDeclaration(Scanner& scanner, const Str& keyword) {
    if (isKeyword(keyword, u"Sub") || isKeyword(keyword, u"Function")) return {host::vbext_pk_Proc, {scanner.word()}, true};
    Str accessor = scanner.word();
    long kind = isKeyword(accessor, u"Get")   ? host::vbext_pk_Get
                : isKeyword(accessor, u"Let") ? host::vbext_pk_Let
                : isKeyword(accessor, u"Set") ? host::vbext_pk_Set
                                         : kNoMember;
    if (kind == kNoMember) return {};
    return {kind, {scanner.word()}, true};
}

bool continues(const Str& line) {
    size_t end = line.size();
    while (end > 0 && isBlank(line[end - 1])) --end;
    return end > 0 && line[end - 1] == u'_' && (end == 1 || isBlank(line[end - 2]));
}

// The line without its continuation mark (" _" at the end), if any.
Str withoutContinuation(const Str& line) {
    if (!continues(line)) return line;
    size_t end = line.size();
    while (isBlank(line[end - 1])) --end;
    return line.substr(0, end - 1);
}

// Walks code lines statement by statement, tracking whether it is inside a procedure.
class StatementWalker {
public:
    // Feeds one physical line; true when it ends a statement, whose declaration is then `last()`.
    bool feed(const Str& line) {
        if (continues(line)) {
            physical_.push_back(line);
            return false;
        }
        if (physical_.empty()) {
            analyse(line);
            return true;
        }
        physical_.push_back(line);
        Str logical;
        for (const Str& part : physical_) logical += withoutContinuation(part) + u" ";
        physical_.clear();
        analyse(logical);
        return true;
    }
    bool inStatement() const { return !physical_.empty(); }
    const Declaration& last() const { return last_; }

private:
    void analyse(const Str& logical) {
        last_ = declarationOf(logical, atModuleLevel_);
        updateLevel(logical);
    }

    void updateLevel(const Str& logical) {
        Scanner scanner(logical);
        if (last_.opensProcedure) {
            atModuleLevel_ = false;
            return;
        }
        if (isKeyword(scanner.word(), u"End")) {
            Str what = scanner.word();
            if (isKeyword(what, u"Sub") || isKeyword(what, u"Function") || isKeyword(what, u"Property")) atModuleLevel_ = true;
        }
    }

    std::vector<Str> physical_;
    Declaration last_;
    bool atModuleLevel_ = true;
};

bool declares(const Declaration& declaration, const Str& member) {
    return std::any_of(declaration.names.begin(), declaration.names.end(),
                       [&](const Str& name) { return same(name, member); });
}

bool groupFits(const memory::MemberAttributes& group, const Declaration& declaration) {
    return group.kind == declaration.kind && declares(declaration, group.member);
}

}  // namespace

Declaration declarationOf(const Str& logicalLine, bool atModuleLevel) {
    Scanner scanner(logicalLine);
    scanner.skipBlanks();
    size_t wordStart = scanner.position();
    Str word = scanner.word();
    bool modified = false;
    while (isModifier(word)) {
        modified = true;
        scanner.skipBlanks();
        wordStart = scanner.position();
        word = scanner.word();
    }
    if (isKeyword(word, u"Sub") || isKeyword(word, u"Function") || isKeyword(word, u"Property")) {
        return procedureDeclaration(scanner, word);
    }
    if (isKeyword(word, u"Declare")) {
        Str next = scanner.word();
        if (isKeyword(next, u"PtrSafe")) next = scanner.word();
        return {host::vbext_pk_Proc, {scanner.word()}};
    }
    if (isKeyword(word, u"Event")) return {host::vbext_pk_Proc, {scanner.word()}};
    if (!atModuleLevel) return {};
    if (isKeyword(word, u"Dim") || isKeyword(word, u"Const")) return {memory::kVariableMember, variableNames(scanner.rest())};
    if (isKeyword(word, u"WithEvents") || (modified && !word.empty() && !isDeclarationKeyword(word))) {
        return {memory::kVariableMember, variableNames(logicalLine.substr(wordStart))};
    }
    return {};
}

Str memberAttributeName(const Str& line) {
    Scanner scanner(line);
    if (!isKeyword(scanner.word(), u"Attribute")) return {};
    Str name = scanner.word();
    bool dotFollows = scanner.position() < line.size() && line[scanner.position()] == u'.';
    return dotFollows ? name : Str();
}

CodeLines extractMemberAttributes(const std::vector<Str>& fileCode) {
    CodeLines result;
    StatementWalker walker;
    bool afterStatement = false;  // the previous line ended a statement, or was one of its attributes
    bool inRun = false;           // the previous line was taken out as a member attribute
    for (const Str& line : fileCode) {
        Str member = afterStatement ? memberAttributeName(line) : Str();
        if (!member.empty() && declares(walker.last(), member)) {
            auto& groups = result.memberAttributes;
            if (!inRun) groups.push_back({member, walker.last().kind, {}});
            groups.back().lines.push_back(line);
            inRun = true;
            continue;
        }
        inRun = false;
        result.code.push_back(line);
        afterStatement = walker.feed(line);
    }
    return result;
}

std::vector<Str> insertMemberAttributes(const std::vector<Str>& code,
                                        const std::vector<memory::MemberAttributes>& groups) {
    std::vector<Str> out;
    out.reserve(code.size());
    std::vector<bool> placed(groups.size(), false);
    StatementWalker walker;
    for (const Str& line : code) {
        out.push_back(line);
        if (!walker.feed(line) || walker.last().kind == kNoMember) continue;
        for (size_t k = 0; k < groups.size(); ++k) {
            if (placed[k] || !groupFits(groups[k], walker.last())) continue;
            out.insert(out.end(), groups[k].lines.begin(), groups[k].lines.end());
            placed[k] = true;
        }
    }
    return out;
}

}  // namespace quillet::hosts::files
