// SPDX-License-Identifier: MIT
#include "seaplan/controllers/tests/ScheduleFixture.h"

namespace Tarvik::Seaplan {

namespace {

using Texts = std::vector<std::string>;

constexpr const char* kThreePorts = R"([{lon:"0",ppi:"40001",ppn:"A",pp:"L",psp:"0",pw:"0",apt:"6"},)"
                                    R"({lon:"1",ppi:"40002",ppn:"B",pp:"D",psp:"18.52",pw:"0",apt:"12"},)"
                                    R"({lon:"2",ppi:"40003",ppn:"C",pp:"D",psp:"18.52",pw:"0",apt:"0"}])";
constexpr const char* kBookHead = R"([{pbi:"5",eta:"2024-03-01 00:00:00",pb:[)";

std::string BookRow(int index, const std::string& x, int kind) {
    return "{lon:" + std::to_string(index) + R"(,psn:"",xc:)" + x + R"(,yc:0.0,psp:"18.52",pst:")" +
           std::to_string(kind) + R"("})";
}

/// A until the first at 14:00, B from 20:00:38 to 08:00:38, C at 20:01:55 of the second; ten knots.
class ShipByClockTest : public ScheduleFixture {
  protected:
    void Load(const Texts& xs) {
        host.Reply(10, kThreePorts);
        host.Reply(7, kBookHead + BookRow(0, xs[0], PortPoint) + "," + BookRow(1, xs[1], PlainPoint) + "," +
                          BookRow(2, xs[2], PortPoint) + "," + BookRow(3, xs[3], PortPoint) + "]}]");
        ASSERT_EQ(voyages.LoadSchedule("9", rows, -1), 0);
    }
    void SetUp() override { Load({"0.0", "0.5", "1.0", "3.0"}); }

    void Show(int day, int hour, int minute = 0, int second = 0) {
        host.chartCalls.clear();
        clock.SetUtc(2024, 3, day, hour, minute, second);
        result = voyages.ShowVoyage("9");
    }
    void CorrectAt(const std::string& time) {
        Voyage().modais = 1;
        Voyage().aisModTimes = {time};
    }
    std::string Ship() {
        const auto icons = host.ChartCallsOf("TRV_MAP_ADD_IMAGE");
        return icons.size() == 1 ? icons[0].position : "";
    }
    Texts Services() const {
        Texts names;
        for (const auto& call : host.chartCalls) {
            names.push_back(call.service);
        }
        return names;
    }
    /// Points of the line with this id, none when it is not drawn.
    Texts Line(const std::string& id) {
        for (const auto& call : host.ChartCallsOf("TRV_MAP_ADD_LINE")) {
            if (call.id == id) {
                return call.points;
            }
        }
        return {};
    }
    Texts Sailed() { return Line("9_0"); }
    Texts Remaining() { return Line("9_5"); }

    int result = 1;
};

TEST_F(ShipByClockTest, BeforeDepartureItStandsInTheFirstPort) {
    Show(1, 13, 59, 59);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(Ship(), "0.000,0.000");
    EXPECT_EQ(Sailed(), Texts{});
    EXPECT_EQ(Remaining(), (Texts{"0.000,0.000", "0.500,0.000", "1.000,0.000", "3.000,0.000"}));
}

TEST_F(ShipByClockTest, AtDepartureItBeginsTheLeg) {
    Show(1, 14);
    EXPECT_EQ(Ship(), "0.001,0.000")
        << "the first row is three hours and 19 seconds away, of which 19 do not count";
    EXPECT_EQ(Sailed(), (Texts{"0.000,0.000", "0.001,0.000"}));
    EXPECT_EQ(Remaining().front(), "0.001,0.000");
}

TEST_F(ShipByClockTest, OnALegItStandsWhereTheHoursSailedBringIt) {
    Show(1, 15, 30);
    EXPECT_EQ(Ship(), "0.250,0.000");
    EXPECT_EQ(Sailed(), (Texts{"0.000,0.000", "0.250,0.000"}));
    EXPECT_EQ(Remaining(), (Texts{"0.250,0.000", "0.500,0.000", "1.000,0.000", "3.000,0.000"}));
}

