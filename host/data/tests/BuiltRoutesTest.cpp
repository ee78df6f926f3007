// SPDX-License-Identifier: MIT
// Ways of the shipped network that a navigator would frown at, each of which was once wrong.
#include <cmath>

#include <gmock/gmock.h>

#include "host/server/graph/RouteEngine.h"
#include "host/server/graph/report/Places.h"

namespace Tarvik::Data {

namespace {

using Server::GeoPoint;
using Server::PlannedStop;
using ::testing::Contains;
using ::testing::Not;

class BuiltRoutesTest : public ::testing::Test {
  protected:
    static void SetUpTestSuite() {
        std::string error;
        network_ = Server::SeaNetwork::Load(SHARE_FOLDER "/network.bin", error);
        ASSERT_TRUE(network_) << error;
    }
    static void TearDownTestSuite() { network_.reset(); }
    PlannedStop Way(const std::string& from, const std::string& to,
                    const std::vector<std::string>& by = {}) const {
        const std::string a = places_.PortId(from);
        const std::string b = places_.PortId(to);
        const auto result = Server::RouteEngine(network_).Plan({{a, {}, {}}, places_.StopBy(by, a, b)});
        EXPECT_EQ(result.error, Server::kRouteOk) << from << " " << to << ": " << result.message;
        return result.error == Server::kRouteOk ? result.stops[1] : PlannedStop{};
    }
    double Miles(const std::string& from, const std::string& to,
                 const std::vector<std::string>& by = {}) const {
        return Way(from, to, by).distanceKm / Server::kKmPerNm;
    }
    /// The farthest of a way to one side: the largest value that `of` has on it.
    template <typename Of>
    static double Farthest(const PlannedStop& way, Of of) {
        double most = -1e9;
        for (const auto& leg : way.legs) {
            for (const GeoPoint p : leg.points) {
                most = std::max(most, of(p));
            }
        }
        return most;
    }
    static inline std::shared_ptr<const Server::SeaNetwork> network_;
    Server::Places places_{*network_};
};

TEST_F(BuiltRoutesTest, LagosIsEnteredFromTheSeaAndNotThroughTheLagoon) {
    EXPECT_NEAR(Miles("USORF", "NGLOS"), 4941, 0.03 * 4941);
    EXPECT_LT(Farthest(Way("NGLOS", "CIABJ"), [](GeoPoint p) { return p.x; }), 3.6) << "sails east first";
}

TEST_F(BuiltRoutesTest, BangkokLeavesTheGulfByItsMiddle) {
    EXPECT_NEAR(Miles("THBKK", "KRPUS"), 2533, 0.03 * 2533);
    EXPECT_GT(-Farthest(Way("THBKK", "KRPUS"), [](GeoPoint p) { return -p.x; }), 100.0);
}

TEST_F(BuiltRoutesTest, CorinthIsJoinedToItsGulf) {
    EXPECT_NEAR(Miles("ITTRS", "TRIST", {"Corinth Canal"}), 1063, 0.04 * 1063);
}

TEST_F(BuiltRoutesTest, PassagesInARowAreNotOfferedForEachOther) {
    const std::string malta = places_.PassageId("Malta Channel");
    for (const auto& group : Way("TNSFA", "DZSKI").groups) {
        EXPECT_THAT(group.alternatives, Not(Contains(malta)));
    }
    const PlannedStop colon = Way("USSAV", "PAONX");
    for (const auto& group : colon.groups) {
        for (const std::string& other : group.alternatives) {
            EXPECT_LE(Way("USSAV", "PAONX", {other}).distanceKm, 2.0 * colon.distanceKm) << other;
        }
    }
}

TEST_F(BuiltRoutesTest, NoOfferTurnsBackOrDoublesTheWay) {
    const auto& ports = network_->data().ports;
    std::uint32_t seed = 77;
    const auto next = [&seed] { return (seed = seed * 1664525U + 1013904223U) >> 8; };
    const Server::RouteEngine engine(network_);
    int offers = 0;
    for (int i = 0; i < 40; ++i) {
        const std::string a = ports[next() % ports.size()].id;
        const std::string b = ports[next() % ports.size()].id;
        const PlannedStop way = Way(a, b);
        for (const auto& group : way.groups) {
            for (const std::string& other : group.alternatives) {
                const auto result = engine.Plan({{a, {}, {}}, places_.StopBy({other}, a, b)});
                ASSERT_EQ(result.error, Server::kRouteOk) << result.message;
                EXPECT_LE(result.stops[1].distanceKm, 2.05 * way.distanceKm) << a << " " << b << " " << other;
                ++offers;
            }
        }
    }
    EXPECT_GT(offers, 100);
}

TEST_F(BuiltRoutesTest, ThereAndBackAreOneWay) {
    const auto& ports = network_->data().ports;
    std::uint32_t seed = 4711;
    const auto next = [&seed] { return (seed = seed * 1664525U + 1013904223U) >> 8; };
    for (int i = 0; i < 150; ++i) {
        const std::string a = ports[next() % ports.size()].id;
        const std::string b = ports[next() % ports.size()].id;
        const double there = Way(a, b).distanceKm;
        EXPECT_NEAR(Way(b, a).distanceKm, there, 1e-4 * there + 0.01) << a << " " << b;
    }
}

TEST_F(BuiltRoutesTest, ReefsAndBanksArePassedWhereShipsPassThem) {
    // Pub. 151: Kingston to Veracruz 1,210 miles, Surabaya to Hong Kong 1,925, Southampton to London 215.
    const auto north = [](GeoPoint p) { return p.x < -88.5 && p.x > -91.0 ? p.y : -1e9; };
    EXPECT_GT(Farthest(Way("JMKIN", "MXVER"), north), 22.4) << "between Yucatan and Alacranes";
    EXPECT_NEAR(Miles("JMKIN", "MXVER"), 1210, 0.015 * 1210);
    const auto west = [](GeoPoint p) { return std::abs(p.y + 1.6) < 0.2 ? -p.x : -1e9; };
    const double serutu = -Farthest(Way("IDSUB", "HKHKG"), west);
    EXPECT_LT(serutu, 108.8) << "between Karimata and Borneo";
    EXPECT_NEAR(Miles("IDSUB", "HKHKG"), 1925, 0.02 * 1925);
    EXPECT_NEAR(Miles("GBSOU", "GBLON"), 215, 0.02 * 215) << "over Margate Sand";
}

TEST_F(BuiltRoutesTest, HongKongIsLeftByItsFairwaysAndNotRoundLantau) {
    const auto south = [](GeoPoint p) { return p.x < 114.0 ? -p.y : -1e9; };
    EXPECT_LT(Farthest(Way("HKHKG", "CNSHK"), south), -22.3) << "south of Lantau";
    EXPECT_LT(Farthest(Way("CNCAN", "HKHKG"), south), -22.3) << "south of Lantau";
    EXPECT_NEAR(Miles("HKHKG", "CNSHK"), 23, 3);
    const auto harbour = [](GeoPoint p) { return p.x < 114.3 ? -p.y : -1e9; };
    EXPECT_LT(Farthest(Way("HKHKG", "CNYTN"), harbour), -22.2) << "round the island, not by Tathong";
}

TEST_F(BuiltRoutesTest, TheScheldtIsSailedRoundItsFlats) {
    const auto atHansweert = [](GeoPoint p) { return p.x > 3.9 && p.x < 4.1 ? p.y : -1e9; };
    EXPECT_GT(Farthest(Way("BEANR", "GBSOU"), atHansweert), 51.42) << "over Ossenisse";
    EXPECT_NEAR(Miles("BEANR", "FRLEH"), 244, 0.03 * 244) << "by Pub. 151";
}

TEST_F(BuiltRoutesTest, TheYangtzeIsEnteredFromTheSeaAndNotAlongTheFlats) {
    const auto shore = [](GeoPoint p) { return p.y > 30.7 && p.y < 31.0 ? -p.x : -1e9; };
    EXPECT_LT(Farthest(Way("CNSHA", "HKHKG"), shore), -122.3);
}

TEST_F(BuiltRoutesTest, PuertoBolivarIsLeftByTheMouthOfItsBay) {
    // It was reached by 608 miles from Curacao, where a search over water cells finds 205.
    EXPECT_LT(Miles("COPBO", "ANCUR"), 215);
}

TEST_F(BuiltRoutesTest, BanksAndNarrowsOfTheTradeAreLeftAside) {
    // Pub. 151: Colon to Recife 3,212 miles, Brisbane to Suva 1,548, Abidjan to Dakar 1,166, Antwerp to Le
    // Havre 244, Singapore to Ho Chi Minh City 649. Each was 1 to 3 % shorter over banks or between islands.
    EXPECT_NEAR(Miles("PAONX", "BRREC"), 3212, 0.008 * 3212);
    EXPECT_NEAR(Miles("AUBNE", "FJSUV"), 1548, 0.015 * 1548);
    EXPECT_NEAR(Miles("CIABJ", "SNDKR"), 1166, 0.01 * 1166);
    EXPECT_NEAR(Miles("BEANR", "FRLEH"), 244, 0.01 * 244);
    EXPECT_NEAR(Miles("SGSIN", "VNSGN"), 649, 0.022 * 649);
    const auto west = [](GeoPoint p) { return p.y > 10.7 && p.y < 12.0 ? p.x : -1e9; };
    EXPECT_LT(Farthest(Way("CIABJ", "SNDKR"), west), -17.2) << "between the Bijagos";
    const auto south = [](GeoPoint p) { return std::abs(p.x - 2.6) < 0.3 ? -p.y : -1e9; };
    EXPECT_LT(Farthest(Way("BEANR", "FRLEH"), south), -51.35) << "along the Flemish coast";
    const auto riau = [](GeoPoint p) { return p.y > 0.6 && p.y < 0.95 ? -std::abs(p.x - 103.95) : -1e9; };
    EXPECT_LT(Farthest(Way("SGSIN", "IDJKT"), riau), -0.15) << "between Batam and Rempang";
    EXPECT_GT(Miles("GWOXB", "SNDKR"), 250) << "Bissau by the Geba channel";
    EXPECT_LT(Miles("GWOXB", "SNDKR"), 290);
}

TEST_F(BuiltRoutesTest, PortsBehindACapeAreLeftRoundItAndNotByTheNextBay) {
    // A search over water cells finds 46, 97, 72, 84 and 213 miles; ours were 71, 121, 93, 96 and 231.
    EXPECT_LT(Miles("DKSKA", "DKHIR"), 1.07 * 46);
    EXPECT_LT(Miles("DKSKA", "NOBVK"), 1.07 * 97);
    EXPECT_LT(Miles("AGANU", "GPBBR"), 1.07 * 72.4);
    EXPECT_LT(Miles("PRBQN", "PRSJU"), 1.07 * 84);
    EXPECT_LT(Miles("ESMAH", "FRTLN"), 1.07 * 213);
}

TEST_F(BuiltRoutesTest, NoOceanIsCrossedFartherSouthThanItsLimit) {
    const char* const pairs[][2] = {{"CLVAP", "AUSYD"}, {"CLPUQ", "NZWLG"}, {"USNYC", "AUFRE"}};
    for (const auto& [from, to] : pairs) {
        const double beyond =
            Farthest(Way(from, to), [](GeoPoint p) { return Server::SouthLimit(p.x) - p.y; });
        EXPECT_LT(beyond, 0.4) << from << " " << to;
    }
}

TEST_F(BuiltRoutesTest, PortsWithMistakenPositionsStandWhereTheyAre) {
    const struct {
        const char* code;
        GeoPoint at;
    } known[] = {{"ANGSB", {-68.449, 12.169}},  {"ARDDC", {-59.2, -34.045}},   {"CLJRL", {-73.227, -36.972}},
                 {"CLPGO", {-71.504, -31.886}}, {"CLPPD", {-70.842, -27.052}}, {"VEGUB", {-70.215, 11.666}},
                 {"ISESK", {-14.054, 65.073}},  {"REPDG", {55.286, -20.924}},  {"TNJAR", {11.1, 33.5}},
                 {"CLCAP", {-73.13, -36.73}}};
    for (const auto& [code, at] : known) {
        const auto node = network_->NodeOf(places_.PortId(code));
        ASSERT_TRUE(node) << code;
        EXPECT_LT(Server::ArcNm(network_->data().nodes[*node], at), 1.0) << code;
    }
}

}  // namespace
}  // namespace Tarvik::Data
