// SPDX-License-Identifier: MIT
#include <limits>

#include <gtest/gtest.h>

#include <tarvik/core/TObject.h>

#include "seaplan/protocol/RemarkList.h"
#include "tarvik/src/core/BusTesting.h"
#include "testsupport/ManualClock.h"
#include "testsupport/RecordingHost.h"

namespace Tarvik::Seaplan {

namespace {

using Texts = std::vector<std::string>;

class RemarkListTest : public testing::Test {
  protected:
    /// Fills the list with remarks of voyage 21 that have these numbers.
    void Load(const Texts& numbers) {
        std::string json;
        for (const std::string& number : numbers) {
            json += json.empty() ? "" : ",";
            json.append(R"({seq:")").append(number).append(R"(",sub:"s)").append(number);
            json += R"(",body:"b",cdate:"5",udate:"0"})";
        }
        host.Reply(9, "[" + json + "]");
        ASSERT_TRUE(list.LoadRemarks(3, "21"));
        host.requests.clear();
    }
    bool Add(const std::string& subject = "T", const std::string& body = "B") {
        return list.AddRemark(3, "21", seq, subject, body);
    }
    Texts Subjects() const {
        Texts all;
        for (std::size_t i = 0; i < list.Count(); ++i) {
            all.push_back(list.At(i)->subject);
        }
        return all;
    }

    TestSupport::RecordingHost host;
    TestSupport::ManualClock clock;
    RemarkList list;
    int seq = 0;
    const long blocksBefore = Core::BusTesting::LiveBlocks();
};

TEST_F(RemarkListTest, LoadAsksForTheObjectAndKeepsTheReplysOrder) {
    host.Reply(9, R"([{seq:"3",sub:"c",body:"B",cdate:"5",udate:"1709251200"},{seq:"1",sub:"a"}])");
    EXPECT_TRUE(list.LoadRemarks(4, "21Hamburg"));
    EXPECT_EQ(host.Texts(), Texts{R"(9 {optype:"4",type:"4",objectid:"21Hamburg"})"});
    EXPECT_EQ(host.requests[0].ModuleWord(), 0x1002);
    EXPECT_EQ(Subjects(), (Texts{"c", "a"}));
    EXPECT_EQ(*list.At(0), (CRemark{4, "21Hamburg", 3, "c", "B", "5", "2024-03-01 08:00:00"}));
    EXPECT_EQ(list.At(2), nullptr);
    EXPECT_EQ(Core::BusTesting::LiveBlocks(), blocksBefore);
}

TEST_F(RemarkListTest, EmptyListReplyIsASuccessWithNothingToShow) {
    Load({"1"});
    host.Reply(9, "[]");
    EXPECT_TRUE(list.LoadRemarks(3, "21"));
    EXPECT_EQ(list.Count(), 0U);
}

TEST_F(RemarkListTest, LoadEmptiesTheListWhateverComesAfter) {
    for (const char* json : {"{eid:7}", "no json", "", "{eid:0}", "{}", "7"}) {
        Load({"1", "2"});
        host.Reply(9, json);
        EXPECT_FALSE(list.LoadRemarks(3, "21")) << json;
        EXPECT_EQ(list.Count(), 0U) << json;
    }
    Load({"1"});
    EXPECT_FALSE(list.LoadRemarks(3, "21")) << "no reply";
    EXPECT_EQ(list.Count(), 0U);
    Load({"1"});
    EXPECT_FALSE(list.LoadRemarks(3, std::string(256, 'x'))) << "nothing sent";
    EXPECT_EQ(list.Count(), 0U);
    EXPECT_EQ(Core::BusTesting::LiveBlocks(), blocksBefore);
}

TEST_F(RemarkListTest, ObjectMayBeNamedByARemarkOfTheList) {
    Load({"1"});
    host.Reply(9, R"([{seq:"2"}])");
    EXPECT_TRUE(list.LoadRemarks(3, list.At(0)->objectid));
    ASSERT_EQ(list.Count(), 1U);
    EXPECT_EQ(list.At(0)->objectid, "21");
}

TEST_F(RemarkListTest, WithoutAZoneTheLastChangeIsEmptyAfterALoad) {
    host.zone.reset();
    Load({"1"});
    EXPECT_EQ(list.At(0)->udate, "");
    EXPECT_EQ(list.At(0)->cdate, "5");
}

TEST_F(RemarkListTest, NextNumberIsOneWithoutRemarksAndOneAboveTheHighestOfTheObject) {
    EXPECT_EQ(list.NextRemarkSeq(3, "21"), 1);
    Load({"3", "1"});
    EXPECT_EQ(list.NextRemarkSeq(3, "21"), 4);
    EXPECT_EQ(list.NextRemarkSeq(2, "21"), 1) << "another class";
    EXPECT_EQ(list.NextRemarkSeq(3, "22"), 1) << "another object";
}