TEST_F(ShipByClockTest, ProgressIsDrawnInOrderAndTheViewOpensAroundTheShip) {
    clock.SetUtc(2024, 3, 1, 18);
    ASSERT_EQ(module.DrawPlannedProgress(Voyage()), 0);
    EXPECT_EQ(Ship(), "0.667,0.000");
    EXPECT_EQ(Services(),
              (Texts{"TRV_MAP_ADDLAYER", "TRV_MAP_DEL_OBJECT_BY_TYPE", "TRV_MAP_DEL_OBJECT_BY_TYPE",
                     "TRV_MAP_DEL_OBJECT_BY_TYPE", "TRV_MAP_ADD_LINE", "TRV_MAP_ADD_LINE",
                     "TRV_MAP_REG_IMAGE", "TRV_MAP_ADD_IMAGE", "TRV_MAP_SET_EXTENT"}));
    const auto& limits = host.chartCalls.back().points;
    EXPECT_EQ(limits, (Texts{"5.000000", "2.000000", "-2.333000", "-2.000000"}))
        << "what remains comes first, and its first point has a degree more around it";
}

TEST_F(ShipByClockTest, CorrectedProgressLeavesTheRouteOnShow) {
    CorrectAt("2024-03-01 17:30:00");
    clock.SetUtc(2024, 3, 1, 18);
    ASSERT_EQ(module.DrawAisProgress(Voyage()), 0);
    EXPECT_EQ(Ship(), "0.667,0.000");
    EXPECT_EQ(Services(), (Texts{"TRV_MAP_ADDLAYER", "TRV_MAP_ADD_LINE", "TRV_MAP_REG_IMAGE",
                                 "TRV_MAP_ADD_IMAGE", "TRV_MAP_SET_EXTENT"}));
}

TEST_F(ShipByClockTest, InPortTheLegBehindItIsSailed) {
    Show(1, 23);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(Ship(), "1.000,0.000");
    EXPECT_EQ(Sailed(), (Texts{"0.000,0.000", "0.500,0.000", "1.000,0.000"}));
    EXPECT_EQ(Remaining(), Texts{}) << "what remains is one point, C";
}

TEST_F(ShipByClockTest, ExactlyAtAnEtaTheWholeLegIsSailed) {
    VoyInfo exact = Voyage();
    exact.portCalls[1].eta = Util::_datetime_t(0, 0, 20, 1, 3, 2024);
    host.chartCalls.clear();
    clock.SetUtc(2024, 3, 1, 20);
    EXPECT_EQ(module.DrawPlannedProgress(exact), 0);
    EXPECT_EQ(Ship(), "1.000,0.000");
    EXPECT_EQ(Sailed().back(), "1.000,0.000");
    clock.SetUtc(2024, 3, 1, 19, 59, 59);
    host.chartCalls.clear();
    EXPECT_EQ(module.DrawPlannedProgress(exact), 0);
    EXPECT_NE(Ship(), "1.000,0.000") << "a second before it is on the leg";
}

TEST_F(ShipByClockTest, AfterArrivalItStandsInTheLastPort) {
    Show(9, 0);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(Ship(), "3.000,0.000");
    EXPECT_EQ(Sailed(), (Texts{"0.000,0.000", "0.500,0.000", "1.000,0.000", "3.000,0.000"}));
    EXPECT_EQ(Remaining(), Texts{});
}

TEST_F(ShipByClockTest, OverTheDateLineItRunsTheLongWayRound) {
    Voyage().portCalls.clear();
    Load({"178.0", "178.5", "179.0", "-179.0"});
    Show(2, 14);
    EXPECT_EQ(result, 0);
    const double x = std::stod(Ship());
    EXPECT_GT(x, -10) << "half of the way from 179 down to -179";
    EXPECT_LT(x, 10);
}

TEST_F(ShipByClockTest, CorrectedVoyageFollowsTheSameClock) {
    CorrectAt("2024-03-01 14:00:00");
    Show(1, 13, 59, 59);
    EXPECT_EQ(result, -9) << "nothing is sailed yet, and the ship has no place";
    Show(1, 16);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(Ship(), "0.834,0.000") << "two of three hours behind the leg's first row";
    Show(1, 23);
    EXPECT_EQ(Ship(), "1.000,0.000");
    EXPECT_EQ(Sailed(), (Texts{"0.500,0.000", "1.000,0.000"})) << "ports are taken from the second on";
    Show(9, 0);
    EXPECT_EQ(Ship(), "3.000,0.000");
    EXPECT_EQ(Sailed(), (Texts{"0.500,0.000", "1.000,0.000", "3.000,0.000"}));
}

TEST_F(ShipByClockTest, CorrectedVoyageRunsTheLongWayRoundTheDateLineToo) {
    Voyage().portCalls.clear();
    Load({"178.0", "178.5", "179.0", "-179.0"});
    CorrectAt("2024-03-01 14:00:00");
    Show(2, 14);
    EXPECT_EQ(result, 0);
    EXPECT_LT(std::abs(std::stod(Ship())), 10);
}

}  // namespace
}  // namespace Tarvik::Seaplan
