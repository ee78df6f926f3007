// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/protocol/RemarkMessages.h"
#include "testsupport/RecordingHost.h"

namespace Tarvik::Seaplan {

namespace {

class RemarkReplyTest : public testing::Test {
  protected:
    static std::vector<CRemark> Read(const std::string& json) {
        Util::Jsona reply;
        EXPECT_TRUE(reply.parse(json)) << json;
        return ReadRemarks(reply, 3, "21");
    }

    TestSupport::RecordingHost host;
};

TEST_F(RemarkReplyTest, EveryKeyIsRead) {
    const std::vector<CRemark> remarks =
        Read(R"([{seq:"7",cdate:"1709251199",sub:"T",body:"B",udate:"1709251200"}])");
    EXPECT_EQ(remarks, (std::vector<CRemark>{{3, "21", 7, "T", "B", "1709251199", "2024-03-01 08:00:00"}}));
}

TEST_F(RemarkReplyTest, MissingKeysAreEmptyAndTheKeysOfRequestsAreNotRead) {
    EXPECT_EQ(Read(R"([{}])"), (std::vector<CRemark>{{3, "21", 0, "", "", "", ""}}));
    EXPECT_EQ(Read(R"([{seq:"1",subject:"T",type:"2",objectid:"9"}])"),
              (std::vector<CRemark>{{3, "21", 1, "", "", "", ""}}));
}

TEST_F(RemarkReplyTest, NumbersAreReadFromTextsOnly) {
    EXPECT_EQ(Read(R"([{seq:7,udate:1709251200}])"), (std::vector<CRemark>{{3, "21", 0, "", "", "", ""}}));
    EXPECT_EQ(Read(R"([{seq:"12x"}])")[0].seq, 12);
}

TEST_F(RemarkReplyTest, OrderIsTheReplysAndEqualNumbersBothStay) {
    const std::vector<CRemark> remarks = Read(R"([{seq:"3",sub:"c"},{seq:"1",sub:"a"},{seq:"3",sub:"d"}])");
    ASSERT_EQ(remarks.size(), 3U);
    EXPECT_EQ(remarks[0].subject + remarks[1].subject + remarks[2].subject, "cad");
}

TEST_F(RemarkReplyTest, EveryElementIsARemarkWhateverItsKind) {
    EXPECT_TRUE(Read("[]").empty());
    const std::vector<CRemark> remarks = Read(R"([1,"x",null,[]])");
    ASSERT_EQ(remarks.size(), 4U);
    for (const CRemark& remark : remarks) {
        EXPECT_EQ(remark, (CRemark{3, "21", 0, "", "", "", ""}));
    }
}

TEST_F(RemarkReplyTest, TimeThatIsNoDecimalTextIsEmpty) {
    for (const char* text : {"", " ", "x", "12x", "1.5", "1e3", " 12", "12 ", "0x10", "+12", "-",
                             "99999999999999999999", "2024-03-01 08:00:00"}) {
        EXPECT_EQ(RemarkTimeText(text), "") << text;
    }
    EXPECT_EQ(RemarkTimeText("0"), "1970-01-01 08:00:00");
    EXPECT_EQ(RemarkTimeText("-1"), "1970-01-01 07:59:59");
    EXPECT_EQ(RemarkTimeText("0001709251200"), "2024-03-01 08:00:00");
}

TEST_F(RemarkReplyTest, WithoutAZoneTheLastChangeIsEmptyAndTheRestStands) {
    host.zone.reset();
    EXPECT_EQ(Read(R"([{seq:"7",cdate:"5",sub:"T",body:"B",udate:"1709251200"}])"),
              (std::vector<CRemark>{{3, "21", 7, "T", "B", "5", ""}}));
}

}  // namespace
}  // namespace Tarvik::Seaplan
