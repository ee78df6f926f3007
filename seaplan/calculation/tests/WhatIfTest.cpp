// SPDX-License-Identifier: MIT
#include <cmath>
#include <cstdlib>

#include <gtest/gtest.h>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/calculation/WhatIf.h"
#include "seaplan/calculation/tests/Rows.h"

namespace Tarvik::Seaplan {

namespace {

using namespace Testing;

/// From A on March 1 at 00:00: 100 miles at 10 knots, 6 hours at B, 150 miles at 15 knots, C.
PortCallRows Voyage() {
    PortCallRows out;
    EXPECT_EQ(RecomputeSchedule({Call("A", 0), Call("B", 100, 10, 0, 6), Call("C", 150, 15)}, out), 0);
    EXPECT_EQ(Text(out[2].eta), "2026-03-02 02:00:00");
    return out;
}

TEST(WhatIf, TheLatestDepartureKeepsSpeedsAndStays) {
    const PortCallRows rows = Voyage();
    PortCallRows out;
    ASSERT_EQ(LatestDeparture(rows, 2, At(2, 8), out), WhatIfAnswer::Found);
    EXPECT_EQ(Text(out[0].etd), "2026-03-01 06:00:00");
    EXPECT_EQ(Text(out[2].eta), "2026-03-02 08:00:00");
    EXPECT_EQ(out[1].psp, 10);
    EXPECT_EQ(out[1].apt, 6);
    ASSERT_EQ(LatestDeparture(rows, 1, At(1, 4), out), WhatIfAnswer::Found);
    EXPECT_EQ(Text(out[0].etd), "2026-02-28 18:00:00") << "earlier than it is";
}

TEST(WhatIf, OneSpeedSharesTheTimeThatTheStaysLeave) {
    PortCallRows out;
    ASSERT_EQ(OneSpeedFor(Voyage(), 2, At(2, 7), out), WhatIfAnswer::Found);
    EXPECT_EQ(out[1].psp, 10) << "250 miles in 31 hours less 6";
    EXPECT_EQ(out[2].psp, 10);
    EXPECT_EQ(Text(out[2].eta), "2026-03-02 07:00:00");
}

TEST(WhatIf, OneSpeedMakesUpForTheWeatherOfItsLegs) {
    PortCallRows rows = Voyage();
    rows[1].pw = 0.5F;
    PortCallRows out;
    ASSERT_EQ(OneSpeedFor(rows, 2, At(2, 7), out), WhatIfAnswer::Found);
    EXPECT_EQ(out[1].psp, 14) << "200 and 150 miles through the water in 25 hours";
    EXPECT_LE(std::llabs(out[2].eta.total_csecs() - At(2, 7).total_csecs()), 100);
}

TEST(WhatIf, LegsBehindTheTargetKeepTheirSpeed) {
    PortCallRows out;
    ASSERT_EQ(OneSpeedFor(Voyage(), 1, At(1, 5), out), WhatIfAnswer::Found);
    EXPECT_EQ(out[1].psp, 20);
    EXPECT_EQ(out[2].psp, 15);
    ASSERT_EQ(WithOtherSpeeds(Voyage(), 1, 0.5, out), WhatIfAnswer::Found);
    EXPECT_EQ(out[1].psp, 10.5F);
    EXPECT_EQ(out[2].psp, 15);
}

TEST(WhatIf, HalfAKnotMoreArrivesEarlierThanHalfAKnotLessIsLate) {
    const PortCallRows rows = Voyage();
    PortCallRows faster;
    PortCallRows slower;
    ASSERT_EQ(WithOtherSpeeds(rows, 2, 0.5, faster), WhatIfAnswer::Found);
    ASSERT_EQ(WithOtherSpeeds(rows, 2, -0.5, slower), WhatIfAnswer::Found);
    const auto gained = rows[2].eta.total_csecs() - faster[2].eta.total_csecs();
    const auto lost = slower[2].eta.total_csecs() - rows[2].eta.total_csecs();
    EXPECT_GT(gained, 0);
    EXPECT_GT(lost, gained);
}

TEST(WhatIf, WhatCannotBeIsToldApart) {
    const PortCallRows rows = Voyage();
    PortCallRows out = rows;
    EXPECT_EQ(OneSpeedFor(rows, 2, At(1, 6), out), WhatIfAnswer::NoTime) << "the stay alone takes as long";
    EXPECT_TRUE(out.empty());
    EXPECT_EQ(OneSpeedFor(rows, 0, At(2, 6), out), WhatIfAnswer::NoSuchRow);
    EXPECT_EQ(LatestDeparture(rows, 3, At(2, 6), out), WhatIfAnswer::NoSuchRow);
    EXPECT_EQ(WithOtherSpeeds(rows, 2, -10, out), WhatIfAnswer::NoSchedule) << "no speed is left";
    PortCallRows unknown = rows;
    unknown[1].distance = unknown[2].distance = 0;
    EXPECT_EQ(OneSpeedFor(unknown, 2, At(2, 6), out), WhatIfAnswer::NoTime) << "no way to sail";
}

}  // namespace

}  // namespace Tarvik::Seaplan
