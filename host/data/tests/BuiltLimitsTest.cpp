// SPDX-License-Identifier: MIT
// Areas and latitudes that a server forbids, on the network as it is shipped.
#include <algorithm>

#include <gmock/gmock.h>

#include "host/server/graph/RouteEngine.h"
#include "host/server/graph/report/Places.h"
#include "host/server/graph/report/StandingLimits.h"

namespace Tarvik::Data {

namespace {

using Server::ForbiddenWaters;
using Server::GeoPoint;
using ::testing::Contains;
using ::testing::Not;

class BuiltLimitsTest : public ::testing::Test {
  protected:
    static void SetUpTestSuite() {
        std::string error;
        whole_ = Server::SeaNetwork::Load(SHARE_FOLDER "/network.bin", error);
        ASSERT_TRUE(whole_) << error;
    }
    static void TearDownTestSuite() { whole_.reset(); }

    struct Way {
        std::vector<GeoPoint> line;
        std::vector<std::string> passed;
        double nm = 0.0;
        std::string fault;
    };
    static Way Planned(const Server::RouteEngine& engine, const std::string& from, const std::string& to) {
        const Server::Places places(*whole_);
        const auto result = engine.Plan({{places.PortId(from), {}, {}}, {places.PortId(to), {}, {}}});
        Way way;
        way.fault = result.message;
        for (const auto& stop : result.stops) {
            way.passed.insert(way.passed.end(), stop.passedIds.begin(), stop.passedIds.end());
            way.nm += stop.distanceKm / Server::kKmPerNm;
            for (const auto& leg : stop.legs) {
                way.line.insert(way.line.end(), leg.points.begin(), leg.points.end());
            }
        }
        return way;
    }
    static Server::RouteEngine Under(const ForbiddenWaters& waters) {
        return Server::RouteEngine(
            std::make_shared<const Server::SeaNetwork>(Server::Narrowed(whole_->data(), waters)));
    }
    static inline std::shared_ptr<const Server::SeaNetwork> whole_;
};

TEST_F(BuiltLimitsTest, ForbiddenAreasAreSailedRoundAndPortsInThemRefused) {
    const ForbiddenWaters waters{{{"Bab el Mandeb", {{42, 11}, {45, 11}, {45, 14}, {42, 14}}},
                                  {"Biscay", {{-9, 44.5}, {-5, 44.5}, {-5, 47}, {-9, 47}}}}};
    const Server::RouteEngine engine = Under(waters);
    const Server::RouteEngine usual(whole_);
    const std::string suez = Server::Places(*whole_).PassageId("Suez Canal");
    EXPECT_THAT(Planned(usual, "NLRTM", "SGSIN").passed, Contains(suez));
    const Way cape = Planned(engine, "NLRTM", "SGSIN");
    EXPECT_THAT(cape.passed, Not(Contains(suez)));
    EXPECT_GT(cape.nm, 11500.0);
    EXPECT_LT(cape.nm, 12200.0);
    const double lisbon = Planned(usual, "GBSOU", "PTLIS").nm;
    const Way round = Planned(engine, "GBSOU", "PTLIS");
    EXPECT_GT(round.nm, lisbon);
    EXPECT_LT(round.nm, lisbon + 50.0);
    for (const Way& way : {cape, round}) {
        ASSERT_EQ(way.fault, "");
        EXPECT_EQ(std::count_if(way.line.begin(), way.line.end(), [&](GeoPoint p) { return waters.Hold(p); }),
                  0);
    }
    EXPECT_EQ(Planned(engine, "DJJIB", "SGSIN").fault.substr(0, 24), "there is no way by sea f");
}

// A composite way: great circle to the parallel, along it, great circle from it. cos(dx) = tan(y) /
// tan(limit).
TEST_F(BuiltLimitsTest, LatitudesAreSailedAlong) {
    const Server::RouteEngine engine = Under({{}, 41.0, -30.0});
    const Way way = Planned(engine, "JPYOK", "USSFO");
    ASSERT_EQ(way.fault, "");
    double north = 0.0;
    for (const GeoPoint p : way.line) {
        north = std::max(north, p.y);
    }
    EXPECT_LE(north, 41.0);
    EXPECT_GT(north, 40.9);
    // From off Nojima Saki, 37 miles from the port, to the pilots off San Francisco, 14 miles from it.
    const GeoPoint from{139.9, 34.8};
    const GeoPoint to{-122.8, 37.7};
    const auto reach = [](double y) {
        return std::acos(std::tan(y * Server::kDegree) / std::tan(41.0 * Server::kDegree)) / Server::kDegree;
    };
    const GeoPoint up{from.x + reach(from.y), 41.0};
    const GeoPoint down{to.x - reach(to.y), 41.0};
    const double along = (360.0 + down.x - up.x) * 60.0 * std::cos(41.0 * Server::kDegree);
    const double composite = 37.0 + Server::ArcNm(from, up) + along + Server::ArcNm(down, to) + 14.0;
    EXPECT_NEAR(way.nm, composite, 0.01 * composite);
    EXPECT_GT(way.nm, Planned(Server::RouteEngine(whole_), "JPYOK", "USSFO").nm + 20.0);
    EXPECT_EQ(Planned(engine, "ZADUR", "AUPHE").fault, "");
    EXPECT_NE(Planned(engine, "ZACPT", "AUPHE").fault, "") << "Cape Town lies south of the limit";
}

}  // namespace
}  // namespace Tarvik::Data
