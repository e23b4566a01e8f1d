// Proves the portable profile functions against the Windows ones. Every call sequence of
// profile_calls.cpp runs twice, call by call: through GetPrivateProfile*A and
// WritePrivateProfile*A (WinProfile; Wine's functions under Wine) and through PortableProfile,
// each on its own copy of the same starting file in a fresh temporary folder. After each call
// the two answers must match: the result and the whole buffer byte for byte for a read, the
// result and the resulting file for a write.
//
// Files are compared byte for byte after one normalisation, for the layout of a file that
// Windows writes back whole where the portable functions edit lines in place:
//   - blank lines are dropped: Wine drops them when it reads a file and writes one before every
//     header but the first;
//   - every line ends with CRLF: Wine writes all lines with CRLF, the last one included;
//   - blanks and tabs at both ends of a line, and around the first "=" of an entry line (neither
//     a comment nor a header), are dropped: Wine writes each entry as name=value from its
//     trimmed parts and each header without the blanks around it.
// Everything else counts: the lines, their order, their case, comments, and whether the file exists.
//
// Prints a PASS or FAIL line per check (details of a failure indented below it) and a summary;
// exits with 1 when a check failed, 2 when the comparison could not be set up.

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <string>

#include "platform/win/win_profile.h"
#include "profile_calls.h"
#include "settings/ansi_text.h"
#include "settings/file_system.h"
#include "settings/profile.h"

