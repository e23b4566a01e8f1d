#include "tools/basic_tokens.h"

#include <unordered_map>

namespace quillet::tools {

const char16_t kFunctionsList[] =
    u"*Abs*Add*AddItem*AppActivate*Array*Asc*Atn*Beep*Begin*BeginProperty*ChDir*ChDrive*Choose*Chr*Clear*Collection*"
    u"Command*Cos*CreateObject*CurDir*DateAdd*DateDiff*DatePart*DateSerial*DateValue*Day*DDB*DeleteSetting*Dir*"
    u"DoEvents*EndProperty*Environ*EOF*Err*Exp*FileAttr*FileCopy*FileDateTime*FileLen*Fix*Format*FV*GetAllSettings*"
    u"GetAttr*GetObject*GetSetting*Hex*Hide*Hour*InputBox*InStr*Int*Int*IPmt*IRR*IsArray*IsDate*IsEmpty*IsError*"
    u"IsMissing*IsNull*IsNumeric*IsObject*Item*Kill*LCase*Left*Len*Load*Loc*LOF*Log*LTrim*Me*Mid*Minute*MIRR*MkDir*"
    u"Month*Now*NPer*NPV*Oct*Pmt*PPmt*PV*QBColor*Raise*Randomize*Rate*Remove*RemoveItem*Reset*RGB*Right*RmDir*Rnd*"
    u"RTrim*SaveSetting*Second*SendKeys*SetAttr*Sgn*Shell*Sin*Sin*SLN*Space*Sqr*Str*StrComp*StrConv*Switch*SYD*Tan*"
    u"Text*Time*Time*Timer*TimeSerial*TimeValue*Trim*TypeName*UCase*Unload*Val*VarType*WeekDay*Width*Year*";

const char16_t kKeywordsList[] =
    u"*#Const*#Else*#ElseIf*#End If*#If*Alias*Alias*And*As*Base*Binary*Boolean*Byte*ByVal*Call*Case*CBool*CByte*CCur*"
    u"CDate*CDbl*CDec*CInt*CLng*Close*Compare*Const*CSng*CStr*Currency*CVar*CVErr*Decimal*Declare*DefBool*DefByte*"
    u"DefCur*DefDate*DefDbl*DefDec*DefInt*DefLng*DefObj*DefSng*DefStr*DefVar*Dim*Do*Double*Each*Else*ElseIf*End*Enum*"
    u"Eqv*Erase*Error*Exit*Explicit*False*For*Function*Get*Global*GoSub*GoTo*If*Imp*In*Input*Input*Integer*Is*"
    u"LBound*Let*Lib*Like*Line*Lock*Long*Loop*LSet*Name*New*Next*Not*Object*On*Open*Option*Or*Output*Print*Private*"
    u"Property*Public*Put*Random*Read*ReDim*Resume*Return*RSet*Seek*Select*Set*Single*Spc*Static*String*Stop*Sub*Tab*"
    u"Then*Then*True*Type*UBound*Unlock*Variant*Wend*While*With*Xor*Nothing*To*";

namespace {

bool isWordChar(char16_t c) { return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || c == u'_' || c == u'#'; }
bool isLineEnd(char16_t c) { return c == u'\r' || c == u'\n'; }

Str folded(std::u16string_view word) {
    Str out(word);
    for (char16_t& c : out) c = basic::foldCase(c);
    return out;
}

struct Entry {
    WordClass wordClass;
    std::u16string_view canonical;
};

// Each word of both lists by its folded form; the first entry of a list gives the spelling, and
// the keywords list, tested second, wins over the functions list.
const std::unordered_map<Str, Entry>& wordTable() {
    static const std::unordered_map<Str, Entry> table = [] {
        std::unordered_map<Str, Entry> words;
        auto addList = [&words](std::u16string_view list, WordClass wordClass) {
            std::unordered_map<Str, Entry> own;
            size_t at = 1;
            while (at < list.size()) {
                size_t end = list.find(u'*', at);
                if (end == std::u16string_view::npos) break;
                auto word = list.substr(at, end - at);
                own.emplace(folded(word), Entry{wordClass, word});
                at = end + 1;
            }
            for (auto& [key, entry] : own) words[key] = entry;
        };
        addList(kFunctionsList, WordClass::Function);
        addList(kKeywordsList, WordClass::Keyword);
        return words;
    }();
    return table;
}

constexpr std::u16string_view kMarkers[] = {u"<cursor>", u"<end_of_top>", u"<begin_of_bottom>"};

class Tokenizer {
public:
    Tokenizer(const Str& text, const TokenizerOptions& options) : text_(text), options_(options) {}

