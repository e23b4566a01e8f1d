// Differential test: the links the writer makes are read by liblnk's lnkinfo as they are by the
// reader here. Skipped where lnkinfo is not installed (Debian package liblnk-utils).

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "basic/unicode.h"
#include "fragments/shell_link.h"
#include "hosts/files/temp_dir.h"
#include "shell_link_bytes_fixture.h"

namespace quillet::fragments {
namespace {

bool haveLnkinfo() { return std::system("command -v lnkinfo >/dev/null 2>&1") == 0; }

std::string lnkinfo(const std::filesystem::path& file, int& status, const std::string& flags = "") {
    std::string command = "lnkinfo " + flags + "'" + file.string() + "' 2>&1";
    std::string output;
    FILE* pipe = popen(command.c_str(), "r");
    if (!pipe) return output;
    std::array<char, 4096> buffer;
    while (size_t n = fread(buffer.data(), 1, buffer.size(), pipe)) output.append(buffer.data(), n);
    status = pclose(pipe);
    return output;
}

// The value lnkinfo prints for a field ("Local path"), as UTF-8; empty when it prints none.
std::string field(const std::string& output, const std::string& name) {
    size_t at = output.find("\t" + name + "\t");
    if (at == std::string::npos) return {};
    size_t colon = output.find(": ", at);
    size_t end = output.find('\n', colon);
    return output.substr(colon + 2, end - colon - 2);
}

class ShellLinkLnkinfo : public ::testing::Test {
protected:
    void SetUp() override {
        if (!haveLnkinfo()) GTEST_SKIP() << "lnkinfo (liblnk-utils) is not installed";
    }
    std::string check(const Str& target, const Str& linkFolder) {
        dir.write("t.lnk", WriteShellLink(ShellLinkTo(target, linkFolder)));
        int status = -1;
        std::string output = lnkinfo(dir / "t.lnk", status);
        EXPECT_EQ(status, 0) << output;
        EXPECT_EQ(output.find("Unable"), std::string::npos) << output;
        return output;
    }
    hosts::files::testing::TempDir dir;
};

TEST_F(ShellLinkLnkinfo, ReadsLocalPathRelativePathAndWorkingFolder) {
    std::string output = check(u"C:\\Users\\ann\\Fragments\\Loops\\For Each.bas", u"C:\\Users\\ann\\Fragments\\Mine");
    EXPECT_EQ(field(output, "Local path"), "C:\\Users\\ann\\Fragments\\Loops\\For Each.bas") << output;
    EXPECT_EQ(field(output, "Relative path"), "..\\Loops\\For Each.bas") << output;
    EXPECT_EQ(field(output, "Working directory"), "C:\\Users\\ann\\Fragments\\Loops") << output;
}

TEST_F(ShellLinkLnkinfo, ReadsAUnicodeLocalPath) {
    const Str target = u"C:\\Fragments\\\u0416\u0443\u0440\u043d\u0430\u043b.bas";
    std::string output = check(target, u"C:\\Fragments");
    EXPECT_EQ(field(output, "Local path"), basic::toUtf8(target)) << output;
}

TEST_F(ShellLinkLnkinfo, ReadsANetworkShare) {
    std::string output = check(u"\\\\server\\code\\Fragments\\x.bas", u"\\\\server\\code\\Fragments\\Mine");
    EXPECT_NE(output.find("\\\\server\\code"), std::string::npos) << output;
    EXPECT_EQ(field(output, "Relative path"), "..\\x.bas") << output;
}

TEST_F(ShellLinkLnkinfo, AgreesOnTheLongNamesOfAWindowsIdList) {
    using namespace testing;
    std::string items = myComputerItem() + volumeItem("C:\\") + fileEntryItem(true, "FRAGME~1", u"Fragments") +
                        fileEntryItem(false, "FOREAC~1.BAS", u"For Each Item.bas");
    dir.write("w.lnk", linkHeader(link_flags::HasLinkTargetIDList) + idList(items));
    int status = -1;
    std::string output = lnkinfo(dir / "w.lnk", status, "-v ");
    ASSERT_EQ(status, 0) << output;
    EXPECT_NE(output.find("Long name\t\t: Fragments\n"), std::string::npos) << output;
    EXPECT_NE(output.find("Long name\t\t: For Each Item.bas\n"), std::string::npos) << output;
    EXPECT_EQ(ParseShellLink(dir.read("w.lnk")).IdListPath, u"C:\\Fragments\\For Each Item.bas");
}

}  // namespace
}  // namespace quillet::fragments
