// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/protocol/PortCallCommands.h"
#include "testsupport/PortDictionary.h"
#include "testsupport/RecordingHost.h"

namespace Tarvik::Seaplan {

namespace {

using Texts = std::vector<std::string>;

VoyPortCall RowOf(const std::string& id, const std::string& name, float speed) {
    VoyPortCall row;
    row.ppi = id;
    row.ppn = name;
    row.psp = speed;
    return row;
}

class PortCallCommandsTest : public testing::Test {
  protected:
    TestSupport::RecordingHost host;
    PortCallRows rows;
};

TEST_F(PortCallCommandsTest, LoadAsksForTheVoyage) {
    host.Reply(10, R"([{lon:"0",ppi:"40389",ppn:"A",pp:"L",psp:"18.52",pw:"0.125",apt:"6.5"}])");
    EXPECT_EQ(LoadPortCalls("77", rows), 0);
    EXPECT_EQ(host.Texts(), Texts{R"(10 {vi:"77"})"});
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].ppi, "40389");
    EXPECT_EQ(rows[0].ppn, "A");
    EXPECT_EQ(rows[0].pp, "L");
    EXPECT_EQ(rows[0].psp, 10.0F);
    EXPECT_EQ(rows[0].pw, 0.125F);
    EXPECT_EQ(rows[0].apt, 6.5F);
}

TEST_F(PortCallCommandsTest, MissingValuesAreEmptyAndZero) {
    host.Reply(10, R"([{lon:"0"}])");
    EXPECT_EQ(LoadPortCalls("77", rows), 0);
    EXPECT_EQ(rows[0].psp, 0.0F);
    EXPECT_EQ(rows[0].pp, "") << "a missing purpose is not the default";
}

TEST_F(PortCallCommandsTest, RowsComeInOrderOfTheirNumberAndTheLaterOfTwoStays) {
    host.Reply(10, R"([{lon:"10",ppn:"C"},{lon:"2",ppn:"x"},{lon:"1",ppn:"A"},{lon:"2",ppn:"B"}])");
    EXPECT_EQ(LoadPortCalls("77", rows), 0);
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0].ppn + rows[1].ppn + rows[2].ppn, "ABC");
}

TEST_F(PortCallCommandsTest, LoadLadderEmptiesTheRowsFirst) {
    rows.resize(2);
    EXPECT_EQ(LoadPortCalls("", rows), -1);
    EXPECT_TRUE(rows.empty());
    EXPECT_EQ(LoadPortCalls("77", rows), -2);
    host.Reply(10, "[]");
    EXPECT_EQ(LoadPortCalls("77", rows), -3);
    host.Reply(10, R"([{lon:"0",ppn:"A"},{ppn:"B"}])");
    EXPECT_EQ(LoadPortCalls("77", rows), -4);
    EXPECT_TRUE(rows.empty());
}

TEST_F(PortCallCommandsTest, NumbersAreReadFromTextsOnly) {
    host.Reply(10, R"([{lon:0,ppn:"A"}])");
    EXPECT_EQ(LoadPortCalls("77", rows), -4) << "a sequence number is a text";
    host.Reply(10, R"([{lon:"x",psp:18.52,pw:0.5,apt:6}])");
    EXPECT_EQ(LoadPortCalls("77", rows), 0);
    EXPECT_EQ(rows[0].psp, 0.0F);
    EXPECT_EQ(rows[0].pw, 0.0F);
    EXPECT_EQ(rows[0].apt, 0.0F);
}

TEST_F(PortCallCommandsTest, ValuesThatAreComputedStayAtTheirDefaults) {
    host.Reply(10, R"([{lon:"0",steamTime:"5",distance:"6"}])");
    EXPECT_EQ(LoadPortCalls("77", rows), 0);
    EXPECT_EQ(rows[0].steamTime, 0.0F);
    EXPECT_EQ(rows[0].distance, 0.0F);
}

TEST_F(PortCallCommandsTest, SpeedIsRoundedOnceToThirtyTwoBits) {
    host.Reply(10, R"([{lon:"0",psp:"25"},{lon:"1",psp:"18.519"}])");
    EXPECT_EQ(LoadPortCalls("77", rows), 0);
    EXPECT_EQ(rows[0].psp, static_cast<float>(25.0 / 1.852));
    EXPECT_EQ(rows[1].psp, static_cast<float>(18.519 / 1.852));
    host.Reply(11, "{eid:0}");
    EXPECT_EQ(SavePortCalls("77", rows), 0);
    EXPECT_EQ(host.Texts().back(), R"(11 ["77","0||||25.000|0.000|0.0","1||||18.519|0.000|0.0"])");
}

