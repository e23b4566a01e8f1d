#pragma once
// A profile file as a list of lines, for the portable profile functions. Each line keeps its
// own text and line end, so that writing back what was not changed gives the same bytes.
// Line kinds: a header "[name]" (the name is what stands between "[" and the last "]"), a blank
// line, a comment (first non-blank ";"), or an entry "key=value" / "key" with key and value
// trimmed of white space. Lines above the first header belong to no section. New lines take
// the line end the file already uses.

#include <optional>
#include <string>
#include <vector>

namespace quillet::settings {

using Str = std::u16string;

class ProfileDocument {
public:
    static ProfileDocument parse(const Str& content);
    Str text() const;

    // The names of all headers, in file order.
    std::vector<Str> sectionNames() const;
    // The entries of the first section of that name as "key=value" or "key"; none when missing.
    std::optional<std::vector<Str>> sectionEntries(const Str& name) const;

    // Each returns whether the document changed.
    bool deleteSection(const Str& name);
    bool replaceSection(const Str& name, const std::vector<Str>& lines);
    bool setValue(const Str& section, const Str& key, const Str& value);
    bool deleteKey(const Str& section, const Str& key);

private:
    struct Line {
        Str text;
        Str eol;
        // Worked out once: the header's name, or the entry as the section list gives it.
        std::optional<Str> header;
        std::optional<Str> entry;
    };
    static Line makeLine(Str text, Str eol);
    struct Range {
        size_t header;  // the header line
        size_t end;     // the next header, or the end
    };
    std::optional<Range> find(const Str& name) const;
    // Where new lines of a section go: behind its last line that is not blank.
    size_t insertionPoint(const Range& range) const;
    void appendLines(const std::vector<Str>& lines);
    void insertLines(size_t at, const std::vector<Str>& lines);

    std::vector<Line> lines_;
    // The line end of new lines: the file's first, CRLF for a new file.
    Str newline_ = u"\r\n";
};

// Trimming as the profile functions trim: blanks, tabs, CR, LF and ^Z.
Str trimProfileSpace(const Str& text);
// The name of a header line, none for other lines.
std::optional<Str> headerName(const Str& line);

}  // namespace quillet::settings
