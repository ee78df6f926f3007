// SPDX-License-Identifier: MIT
#include <limits>

#include <gtest/gtest.h>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/calculation/tests/Rows.h"

namespace Tarvik::Seaplan {

namespace {

using namespace Testing;

PortCallRows Abc() {
    return {Call("A", 0), Call("B", 0), Call("C", 0)};
}

TEST(RowEdits, InsertsBeforeTheIndexOrAtTheEnd) {
    PortCallRows out;
    EXPECT_EQ(InsertRowAt(Abc(), 0, Call("X", 0), out), 0);
    EXPECT_EQ(Names(out), "XABC");
    EXPECT_EQ(InsertRowAt(Abc(), 3, Call("X", 0), out), 0);
    EXPECT_EQ(Names(out), "ABCX");
    EXPECT_EQ(InsertRowAt(Abc(), -1, Call("X", 0), out), -1);
    EXPECT_EQ(InsertRowAt(Abc(), 4, Call("X", 0), out), -2);
}

TEST(RowEdits, RemovesOneRow) {
    PortCallRows out;
    EXPECT_EQ(RemoveRowAt(Abc(), 1, out), 0);
    EXPECT_EQ(Names(out), "AC");
    EXPECT_EQ(RemoveRowAt(Abc(), -1, out), -1);
    EXPECT_EQ(RemoveRowAt(Abc(), 3, out), -2);
}

TEST(RowEdits, MovesARowUpAndDown) {
    PortCallRows out;
    EXPECT_EQ(MoveRowUp(Abc(), 2, out), 0);
    EXPECT_EQ(Names(out), "ACB");
    EXPECT_EQ(MoveRowUp(Abc(), 1, out), 0);
    EXPECT_EQ(Names(out), "BAC");
    EXPECT_EQ(MoveRowDown(Abc(), 0, out), 0);
    EXPECT_EQ(Names(out), "BAC");
    EXPECT_EQ(MoveRowDown(Abc(), 1, out), 0);
    EXPECT_EQ(Names(out), "ACB");
}

TEST(RowEdits, FirstRowCannotGoUpNorLastDown) {
    PortCallRows out{Call("X", 0)};
    EXPECT_EQ(MoveRowUp(Abc(), 0, out), -1);
    EXPECT_TRUE(out.empty());
    EXPECT_EQ(MoveRowDown(Abc(), 2, out), -1);
    EXPECT_TRUE(out.empty());
}

TEST(RowEdits, IndexOutsideTheListDoesNothing) {
    PortCallRows out;
    using Limits = std::numeric_limits<int>;
    for (const int index : {-2, -1, 3, 4, 99, Limits::max(), Limits::max() - 1, Limits::min()}) {
        EXPECT_EQ(MoveRowUp(Abc(), index, out), -1) << index;
        EXPECT_EQ(MoveRowDown(Abc(), index, out), -1) << index;
    }
}

TEST(RowEdits, FailedInsertionOrRemovalLeavesTheResultAlone) {
    PortCallRows out{Call("X", 0)};
    EXPECT_EQ(InsertRowAt(Abc(), 4, Call("Y", 0), out), -2);
    EXPECT_EQ(RemoveRowAt({}, 0, out), -2);
    EXPECT_EQ(Names(out), "X");
}

TEST(RowEdits, RemovingWhatWasInsertedGivesTheListBack) {
    for (int index = 0; index <= 3; ++index) {
        PortCallRows out;
        ASSERT_EQ(InsertRowAt(Abc(), index, Call("X", 0), out), 0);
        ASSERT_EQ(RemoveRowAt(out, index, out), 0);
        EXPECT_EQ(Names(out), "ABC") << index;
    }
}

TEST(RowEdits, MovingUpAndDownAgainGivesTheListBack) {
    for (int index = 1; index < 3; ++index) {
        PortCallRows out;
        ASSERT_EQ(MoveRowUp(Abc(), index, out), 0);
        ASSERT_EQ(MoveRowDown(out, index - 1, out), 0);
        EXPECT_EQ(Names(out), "ABC") << index;
    }
}

TEST(RowEdits, InputMayBeTheOutput) {
    auto rows = Abc();
    ASSERT_EQ(MoveRowUp(rows, 1, rows), 0);
    EXPECT_EQ(Names(rows), "BAC");
    ASSERT_EQ(RemoveRowAt(rows, 0, rows), 0);
    EXPECT_EQ(Names(rows), "AC");
}

}  // namespace
}  // namespace Tarvik::Seaplan
