// SPDX-License-Identifier: MIT
#include <algorithm>
#include <memory>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tarvik/interface/VesselNumbers.h>
#include <tarvik/util/Jsona.h>

#include "host/demo/DemoSetup.h"
#include "host/demo/Samples.h"
#include "host/plugins/fleet/tests/FleetServer.h"

namespace Tarvik::Demo {

namespace {

constexpr std::int64_t kNow = 1709251200;  // 2024-03-01 00:00:00 UTC

TEST(Samples, AreThreeCategoriesEightVoyagesAndAFleetOfSix) {
    std::set<std::string_view> categories;
    for (const SampleVoyage& voyage : Voyages()) {
        categories.insert(voyage.category);
        EXPECT_LE(voyage.name.size(), 20U) << voyage.name << " is longer than the tree takes";
    }
    EXPECT_EQ(categories.size(), 3U);
    EXPECT_EQ(Voyages().size(), 8U);
    EXPECT_EQ(std::count_if(Voyages().begin(), Voyages().end(), [](const auto& v) { return v.isInBin; }), 1);
    EXPECT_EQ(Vessels().size(), 6U);
    for (const SampleVessel& vessel : Vessels()) {
        EXPECT_TRUE(Interface::IsShipMmsi(vessel.mmsi)) << vessel.name;
        EXPECT_TRUE(Interface::IsImoNumber(vessel.imo)) << vessel.name;
        const auto sails = [&vessel](const SampleVoyage& voyage) { return voyage.vessel == vessel.name; };
        EXPECT_EQ(std::count_if(Voyages().begin(), Voyages().end(), sails), 1) << vessel.name;
    }
}

TEST(DemoSetup, PlansAreToldAsPlanReadsThem) {
    const std::string lines = PlanLines(kNow);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 8);
    EXPECT_EQ(lines.substr(0, lines.find('\n')),
              "Tankers/Crude to Yokohama\t2024-02-25 00:00:00\t13\tAEFJR\tJPYOK");
}

class DemoSetupTest : public testing::Test {
  protected:
    DemoSetupTest() {
        exchange = [this](std::uint16_t command, const std::string& text) {
            return server.Send(command, text);
        };
    }
    /// What `plan` leaves behind, with a book of two rows for each voyage.
    void MakeVoyages() {
        for (const SampleVoyage& voyage : Voyages()) {
            const std::string name(voyage.name);
            const std::string ci = IdOf(4, R"({ci:"",cn:")" + name + R"(",type:0})", "ci");
            const std::string vi = IdOf(
                5, "{ci:\"" + ci + "\",vi:\"\",vn:\"" + name + "\",type:\"0\",vsi:\"\",vr:\"0\",va:\"0\"}",
                "vi");
            const std::string psb = IdOf(8, "{vi:\"" + vi + "\",dt:\"2024-02-25 00:00:00\"}", "psb");
            exchange(9,
                     "[\"" + psb +
                         "\",\"0\",\"0|A|4.050|51.980|GC|2|25.928|5\",\"1|B|5.050|50.980|GC|2|25.928|5\"]");
        }
    }
    std::string IdOf(std::uint16_t command, const std::string& text, const char* key) const {
        Util::Jsona reply;
        EXPECT_TRUE(reply.parse(exchange(command, text)));
        EXPECT_EQ(reply.getv("eid", -1), 0) << text << reply.getv("emsg", "");
        return reply.getv(key, "");
    }
    Fleet::FleetServer server;
    Exchange exchange;
};

TEST_F(DemoSetupTest, VesselsAreGivenAndThoseUnderWaySailTheirBooks) {
    MakeVoyages();
    std::istringstream ships(Finish(exchange, "1000001", kNow));
    std::vector<std::string> lines;
    for (std::string line; std::getline(ships, line);) {
        lines.push_back(line);
    }
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[0], "636091201;Amber Tide;13;1708819200;4.05000,51.98000|5.05000,50.98000");
    const std::string catalog = exchange(3, R"({ui:"1000001"})");
    EXPECT_NE(catalog.find(R"("vsn":"Fair Hollow")"), std::string::npos);
    Util::Jsona fleet;
    EXPECT_TRUE(fleet.parse(exchange(15, R"({ui:"1000001"})")));
    EXPECT_EQ(fleet.size(), 6);
}

TEST_F(DemoSetupTest, AVoyageThatWasNotPlannedIsTold) {
    EXPECT_THROW(Finish(exchange, "1000001", kNow), std::runtime_error);
}

}  // namespace
}  // namespace Tarvik::Demo
