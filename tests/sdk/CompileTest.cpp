// SPDX-License-Identifier: MIT
// What the SDK promises not to compile. Each snippet compiles as it stands; with WRONG defined as a number it
// holds one mistake, and the compiler is to complain in the snippet and about that mistake.
#include <ostream>
#include <regex>
#include <string>

#include <gmock/gmock.h>

#include "tests/gui/ChildProcess.h"

namespace Tarvik::Sdk {

namespace {

struct Mistake {
    const char* snippet;
    int wrong;         ///< the snippet's number for it
    const char* what;  ///< in words
    const char* told;  ///< pattern of the compiler's complaint
};

void PrintTo(const Mistake& mistake, std::ostream* out) {
    *out << mistake.snippet << ": " << mistake.what;
}

constexpr Mistake kMistakes[] = {
    {"Subscription", 1, "another input", "Subscribe"},
    {"Subscription", 2, "an untyped handler", "Subscribe"},
    {"Subscription", 3, "an answer where none is heard", "Subscribe"},
    {"Subscription", 4, "an input to be changed that is only read", "Subscribe"},
    {"Subscription", 5, "no input where there is one", "Subscribe"},
    {"Service", 1, "another input", "Offer"},
    {"Service", 2, "no answer where one is due", "Offer"},
    {"Service", 3, "another answer", "Offer"},
    {"Service", 4, "an untyped answer", "Offer"},
    {"Service", 5, "a call with another input", "Call"},
    {"Service", 6, "a call that expects another answer", "(convert|initialize).*string"},
    {"Service", 7, "a call without the input", "Call"},
    {"SixExports", 1, "PluginInfo with another result", "conflicting|differ"},
    {"SixExports", 2, "CheckEnvironment with an input", "conflicting|differ"},
    {"SixExports", 3, "Load with another result", "conflicting|differ"},
    {"SixExports", 4, "InitPlugin with a result", "conflicting|differ"},
    {"SixExports", 5, "SuiteLoaded with an input", "conflicting|differ"},
    {"SixExports", 6, "UnLoad without a result", "conflicting|differ"},
    {"Kernel", 1, "a bus of one's own", "private"},
    {"Kernel", 2, "a bus made by new", "private"},
    {"Kernel", 3, "a copy of the bus", "deleted"},
    {"Kernel", 4, "what only tests may do", "BusTesting.h"},
};

/// Lets the compiler look at a snippet with the SDK's public headers alone.
Programs::Ended Compile(const std::string& snippet, int wrong) {
    Programs::ChildProcess::Start start;
    start.words = {COMPILER,         "-std=c++20",
                   "-fsyntax-only",  "-DWRONG=" + std::to_string(wrong),
                   "-I" SDK_HEADERS, std::string(SNIPPETS) + "/" + snippet + ".cpp"};
    return Programs::RunToEnd(start);
}

class SdkMistake : public testing::TestWithParam<Mistake> {};

TEST_P(SdkMistake, DoesNotCompile) {
    const Mistake& mistake = GetParam();
    const Programs::Ended ended = Compile(mistake.snippet, mistake.wrong);
    EXPECT_NE(ended.exitCode, 0);
    const std::regex complaint(std::string("/") + mistake.snippet +
                               R"(\.cpp:\d+:\d+: (?:fatal )?error: .*(?:)" + mistake.told + ")");
    EXPECT_TRUE(std::regex_search(ended.err, complaint)) << ended.err;
}
INSTANTIATE_TEST_SUITE_P(All, SdkMistake, testing::ValuesIn(kMistakes));

class SdkSnippet : public testing::TestWithParam<const char*> {};

TEST_P(SdkSnippet, CompilesWithoutAMistake) {
    const Programs::Ended ended = Compile(GetParam(), 0);
    EXPECT_EQ(ended.exitCode, 0) << ended.err;
    EXPECT_THAT(ended.err, testing::IsEmpty());
}
INSTANTIATE_TEST_SUITE_P(All, SdkSnippet, testing::Values("Subscription", "Service", "SixExports", "Kernel"));

}  // namespace

}  // namespace Tarvik::Sdk
