// The call sequences of the profile comparison.

#include "profile_calls.h"

#include <initializer_list>

namespace quillet::profile_compare {

namespace {

using Opt = std::optional<std::string>;

ProfileCall names(long size = 512) { return {CallKind::SectionNames, "", std::nullopt, std::nullopt, size}; }

ProfileCall section(const std::string& name, long size = 512) {
    return {CallKind::Section, name, std::nullopt, std::nullopt, size};
}

// The lines of a section text, each ended by a NUL.
ProfileCall writeSection(const std::string& name, std::initializer_list<const char*> lines) {
    std::string text;
    for (const char* line : lines) text += std::string(line) + '\0';
    return {CallKind::WriteSection, name, std::nullopt, text, 0};
}

ProfileCall deleteSectionByText(const std::string& name) {
    return {CallKind::WriteSection, name, std::nullopt, std::nullopt, 0};
}

ProfileCall writeString(const std::string& name, Opt key, Opt value) {
    return {CallKind::WriteString, name, std::move(key), std::move(value), 0};
}

ProfileCall known(ProfileCall call, const char* why) {
    call.wineDiffers = why;
    return call;
}

// A new file: made by the first write, then read, changed and emptied again.
CallSequence newFile() {
    return {"new file",
            std::nullopt,
            {names(), section("Main"), writeString("Main", "Name", std::nullopt), writeString("Main", std::nullopt, std::nullopt),
             names(), writeString("Main", "Name", "Alpha"), writeString("Main", "Other", "Beta"),
             writeString("Second", "Key", "1"), names(), section("Main"), writeString("main", "NAME", "Gamma"),
             section("MAIN"), writeString("Main", "Other", std::nullopt), section("Main"),
             writeString("SECOND", std::nullopt, std::nullopt), names(), writeSection("Third", {"A=1", "B=", "C=x=y"}),
             section("third"), writeSection("Fourth", {"F=1"}), writeSection("fourth", {}), names(), section("Fourth"),
             writeString("Fourth", "G", "")}};
}

// Comments and blank lines inside and between sections, and above the first header.
CallSequence commentsAndBlanks() {
    return {"comments and blank lines",
            "; leading comment\r\n\r\n[General]\r\n; about the name\r\nName=First\r\n\r\nCount=3\r\n\r\n"
            "[Paths]\r\nRoot=C:\\Data\r\n; trailing comment\r\n\r\n[Empty]\r\n\r\n[Last]\r\nZ=26\r\n",
            {names(), section("General"), section("paths"), section("Empty"), section("Missing"),
             writeString("General", "Name", "Second"), writeString("Paths", "NewKey", "v"),
             writeString("General", "Count", std::nullopt), section("General"), writeString("Empty", "Only", "1"),
             writeSection("Empty", {"A=1", "B=2"}), section("Empty"), writeSection("Last", {}), names(),
             section("Last"), deleteSectionByText("General"), names(), writeSection("Added", {"X=1", "Y=2"}),
             writeString("Added", "X", "1"), section("Added"), writeString("Paths", "Root", std::nullopt),
             section("Paths")}};
}

// Keys and sections that appear twice, names in other cases, and the odd entry forms.
CallSequence duplicates() {
    return {"duplicates and case",
            "[Dup]\r\nKey=one\r\nkey=two\r\na=b=c\r\n=x\r\nloose\r\n[Other]\r\nK=1\r\n[dup]\r\nKey=three\r\n"
            "[Tail]\r\nZ=9\r\n",
            {names(), section("DUP"), section("tail"), writeString("dup", "KEY", "four"), section("Dup"),
             writeString("Dup", "key", std::nullopt), section("Dup"), writeString("DUP", "key", std::nullopt),
             section("Dup"), writeString("dup", "Fresh", "new"), section("Dup"), writeString("Dup", "A", "d"),
             section("Dup"), writeString("Dup", std::nullopt, std::nullopt), names(), section("dup")}};
}

// Buffers too small for the answer, down to the smallest sizes.
CallSequence smallBuffers() {
    return {"small buffers",
            "[First]\r\nAlpha=1\r\nBeta=2\r\n[Second]\r\nGamma=3\r\n",
            {names(13), names(15), names(16), names(8), names(2), names(1), section("First", 15), section("First", 17),
             section("First", 18), section("First", 5), section("First", 2), section("First", 1)}};
}

// Line ends other than CRLF, a last line without one, blanks around names and values.
CallSequence lineEndsAndBlanks() {
    return {"line ends and blanks",
            "[A]\nk=v\n\n[B]\n  z = 1  \n\t[C] \nc\t=\t3",
            {names(), section("B"), section("C"), writeString("B", "y", "2"), section("B"), writeString("A", "k", "w"),
             section("A"), writeString("C", "c", "4"), section("c")}};
}

// Each call below meets a way in which Wine's functions answer otherwise than the documented
// contract that the portable functions follow; each sequence stops where the files part.
std::vector<CallSequence> knownWineDifferences() {
    const char* noEquals = "Wine's WritePrivateProfileSection drops lines without \"=\", comments included";
    const char* noHeader = "Wine's WritePrivateProfileSection with an empty text writes no header for a missing section";
    const char* comments = "Wine's WritePrivateProfileSection drops the comment lines of the section it rewrites";
    const char* repeated = "Wine's WritePrivateProfileSection empties every section of that name, not only the first";
    const char* trims = "Wine's write functions trim the section and key names given, and the blanks ahead of a value";
    const char* exactFit = "Wine's ANSI functions answer size - 2 (too small) for a buffer that fits the answer exactly";
    return {{"known: lines without =", "[S]\r\nA=1\r\n",
             {known(writeSection("S", {"A=2", "Loose", "; note"}), noEquals), known(section("S"), noEquals)}},
            {"known: empty text, new section", "[S]\r\nA=1\r\n",
             {known(writeSection("New", {}), noHeader), known(names(), noHeader)}},
            {"known: comments of a rewritten section", "[S]\r\n; keep me\r\nA=1\r\n",
             {known(writeSection("S", {"B=2"}), comments), section("S")}},
            {"known: repeated section", "[Dup]\r\nKey=one\r\n[dup]\r\nKey=three\r\n",
             {known(writeSection("DUP", {"N=1"}), repeated), section("dup"), names()}},
            {"known: blanks around the names given", "[A]\r\nk=v\r\n",
             {known(writeString(" A ", " k ", " w"), trims), known(section("A"), trims)}},
            {"known: exact fit", "[First]\r\nAlpha=1\r\nBeta=2\r\n[Second]\r\nGamma=3\r\n",
             {known(names(14), exactFit), known(section("First", 16), exactFit)}}};
}

}  // namespace

std::vector<CallSequence> profileCallSequences() {
    std::vector<CallSequence> all{newFile(), commentsAndBlanks(), duplicates(), smallBuffers(), lineEndsAndBlanks()};
    for (auto& sequence : knownWineDifferences()) all.push_back(std::move(sequence));
    return all;
}

std::string describe(const ProfileCall& call) {
    auto quoted = [](const Opt& text) { return text ? "\"" + *text + "\"" : std::string("null"); };
    switch (call.kind) {
    case CallKind::SectionNames:
        return "GetPrivateProfileSectionNamesA(" + std::to_string(call.size) + ")";
    case CallKind::Section:
        return "GetPrivateProfileSectionA(\"" + call.section + "\", " + std::to_string(call.size) + ")";
    case CallKind::WriteSection: {
        std::string lines;
        if (call.value) {
            for (char c : *call.value) lines += c ? std::string(1, c) : std::string("\\0");
            lines = lines.empty() ? "\"\"" : "\"" + lines + "\"";
        }
        return "WritePrivateProfileSectionA(\"" + call.section + "\", " + (call.value ? lines : "null") + ")";
    }
    case CallKind::WriteString:
        return "WritePrivateProfileStringA(\"" + call.section + "\", " + quoted(call.key) + ", " +
               quoted(call.value) + ")";
    }
    return "?";
}

}  // namespace quillet::profile_compare
