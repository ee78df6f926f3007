// SPDX-License-Identifier: MIT
/// Saving remarks: texts on the wire, limits, questions, and that no text is lost by a save that fails.
#include "seaplan/panels/tests/RemarkFixture.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

namespace {

class RemarkSavingTest : public RemarkFixture {};

}  // namespace

TEST_F(RemarkSavingTest, TheFirstRemarkIsSentAndSwitchesTheMarkOn) {
    Open();
    TypeSubject("Draft");
    TypeBody("11.5 m\nat high water");
    Save();
    EXPECT_THAT(desk.Sent(Ask::kAddRemark),
                ElementsAre("{optype:\"1\",type:\"3\",objectid:\"" + vi +
                            "\",seq:\"1\",subject:\"Draft\",body:\"11.5 m\nat high water\"}"));
    EXPECT_THAT(view.Names(), ElementsAre("Draft"));
    EXPECT_EQ(view.rows[0].time, "2024-03-01 00:00:00");
    EXPECT_FALSE(view.rows[0].unsaved);
    EXPECT_FALSE(view.state.canSave);
    EXPECT_TRUE(view.state.canAdd);
    EXPECT_THAT(marks, ElementsAre(Pair(7, true)));
    Add("Second");
    EXPECT_EQ(marks.size(), 1U) << "only the change from none to one is told";
    EXPECT_THAT(messages.messages, IsEmpty());
}

TEST_F(RemarkSavingTest, AChangeIsSentWithTheRemarksNumberAndStaysInItsRow) {
    OpenWith({"Old", "Young"});
    Select(1);
    TypeSubject("Older");
    desk.clock.AdvanceSeconds(3600);
    Save();
    EXPECT_THAT(desk.Sent(Ask::kChangeRemark),
                ElementsAre("{optype:\"3\",type:\"3\",objectid:\"" + vi +
                            "\",seq:\"1\",subject:\"Older\",body:\"About Old\"}"));
    EXPECT_THAT(view.Names(), ElementsAre("Young", "Older")) << "until the next sorting";
    EXPECT_EQ(view.rows[1].time, "2024-03-01 01:02:00");
    EXPECT_THAT(marks, IsEmpty());
    Open();
    EXPECT_THAT(view.Names(), ElementsAre("Older", "Young"));
}

TEST_F(RemarkSavingTest, WithoutAChangeSaveSendsNothing) {
    OpenWith({"One"});
    Save();
    EXPECT_EQ(desk.Count(Ask::kChangeRemark), 0);
}

TEST_F(RemarkSavingTest, AnEmptyTitleMayBeSaved) {
    Open();
    TypeBody("Only text");
    Save();
    EXPECT_THAT(Stored(), ElementsAre("|Only text"));
}

TEST_F(RemarkSavingTest, ATitleOf63ChineseLettersPassesAndOf64IsRefused) {
    Open();
    TypeSubject(Letters(64));
    Save();
    EXPECT_EQ(LastMessage(), "IDS_TIP_SUBJECT_LEN");
    EXPECT_EQ(messages.messages.back().flags, 0);
    EXPECT_EQ(messages.messages.back().owner, view.Handle());
    EXPECT_EQ(desk.Count(Ask::kAddRemark), 0);
    EXPECT_TRUE(view.rows[0].unsaved);
    TypeSubject(Letters(63) + "a");
    Save();
    EXPECT_EQ(desk.Count(Ask::kAddRemark), 1);
    EXPECT_EQ(messages.messages.size(), 1U);
}

TEST_F(RemarkSavingTest, ATextOf2999PassesAndOf3000IsRefusedInTheWordsOfTheTitle) {
    Open();
    TypeBody(std::string(3000, 'x'));
    Save();
    EXPECT_EQ(LastMessage(), "IDS_TIP_SUBJECT_LEN");
    texts.missing.insert(u"IDS_TIP_SUBJECT_LEN");
    Save();
    EXPECT_EQ(LastMessage(),
              "The content input is too long. It cannot exceed 3000 characters, please re-enter.");
    TypeSubject(std::string(128, 'x'));
    Save();
    EXPECT_EQ(LastMessage(),
              "The title input is too long. It cannot exceed 128 characters, please re-enter.");
    TypeSubject("T");
    TypeBody(std::string(2999, 'x'));
    Save();
    EXPECT_EQ(messages.messages.size(), 3U);
    EXPECT_EQ(Stored().size(), 1U);
}

