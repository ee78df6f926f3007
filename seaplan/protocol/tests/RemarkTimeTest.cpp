// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/protocol/RemarkMessages.h"
#include "testsupport/ManualClock.h"
#include "testsupport/RecordingHost.h"

namespace Tarvik::Seaplan {

namespace {

TEST(UtcTextToLocalTest, ReadsInTheZoneOfTheHost) {
    TestSupport::RecordingHost host;
    EXPECT_EQ(UtcTextToLocal(1709251200, "%Y-%m-%d %H:%M:%S"), "2024-03-01 08:00:00");
    host.zone = "Newfoundland Standard Time";
    EXPECT_EQ(UtcTextToLocal(1709251200, "%Y-%m-%d %H:%M:%S"), "2024-02-29 20:30:00");
}

TEST(UtcTextToLocalTest, EmptyFormatEndsWithTheMinutes) {
    const TestSupport::RecordingHost host;
    EXPECT_EQ(UtcTextToLocal(1709251259, ""), "2024-03-01 08:00");
}

TEST(UtcTextToLocalTest, NoCutOverDateApplies) {
    const TestSupport::RecordingHost host;
    EXPECT_EQ(UtcTextToLocal(1317427200, "%Y-%m-%d %H:%M:%S"), "2011-10-01 08:00:00");
    EXPECT_EQ(UtcTextToLocal(0, "%Y-%m-%d %H:%M:%S"), "1970-01-01 08:00:00");
}

TEST(UtcTextToLocalTest, TimesAfter2038AreRead) {
    const TestSupport::RecordingHost host;
    EXPECT_EQ(UtcTextToLocal(4294967296, "%Y-%m-%d %H:%M:%S"), "2106-02-07 14:28:16");
}

TEST(UtcTextToLocalTest, WithoutAZoneTheTextIsEmpty) {
    EXPECT_EQ(UtcTextToLocal(1709251200, ""), "");
    TestSupport::RecordingHost host;
    host.zone.reset();
    EXPECT_EQ(UtcTextToLocal(1709251200, "%Y"), "");
}

TEST(NowTextTest, TellsLocalTimeAndTheDateAloneForAnEmptyFormat) {
    TestSupport::ManualClock clock;
    Util::Clock::SetLocalZone("China Standard Time");
    clock.SetUtc(2024, 2, 29, 20, 15, 30);
    EXPECT_EQ(NowText("%Y-%m-%d %H:%M:%S"), "2024-03-01 04:15:30");
    EXPECT_EQ(NowText(""), "2024-03-01");
}

}  // namespace
}  // namespace Tarvik::Seaplan
