// SPDX-License-Identifier: MIT
// What the answers to the remark panel's questions lead to, and the mark that follows the remarks.
#include "seaplan/panels/tests/RemarkFixture.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;
using ::testing::Pair;
using ::testing::UnorderedElementsAre;

namespace {

class RemarkAnswersTest : public RemarkFixture {};

}  // namespace

TEST_F(RemarkAnswersTest, AQuestionThatIsClosedWithoutAnAnswerSavesAtARowChange) {
    OpenWith({"Old", "Young"});
    TypeSubject("Younger");
    Select(1);
    EXPECT_EQ(LastMessage(), "IDS_REMARKSAVETIP");
    EXPECT_EQ(messages.messages.back().flags, 4);
    EXPECT_EQ(messages.messages.back().owner, view.Handle());
    EXPECT_EQ(desk.Count(Ask::kChangeRemark, "Younger"), 1);
    EXPECT_EQ(view.current, 1);
}

TEST_F(RemarkAnswersTest, AQuestionThatIsClosedWithoutAnAnswerSavesAtClosing) {
    OpenWith({"One"});
    TypeSubject("Two");
    panel.OnClose();
    EXPECT_EQ(LastMessage(), "IDS_REMARKSAVETIP");
    EXPECT_EQ(desk.Count(Ask::kChangeRemark, "Two"), 1);
    EXPECT_FALSE(view.visible);
    EXPECT_THAT(Stored(), ElementsAre("Two|About One"));
}

TEST_F(RemarkAnswersTest, QuestionsNameTheRemarkThatWouldBeLost) {
    texts.given[u"IDS_VIEW_LOSTREMARK"] = u"%1 of %2";
    OpenWith({"Old", "Young"});
    TypeSubject("Younger");
    messages.Answer(Answer::No);
    Select(1);
    EXPECT_EQ(LastMessage(), "IDS_REMARKSAVETIP");
    EXPECT_EQ(LastDetail(), "Younger of North");
    messages.Answer(Answer::No);
    ClickDelete(1);
    EXPECT_EQ(LastMessage(), "IDS_DELREMARKTIP");
    EXPECT_EQ(LastDetail(), "Old of North");
    panel.New();
    TypeSubject("Newest");
    messages.Answer(Answer::No);
    ClickDelete(0);
    EXPECT_EQ(LastMessage(), "IDS_REMARKSAVETIP");
    EXPECT_EQ(LastDetail(), "Newest of North");
}

TEST_F(RemarkAnswersTest, TheMarkGoesOffWithTheLastRemarkAndOnAgainWithTheNext) {
    OpenWith({"One"});
    messages.Answer(Answer::Yes);
    ClickDelete(0);
    Add("Another");
    EXPECT_THAT(marks, ElementsAre(Pair(7, false), Pair(7, true)));
}

TEST_F(RemarkAnswersTest, DeletingTheRowBelowAChangedOneKeepsItsTextUnasked) {
    OpenWith({"One", "Two"});
    TypeBody("Other");
    messages.Answer(Answer::Yes);
    ClickDelete(1);
    EXPECT_THAT(view.Names(), ElementsAre("Two"));
    EXPECT_EQ(messages.messages.size(), 1U) << "the row that stays selected is the same";
    EXPECT_EQ(view.body, "Other");
    EXPECT_TRUE(view.state.canSave);
    Save();
    EXPECT_THAT(Stored(), ElementsAre("Two|Other"));
}

TEST_F(RemarkAnswersTest, DeletingARowBetweenAsksForTheChangedTextAndSavesItToItsOwn) {
    OpenWith({"One", "Two", "Three"});
    TypeBody("Other");
    messages.Answer(Answer::Yes);
    messages.Answer(Answer::Yes);
    ClickDelete(1);
    ASSERT_EQ(messages.messages.size(), 2U);
    EXPECT_EQ(messages.messages[0].text, "IDS_DELREMARKTIP\nIDS_VIEW_LOSTREMARK");
    EXPECT_EQ(messages.messages[1].text, "IDS_REMARKSAVETIP\nIDS_VIEW_LOSTREMARK");
    EXPECT_THAT(view.Names(), ElementsAre("Three", "One"));
    EXPECT_EQ(view.current, 1);
    EXPECT_EQ(view.body, "About One");
    EXPECT_THAT(Stored(), UnorderedElementsAre("One|About One", "Three|Other"));
}

TEST_F(RemarkAnswersTest, DeletingTheRowAboveSavesAChangedTextToItsOwnRemark) {
    OpenWith({"One", "Two", "Three"});
    Select(2);
    TypeBody("Other");
    messages.Answer(Answer::Yes);
    messages.Answer(Answer::Yes);
    ClickDelete(0);
    ASSERT_EQ(messages.messages.size(), 2U);
    EXPECT_THAT(view.Names(), ElementsAre("Two", "One"));
    EXPECT_EQ(view.current, 0);
    EXPECT_EQ(view.body, "About Two");
    EXPECT_THAT(Stored(), UnorderedElementsAre("One|Other", "Two|About Two"));
}

TEST_F(RemarkAnswersTest, ATextThatCannotBeSavedStaysWhenAnotherRowIsDeleted) {
    OpenWith({"One", "Two", "Three"});
    Select(2);
    TypeBody("Other");
    desk.Refuse(Ask::kChangeRemark);
    messages.Answer(Answer::Yes);
    messages.Answer(Answer::Yes);
    ClickDelete(0);
    EXPECT_EQ(LastMessage(), "IDS_TIP_MODIFYRMKFAIL");
    EXPECT_THAT(view.Names(), ElementsAre("Two", "One"));
    EXPECT_EQ(view.current, 1) << "the selection is put back";
    EXPECT_EQ(view.body, "Other");
    EXPECT_TRUE(view.state.canSave);
}

TEST_F(RemarkAnswersTest, ClosingKeepsWhatWasReadForTheNextOpening) {
    OpenWith({"One", "Two"});
    panel.OnClose();
    EXPECT_FALSE(view.visible);
    desk.ForgetRecords();
    Open();
    EXPECT_EQ(desk.Count(Ask::kLoadRemarks), 0);
    EXPECT_THAT(view.Names(), ElementsAre("Two", "One"));
}

TEST_F(RemarkAnswersTest, APortsRemarksAreAskedForByItsOwner) {
    ASSERT_EQ(panel.Open(0, PortCallRemark, vi + "ROTTERDAM", "ROTTERDAM"), 0);
    EXPECT_THAT(desk.Sent(Ask::kLoadRemarks),
                ElementsAre("{optype:\"4\",type:\"4\",objectid:\"" + vi + "ROTTERDAM\"}"));
}

}  // namespace Tarvik::Seaplan
