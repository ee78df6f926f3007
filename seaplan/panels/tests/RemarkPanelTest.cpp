// SPDX-License-Identifier: MIT
/// Opening, adding, selecting, deleting and sorting remarks.
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>

#include "seaplan/panels/tests/RemarkFixture.h"
#include "testsupport/RecordingHost.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

namespace {

class RemarkPanelTest : public RemarkFixture {};

}  // namespace

TEST_F(RemarkPanelTest, AnObjectWithoutRemarksOpensReadyToType) {
    EXPECT_EQ(Open(), 0);
    EXPECT_THAT(view.Names(), ElementsAre("IDS_NEW_REMARK"));
    EXPECT_EQ(view.rows[0].time, "2024-03-01 00:00:00");
    EXPECT_EQ(view.current, 0);
    EXPECT_TRUE(view.visible);
    EXPECT_TRUE(view.state.canEdit);
    EXPECT_FALSE(view.state.canSave);
    EXPECT_FALSE(view.state.canAdd);
    EXPECT_EQ(view.focusedSubject, 1);
    EXPECT_EQ(view.place.left, 460);
    EXPECT_EQ(view.place.top, 240);
    EXPECT_EQ(view.place.right - view.place.left, 300) << "it keeps its size";
    TypeSubject("D");
    EXPECT_TRUE(view.state.canSave);
    EXPECT_TRUE(view.rows[0].unsaved);
}

TEST_F(RemarkPanelTest, RemarksOpenNewestFirstWithTheFirstOneInTheFields) {
    OpenWith({"Old", "Middle", "Young"});
    EXPECT_THAT(view.Names(), ElementsAre("Young", "Middle", "Old"));
    EXPECT_EQ(view.current, 0);
    EXPECT_EQ(view.subject, "Young");
    EXPECT_EQ(view.body, "About Young");
    EXPECT_TRUE(view.state.canEdit);
    EXPECT_TRUE(view.state.canAdd);
    EXPECT_FALSE(view.state.canSave);
    EXPECT_EQ(view.rows[0].time, "2024-03-01 00:02:00");
}

TEST_F(RemarkPanelTest, TheSameObjectIsShownFromMemoryAndAnotherOneIsLoaded) {
    OpenWith({"One"});
    Open();
    EXPECT_EQ(desk.Count(Ask::kLoadRemarks), 0);
    EXPECT_THAT(view.Names(), ElementsAre("One"));
    panel.Open(1, CategoryRemark, ci, "Full");
    EXPECT_THAT(desk.Sent(Ask::kLoadRemarks),
                ElementsAre("{optype:\"4\",type:\"2\",objectid:\"" + ci + "\"}"));
    EXPECT_THAT(view.Names(), ElementsAre("IDS_NEW_REMARK"));
    Open();
    EXPECT_EQ(desk.Count(Ask::kLoadRemarks), 2);
    EXPECT_THAT(view.Names(), ElementsAre("One"));
}

TEST_F(RemarkPanelTest, AFailedLoadShowsANewRowWithoutABoxAndIsTriedAgain) {
    OpenWith({"One"});
    panel.Open(1, CategoryRemark, ci, "Full");
    desk.Lose(Ask::kLoadRemarks);
    Open();
    EXPECT_THAT(view.Names(), ElementsAre("IDS_NEW_REMARK"));
    EXPECT_THAT(messages.messages, IsEmpty());
    desk.Heal();
    Open();
    EXPECT_THAT(view.Names(), ElementsAre("One"));
}

TEST_F(RemarkPanelTest, WhileANewRemarkIsOpenAddIsOffAndComesBackAfterItsDelete) {
    OpenWith({"One"});
    panel.New();
    EXPECT_THAT(view.Names(), ElementsAre("IDS_NEW_REMARK", "One"));
    EXPECT_FALSE(view.state.canAdd);
    EXPECT_EQ(view.subject, "");
    panel.New();
    EXPECT_EQ(view.rows.size(), 2U) << "one at a time";
    ClickDelete(0);
    EXPECT_THAT(view.Names(), ElementsAre("One"));
    EXPECT_TRUE(view.state.canAdd);
    EXPECT_EQ(view.current, 0);
    EXPECT_EQ(view.subject, "One");
    EXPECT_THAT(messages.messages, IsEmpty());
    EXPECT_EQ(desk.Count(Ask::kDeleteRemark), 0);
}

