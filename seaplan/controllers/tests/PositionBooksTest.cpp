// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <tarvik/util/DateTimeUtl.h>

#include "seaplan/controllers/ScheduleCalculation.h"
#include "seaplan/controllers/tests/ScheduleFaultsFixture.h"
#include "seaplan/data/PosBookData.h"
#include "seaplan/panels/tests/DeskPorts.h"
#include "testsupport/RecordingHost.h"

/// The position book between a voyage's record, its panel and the server.
namespace Tarvik::Seaplan {

namespace {

using testing::ElementsAre;
using testing::SizeIs;

class PositionBooksTest : public ScheduleFaultsFixture {
  protected:
    std::string vi = Voyage({"ROTTERDAM", "HAMBURG", "GDANSK"});
    PosBookData book;

    PositionBooksTest() {
        EXPECT_EQ(desk.voyages.GetPosBookData(vi, book), 0);
        desk.ForgetRecords();
    }
    VoyInfo& Record() { return *desk.store.FindVoyage(vi); }
    std::vector<std::string> SentCommands() {
        std::vector<std::string> commands;
        for (const auto& request : desk.host.requests) {
            commands.push_back(std::to_string(request.Command()));
        }
        return commands;
    }
};

TEST_F(PositionBooksTest, ABookThatIsNotHereYetIsLoaded) {
    Restart();
    ASSERT_EQ(desk.voyages.GetPosBookData(vi, book), 0);
    EXPECT_THAT(SentCommands(), ElementsAre("10", "7"));
    ASSERT_THAT(book.ports, SizeIs(3));
    EXPECT_EQ(book.ports[1].name, "HAMBURG");
    EXPECT_THAT(book.ports[1].rows, SizeIs(1));
    EXPECT_EQ(book.ports[0].eta, Util::_datetime_t(0, 0, 0, 1, 3, 2024)) << "UTC";
}

TEST_F(PositionBooksTest, ABookInTheRecordIsNotAskedForAgain) {
    ASSERT_EQ(desk.voyages.GetPosBookData(vi, book), 0);
    EXPECT_THAT(desk.host.requests, SizeIs(0));
}

TEST_F(PositionBooksTest, OpeningTheBookLeavesARouteThatWaitsToBeSaved) {
    PortCallRows rows = Record().portCalls;
    PortCallRows out;
    ASSERT_EQ(desk.voyages.CalculatePortCalls(rows, out), 0);
    desk.voyages.Module().Pending().Assign(vi);
    ASSERT_EQ(desk.voyages.GetPosBookData(vi, book), 0);
    EXPECT_TRUE(desk.voyages.Module().Pending().IsFor(vi));
}

TEST_F(PositionBooksTest, AnAisPointTellsTheSpeedThatTheShipHad) {
    Record().positionBook.points[1].pst = AisTrackPoint;
    Record().positionBook.points[1].psp = 7.0F;
    ASSERT_EQ(desk.voyages.GetPosBookData(vi, book), 0);
    EXPECT_NEAR(book.ports[1].rows[0].aisSpeed, 7 * 1.852, 1e-9);
}

TEST_F(PositionBooksTest, WhatCannotBeShownIsTold) {
    PosBookData before = book;
    EXPECT_EQ(desk.voyages.GetPosBookData("", book), -1);
    EXPECT_EQ(desk.voyages.GetPosBookData("999", book), -2);
    EXPECT_EQ(desk.voyages.GetPosBookData(Voyage({}), book), -3);
    vi = Voyage({"ROTTERDAM", "HAMBURG"});
    PortCallRows rows;
    ASSERT_EQ(desk.voyages.LoadSchedule(vi, rows, -1), 0);
    Record().positionBook.points.front().pst = PlainPoint;
    EXPECT_EQ(desk.voyages.GetPosBookData(vi, book), -4);
    EXPECT_EQ(book.ports.size(), before.ports.size());
}

TEST_F(PositionBooksTest, AnUnchangedBookSendsPortCallsAndRowsAsTheyAre) {
    const std::string id = Record().positionBook.pbi;
    ASSERT_EQ(desk.voyages.SavePositionBook(vi, book), 0);
    EXPECT_THAT(SentCommands(), ElementsAre("11", "9")) << "the start is the same";
    EXPECT_THAT(
        desk.Sent(Ask::kSavePortCalls),
        ElementsAre("[\"" + vi +
                    "\",\"0|40001|ROTTERDAM|L|0.000|0.000|0.0\",\"1|40003|HAMBURG|D|18.520|0.000|0.0\","
                    "\"2|40004|GDANSK|D|18.520|0.000|0.0\"]"));
    const std::string turn1 = Record().positionBook.points[1].position;
    const std::string turn2 = Record().positionBook.points[3].position;
    const auto at = [](const std::string& position) {
        return position.substr(0, position.find(',')) + "|" + position.substr(position.find(',') + 1);
    };
    EXPECT_THAT(desk.Sent(Ask::kSaveBook),
                ElementsAre("[\"" + id + "\",\"0\",\"0|ROTTERDAM|0.0000|0.0000|GC|5|0.000|5\",\"1||" +
                            at(turn1) + "|GC|5|18.520|0\",\"2|HAMBURG|0.8000|0.0000|GC|5|18.520|5\",\"3||" +
                            at(turn2) + "|GC|5|18.520|0\",\"4|GDANSK|1.2000|0.0000|GC|5|18.520|5\"]"));
}

TEST_F(PositionBooksTest, ATypedSpeedStaysAndThePortTakesTheAverage) {
    book.ports[1].rows[0].speed = 10 * 1.852;
    book.ports[1].speed = 20 * 1.852;
    ASSERT_EQ(desk.voyages.SavePositionBook(vi, book), 0);
    EXPECT_THAT(desk.Sent(Ask::kSaveBook, "|18.520|0\",\"2|HAMBURG|0.8000|0.0000|GC|5|37.040|5"), SizeIs(1));
    const float average = Record().portCalls[1].psp;
    EXPECT_GT(average, 10.5F);
    EXPECT_LT(average, 19.5F);
    PortCallRows rows;
    Restart();
    ASSERT_EQ(desk.voyages.LoadSchedule(vi, rows, -1), 0);
    EXPECT_NEAR(rows[1].psp, average, 0.01F);
    EXPECT_NEAR(Record().positionBook.points[1].psp, 10.0F, 0.001F);
    EXPECT_NEAR(Record().positionBook.points[2].psp, 20.0F, 0.001F);
    ASSERT_EQ(desk.voyages.SaveSchedule(vi, rows, -1), 0);
    EXPECT_NEAR(Record().positionBook.points[2].psp, 20.0F, 0.001F) << "saving the table keeps them too";
}

TEST_F(PositionBooksTest, AnotherStartIsSentAsTheBooksDate) {
    book.ports[0].eta = Util::_datetime_t(0, 0, 6, 2, 3, 2024);
    ASSERT_EQ(desk.voyages.SavePositionBook(vi, book), 0);
    EXPECT_THAT(SentCommands(), ElementsAre("11", "14", "9"));
    EXPECT_THAT(desk.Sent(Ask::kBookDate),
                ElementsAre("{psb:\"" + Record().positionBook.pbi + "\",dt:\"2024-03-02 06:00:00\"}"));
    EXPECT_EQ(Record().positionBook.eta, Util::_datetime_t(0, 0, 14, 2, 3, 2024)) << "the plan's zone";
    EXPECT_EQ(Record().portCalls[0].eta, Record().positionBook.eta);
}

TEST_F(PositionBooksTest, ThePortTimeOfTheBookReachesThePortCalls) {
    book.ports[1].portTime = 6;
    ASSERT_EQ(desk.voyages.SavePositionBook(vi, book), 0);
    EXPECT_THAT(desk.Sent(Ask::kSavePortCalls, "\"1|40003|HAMBURG|D|18.520|0.000|6.0\""), SizeIs(1));
    EXPECT_EQ(Util::DateTimeUtl::Diff(Record().portCalls[1].etd, Record().portCalls[1].eta), 6);
}

TEST_F(PositionBooksTest, NothingIsSentOfABookThatMakesNoSchedule) {
    EXPECT_EQ(desk.voyages.SavePositionBook("", book), -1);
    EXPECT_EQ(desk.voyages.SavePositionBook("999", book), -2);
    PosBookData one = book;
    one.ports.resize(1);
    EXPECT_EQ(desk.voyages.SavePositionBook(vi, one), -3);
    book.ports[1].speed = 0;
    EXPECT_EQ(desk.voyages.SavePositionBook(vi, book), -4);
    EXPECT_FALSE(SentAChange());
}

TEST_F(PositionBooksTest, TheRecordStaysAsItWasWhereTheServerTakesAPartOnly) {
    const auto points = Record().positionBook.points;
    book.ports[0].eta = Util::_datetime_t(0, 0, 6, 2, 3, 2024);
    book.ports[1].rows[0].y = 1;
    for (const auto& [lost, code] :
         {std::pair(Ask::kSavePortCalls, -5), std::pair(Ask::kBookDate, -6), std::pair(Ask::kSaveBook, -7)}) {
        desk.Refuse(lost);
        EXPECT_EQ(desk.voyages.SavePositionBook(vi, book), code);
        EXPECT_EQ(Record().positionBook.points[1].position, points[1].position);
        EXPECT_EQ(Record().positionBook.eta, Util::_datetime_t(0, 0, 8, 1, 3, 2024));
        desk.Heal();
    }
    EXPECT_EQ(desk.voyages.SavePositionBook(vi, book), 0);
    EXPECT_THAT(Record().positionBook.points[1].position, testing::EndsWith(",1.000"));
}

TEST_F(PositionBooksTest, APortThatTheDictionaryDoesNotKnowKeepsTheIdOfItsRecord) {
    Record().portCalls[1].ppn = "Hamburg Waltershof";
    Record().portCalls[1].ppi = DeskPortId("HAMBURG");
    ASSERT_EQ(desk.voyages.GetPosBookData(vi, book), 0);
    ASSERT_EQ(book.ports[1].id, "") << "the dictionary alone gives the book its ids";
    ASSERT_EQ(desk.voyages.SavePositionBook(vi, book), 0);
    EXPECT_THAT(desk.Sent(Ask::kSavePortCalls, "\"1|" + DeskPortId("HAMBURG") + "|Hamburg Waltershof|"),
                SizeIs(1));
    EXPECT_EQ(Record().portCalls[1].ppi, DeskPortId("HAMBURG"));
}

TEST_F(PositionBooksTest, ASaveThatFailsTellsItsCause) {
    using Cause = ScheduleFault::Cause;
    book.ports[0].eta = Util::_datetime_t(0, 0, 6, 2, 3, 2024);
    for (const auto lost : {Ask::kSavePortCalls, Ask::kBookDate, Ask::kSaveBook}) {
        desk.Refuse(lost);
        EXPECT_LT(desk.voyages.SavePositionBook(vi, book), 0);
        EXPECT_EQ(desk.voyages.LastFault().cause, Cause::Refused);
        desk.Heal();
        desk.Lose(lost);
        EXPECT_LT(desk.voyages.SavePositionBook(vi, book), 0);
        EXPECT_EQ(desk.voyages.LastFault().cause, Cause::Connection);
        desk.Heal();
    }
    EXPECT_EQ(desk.voyages.SavePositionBook(vi, book), 0);
    EXPECT_EQ(desk.voyages.LastFault().cause, Cause::None);
    book.ports[1].speed = 0;
    EXPECT_EQ(desk.voyages.SavePositionBook(vi, book), -4);
    EXPECT_EQ(desk.voyages.LastFault().cause, Cause::Figures);
}

TEST_F(PositionBooksTest, WaypointsKeepThreeDecimalsAndPortsFour) {
    book.ports[1].rows[0].x = -0.12345;
    book.ports[1].x = 0.81236;
    ASSERT_EQ(desk.voyages.SavePositionBook(vi, book), 0);
    EXPECT_THAT(desk.Sent(Ask::kSaveBook, "\"1||-0.123|"), SizeIs(1));
    EXPECT_THAT(desk.Sent(Ask::kSaveBook, "\"2|HAMBURG|0.8124|0.0000|"), SizeIs(1));
}

}  // namespace

}  // namespace Tarvik::Seaplan
