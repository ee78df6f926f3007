// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <tarvik/util/Jsona.h>

#include "seaplan/protocol/BookCommands.h"
#include "testsupport/RecordingHost.h"

namespace Tarvik::Seaplan {

namespace {

using Texts = std::vector<std::string>;

BookPoints PointsOf(std::size_t count) {
    PosBookPoint point;
    point.psn = "P";
    point.position = "120.000,30.500";
    return BookPoints(count, point);
}

class BookCommandsTest : public testing::Test {
  protected:
    TestSupport::RecordingHost host;
    VoyPositionBook book;
    std::string id;
};

TEST_F(BookCommandsTest, LoadReadsBookAndRows) {
    host.Reply(
        7, R"([{pbi:"5",eta:"2024-01-01 00:00:00",pb:[{lon:0,psn:"A",xc:120.1234,yc:-30.5,psr:"RL",pli:"3",)"
           R"(psp:"18.52",pst:"5"}]}])");
    EXPECT_EQ(LoadPositionBook("77", book), 0);
    EXPECT_EQ(host.Texts(), Texts{R"(7 {vi:"77"})"});
    EXPECT_EQ(book.pbi, "5");
    EXPECT_EQ(book.eta.fmt("%Y-%m-%d %H:%M:%S"), "2024-01-01 08:00:00");
    ASSERT_EQ(book.points.size(), 1U);
    EXPECT_EQ(book.points[0].psn, "A");
    EXPECT_EQ(book.points[0].position, "120.123,-30.500");
    EXPECT_EQ(book.points[0].psr, "RL");
    EXPECT_EQ(book.points[0].pli, 3);
    EXPECT_EQ(book.points[0].psp, 10.0F);
    EXPECT_EQ(book.points[0].pst, PortPoint);
}

TEST_F(BookCommandsTest, RowWithoutOptionalValuesTakesTheDefaultsOfReplies) {
    host.Reply(7, R"([{eta:"2011-01-01 00:00:00",pb:[{lon:0,xc:1.5,yc:2.5}]}])");
    EXPECT_EQ(LoadPositionBook("77", book), 0);
    EXPECT_EQ(book.points[0].psr, "GC");
    EXPECT_EQ(book.points[0].pli, 2);
    EXPECT_EQ(book.points[0].psp, static_cast<float>(10.0 / 1.852));
    EXPECT_EQ(book.points[0].pst, PlainPoint);
    EXPECT_EQ(book.pbi, "");
}

TEST_F(BookCommandsTest, CoordinatesWrittenAsIntegersAreRead) {
    host.Reply(7,
               R"([{eta:"2011-01-01 00:00:00",pb:[{lon:0,xc:120,yc:-3},{lon:1,xc:0.00005,yc:0},{lon:2}]}])");
    EXPECT_EQ(LoadPositionBook("77", book), 0);
    EXPECT_EQ(book.points[0].position, "120.000,-3.000");
    EXPECT_EQ(book.points[1].position, "0.000,0.000");
    EXPECT_EQ(book.points[2].position, "0.000,0.000");
}

TEST_F(BookCommandsTest, NumberNearZeroIsReadAgainAsAnInteger) {
    const auto position = [](const char* json) {
        Util::Jsona row;
        EXPECT_TRUE(row.parse(json)) << json;
        return PositionText(row);
    };
    EXPECT_EQ(position("{xc:-0.00005,yc:0.00009}"), "0.000,0.000");
    EXPECT_EQ(position("{xc:-0.0001,yc:0.0001}"), "-0.000,0.000") << "the limit itself stands as it was read";
    EXPECT_EQ(position("{xc:0,yc:-90}"), "0.000,-90.000");
    EXPECT_EQ(position(R"({xc:"120",yc:null})"), "0.000,0.000");
    EXPECT_EQ(position("{xc:1.2e2,yc:120.0}"), "120.000,120.000");
}

TEST_F(BookCommandsTest, PositionIsPrintedFromThirtyTwoBits) {
    Util::Jsona row;
    ASSERT_TRUE(row.parse("{xc:179.9995,yc:31.2305}"));
    EXPECT_EQ(PositionText(row), "179.999,31.230");
}

TEST_F(BookCommandsTest, OptionalNumbersAreReadFromTextsOnly) {
    host.Reply(
        7, R"([{eta:"2011-01-01 00:00:00",pb:[{lon:"3",psr:"RL",pli:4,psp:18.52,pst:5},{lon:1,psn:"B"}]}])");
    EXPECT_EQ(LoadPositionBook("77", book), 0);
    ASSERT_EQ(book.points.size(), 2U);
    EXPECT_EQ(book.points[0].pli, 2) << "a row without integer number sorts as -1";
    EXPECT_EQ(book.points[0].psp, static_cast<float>(10.0 / 1.852));
    EXPECT_EQ(book.points[0].pst, PlainPoint);
    EXPECT_EQ(book.points[1].psn, "B");
}

TEST_F(BookCommandsTest, DateBeforeTheCutOverIsTakenAsItStands) {
    host.Reply(7, R"([{eta:"2011-10-01 23:59:59"},{eta:"2024-01-01 00:00:00"}])");
    EXPECT_EQ(LoadPositionBook("77", book), 0);
    EXPECT_EQ(book.eta.fmt("%Y-%m-%d %H:%M:%S"), "2011-10-01 23:59:59") << "the first element is the book";
    EXPECT_TRUE(book.points.empty());
    host.zone.reset();
    host.Reply(7, R"([{eta:"2024-01-01 00:00:00"}])");
    EXPECT_EQ(LoadPositionBook("77", book), -4) << "without a zone";
}

TEST_F(BookCommandsTest, FailedLoadAppendsNoRows) {
    host.Reply(7, R"([{pbi:"5",eta:"",pb:[{lon:0}]}])");
    EXPECT_EQ(LoadPositionBook("77", book), -5);
    EXPECT_TRUE(book.points.empty());
}

TEST_F(BookCommandsTest, RowsComeInOrderAndAreAppendedAndTheLaterOfTwoStays) {
    book.points = PointsOf(1);
    host.Reply(7, R"([{eta:"2011-01-01 00:00:00",pb:[{lon:10,psn:"C"},{lon:2,psn:"x"},{lon:2,psn:"B"}]}])");
    EXPECT_EQ(LoadPositionBook("77", book), 0);
    ASSERT_EQ(book.points.size(), 3U);
    EXPECT_EQ(book.points[0].psn + book.points[1].psn + book.points[2].psn, "PBC");
}

TEST_F(BookCommandsTest, LoadLadder) {
    EXPECT_EQ(LoadPositionBook("", book), -1);
    EXPECT_TRUE(host.requests.empty());
    EXPECT_EQ(LoadPositionBook("77", book), -2);
    host.Reply(7, "[]");
    EXPECT_EQ(LoadPositionBook("77", book), -3);
    host.Reply(7, R"([{eta:"2024-99-01 00:00:00"}])");
    EXPECT_EQ(LoadPositionBook("77", book), -4);
    host.Reply(7, R"([{eta:""}])");
    EXPECT_EQ(LoadPositionBook("77", book), -5);
}

TEST_F(BookCommandsTest, ExistingBookIsFoundAndNoneMade) {
    host.Reply(7, R"([{pbi:"5"}])");
    EXPECT_EQ(EnsurePositionBook("77", "2024-01-01 08:00:00", id), 0);
    EXPECT_EQ(id, "5");
    host.Reply(7, R"([{}])");
    EXPECT_EQ(EnsurePositionBook("77", "2024-01-01 08:00:00", id), 0);
    EXPECT_EQ(id, "") << "whatever its text";
    EXPECT_TRUE(host.TextsOf(8).empty());
}

TEST_F(BookCommandsTest, MissingBookIsMadeWithTheServersDate) {
    host.Reply(7, "[]");
    host.Reply(8, R"({eid:0,psb:"6"})");
    EXPECT_EQ(EnsurePositionBook("77", "2024-01-01 08:00:00", id), 0);
    EXPECT_EQ(id, "6");
    EXPECT_EQ(host.Texts(), (Texts{R"(7 {vi:"77"})", R"(8 {vi:"77",dt:"2024-01-01 00:00:00"})"}));
}

TEST_F(BookCommandsTest, EnsureLadder) {
    id = "before";
    EXPECT_EQ(EnsurePositionBook("", "2024-01-01 08:00:00", id), -1);
    EXPECT_EQ(id, "");
    EXPECT_EQ(EnsurePositionBook("77", "2024-01-01 08:00:00", id), -2);
    host.Reply(7, "[]");
    EXPECT_EQ(EnsurePositionBook("77", "2024-01-01", id), -3);
    host.Reply(7, "[]");
    EXPECT_EQ(EnsurePositionBook("77", "2024-01-01 08:00:00", id), -4);
    host.Reply(7, "[]");
    host.Reply(8, R"({psb:"6"})");
    EXPECT_EQ(EnsurePositionBook("77", "2024-01-01 08:00:00", id), -5);
    host.Reply(7, "[]");
    host.Reply(8, "{eid:0}");
    EXPECT_EQ(EnsurePositionBook("77", "2024-01-01 08:00:00", id), -6);
}

TEST_F(BookCommandsTest, DateOfABook) {
    EXPECT_EQ(SetPositionBookDate("", "2024-01-01 08:00:00"), -1);
    EXPECT_EQ(SetPositionBookDate("5", "2024-01-01"), -2);
    EXPECT_TRUE(host.requests.empty());
    EXPECT_EQ(SetPositionBookDate("5", "2024-01-01 08:00:00"), -3);
    host.Reply(14, "no json");
    EXPECT_EQ(SetPositionBookDate("5", "2024-01-01 08:00:00"), -3);
    host.Reply(14, "{}");
    EXPECT_EQ(SetPositionBookDate("5", "2024-01-01 08:00:00"), -4);
    host.Reply(14, "{eid:1}");
    EXPECT_EQ(SetPositionBookDate("5", "2024-01-01 08:00:00"), -4);
    host.Reply(14, "{eid:0}");
    EXPECT_EQ(SetPositionBookDate("5", "2024-01-01 08:00:00"), 0);
    EXPECT_EQ(host.Texts().back(), R"(14 {psb:"5",dt:"2024-01-01 00:00:00"})");
}

TEST_F(BookCommandsTest, ShortListIsOneByteExactRequest) {
    BookPoints rows = PointsOf(2);
    rows[1].position = "1.5,2.25,9";
    rows[1].psr = "RL";
    rows[1].pli = 2;
    rows[1].pst = PortPoint;
    rows[1].psp = 1.0F;
    host.Reply(9, "{eid:0}");
    EXPECT_EQ(SavePositionBookRows("5", rows), 0);
    EXPECT_EQ(host.Texts(),
              Texts{R"(9 ["5","0","0|P|120.000|30.500|GC|5|18.520|0","1|P|1.5|2.25,9|RL|2|1.852|5"])"});
}

TEST_F(BookCommandsTest, EmptyListSendsTheHeadAlone) {
    host.Reply(9, "{eid:0}");
    EXPECT_EQ(SavePositionBookRows("5", {}), 0);
    EXPECT_EQ(host.Texts(), Texts{R"(9 ["5","0"])"});
}

TEST_F(BookCommandsTest, NinetyNineRowsKeepThreeDecimalsAndAHundredOne) {
    host.Reply(9, "{eid:0}");
    EXPECT_EQ(SavePositionBookRows("5", PointsOf(99)), 0);
    EXPECT_NE(host.requests[0].Text().find("|18.520|"), std::string::npos);
    host.Reply(9, "{eid:0}");
    EXPECT_EQ(SavePositionBookRows("5", PointsOf(100)), 0);
    ASSERT_EQ(host.requests.size(), 2U) << "a hundred rows are one request";
    EXPECT_NE(host.requests[1].Text().find("|18.5|"), std::string::npos);
    EXPECT_EQ(host.requests[1].Text().find("|18.520|"), std::string::npos);
}

TEST_F(BookCommandsTest, TwoHundredRowsAreTwoRequests) {
    host.Reply(9, "{eid:0}");
    host.Reply(9, "{eid:0}");
    EXPECT_EQ(SavePositionBookRows("5", PointsOf(200)), 0);
    EXPECT_EQ(host.requests.size(), 2U);
}

TEST_F(BookCommandsTest, OneRowIsTaken) {
    host.Reply(9, "{eid:0}");
    EXPECT_EQ(SavePositionBookRows("5", PointsOf(1)), 0);
    EXPECT_EQ(host.Texts(), Texts{R"(9 ["5","0","0|P|120.000|30.500|GC|5|18.520|0"])"});
    EXPECT_EQ(host.requests[0].ModuleWord(), 5);
}

TEST_F(BookCommandsTest, LaterBlockThatIsRefusedEndsTheSaving) {
    host.Reply(9, "{eid:0}");
    host.Reply(9, "{eid:4}");
    host.Reply(9, "{eid:0}");
    EXPECT_EQ(SavePositionBookRows("5", PointsOf(250)), -7);
    EXPECT_EQ(host.requests.size(), 2U);
}

TEST_F(BookCommandsTest, LaterBlocksAppendAndTheNumbersRunOn) {
    for (int i = 0; i < 3; ++i) {
        host.Reply(9, "{eid:0}");
    }
    EXPECT_EQ(SavePositionBookRows("5", PointsOf(201)), 0);
    ASSERT_EQ(host.requests.size(), 3U);
    EXPECT_EQ(host.requests[0].Text().rfind(R"(["5","0","0|P|)", 0), 0U);
    EXPECT_EQ(host.requests[1].Text().rfind(R"(["5","1","100|P|)", 0), 0U);
    EXPECT_EQ(host.requests[2].Text(), R"(["5","1","200|P|120.000|30.500|GC|5|18.5|0"])");
}

TEST_F(BookCommandsTest, SaveLadderOfTheShortForm) {
    BookPoints rows = PointsOf(2);
    EXPECT_EQ(SavePositionBookRows("", rows), -1);
    rows[1].position = "120";
    EXPECT_EQ(SavePositionBookRows("5", rows), -2);
    EXPECT_TRUE(host.requests.empty());
    EXPECT_EQ(SavePositionBookRows("5", PointsOf(1)), -3);
    host.Reply(9, "{eid:1}");
    EXPECT_EQ(SavePositionBookRows("5", PointsOf(1)), -4);
}

TEST_F(BookCommandsTest, SaveLadderOfTheLongFormLeavesEarlierBlocks) {
    BookPoints rows = PointsOf(150);
    rows[120].position = "120";
    host.Reply(9, "{eid:0}");
    EXPECT_EQ(SavePositionBookRows("5", rows), -5);
    EXPECT_EQ(host.requests.size(), 1U) << "the first block went out before";
    EXPECT_EQ(SavePositionBookRows("5", PointsOf(100)), -6);
    host.Reply(9, "{}");
    EXPECT_EQ(SavePositionBookRows("5", PointsOf(100)), -7);
}

}  // namespace
}  // namespace Tarvik::Seaplan
