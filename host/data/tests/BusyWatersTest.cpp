// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/data/builder/CoastCorners.h"

namespace Tarvik::Data {

namespace {

TEST(BusyWaters, ReachAsFarAsAskedFor) {
    const BusyWaters waters({{10, 60}}, 60);
    EXPECT_TRUE(waters.Contains({10, 60}));
    EXPECT_TRUE(waters.Contains({11.3, 60.1}));
    EXPECT_TRUE(waters.Contains({10.1, 60.8}));
    EXPECT_FALSE(waters.Contains({13.5, 60}));
    EXPECT_FALSE(waters.Contains({10, 62}));
}

TEST(BusyWaters, ReachOverTheDateLine) {
    const BusyWaters waters({{179.9, 0}}, 60);
    EXPECT_TRUE(waters.Contains({-179.6, 0.1}));
    EXPECT_TRUE(waters.Contains({179.4, 0.1}));
    EXPECT_FALSE(waters.Contains({0, 0}));
}

TEST(BusyWaters, WithoutPlacesAreNowhere) {
    EXPECT_FALSE(BusyWaters({}, 60).Contains({0, 0}));
}

}  // namespace
}  // namespace Tarvik::Data
