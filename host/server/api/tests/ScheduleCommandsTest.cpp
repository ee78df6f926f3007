// SPDX-License-Identifier: MIT
#include <tarvik/interface/PlanTerms.h>

#include "host/server/api/tests/ServiceFixture.h"

namespace Tarvik::Server {

namespace {

const std::string kSuccess = R"({"eid":0})";

class ScheduleCommandsTest : public ServiceTest {
  protected:
    ScheduleCommandsTest() {
        Converse({{4, R"({ci:"",cn:"A",type:0})", R"({"eid":0,"ci":"1000001"})"},
                  {5, R"({ci:"1000001",vi:"",vn:"V",type:"0",vsi:"",vr:"0",va:"0"})",
                   R"({"eid":0,"vi":"1000002"})"}});
    }
    void MakeBook() {
        Converse({{8, R"({vi:"1000002",dt:"2026-03-01 00:00:00"})", R"({"eid":0,"psb":"1000003"})"}});
    }
    /// One block of rows "first" to before "end" with speed text.
    static std::string Block(const char* mode, int first, int end, const std::string& speed) {
        std::string text = std::string(R"(["1000003",")") + mode + '"';
        for (int i = first; i < end; ++i) {
            text += ",\"" + std::to_string(i) + "||117.750|38.983|GC|5|" + speed + "|0\"";
        }
        return text + "]";
    }
    static std::string StoredRow(int number, const std::string& speed) {
        return R"({"lon":)" + std::to_string(number) +
               R"(,"psn":"","xc":117.75,"yc":38.983,"psr":"GC","pli":"5","psp":")" + speed +
               R"(","pst":"0"})";
    }
};

TEST_F(ScheduleCommandsTest, PortCallsAreReadAsTheyWereWritten) {
    Converse(
        {{10, R"({vi:"1000002"})", "[]"},
         {11,
          R"(["1000002","0|40389|Tianjin|L|18.520|0.000|0.0","1|40208|Rotterdam|D|27.780|0.125|24.5",)"
          R"("2|40002|上海|Z|0.000|0.999|0.0"])",
          kSuccess},
         {10, R"({vi:"1000002"})",
          R"([{"lon":"0","ppi":"40389","ppn":"Tianjin","pp":"L","psp":"18.520","pw":"0.000","apt":"0.0"},)"
          R"({"lon":"1","ppi":"40208","ppn":"Rotterdam","pp":"D","psp":"27.780","pw":"0.125","apt":"24.5"},)"
          R"({"lon":"2","ppi":"40002","ppn":"上海","pp":"Z","psp":"0.000","pw":"0.999","apt":"0.0"}])"}});
}

TEST_F(ScheduleCommandsTest, PortCallsAreReplacedAsAWhole) {
    Converse(
        {{11, R"(["1000002","0|1|A|L|1.000|0.000|0.0","1|2|B|D|1.000|0.000|0.0","2|3|C|D|1.000|0.000|0.0"])",
          kSuccess},
         {11, R"(["1000002","0|4|X|L|1.000|0.000|0.0","1|5|Y|Z|1.000|0.000|0.0"])", kSuccess},
         {10, R"({vi:"1000002"})",
          R"([{"lon":"0","ppi":"4","ppn":"X","pp":"L","psp":"1.000","pw":"0.000","apt":"0.0"},)"
          R"({"lon":"1","ppi":"5","ppn":"Y","pp":"Z","psp":"1.000","pw":"0.000","apt":"0.0"}])"}});
}

TEST_F(ScheduleCommandsTest, RowOfAShipsPositionIsNoPortCall) {
    const std::string reply =
        Send(11, R"(["1000002","0|1|A|L|1.000|0.000|0.0","1||38.100,117.200| |1.000|0.000|0.0"])");
    EXPECT_EQ(Eid(reply), static_cast<int>(ErrorCode::UnknownPort));
    EXPECT_EQ(Emsg(reply), "a port call names no known port: 1||38.100,117.200| |1.000|0.000|0.0");
    Converse({{10, R"({vi:"1000002"})", "[]"}});
}

TEST_F(ScheduleCommandsTest, PortThatTheNetworkDoesNotKnowIsRefused) {
    routes_.unknownPort = "7";
    EXPECT_EQ(Eid(Send(11, R"(["1000002","0|1|A|L|1.000|0.000|0.0","1|7|B|D|1.000|0.000|0.0"])")),
              static_cast<int>(ErrorCode::UnknownPort));
    Converse({{10, R"({vi:"1000002"})", "[]"}});
}

