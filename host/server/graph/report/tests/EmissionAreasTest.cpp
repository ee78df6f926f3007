// SPDX-License-Identifier: MIT
#include <stdexcept>

#include <gmock/gmock.h>

#include "host/geo/Sphere.h"
#include "host/server/graph/report/RouteReport.h"
#include "host/server/graph/tests/SmallSea.h"

namespace Tarvik::Server {

namespace {

using ::testing::HasSubstr;
using ::testing::Not;

EmissionAreas AreasOf(const std::string& rings) {
    return EmissionAreas(Data::CsvTable("name,ring\n" + rings));
}

TEST(EmissionAreas, CountThePartOfAWayInside) {
    const EmissionAreas areas = AreasOf("Square,0 -1;2 -1;2 1;0 1\nNext,2 -1;3 -1;3 1;2 1\n");
    EXPECT_NEAR(areas.NmInside({{-1, 0}, {0.5, 0}}), GeodesicKm({0, 0}, {0.5, 0}) / kKmPerNm, 0.01);
    EXPECT_NEAR(areas.NmInside({{-0.5, 0}, {0.5, 0}, {1.5, 0}, {2.5, 0}, {3.5, 0}}),
                GeodesicKm({0, 0}, {3, 0}) / kKmPerNm, 0.01)
        << "two areas with a common edge count as one";
    EXPECT_EQ(areas.NmInside({{-1, 0}, {-0.5, 2}}), 0.0);
    EXPECT_NEAR(areas.NmInside({{-0.4, 0.5}, {0.4, 1.5}}), 0.0, 0.01) << "past a corner";
}

TEST(EmissionAreas, AWayMayLeadOverTheDateLine) {
    const EmissionAreas areas = AreasOf("Pacific,179 -1;181 -1;181 1;179 1\n");
    EXPECT_NEAR(areas.NmInside({{178.5, 0}, {179.5, 0}, {180, 0}, {-180, 0}, {-178.5, 0}}),
                GeodesicKm({179, 0}, {181, 0}) / kKmPerNm, 0.01);
}

TEST(EmissionAreas, ARingNeedsThreeCorners) {
    EXPECT_THROW(AreasOf("Line,0 0;1 1\n"), std::runtime_error);
    EXPECT_FALSE(RouteFiles::Beside("/nowhere/network.bin").areas);
}

TEST(EmissionAreas, TheRouteTellsThemByLeg) {
    std::string error;
    const auto question = ReadRouteQuestion({"west", "east"}, error);
    RouteFiles files;
    files.areas = AreasOf("West,-20 -5;-9 -5;-9 5;-20 5\n");
    const auto text = RouteText(*SmallNetwork(), files, *question, error);
    ASSERT_TRUE(text) << error;
    EXPECT_THAT(*text, HasSubstr("North Cape (eca 9"));
    EXPECT_THAT(*text, HasSubstr("East (BBBBB) (eca 0.0)"));
    EXPECT_THAT(*text, HasSubstr(" of them in emission control areas\n"));
    auto geojson = *question;
    geojson.geojson = true;
    EXPECT_THAT(*RouteText(*SmallNetwork(), files, geojson, error), HasSubstr(R"("eca_nm":0.0})"));
    EXPECT_THAT(*RouteText(*SmallNetwork(), {}, *question, error), Not(HasSubstr("eca")));
}

struct Place {
    const char* name;
    GeoPoint at;
    bool inside;
};

/// The shipped rings at places where a navigator knows the answer.
TEST(EmissionAreas, TheShippedOnesHoldTheirWaters) {
    const EmissionAreas areas(Data::CsvTable(Data::ReadFile(SEAPLAN_DATA "/emission_areas.csv")));
    const Place places[] = {
        {"off Rotterdam", {3.9, 52.0}, true},
        {"Bergen", {5.2, 60.4}, true},
        {"off Plymouth", {-4.2, 50.2}, true},
        {"west of the Lizard", {-5.4, 49.9}, false},
        {"Brest roads", {-4.6, 48.35}, false},
        {"north of 62", {3.0, 62.2}, false},
        {"Kattegat", {11.4, 56.8}, true},
        {"Bothnia", {22.0, 64.5}, true},
        {"Saint Petersburg", {29.9, 59.9}, true},
        {"Gibraltar Strait", {-5.6, 35.95}, true},
        {"Cadiz", {-6.5, 36.5}, false},
        {"Malta Channel", {14.4, 36.3}, true},
        {"Saros gulf", {26.3, 40.45}, true},
        {"Marmara", {28.0, 40.7}, false},
        {"Suez anchorage", {32.35, 31.4}, false},
        {"Izmir", {27.0, 38.45}, true},
        {"Los Angeles", {-118.3, 33.6}, true},
        {"Ensenada", {-117.0, 31.8}, false},
        {"Juan de Fuca", {-124.5, 48.4}, true},
        {"Cook Inlet", {-152.0, 60.3}, true},
        {"Unimak Pass", {-165.0, 54.3}, false},
        {"Halifax", {-63.5, 44.4}, true},
        {"Flemish Cap", {-45.0, 47.0}, false},
        {"Montreal", {-73.5, 45.5}, true},
        {"Bermuda", {-64.8, 32.3}, false},
        {"Miami", {-80.0, 25.8}, true},
        {"Nassau", {-77.3, 25.1}, false},
        {"Houston bar", {-94.6, 29.3}, true},
        {"Yucatan Channel", {-85.5, 21.8}, false},
        {"Honolulu", {-157.9, 21.2}, true},
        {"Midway", {-177.4, 28.2}, false},
        {"San Juan", {-66.1, 18.6}, true},
        {"Anegada", {-64.3, 18.75}, false},
    };
    for (const Place& place : places) {
        EXPECT_EQ(areas.Hold(place.at), place.inside) << place.name;
    }
}

}  // namespace
}  // namespace Tarvik::Server
