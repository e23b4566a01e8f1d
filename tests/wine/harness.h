#pragma once
// The Wine harness: checks printed one per line as PASS or FAIL, and a summary.

#include <cstdio>
#include <string>
#include <vector>

namespace quillet::wine {

class Checks {
public:
    // A quiet one counts without printing (for checks repeated in a loop).
    explicit Checks(bool print = true) : print_(print) {}

    void check(bool ok, const std::string& what, const std::string& detail = {}) {
        ok ? ++passed_ : ++failed_;
        if (!print_) return;
        if (ok) {
            std::printf("PASS  %s\n", what.c_str());
        } else {
            std::printf("FAIL  %s%s%s\n", what.c_str(), detail.empty() ? "" : ": ", detail.c_str());
        }
        std::fflush(stdout);
    }
    void note(const std::string& text) {
        if (!print_) return;
        std::printf("      %s\n", text.c_str());
        std::fflush(stdout);
    }
    int passed() const { return passed_; }
    int failed() const { return failed_; }

private:
    bool print_;
    int passed_ = 0;
    int failed_ = 0;
};

std::string narrow(const std::wstring& s);
std::string narrow(const std::u16string& s);
std::string hex(long value);
// Lines joined by CRLF, as a module's text.
std::u16string joinLines(const std::vector<std::u16string>& lines);
// A text as printable UTF-8, CR and LF shown as \r and \n.
std::string shown(const std::u16string& text);

}  // namespace quillet::wine
