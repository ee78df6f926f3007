// SPDX-License-Identifier: MIT
#include <cstdio>
#include <memory>
#include <set>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace Tarvik::Integration {

namespace {

std::string OutputOf(const std::string& command) {
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::string output;
    char chunk[512];
    while (pipe && fgets(chunk, sizeof chunk, pipe.get()) != nullptr) {
        output += chunk;
    }
    return output;
}

TEST(ExportsTest, LibraryDefinesTheSixPlainNamesAndNothingElse) {
    std::istringstream lines(
        OutputOf(std::string(SEAPLAN_NM) + " -D --defined-only \"" + SEAPLAN_LIBRARY + "\""));
    std::set<std::string> names;
    std::string address;
    std::string kind;
    std::string name;
    while (lines >> address >> kind >> name) {
        EXPECT_EQ(kind, "T") << name;
        names.insert(name);
    }
    EXPECT_EQ(names, (std::set<std::string>{"CheckEnvironment", "InitPlugin", "Load", "PluginInfo",
                                            "SuiteLoaded", "UnLoad"}));
}

}  // namespace
}  // namespace Tarvik::Integration