namespace quillet::profile_compare {

namespace {

using settings::FileSystem;
using settings::fromAnsi;
using settings::ProfileApi;
using settings::Str;
using settings::toAnsi;

struct Answer {
    long result = 0;
    Str buffer;
};

Answer call(ProfileApi& api, const ProfileCall& c, const Str& file) {
    Answer a;
    auto text = [](const std::optional<std::string>& bytes) -> std::optional<Str> {
        if (!bytes) return std::nullopt;
        return fromAnsi(*bytes);
    };
    switch (c.kind) {
    case CallKind::SectionNames:
        a.result = api.GetPrivateProfileSectionNamesA(a.buffer, c.size, file);
        break;
    case CallKind::Section:
        a.result = api.GetPrivateProfileSectionA(fromAnsi(c.section), a.buffer, c.size, file);
        break;
    case CallKind::WriteSection:
        a.result = api.WritePrivateProfileSectionA(fromAnsi(c.section), text(c.value), file);
        break;
    case CallKind::WriteString:
        a.result = api.WritePrivateProfileStringA(fromAnsi(c.section), text(c.key), text(c.value), file);
        break;
    }
    return a;
}

// Bytes as one readable line: NUL, CR and LF escaped.
std::string shown(const std::string& bytes) {
    std::string out;
    for (char c : bytes) {
        if (c == '\0') out += "\\0";
        else if (c == '\r') out += "\\r";
        else if (c == '\n') out += "\\n";
        else out += c;
    }
    return out;
}

// The result and the buffer up to two characters past its last one that is not NUL.
std::string shown(const Answer& a) {
    std::string bytes = toAnsi(a.buffer);
    size_t used = bytes.find_last_not_of('\0');
    used = used == std::string::npos ? 0 : used + 1;
    std::string head = bytes.substr(0, std::min(bytes.size(), used + 2));
    std::string rest = head.size() < bytes.size() ? " and " + std::to_string(bytes.size() - head.size()) + " NULs" : "";
    return std::to_string(a.result) + " \"" + shown(head) + "\"" + rest;
}

std::string trimmed(const std::string& text) {
    size_t first = text.find_first_not_of(" \t\r");
    if (first == std::string::npos) return "";
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

// The file with its layout normalised as the head comment says.
std::string normalised(const std::string& bytes) {
    std::string out;
    size_t pos = 0;
    while (pos < bytes.size()) {
        size_t nl = bytes.find('\n', pos);
        std::string line = bytes.substr(pos, nl == std::string::npos ? std::string::npos : nl - pos);
        pos = nl == std::string::npos ? bytes.size() : nl + 1;
        if (!line.empty() && line.back() == '\r') line.pop_back();
        line = trimmed(line);
        if (line.empty()) continue;
        size_t eq = line.find('=');
        if (line[0] != ';' && line[0] != '[' && eq != std::string::npos)
            line = trimmed(line.substr(0, eq)) + "=" + trimmed(line.substr(eq + 1));
        out += line + "\r\n";
    }
    return out;
}

// The file's bytes, or none when it does not exist.
std::optional<std::string> contents(const FileSystem& files, const Str& path) {
    std::string bytes;
    if (files.ReadAll(path, bytes) != settings::fserr::None) return std::nullopt;
    return bytes;
}

class Comparison {
public:
    explicit Comparison(const Str& folder) : folder_(folder), portable_(files_) {}

    bool prepare() {
        if (int error = files_.CreateFolder(folder_)) {
            std::printf("FAIL  cannot make the folder %s (error %d)\n", toAnsi(folder_).c_str(), error);
            return false;
        }
        return files_.CreateFolder(folder_ + u"\\win") == 0 && files_.CreateFolder(folder_ + u"\\portable") == 0;
    }

    void run(const CallSequence& sequence, int number) {
        Str name = u"profile" + fromAnsi(std::to_string(number)) + u".ini";
        Str winFile = folder_ + u"\\win\\" + name, portableFile = folder_ + u"\\portable\\" + name;
        if (sequence.start) {
            files_.WriteAll(winFile, *sequence.start);
            files_.WriteAll(portableFile, *sequence.start);
        }
        int step = 0;
        for (const auto& c : sequence.calls) {
            std::string label = sequence.name + " #" + std::to_string(++step) + " " + describe(c);
            Answer w = call(windows_, c, winFile), p = call(portable_, c, portableFile);
            known_ = c.wineDiffers;
            check(w.result == p.result && w.buffer == p.buffer, label, "Windows:  " + shown(w), "portable: " + shown(p));
            if (c.kind == CallKind::WriteSection || c.kind == CallKind::WriteString)
                compareFiles(label, contents(files_, winFile), contents(files_, portableFile));
        }
    }

    int summary() const {
        std::printf("profile compare: %d passed, %d failed, %d known differences of Wine\n", passed_, failed_, known_count_);
        return failed_ ? 1 : 0;
    }

private:
    void compareFiles(const std::string& label, const std::optional<std::string>& w,
                      const std::optional<std::string>& p) {
        std::string fileLabel = label + ": the file";
        if (!w || !p) {
            check(!w && !p, fileLabel, std::string("Windows:  ") + (w ? "exists" : "missing"),
                  std::string("portable: ") + (p ? "exists" : "missing"));
            return;
        }
        if (*w == *p) {
            check(true, fileLabel + " (same bytes)", "", "");
            return;
        }
        check(normalised(*w) == normalised(*p), fileLabel + " (compared with its layout normalised)",
              "Windows:  \"" + shown(*w) + "\"", "portable: \"" + shown(*p) + "\"");
    }

    // A difference in a call where Wine is known to differ is reported as known, its details
    // indented less than those of a failure.
    void check(bool ok, const std::string& label, const std::string& windows, const std::string& portable) {
        if (ok) {
            std::printf("PASS  %s\n", label.c_str());
            ++passed_;
        } else if (known_) {
            std::printf("KNOWN %s\n    %s\n    %s\n    %s\n", label.c_str(), known_, windows.c_str(), portable.c_str());
            ++known_count_;
        } else {
            std::printf("FAIL  %s\n      %s\n      %s\n", label.c_str(), windows.c_str(), portable.c_str());
            ++failed_;
        }
    }

    Str folder_;
    FileSystem files_;
    settings::PortableProfile portable_;
    platform::win::WinProfile windows_;
    const char* known_ = nullptr;
    int passed_ = 0, failed_ = 0, known_count_ = 0;
};

Str freshFolder() {
    wchar_t temp[MAX_PATH + 1] = {};
    DWORD n = GetTempPathW(MAX_PATH + 1, temp);
    std::wstring folder(temp, n);
    if (!folder.empty() && folder.back() == L'\\') folder.pop_back();
    folder += L"\\quillet-profile-" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(GetTickCount());
    return Str(folder.begin(), folder.end());
}

}  // namespace

}  // namespace quillet::profile_compare

int main() {
    using namespace quillet::profile_compare;
    Comparison comparison(freshFolder());
    if (!comparison.prepare()) return 2;
    int number = 0;
    for (const auto& sequence : profileCallSequences()) comparison.run(sequence, ++number);
    return comparison.summary();
}
