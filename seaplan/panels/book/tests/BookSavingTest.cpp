// SPDX-License-Identifier: MIT
#include <algorithm>

#include <tarvik/util/StringUtl.h>

#include "seaplan/calculation/book/BookPanel.h"
#include "seaplan/panels/book/tests/BookFixture.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "testsupport/RecordingHost.h"

/// Saving, cancelling, undoing and closing of the position book.
namespace Tarvik::Seaplan {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class BookSavingTest : public BookFixture {
  protected:
    std::vector<std::string> SentCommands() {
        std::vector<std::string> commands;
        for (const auto& request : desk.host.requests) {
            commands.push_back(std::to_string(request.Command()));
        }
        return commands;
    }
    void MakeChange() {
        Type(Hamburg, BookSpeed, "12");
        ASSERT_TRUE(Changed());
    }
};

TEST_F(BookSavingTest, SaveSendsPortCallsAndRowsAndShowsTheVoyageAnew) {
    OpenBook();
    const std::string id = store.voyages[kept].positionBook.pbi;
    MakeChange();
    EXPECT_TRUE(desk.host.requests.empty()) << "nothing goes out before it is saved";
    book.Commands().OnSave();
    EXPECT_FALSE(Changed());
    EXPECT_THAT(SentCommands(), ElementsAre("11", "9"));
    const float speed = store.voyages[kept].portCalls[1].psp;
    EXPECT_THAT(desk.Sent(Ask::kSavePortCalls),
                ElementsAre("[\"" + kept + "\",\"0|40001|ROTTERDAM|L|0.000|0.000|0.0\",\"1|40003|HAMBURG|D|" +
                            Util::StringUtl::Format("%.3f", static_cast<double>(speed) * 1.852) +
                            "|0.000|12.0\",\"2|40004|GDANSK|D|18.520|0.000|0.0\"]"));
    const BookPoints& points = store.voyages[kept].positionBook.points;
    const auto at = [&](std::size_t i) {
        std::string text = points[i].position;
        text.replace(text.find(','), 1, "|");
        return text;
    };
    EXPECT_THAT(
        desk.Sent(Ask::kSaveBook),
        ElementsAre("[\"" + id + "\",\"0\",\"0|ROTTERDAM|0.0000|0.0000|RL|5|0.000|5\",\"1|Mid Cape|" + at(1) +
                    "|RL|5|18.520|3\",\"2|Plain|0.400|1.000|RL|5|18.520|0\",\"3|HAMBURG|0.8000|0.0000|RL|5|"
                    "22.224|5\",\"4||" +
                    at(4) + "|RL|5|18.520|0\",\"5|GDANSK|1.2000|0.0000|RL|5|18.520|5\"]"));
    EXPECT_THAT(saved, ElementsAre(kept));
    EXPECT_EQ(PortCallFixture::Cell(1, ColSpeed), TwoDecimals(static_cast<double>(speed)));
    EXPECT_FALSE(view.changed);
    EXPECT_TRUE(view.visible);
    EXPECT_FALSE(view.Enabled()) << "the book is still open";
    EXPECT_TRUE(bookView.visible);
    EXPECT_EQ(Cell(Hamburg, BookSpeed), "12.00");
}

TEST_F(BookSavingTest, AnotherStayIsSavedWithItsPortCall) {
    OpenBook();
    Pick(Rotterdam, BookEtd, "2024-03-05 20:00:00");
    book.Commands().OnSave();
    EXPECT_THAT(SentCommands(), ElementsAre("11", "9")) << "the start is the same";
    EXPECT_THAT(desk.Sent(Ask::kSavePortCalls, "\"0|40001|ROTTERDAM|L|0.000|0.000|12.0\""), SizeIs(1));
    EXPECT_EQ(PortCallFixture::Cell(0, ColEtd), "2024-03-05 20:00:00");
}

TEST_F(BookSavingTest, WithoutAChangeNothingIsSaved) {
    OpenBook();
    book.Commands().OnSave();
    book.Commands().OnSaveKey();
    book.Commands().OnCancel();
    EXPECT_THAT(desk.host.requests, IsEmpty());
}

TEST_F(BookSavingTest, TheSaveKeyTakesWhatIsTypedAndLeavesTheEditorOpen) {
    OpenBook();
    Click(Hamburg, BookSpeed);
    book.Cells().OnTyped("12");
    book.Commands().OnSaveKey();
    EXPECT_EQ(desk.Count(Ask::kSaveBook), 1);
    EXPECT_TRUE(bookView.textCell.has_value());
    book.Cells().OnTextFocusLost();
    EXPECT_FALSE(Changed());
    Click(Hamburg, BookSpeed);
    book.Cells().OnTyped("13");
    book.Commands().OnSave();
    EXPECT_FALSE(bookView.textCell.has_value()) << "the button closes it";
    Click(Hamburg, BookSpeed);
    book.Cells().OnTyped("never");
    book.Commands().OnSave();
    EXPECT_EQ(desk.Count(Ask::kSaveBook), 2) << "nothing is saved that was refused";
}

TEST_F(BookSavingTest, ASaveThatFailsIsToldAndKeepsTheChanges) {
    OpenBook();
    MakeChange();
    desk.Refuse(Ask::kSaveBook);
    book.Commands().OnSave();
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVEEXCEPTION");
    EXPECT_TRUE(Changed());
    EXPECT_EQ(Cell(Hamburg, BookSpeed), "12.00");
    EXPECT_FALSE(view.Enabled());
    messages.Answer(Interface::SysMsgHandleRes::Yes);
    book.Commands().OnClose();
    EXPECT_TRUE(bookView.visible) << "closing would lose the changes";
    desk.Heal();
    messages.Answer(Interface::SysMsgHandleRes::Yes);
    book.Commands().OnClose();
    EXPECT_FALSE(bookView.visible);
    EXPECT_EQ(store.voyages[kept].positionBook.points[3].psp, 12.0F);
}

TEST_F(BookSavingTest, TheBookIsSavedForItsVoyageThoughTheTreeHasOpenedAnother) {
    OpenBook();
    MakeChange();
    Open(fresh);
    EXPECT_FALSE(view.Enabled());
    book.Commands().OnSave();
    EXPECT_EQ(desk.Count(Ask::kSavePortCalls, "[\"" + kept + "\""), 1);
    EXPECT_EQ(panel.Sheet().voyageId, fresh);
    EXPECT_EQ(PortCallFixture::Cell(0, ColPort), " ");
}

TEST_F(BookSavingTest, ASaveLeavesTheVoyageOfTheTreesLastClickForItsConsumption) {
    OpenBook();
    panel.SetVoyage(fresh);
    Type(MidCape, BookSpeed, "12.5");
    book.Commands().OnSave();
    ASSERT_EQ(desk.Count(Ask::kSaveBook), 1);
    EXPECT_EQ(panel.Sheet().voyageId, kept);
    EXPECT_EQ(panel.NextVoyage(), fresh);
}

TEST_F(BookSavingTest, CancelBringsBackWhatWasSaved) {
    OpenExpanded();
    const std::string distance = bookView.sheet.Total(UnitKind::Distance);
    Type(2, BookLatitude, "3");
    Click(3, BookCourse);
    book.Commands().OnInsert();
    Click(2, BookName);
    book.Cells().OnTyped("dropped");
    book.Commands().OnCancel();
    EXPECT_EQ(Column(BookName), Names({"ROTTERDAM", "Mid Cape", "HAMBURG", "GDANSK"}));
    EXPECT_EQ(bookView.sheet.Total(UnitKind::Distance), distance);
    EXPECT_FALSE(Changed());
    EXPECT_FALSE(bookView.textCell.has_value());
    MakeChange();
    book.Commands().OnSave();
    Type(Hamburg, BookSpeed, "14");
    book.Commands().OnCancel();
    EXPECT_EQ(Cell(Hamburg, BookSpeed), "12.00") << "a save is what cancel comes back to";
}

TEST_F(BookSavingTest, EveryEditIsUndoneAndMadeAgain) {
    OpenExpanded();
    const PosBookData first = Data();
    Type(2, BookLatitude, "3");
    Type(2, BookName, "Turn");
    Choose(2, BookTrack, 0);
    Pick(3, BookEtd,
         Util::DateTimeUtl::AddHour(*Util::DateTimeUtl::Parse(Cell(3, BookEtd)), 2).fmt(Util::kTimeFormat));
    Click(3, BookCourse);
    book.Commands().OnInsert();
    Click(2, BookCourse);
    book.Commands().OnDelete();
    const std::vector<std::string> last = Column(BookEta);
    int undone = 0;
    while (!bookView.sheet.edits.undo.empty()) {
        book.Commands().OnUndo();
        ++undone;
    }
    EXPECT_EQ(undone, 6);
    EXPECT_FALSE(Changed());
    VoyInfo before;
    VoyInfo now;
    ASSERT_EQ(PanelToBook(first, before), 0);
    ASSERT_EQ(PanelToBook(Data(), now), 0);
    ASSERT_EQ(before.positionBook.points.size(), now.positionBook.points.size());
    for (std::size_t i = 0; i < now.positionBook.points.size(); ++i) {
        EXPECT_EQ(before.positionBook.points[i].position, now.positionBook.points[i].position);
        EXPECT_EQ(before.positionBook.points[i].psn, now.positionBook.points[i].psn);
        EXPECT_EQ(before.positionBook.points[i].psr, now.positionBook.points[i].psr);
    }
    while (!bookView.sheet.edits.redo.empty()) {
        book.Commands().OnRedo();
    }
    EXPECT_EQ(Column(BookEta), last);
    EXPECT_TRUE(Changed());
    book.Commands().OnUndo();
    book.Commands().OnSave();
    EXPECT_FALSE(Changed()) << "a save marks the state";
    book.Commands().OnUndo();
    EXPECT_TRUE(Changed()) << "and ends nothing";
    book.Commands().OnRedo();
    EXPECT_FALSE(Changed());
    book.Commands().OnUndo();
    book.Commands().OnCancel();
    EXPECT_FALSE(Changed());
    book.Commands().OnUndo();
    EXPECT_TRUE(Changed()) << "also a cancel can be taken back";
}

TEST_F(BookSavingTest, CloseAsksAboutChanges) {
    texts.given[u"IDS_VIEW_LOSTBOOK"] = u"book of %1";
    OpenBook();
    book.Commands().OnClose();
    EXPECT_THAT(messages.messages, IsEmpty());
    EXPECT_FALSE(bookView.visible);
    EXPECT_TRUE(view.Enabled());
    EXPECT_EQ(bookView.toldClosed, 1);
    panel.Commands().OnPositionBook();
    Click(Hamburg, BookSpeed);
    book.Cells().OnTyped("12");
    messages.Answer(Interface::SysMsgHandleRes::No);
    book.Commands().OnClose();
    EXPECT_EQ(LastMessage(), "IDS_WP_TIP_SAVE") << "what is being typed counts";
    EXPECT_EQ(LastDetail(), "book of Saved") << "it names what would be lost";
    EXPECT_EQ(messages.messages.back().flags, 4);
    EXPECT_FALSE(bookView.visible);
    EXPECT_EQ(desk.Count(Ask::kSaveBook), 0);
    panel.Commands().OnPositionBook();
    EXPECT_EQ(Cell(Hamburg, BookSpeed), "10.00");
    MakeChange();
    messages.Answer(Interface::SysMsgHandleRes::Yes);
    book.Commands().OnClose();
    EXPECT_EQ(desk.Count(Ask::kSaveBook), 1);
    EXPECT_EQ(bookView.toldClosed, 3);
    EXPECT_TRUE(view.Enabled());
}

TEST_F(BookSavingTest, ASaveDrawsTheVoyageAnewAndARefusedOneDoesNot) {
    OpenBook();
    MakeChange();
    const auto lines = [this] {
        const auto drawn = desk.host.ChartCallsOf("TRV_MAP_ADD_LINE");
        return std::count_if(drawn.begin(), drawn.end(),
                             [this](const auto& call) { return call.id.starts_with(kept + "_"); });
    };
    desk.Refuse(Ask::kSaveBook);
    desk.ForgetRecords();
    book.Commands().OnSave();
    EXPECT_EQ(lines(), 0);
    desk.Heal();
    desk.ForgetRecords();
    book.Commands().OnSave();
    EXPECT_FALSE(Changed());
    EXPECT_GT(desk.Drawn("TRV_MAP_DEL_OBJECTS") + desk.Drawn("TRV_MAP_DEL_OBJECT_BY_TYPE"), 0U);
    EXPECT_EQ(lines(), 1);
}

}  // namespace

}  // namespace Tarvik::Seaplan
