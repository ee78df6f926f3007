// SPDX-License-Identifier: MIT
#include <limits>

#include <gtest/gtest.h>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/calculation/tests/Rows.h"

namespace Tarvik::Seaplan {

namespace {

using namespace Testing;

PortCallRows abc() {
    return {call("A", 0), call("B", 0), call("C", 0)};
}

TEST(RowEdits, InsertsBeforeTheIndexOrAtTheEnd) {
    PortCallRows out;
    EXPECT_EQ(InsertRowAt(abc(), 0, call("X", 0), out), 0);
    EXPECT_EQ(names(out), "XABC");
    EXPECT_EQ(InsertRowAt(abc(), 3, call("X", 0), out), 0);
    EXPECT_EQ(names(out), "ABCX");
    EXPECT_EQ(InsertRowAt(abc(), -1, call("X", 0), out), -1);
    EXPECT_EQ(InsertRowAt(abc(), 4, call("X", 0), out), -2);
}

TEST(RowEdits, RemovesOneRow) {
    PortCallRows out;
    EXPECT_EQ(RemoveRowAt(abc(), 1, out), 0);
    EXPECT_EQ(names(out), "AC");
    EXPECT_EQ(RemoveRowAt(abc(), -1, out), -1);
    EXPECT_EQ(RemoveRowAt(abc(), 3, out), -2);
}

TEST(RowEdits, MovesARowUpAndDown) {
    PortCallRows out;
    EXPECT_EQ(MoveRowUp(abc(), 2, out), 0);
    EXPECT_EQ(names(out), "ACB");
    EXPECT_EQ(MoveRowUp(abc(), 1, out), 0);
    EXPECT_EQ(names(out), "BAC");
    EXPECT_EQ(MoveRowDown(abc(), 0, out), 0);
    EXPECT_EQ(names(out), "BAC");
    EXPECT_EQ(MoveRowDown(abc(), 1, out), 0);
    EXPECT_EQ(names(out), "ACB");
}

TEST(RowEdits, FirstRowCannotGoUpNorLastDown) {
    PortCallRows out{call("X", 0)};
    EXPECT_EQ(MoveRowUp(abc(), 0, out), -1);
    EXPECT_TRUE(out.empty());
    EXPECT_EQ(MoveRowDown(abc(), 2, out), -1);
    EXPECT_TRUE(out.empty());
}

TEST(RowEdits, IndexOutsideTheListDoesNothing) {
    PortCallRows out;
    using Limits = std::numeric_limits<int>;
    for (const int index : {-2, -1, 3, 4, 99, Limits::max(), Limits::max() - 1, Limits::min()}) {
        EXPECT_EQ(MoveRowUp(abc(), index, out), -1) << index;
        EXPECT_EQ(MoveRowDown(abc(), index, out), -1) << index;
    }
}

TEST(RowEdits, FailedInsertionOrRemovalLeavesTheResultAlone) {
    PortCallRows out{call("X", 0)};
    EXPECT_EQ(InsertRowAt(abc(), 4, call("Y", 0), out), -2);
    EXPECT_EQ(RemoveRowAt({}, 0, out), -2);
    EXPECT_EQ(names(out), "X");
}

TEST(RowEdits, RemovingWhatWasInsertedGivesTheListBack) {
    for (int index = 0; index <= 3; ++index) {
        PortCallRows out;
        ASSERT_EQ(InsertRowAt(abc(), index, call("X", 0), out), 0);
        ASSERT_EQ(RemoveRowAt(out, index, out), 0);
        EXPECT_EQ(names(out), "ABC") << index;
    }
}

TEST(RowEdits, MovingUpAndDownAgainGivesTheListBack) {
    for (int index = 1; index < 3; ++index) {
        PortCallRows out;
        ASSERT_EQ(MoveRowUp(abc(), index, out), 0);
        ASSERT_EQ(MoveRowDown(out, index - 1, out), 0);
        EXPECT_EQ(names(out), "ABC") << index;
    }
}

TEST(RowEdits, InputMayBeTheOutput) {
    auto rows = abc();
    ASSERT_EQ(MoveRowUp(rows, 1, rows), 0);
    EXPECT_EQ(names(rows), "BAC");
    ASSERT_EQ(RemoveRowAt(rows, 0, rows), 0);
    EXPECT_EQ(names(rows), "AC");
}

}  // namespace
}  // namespace Tarvik::Seaplan
