// SPDX-License-Identifier: MIT
#include <utility>

#include <tarvik/interface/ServerRequest.h>

#include "host/server/api/tests/ServiceFixture.h"

namespace Tarvik::Server {

namespace {

/// A request, in which C, V, B, c, v, b stand for the ids of a world in their order, and its error.
struct Case {
    int command;
    const char* text;
    ErrorCode code;
    const char* detail;  ///< behind the error's own text; empty for none
};

using E = ErrorCode;

const Case kUnreadable[] = {
    {3, "", E::BadJson, "unexpected end of text at byte 0"},
    {3, "  ", E::BadJson, nullptr},
    {3, R"({ui:"ann")", E::BadJson, nullptr},
    {3, R"({ui:"ann"} x)", E::BadJson, nullptr},
    {3, R"(["ann"])", E::BadJson, "an object is expected"},
    {3, R"("ann")", E::BadJson, "an object is expected"},
    {4, R"({ci:"",cn:"a "quoted" name",type:0})", E::BadJson, nullptr},
    {4, R"({ci:"",cn:"ends in \",type:0})", E::BadJson, nullptr},
    {4, R"({ci:"",cn:"bad \x escape",type:0})", E::BadJson, nullptr},
    {4, "{ci:\"\",cn:\"\xFF\",type:0}", E::BadJson, nullptr},
    {9, R"({psb:"@B"})", E::BadJson, "an array is expected"},
    {11, R"({vi:"@V"})", E::BadJson, "an array is expected"},
    {11, R"(["@V","0|1|A|L|1.000|0.000|0.0",])", E::BadJson, nullptr},
    {kRemark, R"({optype:"1",type:"3",objectid:"@V",seq:"9",subject:"s",body:"say "x""})", E::BadJson,
     nullptr},
};

const Case kMissing[] = {
    {3, "{}", E::MissingValue, "ui"},
    {3, "{ui:5}", E::MissingValue, "ui"},
    {3, "{ui:null}", E::MissingValue, "ui"},
    {4, R"({cn:"x",type:0})", E::MissingValue, "ci"},
    {4, R"({ci:"",type:0})", E::MissingValue, "cn"},
    {4, R"({ci:"@C"})", E::MissingValue, "type"},
    {4, R"({ci:"@C",type:"4"})", E::MissingValue, "cn"},
    {5, R"({type:"1",vn:"x"})", E::MissingValue, "vi"},
    {5, R"({vi:"@V",type:"1"})", E::MissingValue, "vn"},
    {5, R"({vi:"@V"})", E::MissingValue, "type"},
    {5, R"({vi:"",vn:"x",type:"0",vsi:"",vr:"0",va:"0"})", E::MissingValue, "ci"},
    {5, R"({ci:"@C",vi:"",vn:"x",type:"0",vr:"0",va:"0"})", E::MissingValue, "vsi"},
    {5, R"({ci:"@C",vi:"",vn:"x",type:"0",vsi:"",va:"0"})", E::MissingValue, "vr"},
    {5, R"({vi:"@V",type:"5",vsi:"1",vsn:"n"})", E::MissingValue, "vsmsi"},
    {5, R"({vi:"@V",type:"6"})", E::MissingValue, "vr"},
    {5, R"({vi:"@V",type:"7"})", E::MissingValue, "va"},
    {6, R"({vi:"@V",vfn:"1",vff:"2",vfa:"3",vdn:"4",vda:"5",vwn:"6"})", E::MissingValue, "vwa"},
    {6, R"({vi:"@V",vfn:1,vff:"2",vfa:"3",vdn:"4",vda:"5",vwn:"6",vwa:"7"})", E::MissingValue, "vfn"},
    {7, "{}", E::MissingValue, "vi"},
    {8, R"({vi:"@V"})", E::MissingValue, "dt"},
    {8, R"({dt:"2026-03-01 00:00:00"})", E::MissingValue, "vi"},
    {9, "[]", E::MissingValue, "item 0"},
    {9, R"(["@B"])", E::MissingValue, "item 1"},
    {9, R"(["@B",0])", E::MissingValue, "item 1"},
    {9, R"(["@B","0","0||1|2|GC|5|1.0|0",7])", E::MissingValue, "item 3"},
    {10, "{}", E::MissingValue, "vi"},
    {11, "[]", E::MissingValue, "item 0"},
    {11, R"(["@V"])", E::NoRows, ""},
    {12, "{}", E::MissingValue, "vi"},
    {13, R"({vi:"@V"})", E::MissingValue, "time"},
    {13, R"({time:"2026-03-01 00:00:00"})", E::MissingValue, "vi"},
    {14, R"({psb:"@B"})", E::MissingValue, "dt"},
    {14, R"({dt:"2026-03-01 00:00:00"})", E::MissingValue, "psb"},
    {kRemark, R"({type:"3",objectid:"@V"})", E::MissingValue, "optype"},
    {kRemark, R"({optype:"4",objectid:"@V"})", E::MissingValue, "type"},
    {kRemark, R"({optype:"4",type:"3"})", E::MissingValue, "objectid"},
    {kRemark, R"({optype:"1",type:"3",objectid:"@V",subject:"s",body:"b"})", E::MissingValue, "seq"},
    {kRemark, R"({optype:"1",type:"3",objectid:"@V",seq:"2",body:"b"})", E::MissingValue, "subject"},
    {kRemark, R"({optype:"3",type:"3",objectid:"@V",seq:"1",subject:"s"})", E::MissingValue, "body"},
    {kRemark, R"({optype:"2",type:"3",objectid:"@V"})", E::MissingValue, "seq"},
};

const Case kUnknown[] = {
    {0, "{}", E::UnknownCommand, ""},
    {0xFFFF, "{}", E::UnknownCommand, ""},
    {4, R"({ci:"@C",type:"5"})", E::UnknownOperation, "type"},
    {4, R"({ci:"@C",type:"-1"})", E::UnknownOperation, "type"},
    {4, R"({ci:"@C",type:"one"})", E::UnknownOperation, "type"},
    {5, R"({vi:"@V",type:"8"})", E::UnknownOperation, "type"},
    {9, R"(["@B","2"])", E::UnknownOperation, "item 1"},
    {9, R"(["@B",""])", E::UnknownOperation, "item 1"},
    {kRemark, R"({optype:"0",type:"3",objectid:"@V"})", E::UnknownOperation, "optype"},
    {kRemark, R"({optype:"5",type:"3",objectid:"@V"})", E::UnknownOperation, "optype"},
    {3, R"({ui:"bob"})", E::OtherUser, ""},
    {3, R"({ui:""})", E::OtherUser, ""},
    {4, R"({ci:"999",type:"1"})", E::UnknownCategory, ""},
    {4, R"({ci:"",type:"1"})", E::UnknownCategory, ""},
    {4, R"({ci:"@V",cn:"x",type:"4"})", E::UnknownCategory, ""},
    {4, R"({ci:"@C",cn:"x",type:0})", E::UnknownCategory, "a new category has no id yet"},
    {5, R"({vi:"@V",ci:"@C",vn:"x",type:"0",vsi:"",vr:"0",va:"0"})", E::UnknownVoyage,
     "a new voyage has no id yet"},
    {5, R"({ci:"",vi:"",vn:"x",type:"0",vsi:"",vr:"0",va:"0"})", E::UnknownCategory, ""},
    {5, R"({ci:"@V",vi:"",vn:"x",type:"0",vsi:"",vr:"0",va:"0"})", E::UnknownCategory, ""},
    {5, R"({vi:"@C",vn:"x",type:"1"})", E::UnknownVoyage, ""},
    {5, R"({vi:"",type:"2"})", E::UnknownVoyage, ""},
    {5, R"({vi:"@V ",type:"2"})", E::UnknownVoyage, ""},
    {6, R"({vi:"9",vfn:"1",vff:"2",vfa:"3",vdn:"4",vda:"5",vwn:"6",vwa:"7"})", E::UnknownVoyage, ""},
    {7, R"({vi:"@B"})", E::UnknownVoyage, ""},
    {8, R"({vi:"@B",dt:"2026-03-01 00:00:00"})", E::UnknownVoyage, ""},
    {9, R"(["@V","0"])", E::UnknownBook, ""},
    {10, R"({vi:""})", E::UnknownVoyage, ""},
    {11, R"(["@B","0|1|A|L|1.000|0.000|0.0","1|2|B|D|1.000|0.000|0.0"])", E::UnknownVoyage, ""},
    {12, R"({vi:"1"})", E::UnknownVoyage, ""},
    {13, R"({vi:"1",time:"2026-03-01 00:00:00"})", E::UnknownVoyage, ""},
    {14, R"({psb:"@V",dt:"2026-03-01 00:00:00"})", E::UnknownBook, ""},
    {kRemark, R"({optype:"4",type:"2",objectid:"@V"})", E::UnknownObject, ""},
    {kRemark, R"({optype:"4",type:"3",objectid:"@C"})", E::UnknownObject, ""},
    {kRemark, R"({optype:"4",type:"4",objectid:"@V"})", E::UnknownObject, ""},
    {kRemark, R"({optype:"4",type:"4",objectid:"Ulsan"})", E::UnknownObject, ""},
    {kRemark, R"({optype:"4",type:"4",objectid:""})", E::UnknownObject, ""},
    {kRemark, R"({optype:"2",type:"3",objectid:"@V",seq:"2"})", E::UnknownRemark, ""},
    {kRemark, R"({optype:"3",type:"3",objectid:"@V",seq:"2",subject:"",body:""})", E::UnknownRemark, ""},
};

const Case kWrongState[] = {
    {4, R"({ci:"@C",type:"2"})", E::NotInBin, ""},
    {4, R"({ci:"@C",type:"3"})", E::NotInBin, ""},
    {4, R"({ci:"@c",type:"1"})", E::NotInUse, ""},
    {5, R"({vi:"@V",type:"3"})", E::NotInBin, ""},
    {5, R"({vi:"@V",type:"4"})", E::NotInBin, ""},
    {5, R"({vi:"@v",type:"2"})", E::NotInUse, ""},
    {5, R"({ci:"@c",vi:"",vn:"x",type:"0",vsi:"",vr:"0",va:"0"})", E::CategoryNotInUse, ""},
    {8, R"({vi:"@V",dt:"2026-03-01 00:00:00"})", E::BookExists, ""},
    {9, R"(["@b","1","0||1|2|GC|5|1.0|0"])", E::NothingToAppendTo, ""},
    {9, R"(["@B","1","2||1|2|GC|5|1.0|0","1||1|2|GC|5|1.0|0"])", E::RowExists, "1"},
    {9, R"(["@B","0","3||1|2|GC|5|1.0|0","3||1|2|GC|5|1.0|0"])", E::RowExists, "3"},
    {11, R"(["@V","0|1|A|L|1.000|0.000|0.0","0|2|B|D|1.000|0.000|0.0"])", E::RowExists, "0"},
    {kRemark, R"({optype:"1",type:"3",objectid:"@V",seq:"1",subject:"x",body:"x"})", E::RemarkExists, ""},
};

const Case kBadValues[] = {
    {4, R"({ci:"",cn:"",type:0})", E::EmptyName, "cn"},
    {4, R"({ci:"@C",cn:"",type:"4"})", E::EmptyName, "cn"},
    {5, R"({ci:"@C",vi:"",vn:"",type:"0",vsi:"",vr:"0",va:"0"})", E::EmptyName, "vn"},
    {5, R"({vi:"@V",vn:"",type:"1"})", E::EmptyName, "vn"},
    {5, R"({vi:"@V",type:"5",vsi:"",vsn:"",vsmsi:"1"})", E::EmptyName, "vsn"},
    {4, R"({ci:"",cn:"a\u0000b",type:0})", E::BadText, "cn"},
    {5, R"({vi:"@V",type:"5",vsi:"1",vsn:"n",vsmsi:"-1"})", E::BadNumber, "vsmsi"},
    {5, R"({vi:"@V",type:"5",vsi:"1",vsn:"n",vsmsi:"2147483648"})", E::BadNumber, "vsmsi"},
    {5, R"({vi:"@V",type:"5",vsi:"1",vsn:"n",vsmsi:""})", E::BadNumber, "vsmsi"},
    {5, R"({vi:"@V",type:"6",vr:"2"})", E::BadNumber, "vr"},
    {5, R"({vi:"@V",type:"7",va:"yes"})", E::BadNumber, "va"},
    {5, R"({ci:"@C",vi:"",vn:"x",type:"0",vsi:"",vr:"",va:"0"})", E::BadNumber, "vr"},
    {6, R"({vi:"@V",vfn:"1",vff:"2",vfa:"3",vdn:"-4",vda:"5",vwn:"6",vwa:"7"})", E::BadNumber, "vdn"},
    {6, R"({vi:"@V",vfn:"1",vff:"2",vfa:"3",vdn:"4",vda:"5 ",vwn:"6",vwa:"7"})", E::BadNumber, "vda"},
    {6, R"({vi:"@V",vfn:"1.5",vff:"2",vfa:"3",vdn:"4",vda:"5",vwn:"6",vwa:"7"})", E::BadNumber, "vfn"},
    {8, R"({vi:"@v",dt:""})", E::BadTime, "dt"},
    {8, R"({vi:"@v",dt:"2026-03-01"})", E::BadTime, "dt"},
    {13, R"({vi:"@V",time:"2026-02-30 00:00:00"})", E::BadTime, "time"},
    {13, R"({vi:"@V",time:"2026-03-01T00:00:00"})", E::BadTime, "time"},
    {13, R"({vi:"@V",time:"2026-03-01 24:00:00"})", E::BadTime, "time"},
    {14, R"({psb:"@B",dt:"2026-13-01 00:00:00"})", E::BadTime, "dt"},
    {kRemark, R"({optype:"4",type:"1",objectid:"@V"})", E::BadNumber, "type"},
    {kRemark, R"({optype:"4",type:"5",objectid:"@V"})", E::BadNumber, "type"},
    {kRemark, R"({optype:"2",type:"3",objectid:"@V",seq:"0"})", E::BadNumber, "seq"},
    {kRemark, R"({optype:"1",type:"3",objectid:"@V",seq:"1e3",subject:"",body:""})", E::BadNumber, "seq"},
};

const Case kBadPortCalls[] = {
    {11, R"(["@V","0|1|A|L|1.000|0.000"])", E::BadRow, "0|1|A|L|1.000|0.000"},
    {11, R"(["@V","0|1|A|B|L|1.000|0.000|0.0"])", E::BadRow, "0|1|A|B|L|1.000|0.000|0.0"},
    {11, R"(["@V",""])", E::BadRow, ""},
    {11, R"(["@V","0|||L|1.000|0.000|0.0"])", E::BadRow, "0|||L|1.000|0.000|0.0"},
    {11, R"(["@V","0|1||L|1.000|0.000|0.0"])", E::BadRow, "0|1||L|1.000|0.000|0.0"},
    {11, R"(["@V","0||A|L|1.000|0.000|0.0"])", E::UnknownPort, "0||A|L|1.000|0.000|0.0"},
    {11, R"(["@V","0|1|A||1.000|0.000|0.0"])", E::BadPurpose, "0|1|A||1.000|0.000|0.0"},
    {11, R"(["@V","0|1|A| |1.000|0.000|0.0"])", E::BadPurpose, "0|1|A| |1.000|0.000|0.0"},
    {11, R"(["@V","x|1|A|L|1.000|0.000|0.0"])", E::BadNumber, "x|1|A|L|1.000|0.000|0.0"},
    {11, R"(["@V","-1|1|A|L|1.000|0.000|0.0"])", E::BadNumber, nullptr},
    {11, R"(["@V","0|1|A|Q|1.000|0.000|0.0"])", E::BadPurpose, "0|1|A|Q|1.000|0.000|0.0"},
    {11, R"(["@V","0|1|A|LL|1.000|0.000|0.0"])", E::BadPurpose, nullptr},
    {11, R"(["@V","0|1|A|L|inf|0.000|0.0"])", E::BadNumber, nullptr},
    {11, R"(["@V","0|1|A|L|nan|0.000|0.0"])", E::BadNumber, nullptr},
    {11, R"(["@V","0|1|A|L|-1.000|0.000|0.0"])", E::BadNumber, nullptr},
    {11, R"(["@V","0|1|A|L|1,000|0.000|0.0"])", E::BadNumber, nullptr},
    {11, R"(["@V","0|1|A|L|1.000|1.001|0.0"])", E::BadNumber, nullptr},
    {11, R"(["@V","0|1|A|L|1.000|1.000|0.0"])", E::BadNumber, "0|1|A|L|1.000|1.000|0.0"},
    {11, R"(["@V","0|1|A|L|1.000|0.9995|0.0"])", E::BadNumber, nullptr},
    {11, R"(["@V","0|1|A|L|1.000|0.000|-0.1"])", E::BadNumber, nullptr},
    {11, R"(["@V","0|1|A|L|1.000|0.000|0.0","1|2|B|D|1.000|0.000|x"])", E::BadNumber,
     "1|2|B|D|1.000|0.000|x"},
};

const Case kBadBookRows[] = {
    {9, R"(["@B","0","0||1|2|GC|5|1.0"])", E::BadRow, "0||1|2|GC|5|1.0"},
    {9, R"(["@B","0","0||1|2|GC|5|1.0|0|"])", E::BadRow, nullptr},
    {9, R"(["@B","0","0|||2|GC|5|1.0|0"])", E::BadNumber, nullptr},
    {9, R"(["@B","0","0||361|2|GC|5|1.0|0"])", E::BadNumber, nullptr},
    {9, R"(["@B","0","0||1|90.001|GC|5|1.0|0"])", E::BadNumber, nullptr},
    {9, R"(["@B","0","0||1|2N|GC|5|1.0|0"])", E::BadNumber, nullptr},
    {9, R"(["@B","0","0||1|2|GC|-1|1.0|0"])", E::BadNumber, nullptr},
    {9, R"(["@B","0","0||1|2|GC|5|-1.0|0"])", E::BadNumber, nullptr},
    {9, R"(["@B","0","0||1|2|GC|5|1e9999|0"])", E::BadNumber, nullptr},
    {9, R"(["@B","0","0||1|2|GC|5|1.0|x"])", E::BadNumber, nullptr},
    {9, R"(["@B","0","0||1|2|GC|5|1.0|0","1||1|2|GC|5|1.0|"])", E::BadNumber, "1||1|2|GC|5|1.0|"},
};

class RefusalTest : public ServiceTest {
  protected:
    /// The text with the ids of the world in their places.
    std::string Fill(std::string text) const {
        const std::pair<const char*, std::string> ids[] = {
            {"@C", world_.category},       {"@V", world_.voyage},       {"@B", world_.book},
            {"@c", world_.binnedCategory}, {"@v", world_.binnedVoyage}, {"@b", world_.emptyBook}};
        for (const auto& [place, id] : ids) {
            const std::size_t at = text.find(place);
            if (at != std::string::npos) {
                text.replace(at, 2, id);
            }
            const std::size_t again = text.find(place);
            if (again != std::string::npos) {
                text.replace(again, 2, id);
            }
        }
        return text;
    }
    template <std::size_t count>
    void ExpectRefusals(const Case (&cases)[count]) {
        const std::string before = Everything();
        for (const Case& one : cases) {
            const std::string text = Fill(one.text);
            const std::string reply = Send(one.command, text);
            EXPECT_EQ(Eid(reply), static_cast<int>(one.code)) << text << "\n" << reply;
            std::string expected(TextOf(one.code));
            if (one.detail == nullptr) {
                EXPECT_EQ(Emsg(reply).rfind(expected + ": ", 0), 0U) << reply;
            } else {
                if (*one.detail != '\0') {
                    expected.append(": ").append(one.detail);
                }
                EXPECT_EQ(Emsg(reply), expected) << text;
            }
            ASSERT_EQ(Everything(), before) << text;
        }
    }

