// SPDX-License-Identifier: MIT
/// Seeded sequences of what a person and the world do, over the real panels, controllers and server. From the
/// environment: WALK_SEEDS, how many; WALK_FIRST, the first seed.
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "tests/walk/Walk.h"

namespace Tarvik::Seaplan::Walk {

namespace {

std::uint64_t NumberOf(const char* name, std::uint64_t otherwise) {
    const char* text = std::getenv(name);
    return text == nullptr ? otherwise : std::stoull(text);
}

}  // namespace

TEST(RandomWalkTest, NothingIsStoredWrongOrLostOnAnyWay) {
    constexpr int kMostReports = 5;
    const std::uint64_t first = NumberOf("WALK_FIRST", 1);
    const std::uint64_t count = NumberOf("WALK_SEEDS", WALK_BOUNDED_SEEDS);
    int reports = 0;
    for (std::uint64_t seed = first; seed < first + count && reports < kMostReports; ++seed) {
        if (const auto fault = FaultIn(RandomScript(seed, kSteps))) {
            ADD_FAILURE() << Report(seed, *fault);
            ++reports;
        }
    }
    RecordProperty("seeds", std::to_string(count));
}

TEST(RandomWalkTest, TheStepsReachWhatTheRulesAreAbout) {
    constexpr std::uint64_t kSeeds = 60;
    Tally tally;
    for (std::uint64_t seed = 1; seed <= kSeeds; ++seed) {
        FaultIn(RandomScript(seed, kSteps), &tally);
    }
    for (const char* what :
         {"8 done", "9 done", "11 done", "13 done", "14 done", "struck", "marked", "corrected",
          "changed table", "table kept", "taken back", "IDS_PORTCALL_SAVENEXT yes",
          "IDS_PORTCALL_SAVENEXT no", "IDS_PORTCALL_CLOSESAVE yes", "IDS_PORTCALL_CLOSESAVE no",
          "IDS_PORTCALL_CLEARFORBLANK yes", "IDS_PORTCALL_SAVEEXCEPTION"}) {
        EXPECT_GT(tally[what], 0) << what;
    }
}

TEST(RandomWalkTest, AScriptIsReadAsItWasWritten) {
    const Script script = RandomScript(7, kSteps);
    EXPECT_EQ(ReadScript(TextOf(script)), script);
    EXPECT_EQ(ReadScript("save 1 2 no # why\n\n")->size(), 1U);
    EXPECT_FALSE(ReadScript("save 1 2"));
    EXPECT_FALSE(ReadScript("sing 1 2 no"));
}

}  // namespace Tarvik::Seaplan::Walk
