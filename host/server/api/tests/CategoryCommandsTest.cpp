// SPDX-License-Identifier: MIT
#include "host/server/api/tests/ServiceFixture.h"

namespace Tarvik::Server {

namespace {

const std::string kSuccess = R"({"eid":0})";

using CategoryCommandsTest = ServiceTest;

TEST_F(CategoryCommandsTest, UserWithoutDataGetsAnEmptyArray) {
    Converse({{3, R"({ui:"ann"})", "[]"}});
}

TEST_F(CategoryCommandsTest, CreateAnswersWithTheNewId) {
    Converse({{4, R"({ci:"",cn:"Atlantic",type:0})", R"({"eid":0,"ci":"1000001"})"},
              {4, R"({ci:"",cn:"Pacific",type:0})", R"({"eid":0,"ci":"1000002"})"},
              {3, R"({ui:"ann"})",
               R"([{"ci":"1000001","cn":"Atlantic","crk":"0","cd":"0","voys":[]},)"
               R"({"ci":"1000002","cn":"Pacific","crk":"0","cd":"0","voys":[]}])"}});
}

TEST_F(CategoryCommandsTest, TypeOfACreationMayBeQuotedToo) {
    Converse({{4, R"({ci:"",cn:"Atlantic",type:"0"})", R"({"eid":0,"ci":"1000001"})"}});
}

TEST_F(CategoryCommandsTest, StrictJsonIsReadLikeTheLooserForm) {
    Converse({{4, R"({"ci":"","cn":"Atlantic","type":0})", R"({"eid":0,"ci":"1000001"})"},
              {3, R"({"ui":"ann"})", R"([{"ci":"1000001","cn":"Atlantic","crk":"0","cd":"0","voys":[]}])"}});
}

TEST_F(CategoryCommandsTest, RenameChangesTheName) {
    Converse({{4, R"({ci:"",cn:"Atlantic",type:0})", R"({"eid":0,"ci":"1000001"})"},
              {4, R"({ci:"1000001",cn:"大西洋",type:"4"})", kSuccess},
              {3, R"({ui:"ann"})", R"([{"ci":"1000001","cn":"大西洋","crk":"0","cd":"0","voys":[]}])"}});
}

TEST_F(CategoryCommandsTest, CategoryGoesToTheBinAndBackAndIsDestroyedFromTheBin) {
    Converse({{4, R"({ci:"",cn:"A",type:0})", R"({"eid":0,"ci":"1000001"})"},
              {4, R"({ci:"1000001",type:"1"})", kSuccess},
              {3, R"({ui:"ann"})", R"([{"ci":"1000001","cn":"A","crk":"0","cd":"1","voys":[]}])"},
              {4, R"({ci:"1000001",type:"2"})", kSuccess},
              {3, R"({ui:"ann"})", R"([{"ci":"1000001","cn":"A","crk":"0","cd":"0","voys":[]}])"},
              {4, R"({ci:"1000001",type:"1"})", kSuccess},
              {4, R"({ci:"1000001",type:"3"})", kSuccess},
              {3, R"({ui:"ann"})", "[]"}});
}

TEST_F(CategoryCommandsTest, BinKeepsTheStatesOfTheVoyages) {
    const World world = MakeWorld();
    const std::string before = Send(3, R"({ui:"ann"})");
    Converse({{4, R"({ci:")" + world.category + R"(",type:"1"})", kSuccess},
              {4, R"({ci:")" + world.category + R"(",type:"2"})", kSuccess},
              {3, R"({ui:"ann"})", before}});
    EXPECT_NE(before.find(R"("vd":"1")"), std::string::npos);
}

TEST_F(CategoryCommandsTest, RemarkMarksItsCategory) {
    Converse({{4, R"({ci:"",cn:"A",type:0})", R"({"eid":0,"ci":"1000001"})"},
              {kRemark, R"({optype:"1",type:"2",objectid:"1000001",seq:"1",subject:"",body:""})", kSuccess},
              {3, R"({ui:"ann"})", R"([{"ci":"1000001","cn":"A","crk":"1","cd":"0","voys":[]}])"}});
}

}  // namespace
}  // namespace Tarvik::Server
