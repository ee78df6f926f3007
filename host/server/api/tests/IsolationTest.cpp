// SPDX-License-Identifier: MIT
#include "host/server/api/tests/ServiceFixture.h"

namespace Tarvik::Server {

namespace {

/// Every command that names a record, with ids of somebody else.
std::vector<Step> ForeignRequests(const World& w) {
    const std::string noCategory = R"({"eid":30,"emsg":"there is no such category"})";
    const std::string noVoyage = R"({"eid":31,"emsg":"there is no such voyage"})";
    const std::string noBook = R"({"eid":32,"emsg":"there is no such position book"})";
    const std::string noObject = R"({"eid":34,"emsg":"there is no such object"})";
    std::vector<Step> steps = {
        {4, R"({ci:")" + w.category + R"(",type:"1"})", noCategory},
        {4, R"({ci:")" + w.binnedCategory + R"(",type:"2"})", noCategory},
        {4, R"({ci:")" + w.binnedCategory + R"(",type:"3"})", noCategory},
        {4, R"({ci:")" + w.category + R"(",cn:"mine",type:"4"})", noCategory},
        {5, R"({ci:")" + w.category + R"(",vi:"",vn:"x",type:"0",vsi:"",vr:"0",va:"0"})", noCategory},
        {5, R"({vi:")" + w.voyage + R"(",vn:"mine",type:"1"})", noVoyage},
        {5, R"({vi:")" + w.voyage + R"(",type:"2"})", noVoyage},
        {5, R"({vi:")" + w.binnedVoyage + R"(",type:"3"})", noVoyage},
        {5, R"({vi:")" + w.binnedVoyage + R"(",type:"4"})", noVoyage},
        {5, R"({vi:")" + w.voyage + R"(",type:"5",vsi:"1",vsn:"mine",vsmsi:"1"})", noVoyage},
        {5, R"({vi:")" + w.voyage + R"(",type:"6",vr:"1"})", noVoyage},
        {5, R"({vi:")" + w.voyage + R"(",type:"7",va:"1"})", noVoyage},
        {6, R"({vi:")" + w.voyage + R"(",vfn:"1",vff:"2",vfa:"3",vdn:"4",vda:"5",vwn:"6",vwa:"7"})",
         noVoyage},
        {7, R"({vi:")" + w.voyage + R"("})", noVoyage},
        {8, R"({vi:")" + w.voyage + R"(",dt:"2026-03-01 00:00:00"})", noVoyage},
        {9, R"([")" + w.book + R"(","0"])", noBook},
        {9, R"([")" + w.book + R"(","0","0||1|2|GC|5|1.0|0"])", noBook},
        {9, R"([")" + w.book + R"(","1","9||1|2|GC|5|1.0|0"])", noBook},
        {10, R"({vi:")" + w.voyage + R"("})", noVoyage},
        {11, R"([")" + w.voyage + R"(","0|1|A|L|1.000|0.000|0.0","1|2|B|D|1.000|0.000|0.0"])", noVoyage},
        {12, R"({vi:")" + w.voyage + R"("})", noVoyage},
        {13, R"({vi:")" + w.voyage + R"(",time:"2026-03-05 00:00:00"})", noVoyage},
        {14, R"({psb:")" + w.book + R"(",dt:"2026-03-05 00:00:00"})", noBook},
    };
    const std::string objects[] = {R"(type:"2",objectid:")" + w.category + '"',
                                   R"(type:"3",objectid:")" + w.voyage + '"',
                                   R"(type:"4",objectid:")" + w.voyage + R"(Ulsan")"};
    for (const std::string& object : objects) {
        steps.push_back(
            {kRemark, "{optype:\"1\"," + object + R"(,seq:"7",subject:"mine",body:""})", noObject});
        steps.push_back({kRemark, "{optype:\"2\"," + object + R"(,seq:"1"})", noObject});
        steps.push_back(
            {kRemark, "{optype:\"3\"," + object + R"(,seq:"1",subject:"mine",body:""})", noObject});
        steps.push_back({kRemark, "{optype:\"4\"," + object + "}", noObject});
    }
    return steps;
}

using IsolationTest = ServiceTest;

TEST_F(IsolationTest, NoCommandReachesWhatIsAnotherUsers) {
    const World anns = MakeWorld("ann");
    MakeWorld("bob");
    const std::string annsBefore = Everything("ann");
    const std::string bobsBefore = Everything("bob");
    for (const Step& step : ForeignRequests(anns)) {
        Converse({step}, "bob");
        ASSERT_EQ(Everything("ann"), annsBefore) << step.text;
        ASSERT_EQ(Everything("bob"), bobsBefore) << step.text;
    }
}

TEST_F(IsolationTest, ForeignIdIsAnsweredLikeOneThatNeverWas) {
    const World anns = MakeWorld("ann");
    World nobodys;
    nobodys.category = nobodys.binnedCategory = "5000001";
    nobodys.voyage = nobodys.binnedVoyage = "5000002";
    nobodys.book = "5000003";
    const auto foreign = ForeignRequests(anns);
    const auto unknown = ForeignRequests(nobodys);
    for (std::size_t i = 0; i < foreign.size(); ++i) {
        EXPECT_EQ(Send(foreign[i].command, foreign[i].text, "bob"),
                  Send(unknown[i].command, unknown[i].text, "bob"));
    }
}

TEST_F(IsolationTest, LoadNamesItsOwnUserOnly) {
    MakeWorld("ann");
    EXPECT_EQ(Send(3, R"({ui:"ann"})", "bob"), R"({"eid":20,"emsg":"the request names another user"})");
    EXPECT_EQ(Send(3, R"({ui:"bob"})", "bob"), "[]");
    EXPECT_EQ(Send(3, R"({ui:"ANN"})", "ann"), R"({"eid":20,"emsg":"the request names another user"})");
}

TEST_F(IsolationTest, UsersWhoseNamesAreAlikeAreDifferentUsers) {
    const std::string users[] = {"ann", "Ann", "ann ", "an", "ann' OR '1'='1", "ann%", "\xEF\xBD\x81nn"};
    for (const std::string& user : users) {
        MakeWorld(user);
    }
    for (const std::string& user : users) {
        const std::string load = Send(3, "{ui:\"" + user + "\"}", user);
        EXPECT_EQ(load.find("\"ci\"", load.find("\"Old\"")), std::string::npos) << load;
        EXPECT_NE(load.find("\"Atlantic\""), std::string::npos);
    }
}

}  // namespace
}  // namespace Tarvik::Server
