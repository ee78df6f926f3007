// SPDX-License-Identifier: MIT
/// Scripts of random walks that once failed, each cut down to what its fault needed.
#include <string>

#include <gtest/gtest.h>

#include "tests/walk/Walk.h"

namespace Tarvik::Seaplan::Walk {

namespace {

struct KeptWalk {
    const char* name;  ///< what was wrong
    const char* script;
};

void PrintTo(const KeptWalk& walk, std::ostream* out) {
    *out << walk.name;
}

constexpr KeptWalk kKeptWalks[] = {
    {"ACalculationThatWasGivenUpOpenedAsIfItWereStored", R"(
cut 22 244 no
rightpress 17 691 yes
calculate 43 667 yes
firstarrival 34 507 no
calculate 0 170 yes
openbykey 13 478 no
)"},
    {"ASaveThatBrokeOffAndWasGivenUpOpenedWithItsRows", R"(
open 29 396 no
delete 30 285 no
typeport 10 460 yes
openbykey 44 596 yes
cut 6 462 no
open 13 590 no
typeport 31 206 yes
typeover 28 714 no
save 22 689 no
open 40 376 no
open 9 542 yes
)"},
    {"APortBeingTypedWasLostWhenAnotherVoyageOpenedByKeyboard", R"(
rightpress 53 361 yes
leavetyping 32 760 yes
openbykey 26 835 no
)"},
    {"AnotherCorrectionChangedMarkedRowsBeforeItAsked", R"(
ship 46 514 yes
correct 35 693 no
correct 21 491 yes
ship 8 524 yes
calculate 5 39 yes
correct 44 418 no
movedown 26 669 yes
correct 41 113 yes
)"},
    {"ATableThatCouldNotBeReadWasSavedOnceItsVoyageWasKnownForTheChart", R"(
cut 54 208 yes
rightpress 15 645 yes
heal 46 705 yes
press 43 291 yes
typeport 6 509 yes
calculate 25 51 yes
)"},
    {"AnswerYesOverATableThatCouldNotBeReadReplacedThePortCalls", R"(
refuse 1 102 no
openbykey 27 57 yes
typeport 57 45 no
typeport 31 618 no
open 47 240 yes
)"},
    {"ARefusedSaveOfACorrectionChangedTheRowsThatItWasToSave", R"(
ship 48 574 yes
correct 26 189 yes
save 41 653 no
ship 48 389 no
correct 41 230 no
calculate 49 537 no
delete 5 782 no
moveup 1 374 no
open 16 831 yes
)"},
    {"TheDialogOfADistanceTableThatWasLeftKeptAnotherVoyagesRows", R"(
chartport 37 469 yes
typeport 56 657 yes
open 30 526 yes
openbykey 29 586 no
keeptable 1 827 no
)"},
    {"ASaveBehindACalculationThatWasTakenBackShowedTheMilesOfOtherPorts", R"(
open 51 493 no
typeover 44 309 yes
calculate 49 133 yes
undo 32 605 no
save 43 253 no
)"},
    {"AnEditTakenBackBehindASaveThatBrokeOffLookedStored", R"(
openbykey 9 676 yes
speed 23 670 no
loseanswer 40 472 yes
track 24 564 no
opentable 52 595 yes
undo 22 759 yes
rightpress 31 131 yes
moveup 16 433 no
relogin 48 325 no
open 29 201 no
)"},
};

class KeptWalkTest : public ::testing::TestWithParam<KeptWalk> {};

INSTANTIATE_TEST_SUITE_P(Scripts, KeptWalkTest, ::testing::ValuesIn(kKeptWalks),
                         [](const auto& walk) { return std::string(walk.param.name); });

}  // namespace

TEST_P(KeptWalkTest, HoldsEveryRule) {
    const auto script = ReadScript(GetParam().script);
    ASSERT_TRUE(script);
    const auto fault = FaultIn(*script);
    EXPECT_FALSE(fault) << TextOf((*script)[fault->step < script->size() ? fault->step : 0]) << ": "
                        << fault->what;
}

}  // namespace Tarvik::Seaplan::Walk
