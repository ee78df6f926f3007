// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <unistd.h>

#include <gmock/gmock.h>

#include "host/client/plugins/PluginLoader.h"

namespace fs = std::filesystem;

namespace Tarvik::Client {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// One load of the whole folder serves all tests: libraries stay in the process once opened.
class PluginFolder : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        unsetenv("PLUGIN_TRACE");
        loader_ = new PluginLoader;
        loader_->LoadAll(PluginLoader::FindLibraries(PLUGIN_FOLDER), Core::Version::Parse("1.1.4"));
    }
    static void TearDownTestSuite() {
        delete loader_;
        loader_ = nullptr;
    }
    static const LoadedPlugin& plugin(const std::string& name) {
        const auto& all = loader_->Plugins();
        const auto found = std::find_if(all.begin(), all.end(), [&](const LoadedPlugin& p) {
            return p.record.name == name || p.record.name == "lib" + name;
        });
        EXPECT_NE(found, all.end()) << name;
        return *found;
    }
    static void expectFailure(const std::string& name, const std::string& words) {
        EXPECT_EQ(plugin(name).state, PluginState::Failed) << name;
        EXPECT_THAT(plugin(name).error, HasSubstr(words));
        EXPECT_FALSE(loader_->IsRunning(name));
    }
    static PluginLoader* loader_;
};
PluginLoader* PluginFolder::loader_ = nullptr;

TEST_F(PluginFolder, SoundOnesRunBesideBrokenOnes) {
    EXPECT_TRUE(loader_->IsRunning("Chart"));
    EXPECT_TRUE(loader_->IsRunning("ASailor"));
    EXPECT_EQ(plugin("Chart").error, "");
}

TEST_F(PluginFolder, LoadsAPluginBehindWhatItNeedsThoughItsNameComesFirst) {
    const std::string trace = std::getenv("PLUGIN_TRACE");
    const auto chart = trace.find("load:Chart ");
    const auto sailor = trace.find("load:ASailor ");
    ASSERT_NE(chart, std::string::npos);
    ASSERT_NE(sailor, std::string::npos);
    EXPECT_LT(chart, sailor);
    EXPECT_LT(sailor, trace.find("init:Chart "));
    EXPECT_LT(trace.find("init:ASailor "), trace.find("suite:Chart "));
}

TEST_F(PluginFolder, NamesAMissingDependency) {
    expectFailure("Lonely", "needs Nowhere 3.1, which is missing");
}

TEST_F(PluginFolder, NamesADependencyThatIsTooOld) {
    expectFailure("Futurist", "needs Chart 9.0 or newer, present is 1.2");
    expectFailure("HostFuturist", "needs TRV 99.0 or newer, present is 1.1.4");
}

TEST_F(PluginFolder, LeavesOutAllOfACircle) {
    expectFailure("CircleA", "depends on itself: CircleA > CircleB > CircleA");
    expectFailure("CircleB", "depends on itself");
}

TEST_F(PluginFolder, ALoadThatThrowsFailsWithItsMessage) {
    expectFailure("Thrower", "Load failed: no fuel");
}

TEST_F(PluginFolder, WhatNeedsAFailedPluginIsLeftOutUnloaded) {
    expectFailure("Follower", "needs Thrower, which could not be loaded");
    EXPECT_EQ(std::string(std::getenv("PLUGIN_TRACE")).find("load:Follower"), std::string::npos);
}

TEST_F(PluginFolder, ALoadThatSaysNoFails) {
    expectFailure("Failer", "Load reports a failure");
}

TEST_F(PluginFolder, ARefusedEnvironmentFailsBeforeLoad) {
    expectFailure("Refuser", "refuses this environment");
    EXPECT_EQ(std::string(std::getenv("PLUGIN_TRACE")).find("load:Refuser"), std::string::npos);
}

TEST_F(PluginFolder, NamesTheMissingExport) {
    expectFailure("HalfMade", "the export UnLoad is missing");
}

TEST_F(PluginFolder, AFileThatIsNoLibraryKeepsItsFileName) {
    expectFailure("TextFile", "is no library for this system");
}

