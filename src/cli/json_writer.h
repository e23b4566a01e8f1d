#pragma once
// A small JSON writer for the tool's --json output: objects, arrays, strings, numbers and
// Booleans, written as they come, indented by two blanks. Strings are UTF-16 text written as
// UTF-8 with every character JSON requires escaped; a lone surrogate is written as \uXXXX.

#include <ostream>
#include <string>
#include <vector>

#include "basic/unicode.h"

namespace quillet::cli {

class JsonWriter {
public:
    explicit JsonWriter(std::ostream& out) : out_(out) {}

    void beginObject();
    void endObject();
    void beginArray();
    void endArray();
    // The name of the next member of an object.
    void key(const basic::Str& name);
    void value(const basic::Str& text);
    // (Without these a literal would take the bool overload.)
    void value(const char16_t* text) { value(basic::Str(text)); }
    void value(const char* text) { value(basic::fromUtf8(text)); }
    void value(bool flag);
    void value(long long number);
    // Ends the document with a line end.
    void finish();

    // The text as a JSON string, quotes included.
    static std::string quoted(const basic::Str& text);

private:
    void beforeValue();
    void open(char bracket);
    void close(char bracket);

    struct Level {
        bool empty = true;
    };
    std::ostream& out_;
    std::vector<Level> levels_;
    bool afterKey_ = false;
};

}  // namespace quillet::cli