TEST_F(RemarkListTest, NextNumberIsNeverBelowOneAndHasATop) {
    Load({"-5"});
    EXPECT_EQ(list.NextRemarkSeq(3, "21"), 1);
    Load({"2147483647"});
    EXPECT_EQ(list.NextRemarkSeq(3, "21"), std::numeric_limits<int>::max());
}

TEST_F(RemarkListTest, AddedRemarkComesLastWithLocalTimes) {
    Load({"3", "1"});
    clock.SetUtc(2024, 5, 6, 7, 8, 9);
    host.Reply(9, "{eid:0}");
    EXPECT_TRUE(Add());
    EXPECT_EQ(seq, 4);
    EXPECT_EQ(host.Texts(), Texts{R"(9 {optype:"1",type:"3",objectid:"21",seq:"4",subject:"T",body:"B"})"});
    ASSERT_EQ(list.Count(), 3U);
    EXPECT_EQ(*list.At(2), (CRemark{3, "21", 4, "T", "B", "2024-05-06 07:08:09", "2024-05-06 07:08:09"}));
    EXPECT_EQ(Core::BusTesting::LiveBlocks(), blocksBefore);
}

TEST_F(RemarkListTest, FailedAddLeavesTheListAndTellsItsNumber) {
    Load({"1"});
    host.Reply(9, "{eid:7}");
    EXPECT_FALSE(Add());
    EXPECT_FALSE(Add()) << "no reply";
    EXPECT_EQ(seq, 2);
    EXPECT_EQ(list.Count(), 1U);
}

TEST_F(RemarkListTest, NumberOfADeletedHighestRemarkIsTakenAgain) {
    Load({"1", "2"});
    host.Reply(9, "{eid:0}");
    EXPECT_TRUE(list.DeleteRemark(3, "21", 2));
    host.Reply(9, "{eid:0}");
    EXPECT_TRUE(Add());
    EXPECT_EQ(seq, 2);
}

TEST_F(RemarkListTest, ChangedRemarkKeepsItsCreationDateAndPlace) {
    Load({"1", "2"});
    const CRemark* place = list.At(0);
    clock.SetUtc(2024, 5, 6, 7, 8, 9);
    host.Reply(9, "{eid:0}");
    EXPECT_TRUE(list.ChangeRemark(3, "21", 1, "T", "new"));
    EXPECT_EQ(host.Texts(), Texts{R"(9 {optype:"3",type:"3",objectid:"21",seq:"1",subject:"T",body:"new"})"});
    EXPECT_EQ(list.At(0), place);
    EXPECT_EQ(*place, (CRemark{3, "21", 1, "T", "new", "5", "2024-05-06 07:08:09"}));
    EXPECT_EQ(list.At(1)->subject, "s2");
    EXPECT_EQ(Core::BusTesting::LiveBlocks(), blocksBefore);
}

TEST_F(RemarkListTest, FailedChangeLeavesTheRemark) {
    Load({"1"});
    const CRemark before = *list.At(0);
    host.Reply(9, "{eid:7}");
    EXPECT_FALSE(list.ChangeRemark(3, "21", 1, "T", "new"));
    EXPECT_FALSE(list.ChangeRemark(3, "21", 1, "T", "new")) << "no reply";
    EXPECT_EQ(*list.At(0), before);
}

TEST_F(RemarkListTest, DeletedRemarkLeavesTheOthersInOrder) {
    Load({"1", "2", "3"});
    host.Reply(9, "{eid:0}");
    EXPECT_TRUE(list.DeleteRemark(3, "21", 2));
    EXPECT_EQ(host.Texts(), Texts{R"(9 {optype:"2",type:"3",objectid:"21",seq:"2"})"});
    EXPECT_EQ(Subjects(), (Texts{"s1", "s3"}));
    EXPECT_EQ(Core::BusTesting::LiveBlocks(), blocksBefore);
}

TEST_F(RemarkListTest, FailedDeleteLeavesTheRemark) {
    Load({"1"});
    host.Reply(9, "{eid:7}");
    EXPECT_FALSE(list.DeleteRemark(3, "21", 1));
    EXPECT_FALSE(list.DeleteRemark(3, "21", 1)) << "no reply";
    EXPECT_EQ(list.Count(), 1U);
}

TEST_F(RemarkListTest, ReplyThatIsNoJsonCountsAsSuccessOfAChangingCommand) {
    Load({"1", "2"});
    host.Reply(9, "<html>");
    EXPECT_TRUE(list.DeleteRemark(3, "21", 1));
    EXPECT_EQ(Subjects(), Texts{"s2"});
    host.Reply(9, "<html>");
    EXPECT_TRUE(list.ChangeRemark(3, "21", 2, "T", "B"));
    EXPECT_EQ(Subjects(), Texts{"T"});
    host.Reply(9, "<html>");
    EXPECT_TRUE(Add("U"));
    EXPECT_EQ(Subjects(), (Texts{"T", "U"}));
}