TEST_F(PluginFolder, AFileCutShortIsRefusedWhereverItWasCut) {
    const fs::path whole = fs::path(PLUGIN_FOLDER) / "libChart.so";
    const auto size = fs::file_size(whole);
    const fs::path cut = fs::path(testing::TempDir()) / ("libCut" + std::to_string(getpid()) + ".so");
    for (const std::uintmax_t length : {std::uintmax_t{0}, std::uintmax_t{63}, std::uintmax_t{100},
                                        std::uintmax_t{5000}, size / 2, size - 1}) {
        fs::copy_file(whole, cut, fs::copy_options::overwrite_existing);
        fs::resize_file(cut, length);
        PluginLibrary library;
        std::string error;
        EXPECT_FALSE(library.Open(cut.string(), error)) << length;
        EXPECT_EQ(error, length < 64 ? "is no library for this system" : "is cut short; install it anew");
    }
    fs::remove(cut);
}

TEST_F(PluginFolder, ARecordWithoutNameFailsUnderItsFileName) {
    expectFailure("libNameless", "its description record has no name");
}

TEST_F(PluginFolder, APluginWithoutRecordFails) {
    expectFailure("Recordless", "gives no description record");
}

TEST_F(PluginFolder, ANegativeVersionFails) {
    expectFailure("BadVersion", "Version number cannot be negative.");
}

TEST_F(PluginFolder, AnInitThatThrowsFailsAndTheOthersRun) {
    expectFailure("LateFailer", "InitPlugin failed");
    EXPECT_TRUE(loader_->IsRunning("Chart"));
}

TEST_F(PluginFolder, ASuiteCallThatThrowsFailsAndTheOthersRun) {
    expectFailure("LateThrower", "SuiteLoaded failed: no wind");
    EXPECT_TRUE(loader_->IsRunning("ASailor"));
}

TEST_F(PluginFolder, WhatNeedsAPluginThatDoesNotStartIsUnloadedBeforeIt) {
    expectFailure("AMate", "needs LateFailer, which could not be started");
    expectFailure("ABosun", "needs LateThrower, which could not be started");
    const std::string trace = std::getenv("PLUGIN_TRACE");
    EXPECT_EQ(trace.find("init:AMate"), std::string::npos);
    EXPECT_EQ(trace.find("suite:ABosun"), std::string::npos);
    EXPECT_LT(trace.find("unload:AMate"), trace.find("unload:LateFailer"));
    EXPECT_LT(trace.find("unload:ABosun"), trace.find("unload:LateThrower"));
    EXPECT_NE(trace.find("unload:LateThrower"), std::string::npos);
}

TEST_F(PluginFolder, AnEnvironmentCheckThatThrowsFailsBeforeLoad) {
    expectFailure("CheckThrower", "CheckEnvironment failed: no water");
    EXPECT_EQ(std::string(std::getenv("PLUGIN_TRACE")).find("load:CheckThrower"), std::string::npos);
}

TEST_F(PluginFolder, ARecordThatThrowsFails) {
    expectFailure("RecordThrower", "PluginInfo failed: no paper");
}

TEST_F(PluginFolder, EveryFailureIsReportedByName) {
    const auto lines = loader_->Complaints();
    EXPECT_EQ(lines.size(), 20U);
    EXPECT_THAT(lines, testing::Contains(HasSubstr("Lonely: needs Nowhere")));
    EXPECT_THAT(lines, testing::Not(testing::Contains(testing::StartsWith("Chart:"))));
}

TEST(PluginUnload, GoesInOppositeOrderOverWhatWasLoaded) {
    unsetenv("PLUGIN_TRACE");
    PluginLoader loader;
    const std::string folder = PLUGIN_FOLDER;
    loader.LoadAll({folder + "/libASailor.so", folder + "/libFailer.so", folder + "/libChart.so"},
                   Core::Version::Parse("1.1.4"));
    unsetenv("PLUGIN_TRACE");
    loader.UnloadAll();
    EXPECT_STREQ(std::getenv("PLUGIN_TRACE"), "unload:ASailor unload:Chart ");
}

TEST(PluginFiles, TheSdkLibraryIsNoPluginAndAMissingFolderHoldsNone) {
    EXPECT_TRUE(PluginLoader::FindLibraries(std::string(PLUGIN_FOLDER) + "/nowhere").empty());
    const auto files = PluginLoader::FindLibraries(PLUGIN_FOLDER);
    EXPECT_EQ(files.size(), 22U);
    EXPECT_TRUE(std::is_sorted(files.begin(), files.end()));
}

}  // namespace
}  // namespace Tarvik::Client
