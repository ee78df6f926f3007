// SPDX-License-Identifier: MIT
#include "host/server/api/tests/ServiceFixture.h"

namespace Tarvik::Server {

namespace {

const std::string kSuccess = R"({"eid":0})";

using RemarkCommandsTest = ServiceTest;

TEST_F(RemarkCommandsTest, ObjectWithoutRemarksGetsAnEmptyArray) {
    const World world = MakeWorld();
    Converse({{kRemark, R"({optype:"4",type:"2",objectid:")" + world.category + R"("})", "[]"},
              {kRemark, R"({optype:"4",type:"4",objectid:")" + world.voyage + R"(Ulsan"})", "[]"}});
}

TEST_F(RemarkCommandsTest, RemarksOfEveryKindOfObjectAreKeptApart) {
    const World world = MakeWorld();
    const std::string objects[] = {R"(type:"2",objectid:")" + world.category + '"',
                                   R"(type:"4",objectid:")" + world.voyage + R"(Ulsan")",
                                   R"(type:"4",objectid:")" + world.voyage + R"(上海")"};
    for (const std::string& object : objects) {
        Converse(
            {{kRemark,
              "{optype:\"1\"," + object + R"(,seq:"1",subject:")" + object.substr(6, 1) + R"(",body:""})",
              kSuccess},
             {kRemark, "{optype:\"4\"," + object + "}",
              R"([{"seq":"1","cdate":"1772323200","sub":")" + object.substr(6, 1) +
                  R"(","body":"","udate":"1772323200"}])"}});
    }
}

TEST_F(RemarkCommandsTest, ChangeKeepsTheTimeOfCreation) {
    const World world = MakeWorld();
    const std::string object = R"(type:"2",objectid:")" + world.category + '"';
    Converse({{kRemark, "{optype:\"1\"," + object + R"(,seq:"2",subject:"two",body:"b2"})", kSuccess},
              {kRemark, "{optype:\"1\"," + object + R"(,seq:"1",subject:"one",body:"b1"})", kSuccess}});
    now_ += 60;
    Converse({{kRemark, "{optype:\"3\"," + object + R"(,seq:"2",subject:"TWO",body:"B2"})", kSuccess},
              {kRemark, "{optype:\"4\"," + object + "}",
               R"([{"seq":"1","cdate":"1772323200","sub":"one","body":"b1","udate":"1772323200"},)"
               R"({"seq":"2","cdate":"1772323200","sub":"TWO","body":"B2","udate":"1772323260"}])"},
              {kRemark, "{optype:\"2\"," + object + R"(,seq:"1"})", kSuccess},
              {kRemark, "{optype:\"4\"," + object + "}",
               R"([{"seq":"2","cdate":"1772323200","sub":"TWO","body":"B2","udate":"1772323260"}])"}});
}

TEST_F(RemarkCommandsTest, LineBreakGoesInRawAndComesBackEscaped) {
    const World world = MakeWorld();
    const std::string object = R"(type:"2",objectid:")" + world.category + '"';
    Converse(
        {{kRemark, "{optype:\"1\"," + object + ",seq:\"1\",subject:\"a\tb\",body:\"one\r\ntwo\"}", kSuccess},
         {kRemark, "{optype:\"4\"," + object + "}",
          R"([{"seq":"1","cdate":"1772323200","sub":"a\tb","body":"one\r\ntwo","udate":"1772323200"}])"}});
}

TEST_F(RemarkCommandsTest, RemarkCommandAndBookRowsAreToldApartByTheModuleWord) {
    const World world = MakeWorld();
    const std::string list = R"({optype:"4",type:"2",objectid:")" + world.category + R"("})";
    EXPECT_EQ(Send(kRemark, list), "[]");
    EXPECT_EQ(Eid(Send(9, list)), static_cast<int>(ErrorCode::BadJson));
}

}  // namespace
}  // namespace Tarvik::Server