TEST_F(RemarkSavingTest, ATextThatDoesNotFitARequestIsToldAndKept) {
    Open();
    TypeSubject("Depths");
    const std::string wide = Letters(1400);
    TypeBody(wide);
    Save();
    EXPECT_EQ(desk.Count(Ask::kAddRemark), 0) << "4200 bytes";
    EXPECT_EQ(LastMessage(), "IDS_TIP_ADDRMKFAIL");
    EXPECT_EQ(LastDetail(), "IDS_TIP_SUBJECT_LEN") << "the second line says what to do";
    EXPECT_EQ(view.body, wide);
    EXPECT_TRUE(view.rows[0].unsaved);
    EXPECT_FALSE(view.state.canAdd);
    EXPECT_THAT(marks, IsEmpty());
    TypeBody(Letters(1300));
    Save();
    EXPECT_THAT(Stored(), ElementsAre("Depths|" + Letters(1300)));
    EXPECT_THAT(marks, ElementsAre(Pair(7, true)));
    TypeBody(wide);
    Save();
    EXPECT_EQ(LastMessage(), "IDS_TIP_MODIFYRMKFAIL");
    EXPECT_EQ(LastDetail(), "IDS_TIP_SUBJECT_LEN");
    EXPECT_EQ(view.body, wide);
    EXPECT_THAT(Stored(), ElementsAre("Depths|" + Letters(1300)));
}

TEST_F(RemarkSavingTest, ARequestMayHave4097BytesAndItsEnd) {
    Open();
    TypeBody(std::string(10, 'x'));
    const std::size_t frame = AddRemarkText(VoyageRemark, vi, 1, "", "").size();
    // Three bytes a letter, so that the limit of width is not met first.
    const std::string wide = Letters(1300);
    const std::string rest(4097 - frame - wide.size(), 'x');
    TypeBody(wide + rest + "x");
    Save();
    EXPECT_EQ(LastMessage(), "IDS_TIP_ADDRMKFAIL");
    EXPECT_EQ(LastDetail(), "IDS_TIP_SUBJECT_LEN");
    TypeBody(wide + rest);
    Save();
    ASSERT_EQ(desk.Count(Ask::kAddRemark), 1);
    EXPECT_EQ(desk.Sent(Ask::kAddRemark)[0].size(), 4097U);
    EXPECT_EQ(Stored().size(), 1U);
}

TEST_F(RemarkSavingTest, ARefusalIsToldByTheFallBackTextsWhereTheLanguageHasNone) {
    texts.missing = {u"IDS_TIP_ADDRMKFAIL", u"IDS_TIP_MODIFYRMKFAIL"};
    desk.Refuse(Ask::kAddRemark);
    Open();
    TypeSubject("One");
    Save();
    EXPECT_EQ(LastMessage(), "Add the remark failed, please re-enter.");
    desk.Heal();
    Save();
    EXPECT_THAT(Stored(), ElementsAre("One|")) << "the same text goes at the next try";
    desk.Lose(Ask::kChangeRemark);
    TypeSubject("Two");
    Save();
    EXPECT_EQ(LastMessage(), "Modify the remark failed, please re-enter.");
    desk.Heal();
    Save();
    EXPECT_THAT(Stored(), ElementsAre("Two|"));
}

TEST_F(RemarkSavingTest, AnotherRowAsksForAChangedText) {
    OpenWith({"Old", "Young"});
    TypeBody("Changed");
    messages.Answer(Answer::Yes);
    Select(1);
    EXPECT_EQ(LastMessage(), "IDS_REMARKSAVETIP");
    EXPECT_EQ(messages.messages.back().flags, 4);
    EXPECT_EQ(view.current, 1);
    EXPECT_EQ(view.body, "About Old");
    EXPECT_THAT(Stored(), ElementsAre("Old|About Old", "Young|Changed"));
    EXPECT_FALSE(view.rows[0].unsaved);
}

TEST_F(RemarkSavingTest, NoKeepsTheTextOnScreenUntilTheSelectionFillsTheFields) {
    OpenWith({"One"});
    TypeBody("Changed");
    messages.Answer(Answer::No);
    panel.OnClose();
    EXPECT_FALSE(view.visible);
    EXPECT_EQ(view.body, "Changed");
    EXPECT_FALSE(view.rows[0].unsaved);
    Open();
    EXPECT_EQ(view.body, "About One");
    EXPECT_EQ(messages.messages.size(), 1U);
    EXPECT_EQ(desk.Count(Ask::kChangeRemark), 0);
}