TEST_F(RemarkPanelTest, InALongListTheLastRowAndThenTheNewOneComeIntoView) {
    OpenWith({"1", "2", "3", "4", "5"});
    panel.New();
    EXPECT_THAT(view.broughtIntoView, IsEmpty()) << "six rows";
    ClickDelete(0);
    Add("6");
    view.broughtIntoView.clear();
    panel.New();
    EXPECT_THAT(view.broughtIntoView, ElementsAre(6, 0));
}

TEST_F(RemarkPanelTest, DeletingTheOnlyNewRowEmptiesAndDisablesTheFields) {
    Open();
    ClickDelete(0);
    EXPECT_THAT(view.rows, IsEmpty());
    EXPECT_EQ(view.current, -1);
    EXPECT_FALSE(view.state.canEdit);
    EXPECT_FALSE(view.state.canSave);
    EXPECT_TRUE(view.state.canAdd);
    EXPECT_THAT(marks, IsEmpty());
}

TEST_F(RemarkPanelTest, DeletingATypedNewRowAsksAndNoRemovesIt) {
    OpenWith({"One"});
    panel.New();
    TypeSubject("Two");
    messages.Answer(Answer::No);
    ClickDelete(0);
    EXPECT_EQ(LastMessage(), "IDS_REMARKSAVETIP");
    EXPECT_THAT(view.Names(), ElementsAre("One"));
    EXPECT_TRUE(view.state.canAdd);
    EXPECT_EQ(view.subject, "One");
    EXPECT_THAT(Stored(), ElementsAre("One|About One"));
}

TEST_F(RemarkPanelTest, DeletingATypedNewRowAsksAndAnythingElseSavesIt) {
    Open();
    TypeSubject("First");
    messages.Answer(Answer::None);
    ClickDelete(0);
    EXPECT_THAT(view.Names(), ElementsAre("First"));
    EXPECT_TRUE(view.state.canAdd);
    EXPECT_THAT(marks, ElementsAre(Pair(7, true)));
    EXPECT_THAT(Stored(), ElementsAre("First|"));
}

TEST_F(RemarkPanelTest, ARemarkIsDeletedAfterAQuestionThatIsAnsweredWithYes) {
    OpenWith({"One", "Two", "Three"});
    messages.Answer(Answer::No);
    ClickDelete(1);
    EXPECT_EQ(LastMessage(), "IDS_DELREMARKTIP");
    EXPECT_EQ(messages.messages.back().flags, 4);
    EXPECT_EQ(messages.messages.back().owner, view.Handle());
    EXPECT_EQ(desk.Count(Ask::kDeleteRemark), 0);
    messages.Answer(Answer::Yes);
    ClickDelete(1);
    EXPECT_THAT(desk.Sent(Ask::kDeleteRemark),
                ElementsAre("{optype:\"2\",type:\"3\",objectid:\"" + vi + "\",seq:\"2\"}"));
    EXPECT_THAT(view.Names(), ElementsAre("Three", "One"));
    EXPECT_EQ(view.current, 1) << "the row that stands there now";
    EXPECT_EQ(view.subject, "One");
    messages.Answer(Answer::Yes);
    ClickDelete(1);
    EXPECT_EQ(view.current, 0) << "the one before";
    EXPECT_EQ(view.subject, "Three");
    EXPECT_THAT(marks, IsEmpty());
}