    std::vector<BasicToken> run() {
        while (at_ < text_.size()) step();
        return std::move(tokens_);
    }

private:
    void step() {
        char16_t c = text_[at_];
        if (isWordChar(c)) return word();
        if (c == u'"') return add(TokenKind::String, stringEnd(at_ + 1, true) - at_);
        if (c == u'\'') return add(TokenKind::Comment, lineEnd(at_) - at_);
        if (c == u'\r') return add(TokenKind::LineBreak, at_ + 1 < text_.size() && text_[at_ + 1] == u'\n' ? 2 : 1);
        if (c == u'\n') return add(TokenKind::LoneLineFeed, 1);
        if (c == u' ') return add(TokenKind::Blank, 1);
        if (options_.fragmentMarks && c == u'{') return add(TokenKind::Placeholder, placeholderEnd() - at_);
        if (options_.fragmentMarks && c == u'<') {
            for (auto marker : kMarkers)
                if (std::u16string_view(text_).substr(at_, marker.size()) == marker)
                    return add(TokenKind::Marker, marker.size());
        }
        add(TokenKind::Other, 1);
    }

    void word() {
        size_t end = at_;
        while (end < text_.size() && isWordChar(text_[end])) ++end;
        auto piece = std::u16string_view(text_).substr(at_, end - at_);
        if (piece.size() == 3 && folded(piece) == folded(u"rem")) return add(TokenKind::Comment, lineEnd(at_) - at_);
        BasicToken token{TokenKind::Word, at_, end - at_, WordClass::Plain, {}};
        token.wordClass = ClassifyWord(piece, &token.canonical);
        push(token);
    }

    // Behind the closing quote, or at the line's end (or the text's) when none comes first.
    size_t stringEnd(size_t from, bool stopAtLineEnd) const {
        for (size_t n = from; n < text_.size(); ++n) {
            if (text_[n] == u'"') return n + 1;
            if (stopAtLineEnd && isLineEnd(text_[n])) return n;
        }
        return text_.size();
    }

    size_t lineEnd(size_t from) const {
        size_t n = from;
        while (n < text_.size() && !isLineEnd(text_[n])) ++n;
        return n;
    }

    // Behind the "}" that closes the placeholder (nested braces counted, quoted parts skipped),
    // or at the line's end.
    size_t placeholderEnd() const {
        long depth = 0;
        size_t n = at_;
        while (n < text_.size() && !isLineEnd(text_[n])) {
            char16_t c = text_[n];
            if (c == u'"') {
                n = stringEnd(n + 1, true);
                continue;
            }
            if (c == u'{') ++depth;
            if (c == u'}' && --depth == 0) return n + 1;
            ++n;
        }
        return n;
    }

    void add(TokenKind kind, size_t length) { push(BasicToken{kind, at_, length, WordClass::Plain, {}}); }
    void push(const BasicToken& token) {
        tokens_.push_back(token);
        at_ = token.start + std::max<size_t>(token.length, 1);
    }

    const Str& text_;
    const TokenizerOptions& options_;
    size_t at_ = 0;
    std::vector<BasicToken> tokens_;
};

}  // namespace

WordClass ClassifyWord(std::u16string_view word, std::u16string_view* canonical) {
    const auto& table = wordTable();
    auto found = table.find(folded(word));
    if (found == table.end()) {
        if (canonical) *canonical = {};
        return WordClass::Plain;
    }
    if (canonical) *canonical = found->second.canonical;
    return found->second.wordClass;
}

std::vector<BasicToken> TokenizeBasic(const Str& text, const TokenizerOptions& options) {
    return Tokenizer(text, options).run();
}

}  // namespace quillet::tools