TEST_F(RemarkSavingTest, ATooLongTitleKeepsTheSelectionOnItsRow) {
    OpenWith({"Old", "Young"});
    TypeSubject(Letters(64));
    messages.Answer(Answer::Yes);
    Select(1);
    EXPECT_EQ(LastMessage(), "IDS_TIP_SUBJECT_LEN");
    EXPECT_EQ(view.current, 0);
    EXPECT_EQ(view.subject, Letters(64));
    messages.Answer(Answer::No);
    Select(1);
    EXPECT_EQ(view.current, 1) << "the next change of the row asks again";
    EXPECT_EQ(view.subject, "Old");
}

TEST_F(RemarkSavingTest, ARefusedSaveKeepsTheRowAndIsAskedAboutAgain) {
    OpenWith({"Old", "Young"});
    TypeBody("Changed");
    desk.Refuse(Ask::kChangeRemark);
    messages.Answer(Answer::Yes);
    Select(1);
    EXPECT_EQ(LastMessage(), "IDS_TIP_MODIFYRMKFAIL");
    EXPECT_EQ(view.current, 0);
    EXPECT_EQ(view.body, "Changed");
    desk.Heal();
    messages.Answer(Answer::Yes);
    Select(1);
    EXPECT_THAT(Stored(), ElementsAre("Old|About Old", "Young|Changed"));
}

TEST_F(RemarkSavingTest, AClosingThatCannotSaveKeepsThePanel) {
    Open();
    TypeSubject("One");
    desk.Refuse(Ask::kAddRemark);
    messages.Answer(Answer::Yes);
    panel.OnClose();
    EXPECT_TRUE(view.visible);
    EXPECT_EQ(view.subject, "One");
    desk.Heal();
    messages.Answer(Answer::Yes);
    panel.OnClose();
    EXPECT_FALSE(view.visible);
    EXPECT_THAT(Stored(), ElementsAre("One|"));
    EXPECT_THAT(marks, ElementsAre(Pair(7, true)));
}

TEST_F(RemarkSavingTest, AnotherObjectAsksForTheTextOfTheOldOneAndMarksItsRow) {
    Open(7);
    TypeSubject("One");
    messages.Answer(Answer::Yes);
    EXPECT_EQ(panel.Open(8, CategoryRemark, ci, "Full"), 0);
    EXPECT_THAT(marks, ElementsAre(Pair(7, true)));
    EXPECT_THAT(Stored(), ElementsAre("One|"));
    EXPECT_EQ(view.title.text, "IDS_RMK_TITLE");
    EXPECT_EQ(view.subject, "");
}

TEST_F(RemarkSavingTest, AnotherObjectWaitsWhereTheOldTextCannotBeSaved) {
    OpenWith({"One"});
    TypeBody("Changed");
    desk.Refuse(Ask::kChangeRemark);
    messages.Answer(Answer::Yes);
    EXPECT_EQ(panel.Open(8, CategoryRemark, ci, "Full"), -1);
    EXPECT_EQ(view.body, "Changed");
    EXPECT_EQ(desk.Count(Ask::kLoadRemarks), 0);
    desk.Heal();
    Save();
    EXPECT_THAT(Stored(), ElementsAre("One|Changed"));
}

TEST_F(RemarkSavingTest, AfterAFailedLoadANewRemarkIsNumberedBehindTheOnesOfTheServer) {
    OpenWith({"Old", "Young"});
    panel.Open(8, CategoryRemark, ci, "Full");
    desk.Lose(Ask::kLoadRemarks);
    Open();
    TypeSubject("Third");
    Save();
    EXPECT_EQ(LastMessage(), "IDS_TIP_ADDRMKFAIL") << "without the others' numbers it has none";
    EXPECT_EQ(desk.Count(Ask::kAddRemark), 0);
    EXPECT_EQ(view.subject, "Third");
    EXPECT_TRUE(view.rows[0].unsaved);
    desk.Heal();
    messages.messages.clear();
    Save();
    EXPECT_THAT(messages.messages, IsEmpty());
    EXPECT_THAT(Stored(), ElementsAre("Old|About Old", "Young|About Young", "Third|"));
    EXPECT_THAT(view.Names(), ::testing::UnorderedElementsAre("Third", "Young", "Old"));
    EXPECT_EQ(view.rows[0].name, "Third");
    EXPECT_GE(view.rows[1].time, view.rows[2].time);
    EXPECT_EQ(view.current, 0);
    EXPECT_THAT(marks, IsEmpty()) << "it is not the first one";
}

}  // namespace Tarvik::Seaplan
