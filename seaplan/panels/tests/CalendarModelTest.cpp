// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/panels/datetime/CalendarModel.h"
#include "testsupport/ManualClock.h"

namespace Tarvik::Seaplan {

using Util::_datetime_t;

TEST(CalendarModel, AMonthThatBeginsOnSundayOpensWithAWeekOfTheMonthBefore) {
    CalendarModel calendar;
    calendar.SetValue(_datetime_t(0, 0, 0, 10, 3, 2015));
    EXPECT_EQ(calendar.DayOfCell(0), 22);
    EXPECT_EQ(calendar.DayOfCell(7), 1);
    EXPECT_EQ(calendar.LookOfCell(6), CalendarModel::CellLook::OutsideMonth);
    EXPECT_EQ(calendar.LookOfCell(7), CalendarModel::CellLook::InMonth);
    EXPECT_EQ(calendar.SelectedCell(), 16);
    EXPECT_EQ(calendar.Heading(), "March  2015");
}

TEST(CalendarModel, MonthsCarryIntoTheYear) {
    CalendarModel calendar;
    calendar.SetValue(_datetime_t(0, 0, 0, 31, 12, 2023));
    calendar.StepMonth(1);
    EXPECT_EQ(calendar.Heading(), "January  2024");
    EXPECT_EQ(calendar.DayOfCell(calendar.SelectedCell()), 1);
    calendar.StepMonth(-1);
    EXPECT_EQ(calendar.Heading(), "December  2023");
    calendar.StepYear(-1);
    EXPECT_EQ(calendar.Heading(), "December  2022");
}

TEST(CalendarModel, AnotherMonthTakesItsFirstAndTheTimeOfTheValue) {
    CalendarModel calendar;
    calendar.SetValue(_datetime_t(42, 30, 8, 15, 3, 2024));
    calendar.TypeHour("9");
    calendar.StepMonth(1);
    EXPECT_EQ(calendar.HourText(), "08") << "what was typed is gone with its month";
    EXPECT_TRUE(calendar.Accept());
    EXPECT_EQ(calendar.Value(), _datetime_t(42, 30, 8, 1, 4, 2024));
}

TEST(CalendarModel, YearsOfALeapDayLeadToTheFirst) {
    CalendarModel calendar;
    calendar.SetValue(_datetime_t(0, 0, 0, 29, 2, 2024));
    calendar.StepYear(1);
    EXPECT_EQ(calendar.Heading(), "February  2025");
    EXPECT_EQ(calendar.DayOfCell(calendar.SelectedCell()), 1);
    calendar.StepYear(-1);
    EXPECT_EQ(calendar.DayOfCell(calendar.SelectedCell()), 1) << "the leap day does not come back";
}

TEST(CalendarModel, ADayOfTheMonthBeforeInTheGridIsThatDay) {
    CalendarModel calendar;
    calendar.SetValue(_datetime_t(42, 30, 8, 15, 3, 2024));
    ASSERT_EQ(calendar.DayOfCell(0), 25);
    calendar.ClickCell(0);
    EXPECT_EQ(calendar.Heading(), "March  2024") << "the month on view stays";
    EXPECT_TRUE(calendar.Accept());
    EXPECT_EQ(calendar.Value(), _datetime_t(42, 30, 8, 25, 2, 2024));
}

TEST(CalendarModel, AnHourThatIsNoNumberCountsAsNone) {
    CalendarModel calendar;
    calendar.SetValue(_datetime_t(0, 30, 8, 15, 3, 2024));
    calendar.TypeHour("ab");
    calendar.TypeMinute("");
    EXPECT_EQ(calendar.HourText(), "00");
    EXPECT_EQ(calendar.MinuteText(), "00");
    calendar.TypeHour("-1");
    EXPECT_EQ(calendar.HourText(), "00");
    calendar.TypeHour("7 o'clock");
    EXPECT_EQ(calendar.HourText(), "07");
}

TEST(CalendarModel, HoursAndMinutesWrapAndBadTextIsDropped) {
    CalendarModel calendar;
    calendar.SetValue(_datetime_t(0, 59, 0, 1, 3, 2024));
    calendar.StepHour(-1);
    EXPECT_EQ(calendar.HourText(), "23");
    calendar.StepHour(1);
    EXPECT_EQ(calendar.HourText(), "00");
    calendar.StepMinute(1);
    EXPECT_EQ(calendar.MinuteText(), "00");
    calendar.TypeHour("24");
    EXPECT_EQ(calendar.HourText(), "00");
    calendar.TypeHour("7");
    EXPECT_EQ(calendar.HourText(), "07");
    calendar.TypeMinute("60");
    EXPECT_EQ(calendar.MinuteText(), "00");
}

TEST(CalendarModel, AcceptKeepsTheSecondsAndTellsOnlyOfAChange) {
    CalendarModel calendar;
    calendar.SetValue(_datetime_t(42, 30, 8, 15, 3, 2024));
    EXPECT_FALSE(calendar.Accept());
    EXPECT_FALSE(calendar.ClickCell(calendar.SelectedCell() + 1));
    calendar.TypeHour("9");
    EXPECT_TRUE(calendar.Accept());
    EXPECT_EQ(calendar.Value(), _datetime_t(42, 30, 9, 16, 3, 2024));
}

TEST(CalendarModel, DateOnlyLosesTheTime) {
    CalendarModel calendar(true);
    calendar.SetValue(_datetime_t(42, 30, 8, 15, 3, 2024));
    EXPECT_FALSE(calendar.ClickCell(calendar.SelectedCell()));
    EXPECT_TRUE(calendar.ClickCell(calendar.SelectedCell() + 1));
    EXPECT_EQ(calendar.Value(), _datetime_t(0, 0, 0, 16, 3, 2024));
}

TEST(CalendarModel, TodayHasALookOfItsOwn) {
    TestSupport::ManualClock clock;
    CalendarModel calendar;
    calendar.SetValue(_datetime_t(0, 0, 0, 20, 3, 2024));
    EXPECT_EQ(calendar.DayOfCell(5), 1);
    EXPECT_EQ(calendar.LookOfCell(5), CalendarModel::CellLook::Today);
}

}  // namespace Tarvik::Seaplan
