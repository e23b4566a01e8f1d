#include "hosts/memory/proc_layout.h"

#include "hosts/memory/text.h"

namespace quillet::hosts::memory {

namespace {

// Reads the words of a logical line from the left.
class WordReader {
public:
    explicit WordReader(const Str& text) : text_(text) {}

    void skipBlanks() {
        while (pos_ < text_.size() && isBlankChar(text_[pos_])) ++pos_;
    }
    // The next run of identifier characters (after blanks); "" when something else stands there.
    Str word() {
        skipBlanks();
        size_t start = pos_;
        while (pos_ < text_.size() && isIdentifierChar(text_[pos_])) ++pos_;
        return text_.substr(start, pos_ - start);
    }
    bool wordIs(const char16_t* keyword) {
        size_t saved = pos_;
        if (sameText(word(), keyword)) return true;
        pos_ = saved;
        return false;
    }
    bool atEnd() const { return pos_ >= text_.size(); }
    char16_t peek() const { return atEnd() ? u'\0' : text_[pos_]; }
    void advance() { ++pos_; }
    Str rest() const { return text_.substr(pos_); }

private:
    const Str& text_;
    size_t pos_ = 0;
};

bool isTypeChar(char16_t c) {
    return c == u'%' || c == u'&' || c == u'!' || c == u'#' || c == u'@' || c == u'$' || c == u'^';
}

// Blank, or a comment.
bool isEmptyOrComment(const Str& rest) {
    WordReader reader(rest);
    reader.skipBlanks();
    if (reader.atEnd() || reader.peek() == u'\'') return true;
    return reader.wordIs(u"Rem");
}

// "End Sub", "End Function" or "End Property" (the reader stands after "End").
bool readEndKind(WordReader& reader) {
    return reader.wordIs(u"Sub") || reader.wordIs(u"Function") || reader.wordIs(u"Property");
}

// The statements after the header on the same line end with an End of the procedure
// ("Sub X(): End Sub").
bool endsOnSameLine(const Str& rest) {
    std::vector<Str> statements(1);
    bool inString = false;
    for (char16_t c : rest) {
        if (c == u'"') inString = !inString;
        if (!inString && c == u'\'') break;
        if (!inString && c == u':') {
            statements.emplace_back();
            continue;
        }
        statements.back().push_back(c);
    }
    while (statements.size() > 1 && isEmptyOrComment(statements.back())) statements.pop_back();
    if (statements.size() < 2) return false;
    WordReader reader(statements.back());
    return reader.wordIs(u"End") && readEndKind(reader) && isEmptyOrComment(reader.rest());
}

bool readHeader(WordReader reader, Classified& out) {
    if (!reader.wordIs(u"Public") && !reader.wordIs(u"Private")) reader.wordIs(u"Friend");
    reader.wordIs(u"Static");
    long kind = 0;
    if (reader.wordIs(u"Property")) {
        if (reader.wordIs(u"Get")) kind = 3;
        else if (reader.wordIs(u"Let")) kind = 1;
        else if (reader.wordIs(u"Set")) kind = 2;
        else return false;
    } else if (!reader.wordIs(u"Sub") && !reader.wordIs(u"Function")) {
        return false;
    }
    Str name = reader.word();
    if (name.empty() || (name.front() >= u'0' && name.front() <= u'9')) return false;
    if (isTypeChar(reader.peek())) reader.advance();
    char16_t next = reader.peek();
    if (!(reader.atEnd() || isBlankChar(next) || next == u'(' || next == u'\'')) return false;
    out.role = LineRole::Header;
    out.name = name;
    out.kind = kind;
    out.closesOnSameLine = endsOnSameLine(reader.rest());
    return true;
}

LineRole directiveRole(const Str& afterHash) {
    WordReader reader(afterHash);
    if (reader.wordIs(u"If")) return LineRole::IfDirective;
    if (reader.wordIs(u"EndIf")) return LineRole::EndIfDirective;
    if (reader.wordIs(u"End")) return reader.wordIs(u"If") ? LineRole::EndIfDirective : LineRole::Directive;
    if (reader.wordIs(u"Const")) return LineRole::ConstDirective;
    return LineRole::Directive;
}

struct LogicalLine {
    long first = 0;  // 1-based physical lines
    long last = 0;
    Classified classified;
};

std::vector<LogicalLine> logicalLines(const std::vector<Str>& lines) {
    std::vector<LogicalLine> result;
    size_t i = 0;
    while (i < lines.size()) {
        LogicalLine logical;
        logical.first = static_cast<long>(i) + 1;
        Str text = lines[i];
        while (continuesOnNextLine(lines[i]) && i + 1 < lines.size()) {
            text = basic::RTrim(text);
            while (!text.empty() && isBlankChar(text.back())) text.pop_back();
            text.pop_back();  // the "_"
            ++i;
            text += u" " + lines[i];
        }
        logical.last = static_cast<long>(i) + 1;
        logical.classified = classifyLogicalLine(text);
        result.push_back(std::move(logical));
        ++i;
    }
    return result;
}

// The last line of the declarations section: the last line of a real declaration before the
// first procedure header.
long lastDeclarationLine(const std::vector<LogicalLine>& logicals, size_t firstHeader, const LayoutRules& rules) {
    long lastDecl = 0;
    std::vector<bool> blockHasDeclaration;  // one entry per open #If
    for (size_t i = 0; i < firstHeader; ++i) {
        const LogicalLine& l = logicals[i];
        switch (l.classified.role) {
        case LineRole::Blank:
        case LineRole::Comment:
        case LineRole::Directive:
            break;
        case LineRole::ConstDirective:
            if (rules.constBeforeProcIsDeclaration) lastDecl = l.last;
            break;
        case LineRole::IfDirective:
            blockHasDeclaration.push_back(false);
            break;
        case LineRole::EndIfDirective:
            if (!blockHasDeclaration.empty()) {
                bool had = blockHasDeclaration.back();
                blockHasDeclaration.pop_back();
                if (had && rules.endIfClosingDeclarationsIsDeclaration) lastDecl = l.last;
            }
            break;
        default:
            lastDecl = l.last;
            blockHasDeclaration.assign(blockHasDeclaration.size(), true);
            break;
        }
    }
    return lastDecl;
}

}  // namespace

bool continuesOnNextLine(const Str& line) {
    size_t end = line.size();
    while (end > 0 && isBlankChar(line[end - 1])) --end;
    if (end == 0 || line[end - 1] != u'_') return false;
    return end == 1 || isBlankChar(line[end - 2]);
}

Classified classifyLogicalLine(const Str& text) {
    Classified result;
    WordReader reader(text);
    reader.skipBlanks();
    if (reader.atEnd()) {
        result.role = LineRole::Blank;
        return result;
    }
    if (isEmptyOrComment(reader.rest())) {
        result.role = LineRole::Comment;
        return result;
    }
    if (reader.peek() == u'#') {
        reader.advance();
        result.role = directiveRole(reader.rest());
        return result;
    }
    if (readHeader(reader, result)) return result;
    if (reader.wordIs(u"End") && readEndKind(reader) && isEmptyOrComment(reader.rest())) result.role = LineRole::End;
    return result;
}

const ProcInfo* ProcLayout::find(const Str& name, long kind) const {
    for (const ProcInfo& p : procs)
        if (p.kind == kind && sameText(p.name, name)) return &p;
    return nullptr;
}

const ProcInfo* ProcLayout::ofLine(long line) const {
    for (const ProcInfo& p : procs)
        if (line >= p.startLine && line <= p.endLine) return &p;
    return nullptr;
}

ProcLayout computeProcLayout(const std::vector<Str>& lines, const LayoutRules& rules) {
    ProcLayout layout;
    layout.countOfLines = static_cast<long>(lines.size());
    std::vector<LogicalLine> logicals = logicalLines(lines);

    std::vector<long> ends;  // the End line of each procedure
    bool open = false;
    size_t firstHeader = logicals.size();
    for (size_t i = 0; i < logicals.size(); ++i) {
        const LogicalLine& l = logicals[i];
        if (l.classified.role == LineRole::Header) {
            if (firstHeader == logicals.size()) firstHeader = i;
            if (open) ends.push_back(l.first - 1);  // no End: it runs to this header
            ProcInfo info;
            info.name = l.classified.name;
            info.kind = l.classified.kind;
            info.bodyLine = l.first;
            info.headerEnd = l.last;
            layout.procs.push_back(std::move(info));
            open = !l.classified.closesOnSameLine;
            if (!open) ends.push_back(l.last);
        } else if (l.classified.role == LineRole::End && open) {
            ends.push_back(l.last);
            open = false;
        }
    }
    if (open) ends.push_back(layout.countOfLines);

    if (layout.procs.empty()) {
        layout.countOfDeclarationLines = layout.countOfLines;
        return layout;
    }
    layout.countOfDeclarationLines = lastDeclarationLine(logicals, firstHeader, rules);
    for (size_t i = 0; i < layout.procs.size(); ++i) {
        ProcInfo& p = layout.procs[i];
        p.startLine = (i == 0 ? layout.countOfDeclarationLines : ends[i - 1]) + 1;
        p.endLine = (i + 1 == layout.procs.size()) ? layout.countOfLines : ends[i];
    }
    return layout;
}

}  // namespace quillet::hosts::memory