TEST_F(RemarkPanelTest, DeletingTheLastRemarkEmptiesTheFieldsAndSwitchesTheMarkOff) {
    OpenWith({"One"});
    messages.Answer(Answer::Yes);
    ClickDelete(0);
    EXPECT_THAT(view.rows, IsEmpty());
    EXPECT_EQ(view.subject, "");
    EXPECT_EQ(view.body, "");
    EXPECT_FALSE(view.state.canEdit);
    EXPECT_FALSE(view.state.canSave);
    EXPECT_THAT(marks, ElementsAre(Pair(7, false)));
}

TEST_F(RemarkPanelTest, AFailedDeleteEndsSilently) {
    OpenWith({"One"});
    desk.Refuse(Ask::kDeleteRemark);
    messages.Answer(Answer::Yes);
    ClickDelete(0);
    EXPECT_THAT(view.Names(), ElementsAre("One"));
    EXPECT_EQ(messages.messages.size(), 1U);
    EXPECT_THAT(marks, IsEmpty());
}

TEST_F(RemarkPanelTest, ATextTypedOverADeletedRemarkIsNotAskedAbout) {
    OpenWith({"One", "Two"});
    TypeBody("Other");
    messages.Answer(Answer::Yes);
    ClickDelete(0);
    EXPECT_EQ(messages.messages.size(), 1U);
    EXPECT_EQ(view.subject, "One");
    EXPECT_FALSE(view.state.canSave);
    EXPECT_THAT(Stored(), ElementsAre("One|About One"));
}

TEST_F(RemarkPanelTest, OtherItemsAndOtherEventsOfARowDoNothing) {
    OpenWith({"One"});
    panel.List().OnItemEvent(ClistCtrlViewEx::FirstEvent, 0, "rmk.name");
    panel.List().OnItemEvent(ClistCtrlViewEx::SecondEvent, 0, "flt.remark.del");
    panel.List().OnItemEvent(ClistCtrlViewEx::FirstEvent, ClistCtrlViewEx::PositionOf(9), "flt.remark.del");
    EXPECT_THAT(messages.messages, IsEmpty());
    EXPECT_EQ(view.rows.size(), 1U);
}

TEST_F(RemarkPanelTest, TheSortButtonTurnsTheOrderOfAllPanels) {
    OpenWith({"Old", "Young"});
    EXPECT_TRUE(view.state.newestFirst);
    Select(1);
    panel.OnSort();
    EXPECT_FALSE(view.state.newestFirst);
    EXPECT_THAT(view.Names(), ElementsAre("Old", "Young"));
    EXPECT_EQ(view.current, 0);
    RecordingRemarkView otherView;
    CRemarkPanel other({otherView, [] { return Point{}; }});
    other.Open(0, VoyageRemark, vi, "North");
    EXPECT_THAT(otherView.Names(), ElementsAre("Old", "Young"));
    EXPECT_FALSE(otherView.state.newestFirst);
}

TEST_F(RemarkPanelTest, SortingKeepsTheNewRowInItsPlace) {
    OpenWith({"Old", "Young"});
    panel.New();
    panel.OnSort();
    EXPECT_THAT(view.Names(), ElementsAre("IDS_NEW_REMARK", "Old", "Young"));
    TypeSubject("New");
    Save();
    EXPECT_THAT(view.Names(), ElementsAre("New", "Old", "Young")) << "saving does not sort";
    EXPECT_EQ(Stored().size(), 3U);
}

TEST_F(RemarkPanelTest, SortingWithAChangedTextAsksAndSavesItToItsOwnRemark) {
    OpenWith({"Old", "Young"});
    Select(1);
    TypeBody("Changed");
    messages.Answer(Answer::Yes);
    panel.OnSort();
    EXPECT_THAT(messages.messages, IsEmpty()) << "the row came to the top with its text";
    EXPECT_EQ(view.current, 0);
    EXPECT_TRUE(view.state.canSave);
    panel.OnSort();
    EXPECT_EQ(LastMessage(), "IDS_REMARKSAVETIP");
    EXPECT_THAT(Stored(), ElementsAre("Old|Changed", "Young|About Young"));
}

