// SPDX-License-Identifier: MIT
#include "host/data/builder/BusyWaters.h"

#include <gtest/gtest.h>

namespace Tarvik::Data {
namespace {

TEST(BusyWaters, ReachAsFarAsAskedFor) {
    const BusyWaters waters({{10, 60}}, 60);
    EXPECT_TRUE(waters.contains({10, 60}));
    EXPECT_TRUE(waters.contains({11.3, 60.1}));
    EXPECT_TRUE(waters.contains({10.1, 60.8}));
    EXPECT_FALSE(waters.contains({13.5, 60}));
    EXPECT_FALSE(waters.contains({10, 62}));
}

TEST(BusyWaters, ReachOverTheDateLine) {
    const BusyWaters waters({{179.9, 0}}, 60);
    EXPECT_TRUE(waters.contains({-179.6, 0.1}));
    EXPECT_TRUE(waters.contains({179.4, 0.1}));
    EXPECT_FALSE(waters.contains({0, 0}));
}

TEST(BusyWaters, WithoutPlacesAreNowhere) {
    EXPECT_FALSE(BusyWaters({}, 60).contains({0, 0}));
}

}  // namespace
}  // namespace Tarvik::Data
