// SPDX-License-Identifier: MIT
// The ways of the shipped network against its land, by another library's geometry: no line between two points
// of a way meets a coast, or lies ashore, but along a hand-made way. SEAPLAN_ORACLE_ROUTES says how many
// ways.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <optional>
#include <random>

#include <geos_c.h>
#include <gtest/gtest.h>

#include "host/server/graph/RouteEngine.h"

namespace Tarvik::Data {

namespace {

using Server::GeoPoint;

constexpr int kUsualRoutes = 60;
/// A way may leave a hand-made one by this before it counts as beside it, in degrees of latitude.
constexpr double kBesideDegrees = 0.2 / 60.0;

struct Freed {
    void operator()(GEOSGeometry* geometry) const { GEOSGeom_destroy(geometry); }
    void operator()(GEOSSTRtree* tree) const { GEOSSTRtree_destroy(tree); }
};
using Geometry = std::unique_ptr<GEOSGeometry, Freed>;
using Tree = std::unique_ptr<GEOSSTRtree, Freed>;

Geometry LineOf(const std::vector<GeoPoint>& points) {
    GEOSCoordSequence* places = GEOSCoordSeq_create(static_cast<unsigned>(points.size()), 2);
    for (unsigned i = 0; i < points.size(); ++i) {
        GEOSCoordSeq_setXY(places, i, points[i].x, points[i].y);
    }
    return Geometry(GEOSGeom_createLineString(places));
}

/// Lines of two points, found again by their boxes.
class Lines {
  public:
    /// A step over the date line is cut there.
    void Add(GeoPoint a, GeoPoint b) {
        if (std::abs(a.x - b.x) >= 180.0) {
            const double border = std::copysign(180.0, a.x);
            const double beyond = b.x + 2.0 * border;
            const double y = a.x == beyond ? a.y : a.y + (border - a.x) / (beyond - a.x) * (b.y - a.y);
            Add(a, {border, y});
            Add({-border, y}, b);
        } else if (!(a == b)) {
            kept_.push_back(LineOf({a, b}));
            GEOSSTRtree_insert(tree_.get(), kept_.back().get(), kept_.back().get());
        }
    }
    std::vector<const GEOSGeometry*> Near(const GEOSGeometry* what) const {
        std::vector<const GEOSGeometry*> found;
        const auto take = [](void* item, void* into) {
            static_cast<std::vector<const GEOSGeometry*>*>(into)->push_back(static_cast<GEOSGeometry*>(item));
        };
        GEOSSTRtree_query(tree_.get(), what, take, &found);
        return found;
    }

  private:
    std::vector<Geometry> kept_;
    Tree tree_{GEOSSTRtree_create(10)};
};

class LandOracle : public ::testing::Test {
  protected:
    static void SetUpTestSuite() {
        initGEOS(nullptr, nullptr);
        std::string error;
        network_ = Server::SeaNetwork::Load(SHARE_FOLDER "/network.bin", error);
        ASSERT_TRUE(network_) << error;
        coast_ = std::make_unique<Lines>();
        byHand_ = std::make_unique<Lines>();
        for (const auto& ring : network_->data().land) {
            for (std::size_t i = 0; i < ring.size(); ++i) {
                coast_->Add(ring[i], ring[(i + 1) % ring.size()]);
            }
        }
        for (const Server::NetworkEdge& edge : network_->data().edges) {
            if (edge.kind != Server::EdgeKind::Sea) {
                byHand_->Add(network_->data().nodes[edge.a], network_->data().nodes[edge.b]);
            }
        }
    }
    static void TearDownTestSuite() {
        coast_.reset();
        byHand_.reset();
        network_.reset();
        finishGEOS();
    }

