// SPDX-License-Identifier: MIT
#include "host/server/storage/sqlite/tests/TempFolder.h"
#include "seaplan/protocol/BookCommands.h"
#include "seaplan/protocol/PortCallCommands.h"
#include "seaplan/protocol/RemarkList.h"
#include "tests/protocol/RoundTrip.h"
#include "tests/protocol/SampleRows.h"
#include "testsupport/PortDictionary.h"

namespace Tarvik::Server {

namespace {

using Seaplan::BookPoints;
using Seaplan::PortCallRows;
using Seaplan::RemarkList;
using Seaplan::VoyPositionBook;

class ScheduleRoundTripTest : public RoundTrip {
  protected:
    ScheduleRoundTripTest() {
        EXPECT_EQ(module.CreateCategory("Atlantic", ci), 0);
        EXPECT_EQ(module.CreateVoyage("V", ci, vi), 0);
    }

    static PortCallRows Ports() { return ThreePorts("Port of 上海"); }
    static BookPoints Points(int count) {
        BookPoints points(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i) {
            auto& point = points[static_cast<std::size_t>(i)];
            point.psn = "P" + std::to_string(i);
            point.position = std::to_string(i % 180) + ".125,-" + std::to_string(i % 90) + ".250";
            point.psr = i % 2 == 0 ? "GC" : "RL";
            point.pli = 1 + i % 5;
            point.psp = 10.0F + static_cast<float>(i % 7) / 8;
            point.pst = i == 0 || i == count - 1 ? 5 : 0;
        }
        return points;
    }
    std::string MakeBook() {
        std::string id;
        EXPECT_EQ(Seaplan::EnsurePositionBook(vi, "2026-03-01 08:00:00", id), 0);
        return id;
    }
    /// Expects the stored book to hold `points`, with speeds to within `knots`.
    void ExpectBook(const BookPoints& points, float knots) {
        VoyPositionBook book;
        ASSERT_EQ(Seaplan::LoadPositionBook(vi, book), 0);
        ASSERT_EQ(book.points.size(), points.size());
        for (std::size_t i = 0; i < points.size(); ++i) {
            EXPECT_EQ(book.points[i].psn, points[i].psn);
            EXPECT_EQ(book.points[i].position, points[i].position);
            EXPECT_EQ(book.points[i].psr, points[i].psr);
            EXPECT_EQ(book.points[i].pli, points[i].pli);
            EXPECT_NEAR(book.points[i].psp, points[i].psp, knots);
            EXPECT_EQ(book.points[i].pst, points[i].pst);
        }
    }

