// SPDX-License-Identifier: MIT
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/VoyageContract.h>
#include <tarvik/interface/PlanRecords.h>

#include "tests/integration/TinyHost.h"

namespace Tarvik::Integration {

namespace {

using Interface::PlanRequest;
using Interface::PlanResult;
using Texts = std::vector<std::string>;

constexpr const char* kRoute =
    R"([{point_cd:"40001",routes:[],rp_groups:[]},{point_cd:"40002",routes:[{route:"1",from_cd:"40001",)"
    R"(end_cd:"40002",pointset:"0.000,0.000|0.500,0.000|1.000,0.000"}],rp_groups:[]}])";

/// A request as bytes: length of the payload with its NUL in four, command in two and module word 5 in two
/// bytes, the lowest first.
std::string Envelope(unsigned command, const std::string& text) {
    const std::size_t length = text.size() + 1;
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>(length >> shift & 0xFF);
    }
    for (const unsigned word : {command, 5U}) {
        bytes += static_cast<char>(word & 0xFF);
        bytes += static_cast<char>(word >> 8 & 0xFF);
    }
    return bytes + text + '\0';
}

class PlanOverTheBusTest : public TinyHost {
  protected:
    PlanOverTheBusTest() {
        plugin.load();
        request.start = Util::_datetime_t(0, 0, 8, 1, 3, 2024);
        request.ports = {{"A", "", 10.0F, 0.0F, 6.0F}, {"B", "", 10.0F, 0.0F, 0.0F}};
    }
    const PlanResult* Plan() {
        const PlanRequest* input = &request;
        return Interface::Call(Interface::Bus::PlanVoyage, input);
    }
    PlanRequest request;
};

TEST_F(PlanOverTheBusTest, PlannedAndSavedVoyageSendsExactlyTheseBytes) {
    host.Reply(3, R"([{ci:"10",cn:"Other"}])");
    host.Reply(1, kRoute);
    host.Reply(4, R"({eid:0,ci:"11"})");
    host.Reply(5, R"({eid:0,vi:"22"})");
    host.Reply(11, "{eid:0}");
    host.Reply(7, "[]");
    host.Reply(8, R"({eid:0,psb:"5"})");
    host.Reply(9, "{eid:0}");
    request.save = true;
    request.category = "Cat";
    request.voyage = "V";
    const PlanResult* result = Plan();
    ASSERT_NE(result, nullptr);
    ASSERT_EQ(result->code, 0) << result->step;
    const Texts expected{
        Envelope(3, R"({ui:"1000001"})"),
        Envelope(1, R"({"rp_id":"","orig_rp_id":"","leg":-1,"rp_group":"","pointList":"40001#40002"})"),
        Envelope(4, R"({ci:"",cn:"Cat",type:0})"),
        Envelope(5, R"({ci:"11",vi:"",vn:"V",type:"0",vsi:"",vr:"0",va:"0"})"),
        Envelope(11, R"(["22","0|40001|A|L|0.000|0.000|6.0","1|40002|B|D|18.520|0.000|0.0"])"),
        Envelope(7, R"({vi:"22"})"),
        Envelope(8, R"({vi:"22",dt:"2024-03-01 00:00:00"})"),
        Envelope(9, R"(["5","0","0|A|0.000|0.000|GC|5|0.000|5","1||0.500|0.000|GC|5|18.520|0",)"
                    R"("2|B|1.000|0.000|GC|5|18.520|5"])"),
    };
    ASSERT_EQ(host.requests.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(host.requests[i].bytes, expected[i]) << "request " << i;
    }
    EXPECT_EQ(result->rows[1].eta.fmt("%Y-%m-%d %H:%M"), "2024-03-01 20:00");
    EXPECT_EQ(result->linePieces.size(), 1U);
}

TEST_F(PlanOverTheBusTest, FailureComesBackAsCodeAndWords) {
    request.ports[1].name = "Atlantis";
    host.Reply(3, "[]");
    const PlanResult* result = Plan();
    ASSERT_NE(result, nullptr);
    EXPECT_EQ(result->code, Interface::PlanUnknownPort);
    EXPECT_EQ(result->step, "unknown port: Atlantis");
}

TEST_F(PlanOverTheBusTest, HostThatIsNotConnectedIsAskedToLogIn) {
    host.connected = false;
    EXPECT_EQ(Plan()->code, Interface::PlanNotConnected);
    EXPECT_EQ(host.logins, 1);
    EXPECT_TRUE(host.requests.empty());
}

}  // namespace
}  // namespace Tarvik::Integration