TEST_F(RemarkPanelTest, AddingWithAChangedTextAsksFirstAndSavesItToItsOwnRemark) {
    OpenWith({"One"});
    TypeBody("Changed");
    messages.Answer(Answer::Yes);
    panel.New();
    EXPECT_EQ(LastMessage(), "IDS_REMARKSAVETIP");
    EXPECT_THAT(Stored(), ElementsAre("One|Changed"));
    EXPECT_THAT(view.Names(), ElementsAre("IDS_NEW_REMARK", "One"));
    EXPECT_FALSE(view.state.canAdd);
    EXPECT_EQ(view.subject, "");
}

TEST_F(RemarkPanelTest, TheTitleIsTheNameInTheFormatOfTheLanguage) {
    texts.missing.insert(u"IDS_RMK_TITLE");
    Open();
    EXPECT_EQ(view.title, (RemarkTitle{"Remark of North", 15 * 8 + 20, 25}));
    texts.missing.clear();
    panel.ApplyLanguage();
    EXPECT_EQ(view.title.text, "IDS_RMK_TITLE");
    EXPECT_EQ(view.textsApplied, 1);
}

TEST_F(RemarkPanelTest, HelpIsAskedForWithItsTopic) {
    panel.OnHelp();
    EXPECT_EQ(view.help, "func024 350x130");
}

TEST_F(RemarkPanelTest, ALogoutForgetsEverythingWithoutAQuestion) {
    OpenWith({"One"});
    TypeBody("Typed");
    panel.OnLogout();
    EXPECT_FALSE(view.visible);
    EXPECT_THAT(messages.messages, IsEmpty());
    EXPECT_EQ(view.body, "");
    Open();
    EXPECT_THAT(messages.messages, IsEmpty());
    EXPECT_EQ(desk.Count(Ask::kLoadRemarks), 1) << "another user's voyage may have the same id";
    EXPECT_EQ(view.body, "About One");
}

TEST_F(RemarkPanelTest, AnotherZoneReadsTheTimesAnew) {
    OpenWith({"One"});
    panel.OnTimeZone("China Standard Time");
    EXPECT_EQ(desk.Count(Ask::kLoadRemarks), 1);
    EXPECT_EQ(view.rows[0].time, "2024-03-01 08:00:00");
    desk.host.zone = "UTC";
    TypeBody("Typed");
    panel.OnTimeZone("UTC");
    EXPECT_EQ(view.body, "Typed") << "what is being written stays";
    Save();
    Open();
    EXPECT_EQ(view.rows[0].time, "2024-03-01 00:00:00");
}

TEST_F(RemarkPanelTest, EnterInTheSubjectLeadsToTheText) {
    OpenWith({"One"});
    EXPECT_TRUE(panel.Editing().OnSubjectKey(Key::Enter));
    EXPECT_EQ(view.focusedBody, 1);
    for (const Key key : {Key::Other, Key::Escape, Key::Tab, Key::Down}) {
        EXPECT_FALSE(panel.Editing().OnSubjectKey(key));
    }
    EXPECT_EQ(view.focusedBody, 1);
}

TEST_F(RemarkPanelTest, AnotherZoneTakesNeitherTheKeyboardNorRowsThatCannotBeReadAnew) {
    OpenWith({"One"});
    const int raised = view.raised;
    const int focused = view.focusedSubject;
    desk.Lose(Ask::kLoadRemarks);
    panel.OnTimeZone("China Standard Time");
    EXPECT_THAT(view.Names(), ElementsAre("One"));
    desk.Heal();
    panel.OnTimeZone("China Standard Time");
    EXPECT_THAT(view.Names(), ElementsAre("One"));
    EXPECT_EQ(view.rows[0].time, "2024-03-01 08:00:00");
    EXPECT_EQ(view.raised, raised);
    EXPECT_EQ(view.focusedSubject, focused);
}

}  // namespace Tarvik::Seaplan