TEST_F(PortCallCommandsTest, ReplyThatDoesNotParseIsAFailedExchange) {
    rows = {RowOf("1", "A", 10.0F), RowOf("2", "B", 10.0F)};
    host.Reply(11, "no json");
    EXPECT_EQ(SavePortCalls("77", rows), -2);
    host.Reply(6, "no json");
    EXPECT_EQ(SaveFigures("77", {}), -2);
    host.Reply(10, "no json");
    EXPECT_EQ(LoadPortCalls("77", rows), -2);
    EXPECT_TRUE(rows.empty());
}

TEST_F(PortCallCommandsTest, IdsAreFilledInAlsoWhenTheExchangeFails) {
    const TestSupport::PortDictionary dictionary(TestSupport::PortDictionary::Ports{{"B", "2"}});
    rows = {RowOf("", "A", 10.0F), RowOf("", "B", 10.0F)};
    EXPECT_EQ(SavePortCalls("77", rows), -2);
    EXPECT_EQ(rows[0].ppi, "") << "an unknown port has no id";
    EXPECT_EQ(rows[1].ppi, "2");
    EXPECT_EQ(host.Texts(), Texts{R"(11 ["77","0||A|D|18.520|0.000|0.0","1|2|B|D|18.520|0.000|0.0"])"});
}

TEST_F(PortCallCommandsTest, SavedTextIsByteExact) {
    rows = {RowOf("1", "A", 0.0F), RowOf("2", "B", 10.0F)};
    rows[0].pp = "L";
    rows[0].apt = 12.25F;
    rows[1].pw = 0.0625F;
    host.Reply(11, "{eid:0}");
    EXPECT_EQ(SavePortCalls("77", rows), 0);
    EXPECT_EQ(host.Texts(), Texts{R"(11 ["77","0|1|A|L|0.000|0.000|12.2","1|2|B|D|18.520|0.062|0.0"])"});
}

TEST_F(PortCallCommandsTest, RowWithoutIdTakesItFromTheDictionaryAndKeepsIt) {
    const TestSupport::PortDictionary dictionary(TestSupport::PortDictionary::Ports{{"A", "40389"}});
    rows = {RowOf("", "A", 10.0F), RowOf("2", "B", 10.0F)};
    host.Reply(11, "{eid:0}");
    EXPECT_EQ(SavePortCalls("77", rows), 0);
    EXPECT_EQ(rows[0].ppi, "40389");
    EXPECT_NE(host.requests[0].Text().find("0|40389|A|"), std::string::npos);
}

TEST_F(PortCallCommandsTest, SaveLadder) {
    rows = {RowOf("1", "A", 10.0F)};
    EXPECT_EQ(SavePortCalls("77", rows), -1) << "one row is no schedule";
    rows.push_back(RowOf("2", "B", 10.0F));
    EXPECT_EQ(SavePortCalls("", rows), -1);
    EXPECT_TRUE(host.requests.empty());
    EXPECT_EQ(SavePortCalls("77", rows), -2);
    host.Reply(11, "{eid:9}");
    EXPECT_EQ(SavePortCalls("77", rows), -3);
    host.Reply(11, "{}");
    EXPECT_EQ(SavePortCalls("77", rows), -3);
}

TEST_F(PortCallCommandsTest, FiguresGoOutInTheirFixedOrder) {
    host.Reply(6, "{eid:0}");
    EXPECT_EQ(SaveFigures("77", {1, 2, 3, 4, 5, 6, -7}), 0);
    EXPECT_EQ(host.Texts(), Texts{R"(6 {vi:"77",vfn:"1",vff:"2",vfa:"3",vdn:"4",vda:"5",vwn:"6",vwa:"-7"})"});
}

TEST_F(PortCallCommandsTest, FiguresLadder) {
    EXPECT_EQ(SaveFigures("", {}), -1);
    EXPECT_TRUE(host.requests.empty());
    EXPECT_EQ(SaveFigures("77", {}), -2);
    host.Reply(6, "{eid:1}");
    EXPECT_EQ(SaveFigures("77", {}), -3);
}

}  // namespace
}  // namespace Tarvik::Seaplan