    std::string ci;
    std::string vi;
};

TEST_F(ScheduleRoundTripTest, PortCallsAreLoadedAsTheyWereSaved) {
    PortCallRows loaded;
    EXPECT_EQ(Seaplan::LoadPortCalls(vi, loaded), -3) << "a new voyage has none";
    PortCallRows rows = Ports();
    ASSERT_EQ(Seaplan::SavePortCalls(vi, rows), 0);
    ASSERT_EQ(Seaplan::LoadPortCalls(vi, loaded), 0);
    ASSERT_EQ(loaded.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(loaded[i].ppi, rows[i].ppi);
        EXPECT_EQ(loaded[i].ppn, rows[i].ppn);
        EXPECT_EQ(loaded[i].pp, rows[i].pp);
        EXPECT_FLOAT_EQ(loaded[i].psp, rows[i].psp);
        EXPECT_FLOAT_EQ(loaded[i].pw, rows[i].pw);
        EXPECT_FLOAT_EQ(loaded[i].apt, rows[i].apt);
    }
}

TEST_F(ScheduleRoundTripTest, FewerPortCallsReplaceMore) {
    PortCallRows rows = Ports();
    ASSERT_EQ(Seaplan::SavePortCalls(vi, rows), 0);
    rows.erase(rows.begin());
    ASSERT_EQ(Seaplan::SavePortCalls(vi, rows), 0);
    PortCallRows loaded;
    ASSERT_EQ(Seaplan::LoadPortCalls(vi, loaded), 0);
    ASSERT_EQ(loaded.size(), 2U);
    EXPECT_EQ(loaded[0].ppn, "Port of 上海");
}

TEST_F(ScheduleRoundTripTest, PortWithoutIdIsSavedWithTheIdOfItsName) {
    const TestSupport::PortDictionary dictionary(TestSupport::PortDictionary::Ports{{"Rotterdam", "40208"}});
    PortCallRows rows = Ports();
    rows[2].ppi.clear();
    ASSERT_EQ(Seaplan::SavePortCalls(vi, rows), 0);
    PortCallRows loaded;
    ASSERT_EQ(Seaplan::LoadPortCalls(vi, loaded), 0);
    EXPECT_EQ(loaded[2].ppi, "40208");
}

TEST_F(ScheduleRoundTripTest, PortNameThatBreaksItsRowIsRefusedAndTheOldRowsStay) {
    PortCallRows rows = Ports();
    ASSERT_EQ(Seaplan::SavePortCalls(vi, rows), 0);
    for (const char* name : {"a|b", "a\"b"}) {
        PortCallRows broken = Ports();
        broken[1].ppn = name;
        EXPECT_EQ(Seaplan::SavePortCalls(vi, broken), -3) << name;
    }
    PortCallRows loaded;
    ASSERT_EQ(Seaplan::LoadPortCalls(vi, loaded), 0);
    EXPECT_EQ(loaded[1].ppn, "Port of 上海");
}

TEST_F(ScheduleRoundTripTest, BookIsMadeOnceAndFoundAfterwards) {
    VoyPositionBook book;
    EXPECT_EQ(Seaplan::LoadPositionBook(vi, book), -3);
    const std::string id = MakeBook();
    EXPECT_FALSE(id.empty());
    std::string again;
    EXPECT_EQ(Seaplan::EnsurePositionBook(vi, "2027-01-01 00:00:00", again), 0);
    EXPECT_EQ(again, id);
    ASSERT_EQ(Seaplan::LoadPositionBook(vi, book), 0);
    EXPECT_EQ(book.pbi, id);
    EXPECT_EQ(book.eta.fmt("%Y-%m-%d %H:%M:%S"), "2026-03-01 08:00:00");
    ASSERT_EQ(Seaplan::SetPositionBookDate(id, "2010-06-01 12:00:00"), 0);
    ASSERT_EQ(Seaplan::LoadPositionBook(vi, book), 0);
    EXPECT_EQ(book.eta.fmt("%Y-%m-%d %H:%M:%S"), "2010-06-01 12:00:00");
    EXPECT_EQ(Seaplan::SetPositionBookDate(id, "2009"), -4);
    EXPECT_EQ(Seaplan::SetPositionBookDate(vi, "2010-06-01 12:00:00"), -4);
}

TEST_F(ScheduleRoundTripTest, ShortBookKeepsThreeDecimalsAndALongOneKeepsOne) {
    const std::string id = MakeBook();
    for (const int count : {0, 1, 99, 100, 101, 250, 300}) {
        ASSERT_EQ(Seaplan::SavePositionBookRows(id, Points(count)), 0) << count;
        ExpectBook(Points(count), count < 100 ? 0.0003F : 0.03F);
    }
}

TEST_F(ScheduleRoundTripTest, ShorterBookReplacesALongOneWhole) {
    const std::string id = MakeBook();
    ASSERT_EQ(Seaplan::SavePositionBookRows(id, Points(250)), 0);
    ASSERT_EQ(Seaplan::SavePositionBookRows(id, Points(2)), 0);
    ExpectBook(Points(2), 0.0003F);
}

TEST_F(ScheduleRoundTripTest, RefusedBlockLeavesTheBlocksBeforeIt) {
    const std::string id = MakeBook();
    BookPoints points = Points(250);
    points[150].psn = "a|b";
    EXPECT_EQ(Seaplan::SavePositionBookRows(id, points), -7);
    points.resize(100);
    ExpectBook(points, 0.03F);
}

TEST_F(ScheduleRoundTripTest, ForeignScheduleIsNotReached) {
    PortCallRows rows = Ports();
    ASSERT_EQ(Seaplan::SavePortCalls(vi, rows), 0);
    const std::string id = MakeBook();
    ASSERT_EQ(Seaplan::SavePositionBookRows(id, Points(3)), 0);
    host.user = "bob";
    PortCallRows others(2);
    others[0].ppn = others[1].ppn = "Oslo";
    EXPECT_EQ(Seaplan::SavePortCalls(vi, others), -3);
    EXPECT_EQ(Seaplan::SavePositionBookRows(id, Points(1)), -4);
    EXPECT_EQ(Seaplan::SetPositionBookDate(id, "2010-06-01 12:00:00"), -4);
    PortCallRows loaded;
    EXPECT_LT(Seaplan::LoadPortCalls(vi, loaded), 0);
    EXPECT_TRUE(loaded.empty());
    host.user = "ann";
    ExpectBook(Points(3), 0.0003F);
}

TEST_F(ScheduleRoundTripTest, RemarksAreAddedChangedLoadedAndDeleted) {
    RemarkList list;
    int seq = 0;
    const std::string port = vi + "Rotterdam";
    ASSERT_TRUE(list.AddRemark(Seaplan::PortCallRemark, port, seq, "Pilot", "call\nat 04:00"));
    EXPECT_EQ(seq, 1);
    ASSERT_TRUE(list.AddRemark(Seaplan::PortCallRemark, port, seq, "Tugs", "two"));
    EXPECT_EQ(seq, 2);
    host.now += 3600;
    ASSERT_TRUE(list.ChangeRemark(Seaplan::PortCallRemark, port, 1, "Pilot 船", "call at 05:00"));
    ASSERT_TRUE(list.DeleteRemark(Seaplan::PortCallRemark, port, 2));
    RemarkList loaded;
    ASSERT_TRUE(loaded.LoadRemarks(Seaplan::PortCallRemark, port));
    ASSERT_EQ(loaded.Count(), 1U);
    EXPECT_EQ(loaded.At(0)->seq, 1);
    EXPECT_EQ(loaded.At(0)->subject, "Pilot 船");
    EXPECT_EQ(loaded.At(0)->body, "call at 05:00");
    EXPECT_EQ(loaded.At(0)->cdate, "1772323200");
    EXPECT_EQ(loaded.At(0)->udate, "2026-03-01 09:00:00");
    EXPECT_FALSE(loaded.DeleteRemark(Seaplan::PortCallRemark, port, 2));
    EXPECT_FALSE(loaded.AddRemark(Seaplan::PortCallRemark, port, seq, "say \"x\"", ""));
    EXPECT_EQ(loaded.Count(), 1U);
    host.user = "bob";
    EXPECT_FALSE(loaded.LoadRemarks(Seaplan::PortCallRemark, port));
}

TEST_F(ScheduleRoundTripTest, RemarksMarkTheirCategoryAndVoyage) {
    RemarkList list;
    int seq = 0;
    ASSERT_TRUE(list.AddRemark(Seaplan::VoyageRemark, vi, seq, "s", "b"));
    EXPECT_EQ(Load().voyages.at(vi).vrk, 1);
    EXPECT_EQ(Load().categories.at(ci).crk, 0);
    ASSERT_TRUE(list.AddRemark(Seaplan::CategoryRemark, ci, seq, "s", "b"));
    EXPECT_EQ(Load().categories.at(ci).crk, 1);
}

TEST(RestartTest, DataOfAFileAreThereForTheNextStart) {
    const TempFolder folder;
    const std::string path = folder.File("voyages.db");
    std::string ci;
    std::string vi;
    {
        const BusServer host(path);
        Seaplan::VoyageStore store;
        Seaplan::VoyCatalogModule module(&store);
        ASSERT_EQ(module.CreateCategory("Atlantic", ci), 0);
        ASSERT_EQ(module.CreateVoyage("V", ci, vi), 0);
        PortCallRows rows(2);
        rows[0].ppn = rows[1].ppn = "Oslo";
        rows[0].ppi = rows[1].ppi = "40001";
        ASSERT_EQ(Seaplan::SavePortCalls(vi, rows), 0);
    }
    {
        const BusServer host(path);
        Seaplan::VoyageStore store;
        EXPECT_EQ(Seaplan::VoyCatalogModule(&store).LoadAll("ann"), 0);
        EXPECT_EQ(store.categories.at(ci).cn, "Atlantic");
        PortCallRows rows;
        EXPECT_EQ(Seaplan::LoadPortCalls(vi, rows), 0);
        EXPECT_EQ(rows.size(), 2U);
    }
}

}  // namespace
}  // namespace Tarvik::Server
