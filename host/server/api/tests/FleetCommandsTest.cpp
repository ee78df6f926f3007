// SPDX-License-Identifier: MIT
#include "host/server/api/tests/ServiceFixture.h"

namespace Tarvik::Server {

namespace {

constexpr int kLoad = 15;
constexpr int kChange = 16;
const std::string kSuccess = R"({"eid":0})";
const std::string kAdded = R"({"eid":0,"vsi":"1000001"})";

/// A vessel with all its members, of which `member` has another value.
std::string Vessel(const std::string& type, const std::string& id = {}, const std::string& member = {},
                   const std::string& value = {}) {
    std::string text = "{";
    const std::pair<const char*, const char*> members[] = {
        {"vsn", "Meridian"}, {"vsmsi", "477123456"}, {"vsimo", "9134270"}, {"vscs", "VRAB2"},
        {"vst", "Tanker"},   {"vsl", "229.0"},       {"vsp", "25.928"}};
    for (const auto& [key, usual] : members) {
        text += std::string(key) + ":\"" + (key == member ? value : usual) + "\",";
    }
    return text + "vsi:\"" + id + "\",type:\"" + type + "\"}";
}

class FleetCommandsTest : public ServiceTest {
  protected:
    void ExpectRefused(const std::string& member, const std::string& value, ErrorCode code,
                       const std::string& detail) {
        const std::string reply = Send(kChange, Vessel("0", {}, member, value));
        EXPECT_EQ(Eid(reply), static_cast<int>(code)) << member << " " << value;
        EXPECT_EQ(Emsg(reply), std::string(TextOf(code)) + ": " + detail);
        EXPECT_EQ(Send(kLoad, R"({ui:"ann"})"), "[]") << member << " " << value;
    }
};

TEST_F(FleetCommandsTest, VesselIsAddedReadChangedAndRemoved) {
    Converse(
        {{kLoad, R"({ui:"ann"})", "[]"},
         {kChange, Vessel("0"), kAdded},
         {kLoad, R"({ui:"ann"})",
          R"([{"vsi":"1000001","vsn":"Meridian","vsmsi":"477123456","vsimo":"9134270","vscs":"VRAB2",)"
          R"("vst":"Tanker","vsl":"229.0","vsp":"25.928"}])"},
         {kChange, R"({vsi:"1000001",type:1,vsn:"木筏",vsmsi:"0",vsimo:"0",vscs:"",vst:"",vsl:"0",vsp:"0"})",
          kSuccess},
         {kLoad, R"({ui:"ann"})",
          R"([{"vsi":"1000001","vsn":"木筏","vsmsi":"0","vsimo":"0","vscs":"","vst":"",)"
          R"("vsl":"0.0","vsp":"0.000"}])"},
         {kChange, R"({vsi:"1000001",type:"2"})", kSuccess},
         {kLoad, R"({ui:"ann"})", "[]"}});
}

TEST_F(FleetCommandsTest, NumbersAreCheckedWithAClearMessage) {
    ExpectRefused("vsmsi", "470", ErrorCode::BadMmsi, "470");
    ExpectRefused("vsmsi", "970123456", ErrorCode::BadMmsi, "970123456");
    ExpectRefused("vsimo", "9134271", ErrorCode::BadImo, "9134271");
    ExpectRefused("vsimo", "913427", ErrorCode::BadImo, "913427");
    ExpectRefused("vsmsi", "4771234567", ErrorCode::BadNumber, "vsmsi");
    ExpectRefused("vsmsi", "", ErrorCode::BadNumber, "vsmsi");
    ExpectRefused("vsimo", "-1", ErrorCode::BadNumber, "vsimo");
    ExpectRefused("vsl", "long", ErrorCode::BadNumber, "vsl");
    ExpectRefused("vsl", "1000.1", ErrorCode::BadNumber, "Meridian");
    ExpectRefused("vsl", "-1", ErrorCode::BadNumber, "Meridian");
    ExpectRefused("vsp", "nan", ErrorCode::BadNumber, "vsp");
    ExpectRefused("vsp", "200.1", ErrorCode::BadNumber, "Meridian");
}

TEST_F(FleetCommandsTest, TextsHaveTheirLimits) {
    ExpectRefused("vsn", "", ErrorCode::EmptyName, "vsn");
    ExpectRefused("vsn", std::string(257, 'n'), ErrorCode::TextTooLong, std::string(200, 'n'));
    ExpectRefused("vst", std::string(257, 't'), ErrorCode::TextTooLong, "Meridian");
    ExpectRefused("vscs", std::string(17, 'c'), ErrorCode::TextTooLong, "Meridian");
    ExpectRefused("vst", "a\\u0000", ErrorCode::BadText, "vst");
    EXPECT_EQ(Send(kChange, Vessel("0", {}, "vsn", std::string(256, 'n'))), kAdded);
}

TEST_F(FleetCommandsTest, FormIsChecked) {
    ASSERT_EQ(Send(kChange, Vessel("0")), kAdded);
    const std::string before = Send(kLoad, R"({ui:"ann"})");
    const std::pair<std::string, ErrorCode> requests[] = {
        {Vessel("0", "1000001"), ErrorCode::UnknownVessel},
        {Vessel("1", "1000002"), ErrorCode::UnknownVessel},
        {Vessel("1", ""), ErrorCode::UnknownVessel},
        {R"({vsi:"7",type:"2"})", ErrorCode::UnknownVessel},
        {Vessel("3", "1000001"), ErrorCode::UnknownOperation},
        {R"({vsi:"1000001",type:"1",vsn:"x"})", ErrorCode::MissingValue},
        {R"({type:"2"})", ErrorCode::MissingValue},
        {R"({vsi:"1000001"})", ErrorCode::MissingValue},
        {"[]", ErrorCode::BadJson}};
    for (const auto& [text, code] : requests) {
        EXPECT_EQ(Eid(Send(kChange, text)), static_cast<int>(code)) << text;
        EXPECT_EQ(Send(kLoad, R"({ui:"ann"})"), before) << text;
    }
    EXPECT_EQ(Eid(Send(kLoad, "{}")), static_cast<int>(ErrorCode::MissingValue));
}

TEST_F(FleetCommandsTest, NobodyReachesAnothersFleet) {
    ASSERT_EQ(Send(kChange, Vessel("0")), kAdded);
    const std::string before = Send(kLoad, R"({ui:"ann"})");
    EXPECT_EQ(Eid(Send(kLoad, R"({ui:"ann"})", "bob")), static_cast<int>(ErrorCode::OtherUser));
    EXPECT_EQ(Send(kLoad, R"({ui:"bob"})", "bob"), "[]");
    for (const std::string& text : {Vessel("1", "1000001"), std::string(R"({vsi:"1000001",type:"2"})")}) {
        EXPECT_EQ(Eid(Send(kChange, text, "bob")), static_cast<int>(ErrorCode::UnknownVessel)) << text;
    }
    EXPECT_EQ(Send(kLoad, R"({ui:"ann"})"), before);
}

TEST_F(FleetCommandsTest, VoyageKeepsTheNameOfAVesselThatIsRemoved) {
    const World world = MakeWorld();
    const std::string vessel = Send(kChange, Vessel("0"));
    ASSERT_EQ(Eid(vessel), 0);
    const std::string id = vessel.substr(vessel.find("1000"), 7);
    Converse(
        {{5,
          R"({vi:")" + world.voyage + R"(",type:"5",vsi:")" + id + R"(",vsn:"Meridian",vsmsi:"477123456"})",
          kSuccess}});
    const std::string before = Send(3, R"({ui:"ann"})");
    Converse({{kChange, R"({vsi:")" + id + R"(",type:"2"})", kSuccess}, {3, R"({ui:"ann"})", before}});
}

TEST_F(FleetCommandsTest, LargestFleetFitsItsReply) {
    const std::string name(256, '\x01');
    std::string escaped;
    for (std::size_t i = 0; i < 256; ++i) {
        escaped += "\\u0001";
    }
    const std::string text = R"({vsn:")" + escaped + R"(",vsmsi:"477123456",vsimo:"9134270",vscs:")" +
                             escaped.substr(0, 16 * 6) + R"(",vst:")" + escaped +
                             R"(",vsl:"0.1234567890123456",vsp:"0.1234567890123456",vsi:"",type:"0"})";
    for (std::size_t i = 0; i < kMostVessels; ++i) {
        ASSERT_EQ(Eid(Send(kChange, text)), 0);
    }
    EXPECT_EQ(Eid(Send(kChange, text)), static_cast<int>(ErrorCode::ListFull));
    const std::string reply = Send(kLoad, R"({ui:"ann"})");
    EXPECT_EQ(reply.substr(0, 2), "[{");
}

}  // namespace
}  // namespace Tarvik::Server