TEST_F(ScheduleCommandsTest, EveryPurposeIsTaken) {
    for (const Interface::Purpose& purpose : Interface::kPurposes) {
        Converse(
            {{11, std::string(R"(["1000002","0|1|A|)") + purpose.code + R"(|1.000|0.000|0.0"])", kSuccess}});
    }
}

TEST_F(ScheduleCommandsTest, BookIsMadeOnceAndReadWithItsDate) {
    Converse({{7, R"({vi:"1000002"})", "[]"}});
    MakeBook();
    Converse({{7, R"({vi:"1000002"})", R"([{"pbi":"1000003","eta":"2026-03-01 00:00:00","pb":[]}])"},
              {14, R"({psb:"1000003",dt:"2010-12-31 23:59:59"})", kSuccess},
              {7, R"({vi:"1000002"})", R"([{"pbi":"1000003","eta":"2010-12-31 23:59:59","pb":[]}])"}});
    EXPECT_EQ(Eid(Send(8, R"({vi:"1000002",dt:"2027-01-01 00:00:00"})")),
              static_cast<int>(ErrorCode::BookExists));
}

TEST_F(ScheduleCommandsTest, BookRowsAreReadAsTheyWereWritten) {
    MakeBook();
    Converse(
        {{9,
          R"(["1000003","0","0|Tianjin|117.75|38.9833|GC|5|0.000|5","1||-0.000|0|RL|2|18.520|3",)"
          R"("2|AIS track point|-179.999|-89.999|GC|5|18.525|4"])",
          kSuccess},
         {7, R"({vi:"1000002"})",
          R"([{"pbi":"1000003","eta":"2026-03-01 00:00:00","pb":[)"
          R"({"lon":0,"psn":"Tianjin","xc":117.75,"yc":38.9833,"psr":"GC","pli":"5","psp":"0.000","pst":"5"},)"
          R"({"lon":1,"psn":"","xc":0.0,"yc":0.0,"psr":"RL","pli":"2","psp":"18.520","pst":"3"},)"
          R"({"lon":2,"psn":"AIS track point","xc":-179.999,"yc":-89.999,"psr":"GC","pli":"5",)"
          R"("psp":"18.525","pst":"4"}]}])"}});
}

TEST_F(ScheduleCommandsTest, EmptyListOfBookRowsEmptiesTheBook) {
    MakeBook();
    Converse({{9, Block("0", 0, 2, "18.520"), kSuccess},
              {9, R"(["1000003","0"])", kSuccess},
              {7, R"({vi:"1000002"})", R"([{"pbi":"1000003","eta":"2026-03-01 00:00:00","pb":[]}])"}});
}

TEST_F(ScheduleCommandsTest, BlocksOfALongBookReplaceAndThenAppend) {
    MakeBook();
    Converse({{9, Block("0", 0, 30, "1.000"), kSuccess},
              {9, Block("0", 0, 100, "18.5"), kSuccess},
              {9, Block("1", 100, 200, "18.5"), kSuccess},
              {9, Block("1", 200, 250, "18.5"), kSuccess}});
    std::string rows;
    for (int i = 0; i < 250; ++i) {
        rows += (i > 0 ? "," : "") + StoredRow(i, "18.500");
    }
    Converse(
        {{7, R"({vi:"1000002"})", R"([{"pbi":"1000003","eta":"2026-03-01 00:00:00","pb":[)" + rows + "]}]"}});
}

TEST_F(ScheduleCommandsTest, AppendToNothingIsRefused) {
    MakeBook();
    const std::string reply = Send(9, Block("1", 100, 101, "18.5"));
    EXPECT_EQ(Eid(reply), static_cast<int>(ErrorCode::NothingToAppendTo));
    EXPECT_EQ(Emsg(reply), "the position book has no rows to append to");
    Converse({{7, R"({vi:"1000002"})", R"([{"pbi":"1000003","eta":"2026-03-01 00:00:00","pb":[]}])"}});
}

TEST_F(ScheduleCommandsTest, AppendOfARowThatIsThereIsRefusedWhole) {
    MakeBook();
    Converse({{9, Block("0", 0, 2, "18.5"), kSuccess}});
    const std::string before = Everything();
    const std::string reply = Send(9, R"(["1000003","1","2||1|2|GC|5|1.0|0","1||1|2|GC|5|1.0|0"])");
    EXPECT_EQ(Eid(reply), static_cast<int>(ErrorCode::RowExists));
    EXPECT_EQ(Emsg(reply), "a row's number is taken: 1");
    EXPECT_EQ(Everything(), before);
}

TEST_F(ScheduleCommandsTest, FiguresAreReplacedAllTogether) {
    Converse({{6, R"({vi:"1000002",vfn:"1",vff:"2",vfa:"3",vdn:"4",vda:"5",vwn:"6",vwa:"7"})", kSuccess},
              {6, R"({vi:"1000002",vfn:"0",vff:"0",vfa:"0",vdn:"0",vda:"0",vwn:"0",vwa:"2147483647"})",
               kSuccess}});
    EXPECT_NE(Send(3, R"({ui:"ann"})")
                  .find(R"("vfn":"0","vff":"0","vfa":"0","vdn":"0","vda":"0","vwn":"0","vwa":"2147483647")"),
              std::string::npos);
}

TEST_F(ScheduleCommandsTest, RouteCommandsGoToTheRouteSourceAsTheyStand) {
    const std::string plan =
        R"({"rp_id":"","orig_rp_id":"","leg":-1,"rp_group":"","pointList":"40389#40208"})";
    Converse({{1, plan, "plan " + plan},
              {2, R"({"nr_point":[1.5,2.5],"dest_port":40208})",
               R"(nearest {"nr_point":[1.5,2.5],"dest_port":40208})"}});
}

}  // namespace
}  // namespace Tarvik::Server