    World world_ = MakeWorld();
};

TEST_F(RefusalTest, TextThatDoesNotParse) {
    ExpectRefusals(kUnreadable);
}
TEST_F(RefusalTest, MissingValues) {
    ExpectRefusals(kMissing);
}
TEST_F(RefusalTest, UnknownCommandsOperationsAndIds) {
    ExpectRefusals(kUnknown);
}
TEST_F(RefusalTest, ChangesThatTheStateDoesNotAllow) {
    ExpectRefusals(kWrongState);
}
TEST_F(RefusalTest, EmptyNamesBadNumbersAndBadTimes) {
    ExpectRefusals(kBadValues);
}
TEST_F(RefusalTest, BadPortCallRowsKeepTheOldOnes) {
    ExpectRefusals(kBadPortCalls);
}
TEST_F(RefusalTest, WeatherThatLetsTheShipMoveIsTaken) {
    for (const char* factor : {"0", "0.999", "0.9994"}) {
        EXPECT_EQ(Eid(Send(11, Fill(R"(["@V","0|1|A|L|1.000|)") + factor + "|0.0\"]")), 0) << factor;
    }
}

TEST_F(RefusalTest, BadBookRowsKeepTheOldOnes) {
    ExpectRefusals(kBadBookRows);
}

TEST_F(RefusalTest, DestroyedRecordsAreUnknownToEveryCommand) {
    const std::string success = R"({"eid":0})";
    Converse({{5, Fill(R"({vi:"@v",type:"4"})"), success}, {4, Fill(R"({ci:"@c",type:"3"})"), success}});
    const Case cases[] = {
        {4, R"({ci:"@c",type:"2"})", E::UnknownCategory, ""},
        {4, R"({ci:"@c",cn:"x",type:"4"})", E::UnknownCategory, ""},
        {5, R"({vi:"@v",type:"3"})", E::UnknownVoyage, ""},
        {5, R"({vi:"@v",vn:"x",type:"1"})", E::UnknownVoyage, ""},
        {5, R"({ci:"@c",vi:"",vn:"x",type:"0",vsi:"",vr:"0",va:"0"})", E::UnknownCategory, ""},
        {7, R"({vi:"@v"})", E::UnknownVoyage, ""},
        {14, R"({psb:"@b",dt:"2026-03-01 00:00:00"})", E::UnknownBook, ""},
        {kRemark, R"({optype:"4",type:"2",objectid:"@c"})", E::UnknownObject, ""},
        {kRemark, R"({optype:"4",type:"4",objectid:"@vUlsan"})", E::UnknownObject, ""},
    };
    ExpectRefusals(cases);
}

TEST_F(RefusalTest, MoreRowsThanABookHolds) {
    std::string rows = "[\"" + world_.book + "\",\"0\"";
    // The book's id and the block's kind count as rows of the request.
    for (std::size_t i = 0; i < kMostRows - 2; ++i) {
        rows += ",\"" + std::to_string(i) + "||1|2|GC|5|1|0\"";
    }
    ASSERT_EQ(Eid(Send(9, rows + "]")), 0);
    std::string more = "[\"" + world_.book + "\",\"1\"";
    for (std::size_t i = kMostRows - 2; i <= kMostRows; ++i) {
        more += ",\"" + std::to_string(i) + "||1|2|GC|5|1|0\"";
    }
    EXPECT_EQ(Eid(Send(9, more + "]")), static_cast<int>(E::TooManyRows));
}

TEST_F(RefusalTest, ReplyThatNoEnvelopeHolds) {
    const std::string body(65536, 'b');
    for (int seq = 2; seq < 260; ++seq) {
        const std::string text = "{optype:\"1\",type:\"3\",objectid:\"" + world_.voyage + "\",seq:\"" +
                                 std::to_string(seq) + "\",subject:\"\",body:\"" + body + "\"}";
        ASSERT_EQ(Eid(Send(kRemark, text)), 0);
    }
    const std::string list = "{optype:\"4\",type:\"3\",objectid:\"" + world_.voyage + "\"}";
    EXPECT_EQ(Send(kRemark, list), R"({"eid":16,"emsg":"the reply would be too long"})");
}

TEST_F(RefusalTest, UnknownModuleWordsAreRefused) {
    EchoRoutes routes;
    std::string error;
    const auto storage = SqliteStorage::Open(":memory:", error);
    VoyageService service(*storage, routes);
    for (const int word : {0, 2, 4, 6, 0x1003, 0x2002, 0xFFFF}) {
        const auto module = static_cast<std::uint16_t>(word);
        EXPECT_EQ(Eid(service.Handle("ann", module, 3, R"({ui:"ann"})")),
                  static_cast<int>(E::UnknownCommand));
    }
    EXPECT_EQ(Eid(service.Handle("ann", Interface::kRemarkModuleWord, 3, R"({ui:"ann"})")),
              static_cast<int>(E::UnknownCommand));
    EXPECT_EQ(Eid(service.Handle("", Interface::kVoyageModuleWord, 3, R"({ui:""})")),
              static_cast<int>(E::NoUser));
}

}  // namespace
}  // namespace Tarvik::Server
