// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/gui/Picture.h"

namespace Tarvik::Programs {

namespace {

TEST(Picture, GivesThePixelsOfARectangleWithinIt) {
    const std::string picture = "P6\n3 2\n255\naaabbbcccdddeeefff";
    EXPECT_EQ(Cut(picture, 1, 0, 2, 2), "bbbccceeefff");
    EXPECT_EQ(Cut(picture, 2, 1, 1, 1), "fff");
    EXPECT_EQ(Cut(picture, 2, 1, 2, 1), "");
    EXPECT_EQ(Cut("no picture", 0, 0, 1, 1), "");
}

}  // namespace
}  // namespace Tarvik::Programs
