// The JSON writer.

#include "cli/json_writer.h"

#include <cstdio>

namespace quillet::cli {

namespace {

void appendUtf8(std::string& out, char32_t c) {
    if (c < 0x80) {
        out.push_back(static_cast<char>(c));
    } else if (c < 0x800) {
        out.push_back(static_cast<char>(0xC0 | (c >> 6)));
        out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    } else if (c < 0x10000) {
        out.push_back(static_cast<char>(0xE0 | (c >> 12)));
        out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    } else {
        out.push_back(static_cast<char>(0xF0 | (c >> 18)));
        out.push_back(static_cast<char>(0x80 | ((c >> 12) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    }
}

void appendEscape(std::string& out, char16_t c) {
    char buffer[8];
    std::snprintf(buffer, sizeof buffer, "\\u%04X", static_cast<unsigned>(c));
    out += buffer;
}

bool isHigh(char16_t c) { return c >= 0xD800 && c <= 0xDBFF; }
bool isLow(char16_t c) { return c >= 0xDC00 && c <= 0xDFFF; }

}  // namespace

std::string JsonWriter::quoted(const basic::Str& text) {
    std::string out = "\"";
    for (size_t i = 0; i < text.size(); ++i) {
        char16_t c = text[i];
        switch (c) {
            case u'"': out += "\\\""; continue;
            case u'\\': out += "\\\\"; continue;
            case u'\b': out += "\\b"; continue;
            case u'\f': out += "\\f"; continue;
            case u'\n': out += "\\n"; continue;
            case u'\r': out += "\\r"; continue;
            case u'\t': out += "\\t"; continue;
            default: break;
        }
        if (c < 0x20 || c == 0x7F) {
            appendEscape(out, c);
        } else if (isHigh(c) && i + 1 < text.size() && isLow(text[i + 1])) {
            appendUtf8(out, 0x10000 + ((static_cast<char32_t>(c) - 0xD800) << 10) + (text[i + 1] - 0xDC00));
            ++i;
        } else if (isHigh(c) || isLow(c)) {
            appendEscape(out, c);
        } else {
            appendUtf8(out, c);
        }
    }
    out += "\"";
    return out;
}

void JsonWriter::beforeValue() {
    if (afterKey_) {
        afterKey_ = false;
        return;
    }
    if (levels_.empty()) return;
    out_ << (levels_.back().empty ? "\n" : ",\n") << std::string(levels_.size() * 2, ' ');
    levels_.back().empty = false;
}

void JsonWriter::open(char bracket) {
    beforeValue();
    out_ << bracket;
    levels_.push_back({});
}

void JsonWriter::close(char bracket) {
    bool empty = levels_.empty() || levels_.back().empty;
    if (!levels_.empty()) levels_.pop_back();
    if (!empty) out_ << "\n" << std::string(levels_.size() * 2, ' ');
    out_ << bracket;
}

void JsonWriter::beginObject() { open('{'); }
void JsonWriter::endObject() { close('}'); }
void JsonWriter::beginArray() { open('['); }
void JsonWriter::endArray() { close(']'); }

void JsonWriter::key(const basic::Str& name) {
    beforeValue();
    out_ << quoted(name) << ": ";
    afterKey_ = true;
}

void JsonWriter::value(const basic::Str& text) {
    beforeValue();
    out_ << quoted(text);
}

void JsonWriter::value(bool flag) {
    beforeValue();
    out_ << (flag ? "true" : "false");
}

void JsonWriter::value(long long number) {
    beforeValue();
    out_ << number;
}

void JsonWriter::finish() { out_ << "\n"; }

}  // namespace quillet::cli
