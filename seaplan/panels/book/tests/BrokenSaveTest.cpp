// SPDX-License-Identifier: MIT
#include "seaplan/panels/book/tests/BookFixture.h"
#include "seaplan/panels/portcall/PanelCommands.h"

/// A save that broke off may have stored some of what it was to store: until the next one nothing in the
/// lists of edits is known to be what the server has.
namespace Tarvik::Seaplan {

namespace {

using Interface::SysMsgHandleRes;

class BrokenSaveTest : public BookFixture {
  protected:
    /// The port calls are stored, the book behind them is not told to be.
    void BreakSaveOfTable() {
        Open(kept);
        PortCallFixture::Type(1, ColSpeed, "12");
        desk.Lose(Ask::kSaveBook);
        panel.Commands().OnSave();
        desk.Heal();
        ASSERT_EQ(LastMessage(), "IDS_PORTCALL_SAVEEXCEPTION");
    }
    void BreakSaveOfBook() {
        OpenBook();
        Type(Hamburg, BookSpeed, "12");
        desk.Lose(Ask::kSaveBook);
        book.Commands().OnSave();
        desk.Heal();
        ASSERT_TRUE(Changed());
    }
};

TEST_F(BrokenSaveTest, TheTableStaysMarkedWhenItsEditIsTakenBack) {
    BreakSaveOfTable();
    panel.Commands().OnUndo();
    EXPECT_EQ(PortCallFixture::Cell(1, ColSpeed), "10.00");
    EXPECT_TRUE(view.state.changed);
    EXPECT_TRUE(view.state.canSave);
    panel.Commands().OnRedo();
    EXPECT_TRUE(view.state.changed);
}

TEST_F(BrokenSaveTest, TheQuestionBeforeTheBookSaysThatSomeMayBeStored) {
    Open(kept);
    PortCallFixture::Type(1, ColSpeed, "12");
    messages.Answer(SysMsgHandleRes::Cancel);
    panel.Commands().OnPositionBook();
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_WARNSAVEFORPSBK");
    EXPECT_EQ(LastDetail(), "");
    desk.Lose(Ask::kSaveBook);
    panel.Commands().OnSave();
    desk.Heal();
    panel.Commands().OnPositionBook();
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_WARNSAVEFORPSBK");
    EXPECT_EQ(LastDetail(), "IDS_VIEW_BOOKAFTERBREAK");
    panel.Commands().OnSave();
    PortCallFixture::Type(1, ColSpeed, "13");
    panel.Commands().OnPositionBook();
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_WARNSAVEFORPSBK");
    EXPECT_EQ(LastDetail(), "") << "the last save told all";
}

TEST_F(BrokenSaveTest, TheTableOfBeforeIsSavedOverIt) {
    BreakSaveOfTable();
    panel.Commands().OnUndo();
    panel.Commands().OnSave();
    EXPECT_FALSE(view.state.changed);
    EXPECT_NEAR(SavedRows(kept)[1].psp, 10, 0.01);
    panel.Commands().OnRedo();
    EXPECT_TRUE(view.state.changed) << "the list goes on from the save";
}

TEST_F(BrokenSaveTest, WhoGivesTheTableUpSeesWhatTheServerHas) {
    BreakSaveOfTable();
    panel.Commands().OnUndo();
    messages.Answer(SysMsgHandleRes::No);
    desk.ForgetRecords();
    Open(fresh);
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVENEXT");
    EXPECT_EQ(desk.Count(Ask::kLoadPortCalls, kept), 1);
}

TEST_F(BrokenSaveTest, TheBookStaysMarkedWhenItsEditIsTakenBack) {
    BreakSaveOfBook();
    book.Commands().OnUndo();
    EXPECT_TRUE(Changed());
    book.Commands().OnSave();
    EXPECT_FALSE(Changed());
    EXPECT_NEAR(store.voyages[kept].positionBook.points[3].psp, 10, 0.01);
}

TEST_F(BrokenSaveTest, TheBookStaysMarkedWhenItsEditsAreDropped) {
    BreakSaveOfBook();
    book.Commands().OnCancel();
    EXPECT_EQ(Data().ports[1].rows.size(), 2U);
    EXPECT_TRUE(Changed());
    book.Commands().OnSave();
    EXPECT_FALSE(Changed());
    Type(Hamburg, BookSpeed, "13");
    book.Commands().OnCancel();
    EXPECT_FALSE(Changed()) << "the server has what the last save left";
}

}  // namespace

}  // namespace Tarvik::Seaplan
