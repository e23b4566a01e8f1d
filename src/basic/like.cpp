// Basic's Like operator. The pattern is read once into tokens, then matched by stepping a set of
// pattern positions along the text (a Thompson-style simulation): no backtracking, so a pattern
// such as "*a*a*a*b" costs Len(text) * Len(pattern) at worst.

#include <algorithm>
#include <vector>

#include "basic/strings.h"

namespace quillet::basic {

namespace {

enum class Kind { Literal, AnyOne, Digit, Star, List };

struct Range {
    char16_t low;
    char16_t high;
};

struct Token {
    Kind kind;
    char16_t unit = 0;
    bool negated = false;
    std::vector<Range> ranges = {};
};

[[noreturn]] void invalidPattern() { throw VbError::standard(err::InvalidPattern); }

// The ranges of a list's content (what stands between "[" or "[!" and "]").
std::vector<Range> parseList(const Str& content) {
    std::vector<Range> ranges;
    size_t k = 0;
    while (k < content.size()) {
        char16_t low = content[k];
        if (k + 2 < content.size() && content[k + 1] == u'-') {
            char16_t high = content[k + 2];
            if (high < low) invalidPattern();
            ranges.push_back({low, high});
            k += 3;
        } else {
            ranges.push_back({low, low});
            ++k;
        }
    }
    return ranges;
}

std::vector<Token> parsePattern(const Str& pattern) {
    std::vector<Token> tokens;
    for (size_t i = 0; i < pattern.size(); ++i) {
        char16_t c = pattern[i];
        if (c == u'*') {
            if (tokens.empty() || tokens.back().kind != Kind::Star) tokens.push_back({Kind::Star});
        } else if (c == u'?') {
            tokens.push_back({Kind::AnyOne});
        } else if (c == u'#') {
            tokens.push_back({Kind::Digit});
        } else if (c == u'[') {
            size_t close = pattern.find(u']', i + 1);
            if (close == Str::npos) invalidPattern();
            Str content = pattern.substr(i + 1, close - i - 1);
            i = close;
            if (content.empty()) continue;  // "[]" matches the zero-length string
            bool negated = content[0] == u'!';
            if (negated) content.erase(0, 1);
            if (negated && content.empty()) {
                tokens.push_back({Kind::AnyOne});
                continue;
            }
            tokens.push_back({Kind::List, 0, negated, parseList(content)});
        } else {
            tokens.push_back({Kind::Literal, c});
        }
    }
    return tokens;
}

bool inRanges(char16_t c, const std::vector<Range>& ranges) {
    for (const auto& r : ranges)
        if (c >= r.low && c <= r.high) return true;
    return false;
}

bool matchesUnit(const Token& t, char16_t c, Compare compare) {
    bool text = compare == Compare::Text;
    switch (t.kind) {
    case Kind::AnyOne: return true;
    case Kind::Digit: return c >= u'0' && c <= u'9';
    case Kind::Literal: return text ? foldCase(c) == foldCase(t.unit) : c == t.unit;
    case Kind::List: {
        bool in = inRanges(c, t.ranges) ||
                  (text && (inRanges(upperCase(c), t.ranges) || inRanges(lowerCase(c), t.ranges)));
        return in != t.negated;
    }
    case Kind::Star: return true;
    }
    return false;
}

// Marks the positions reachable from the active ones without reading a unit (a star may match
// nothing).
void closeOverStars(const std::vector<Token>& tokens, std::vector<char>& active) {
    for (size_t i = 0; i < tokens.size(); ++i)
        if (active[i] && tokens[i].kind == Kind::Star) active[i + 1] = 1;
}

}  // namespace

bool Like(const Str& text, const Str& pattern, Compare compare) {
    std::vector<Token> tokens = parsePattern(pattern);
    std::vector<char> active(tokens.size() + 1, 0), next(tokens.size() + 1, 0);
    active[0] = 1;
    closeOverStars(tokens, active);
    for (char16_t c : text) {
        std::fill(next.begin(), next.end(), 0);
        bool any = false;
        for (size_t i = 0; i < tokens.size(); ++i) {
            if (!active[i]) continue;
            if (tokens[i].kind == Kind::Star) {
                next[i] = 1;
                any = true;
            } else if (matchesUnit(tokens[i], c, compare)) {
                next[i + 1] = 1;
                any = true;
            }
        }
        if (!any) return false;
        closeOverStars(tokens, next);
        active.swap(next);
    }
    return active[tokens.size()] != 0;
}

}  // namespace quillet::basic
