// SPDX-License-Identifier: MIT
/// What an installed client brings for a desktop and a shell beside its program.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>

#include <gmock/gmock.h>

#include "tests/gui/ChildProcess.h"
#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Sdk {

namespace {

using testing::HasSubstr;

class InstalledClient : public testing::Test {
  protected:
    InstalledClient() {
        Run({CMAKE_PROGRAM, "--install", BUILD_FOLDER, "--prefix", folder_.File("prefix"), "--component",
             "client"});
    }
    static std::string Run(const std::vector<std::string>& words) {
        Programs::ChildProcess::Start start;
        start.words = words;
        start.environment = {{"ASAN_OPTIONS", "detect_leaks=0"}};
        const Programs::Ended ended = Programs::RunToEnd(start);
        EXPECT_EQ(ended.exitCode, 0) << words[0] << "\n" << ended.out << ended.err;
        return ended.out;
    }
    std::string File(const std::string& name) const { return folder_.File("prefix/" + name); }
    std::string Read(const std::string& name) const {
        EXPECT_TRUE(std::filesystem::exists(File(name))) << name;
        return folder_.Read("prefix/" + name);
    }
    static std::set<std::string> OptionsIn(const std::string& text) {
        static const std::regex option("--[a-z]+");
        std::set<std::string> found;
        for (std::sregex_iterator at(text.begin(), text.end(), option), end; at != end; ++at) {
            found.insert(at->str());
        }
        return found;
    }

    TestSupport::TemporaryFolder folder_;
};

TEST_F(InstalledClient, ADesktopFindsProgramAndIcon) {
    const std::string entry = Read("share/applications/tarvik.desktop");
    EXPECT_THAT(entry, HasSubstr("\nExec=tarvik\n"));
    EXPECT_TRUE(std::filesystem::exists(File("bin/tarvik")));
    EXPECT_THAT(entry, HasSubstr("\nIcon=seaplan\n"));
    EXPECT_THAT(Read("share/icons/hicolor/scalable/apps/seaplan.svg"), HasSubstr("<svg"));
}

TEST_F(InstalledClient, TheManualTellsEveryOptionOfTheProgram) {
    std::string page = Read("share/man/man1/tarvik.1");
    page = std::regex_replace(page, std::regex(R"(\\-)"), "-");
    EXPECT_THAT(page, HasSubstr(".SH SYNOPSIS"));
    const auto options = OptionsIn(Run({BUILD_FOLDER "/bin/tarvik", "--help"}));
    EXPECT_GT(options.size(), 15U);
    for (const std::string& option : options) {
        EXPECT_THAT(page, HasSubstr(option));
    }
}

TEST_F(InstalledClient, TheShellCompletesOptionsLooksAndLanguages) {
    const std::string ask = "PATH=" BUILD_FOLDER "/bin:$PATH; source " +
                            File("share/bash-completion/completions/tarvik") +
                            "; COMP_WORDS=(tarvik $0 \"$1\"); COMP_CWORD=$((${#COMP_WORDS[@]} - 1));"
                            " _tarvik; echo \"${COMPREPLY[*]}\"";
    const auto complete = [&ask](const char* before, const char* word) {
        return Run({"/bin/bash", "-c", ask, before, word});
    };
    EXPECT_EQ(complete("plan", "--pic"), "--picture\n");
    EXPECT_EQ(complete("--theme", "n"), "night\n");
    EXPECT_THAT(complete("--lang", "zh"), HasSubstr("zh-CN zh-TW"));
}

}  // namespace

}  // namespace Tarvik::Sdk