TEST_F(RemarkListTest, StatusWithoutErrorNumberIsASuccess) {
    Load({"1"});
    host.Reply(9, "{}");
    EXPECT_TRUE(list.DeleteRemark(3, "21", 1));
    EXPECT_EQ(list.Count(), 0U);
}

TEST_F(RemarkListTest, UnknownRemarkIsChangedAndDeletedOnTheServerAlone) {
    Load({"1"});
    const CRemark before = *list.At(0);
    for (int i = 0; i < 4; ++i) {
        host.Reply(9, "{eid:0}");
    }
    EXPECT_TRUE(list.ChangeRemark(3, "21", 9, "T", "B"));
    EXPECT_TRUE(list.ChangeRemark(2, "21", 1, "T", "B"));
    EXPECT_TRUE(list.DeleteRemark(3, "22", 1));
    EXPECT_TRUE(list.DeleteRemark(3, "21", 2));
    EXPECT_EQ(host.requests.size(), 4U);
    ASSERT_EQ(list.Count(), 1U);
    EXPECT_EQ(*list.At(0), before);
}

TEST_F(RemarkListTest, FirstOfTwoWithOneNameCounts) {
    host.Reply(9, R"([{seq:"1",sub:"a"},{seq:"1",sub:"b"}])");
    ASSERT_TRUE(list.LoadRemarks(3, "21"));
    EXPECT_EQ(list.Find(3, "21", 1), list.At(0));
    host.Reply(9, "{eid:0}");
    EXPECT_TRUE(list.DeleteRemark(3, "21", 1));
    EXPECT_EQ(Subjects(), Texts{"b"});
    EXPECT_EQ(list.Find(3, "21", 2), nullptr);
}

TEST_F(RemarkListTest, LongestTextThatFitsIsSentAndOneByteMoreIsNot) {
    const std::size_t frame =
        std::string(R"({optype:"1",type:"3",objectid:"21",seq:"1",subject:"T",body:""})").size();
    EXPECT_FALSE(Add("T", std::string(4098 - frame, 'x')));
    EXPECT_TRUE(host.requests.empty());
    EXPECT_EQ(list.Count(), 0U);
    host.Reply(9, "{eid:0}");
    EXPECT_TRUE(Add("T", std::string(4097 - frame, 'x')));
    EXPECT_EQ(host.requests[0].Length(), 4098U);
    EXPECT_FALSE(list.ChangeRemark(3, "21", 1, "T", std::string(4098 - frame, 'x')));
    EXPECT_EQ(host.requests.size(), 1U);
    EXPECT_EQ(list.At(0)->body.size(), 4097 - frame);
}

TEST_F(RemarkListTest, BodyOfManyBytesIsRefusedAlsoWhenItsWidthPasses) {
    std::string body;
    for (int i = 0; i < 1400; ++i) {
        body += "\xe8\x88\xb9";
    }
    EXPECT_FALSE(Add("T", body));
    EXPECT_TRUE(host.requests.empty());
}

TEST_F(RemarkListTest, LongestNameThatFitsIsSentAndOneByteMoreIsNot) {
    const std::size_t frame = std::string(R"({optype:"2",type:"4",objectid:"",seq:"1"})").size();
    EXPECT_FALSE(list.DeleteRemark(4, std::string(256 - frame, 'x'), 1));
    EXPECT_TRUE(host.requests.empty());
    host.Reply(9, "{eid:0}");
    EXPECT_TRUE(list.DeleteRemark(4, std::string(255 - frame, 'x'), 1));
    EXPECT_EQ(host.requests[0].Length(), 256U);
    const std::size_t loadFrame = std::string(R"({optype:"4",type:"4",objectid:""})").size();
    EXPECT_FALSE(list.LoadRemarks(4, std::string(256 - loadFrame, 'x')));
    EXPECT_EQ(host.requests.size(), 1U);
    host.Reply(9, "[]");
    EXPECT_TRUE(list.LoadRemarks(4, std::string(255 - loadFrame, 'x')));
}

TEST_F(RemarkListTest, QuoteInABodyGoesOutAsItStandsAndTheListKeepsIt) {
    host.Reply(9, "{eid:0}");
    EXPECT_TRUE(Add("a\"b", "line\nbreak\\"));
    EXPECT_EQ(host.requests[0].Text(),
              "{optype:\"1\",type:\"3\",objectid:\"21\",seq:\"1\",subject:\"a\"b\",body:\"line\nbreak\\\"}");
    EXPECT_EQ(list.At(0)->subject, "a\"b");
}

TEST_F(RemarkListTest, ClearedListIsEmpty) {
    Load({"1", "2"});
    list.Clear();
    EXPECT_EQ(list.Count(), 0U);
    EXPECT_EQ(list.At(0), nullptr);
}

}  // namespace
}  // namespace Tarvik::Seaplan