    static bool IsByHand(GeoPoint at) {
        const double wide = kBesideDegrees / std::cos(at.y * M_PI / 180.0);
        const Geometry around =
            LineOf({{at.x - wide, at.y - kBesideDegrees}, {at.x + wide, at.y + kBesideDegrees}});
        const Geometry place = LineOf({at, {at.x + 1e-9, at.y}});
        for (const GEOSGeometry* line : byHand_->Near(around.get())) {
            double off = 0.0;
            if (GEOSDistance(line, place.get(), &off) == 1 && off <= wide) {
                return true;
            }
        }
        return false;
    }
    /// Where a line first meets the coast beside hand-made ways; nothing when it does not.
    static std::optional<GeoPoint> Landfall(GeoPoint a, GeoPoint b) {
        const Geometry line = LineOf({a, b});
        for (const GEOSGeometry* coast : coast_->Near(line.get())) {
            if (GEOSIntersects(line.get(), coast) != 1) {
                continue;
            }
            const Geometry meeting(GEOSIntersection(line.get(), coast));
            const Geometry middle(GEOSGetCentroid(meeting.get()));
            GeoPoint at;
            GEOSGeomGetX(middle.get(), &at.x);
            GEOSGeomGetY(middle.get(), &at.y);
            if (!IsByHand(at)) {
                return at;
            }
        }
        return std::nullopt;
    }
    /// Whether a place lies ashore: a line from it to the pole meets an odd number of coasts.
    static bool IsAshore(GeoPoint at) {
        const double aside = at.x + 3.7e-7;  // no vertex of the map stands there
        const Geometry north = LineOf({{aside, at.y}, {aside, 90.0}});
        const auto near = coast_->Near(north.get());
        return std::count_if(
                   near.begin(), near.end(),
                   [&north](const GEOSGeometry* coast) { return GEOSIntersects(north.get(), coast) == 1; }) %
                   2 ==
               1;
    }

    static inline std::shared_ptr<const Server::SeaNetwork> network_;
    static inline std::unique_ptr<Lines> coast_;
    static inline std::unique_ptr<Lines> byHand_;
};

TEST_F(LandOracle, KnowsLandFromWater) {
    EXPECT_TRUE(IsAshore({-3.7, 40.4})) << "Madrid";
    EXPECT_TRUE(IsAshore({0.0, -80.0})) << "Antarctica";
    EXPECT_TRUE(IsAshore({179.9, 71.0})) << "Wrangel Island, over the date line";
    EXPECT_FALSE(IsAshore({-30.0, 40.0})) << "the Atlantic";
    EXPECT_FALSE(IsAshore({179.9, 40.0})) << "south of that island";
    EXPECT_TRUE(Landfall({-10, 40}, {-3, 40})) << "into Spain";
    EXPECT_FALSE(Landfall({-30, 40}, {-20, 40}));
    EXPECT_FALSE(IsByHand({-30, 40}));
    for (const Server::NetworkEdge& edge : network_->data().edges) {
        if (edge.kind == Server::EdgeKind::Chain) {
            EXPECT_TRUE(IsByHand(network_->data().nodes[edge.a]));
        }
    }
}

TEST_F(LandOracle, WaysOfRandomPortsNeverGoAshore) {
    const char* asked = std::getenv("SEAPLAN_ORACLE_ROUTES");
    const int routes = asked ? std::atoi(asked) : kUsualRoutes;
    const Server::RouteEngine engine(network_);
    const auto& ports = network_->data().ports;
    std::mt19937 lots(20261122);
    std::size_t pieces = 0;
    for (int i = 0; i < routes; ++i) {
        const auto& from = ports[lots() % ports.size()];
        const auto& to = ports[lots() % ports.size()];
        const auto result = engine.Plan({{from.id, {}, {}}, {to.id, {}, {}}});
        ASSERT_EQ(result.error, Server::kRouteOk) << from.name << " - " << to.name;
        for (const auto& leg : result.stops[1].legs) {
            for (std::size_t k = 1; k < leg.points.size(); ++k) {
                const GeoPoint a = leg.points[k - 1];
                const GeoPoint b = leg.points[k];
                if (a == b || std::abs(a.x - b.x) >= 180.0) {
                    continue;
                }
                ++pieces;
                const auto at = Landfall(a, b);
                EXPECT_FALSE(at) << from.name << " - " << to.name << " meets land at " << at->x << " "
                                 << at->y;
                const GeoPoint middle{0.5 * (a.x + b.x), 0.5 * (a.y + b.y)};
                EXPECT_TRUE(!IsAshore(middle) || IsByHand(middle))
                    << from.name << " - " << to.name << " is ashore at " << middle.x << " " << middle.y;
            }
        }
    }
    EXPECT_GT(pieces, static_cast<std::size_t>(routes));
}

}  // namespace

}  // namespace Tarvik::Data
