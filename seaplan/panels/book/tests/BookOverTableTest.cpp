// SPDX-License-Identifier: MIT
/// The book and the table behind it: what a save of the one does to the other, and what a failed one tells.
#include <gmock/gmock.h>

#include "seaplan/controllers/VoyController.h"
#include "seaplan/panels/book/tests/BookFixture.h"
#include "seaplan/panels/portcall/PanelCommands.h"

namespace Tarvik::Seaplan {

namespace {

using Interface::SysMsgHandleRes;
using testing::ElementsAre;

class BookOverTableTest : public BookFixture {
  protected:
    /// The book with a change, over a table with a change that is not saved.
    void ChangeBoth() {
        OpenBook();
        book.Commands().OnClose();
        PortCallFixture::Type(2, ColSpeed, "14");
        messages.Answer(SysMsgHandleRes::Ok);
        panel.Commands().OnPositionBook();
        ASSERT_TRUE(bookView.visible);
        Type(Hamburg, BookSpeed, "12");
    }
    void SetState(DeletionState state) {
        for (auto& [ci, voyages] : store.categoryVoyages) {
            if (const auto found = voyages.find(kept); found != voyages.end()) {
                found->second = state;
            }
        }
    }
    float StoredSpeed(std::size_t point) const {
        return store.voyages.at(kept).positionBook.points[point].psp;
    }
};

}  // namespace

TEST_F(BookOverTableTest, ARowThatMakesNoScheduleIsToldAsTheCauseOfTheFailedSave) {
    texts.given[u"IDS_VIEW_FAULTBOOKSPEED"] = u"row %1";
    OpenBook();
    Type(Hamburg, BookSpeed, "0.00001");
    book.Commands().OnSave();
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVEEXCEPTION");
    EXPECT_EQ(LastDetail(), "row 3");
    EXPECT_TRUE(Changed());
}

TEST_F(BookOverTableTest, AServerThatDoesNotTakeTheBookIsToldAsTheCause) {
    OpenBook();
    Type(Hamburg, BookSpeed, "12");
    desk.Refuse(Ask::kSaveBook);
    book.Commands().OnSave();
    EXPECT_EQ(LastDetail(), "IDS_VIEW_FAULTREFUSED");
    desk.Heal();
    desk.Lose(Ask::kSavePortCalls);
    book.Commands().OnSave();
    EXPECT_EQ(LastDetail(), "IDS_VIEW_FAULTCONNECTION");
}

TEST_F(BookOverTableTest, TheTablesChangesGoWhereThePersonDoesNotWantThem) {
    ChangeBoth();
    messages.Answer(SysMsgHandleRes::No);
    book.Commands().OnSave();
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVENEXT");
    EXPECT_EQ(desk.Count(Ask::kSaveBook), 1);
    EXPECT_EQ(StoredSpeed(3), 12.0F);
    EXPECT_EQ(PortCallFixture::Cell(2, ColSpeed), "10.00") << "as it was saved with the book";
    EXPECT_FALSE(view.state.changed);
    EXPECT_FALSE(Changed());
    EXPECT_TRUE(bookView.visible);
    EXPECT_FALSE(view.Enabled());
}

TEST_F(BookOverTableTest, TheTablesChangesAreSavedBehindTheBookWhereThePersonWantsThem) {
    ChangeBoth();
    messages.Answer(SysMsgHandleRes::Yes);
    book.Commands().OnSave();
    EXPECT_EQ(desk.Count(Ask::kSaveBook), 2) << "the book's rows, then with the speeds of the table";
    EXPECT_NEAR(StoredSpeed(5), 14.0F, 0.001F) << "the last leg is the table's";
    EXPECT_EQ(PortCallFixture::Cell(2, ColSpeed), "14.00");
    EXPECT_FALSE(view.state.changed);
    EXPECT_FALSE(Changed());
}

TEST_F(BookOverTableTest, ACorrectedVoyagesBookIsSavedAndItsTableStaysCorrected) {
    OpenBook();
    book.Commands().OnClose();
    VoyInfo& voyage = store.voyages[kept];
    voyage.vsi = "7";
    voyage.vsn = "ANNA";
    voyage.lastPosText = "-1.196,0.000";
    voyage.lastPosTime = 1709640000;  // twelve hours behind the start
    int applied = 0;
    ASSERT_EQ(desk.voyages.ApplyAisPosition(kept, applied), 0);
    ASSERT_EQ(applied, 1);
    Open(kept);
    ASSERT_EQ(PortCallFixture::Cell(6, ColOrder), "RES");
    const int corrected = voyage.modais;
    ASSERT_GT(corrected, 0);
    panel.Commands().OnPositionBook();
    ASSERT_TRUE(bookView.visible);
    const int last = bookView.sheet.RowCount() - 1;
    ASSERT_EQ(Cell(last, BookName), "GDANSK");
    Type(last, BookSpeed, "12");
    book.Commands().OnSave();
    EXPECT_FALSE(Changed());
    EXPECT_EQ(desk.Count(Ask::kSaveBook), 1);
    EXPECT_EQ(store.voyages[kept].modais, corrected);
    EXPECT_EQ(PortCallFixture::Cell(6, ColOrder), "RES") << "history and plan as before";
    EXPECT_THAT(store.voyages[kept].positionBook.points.back().psp, testing::FloatNear(12, 0.001F));
    EXPECT_EQ(Cell(last, BookSpeed), "12.00");
}

TEST_F(BookOverTableTest, ABookWhoseVoyageWasThrownAwayIsSavedOrStaysMarked) {
    OpenBook();
    Type(Hamburg, BookSpeed, "12");
    SetState(InRecycleBin);
    desk.ForgetRecords();
    book.Commands().OnSave();
    EXPECT_FALSE(Changed()) << "a voyage in the bin can come back";
    EXPECT_EQ(desk.Count(Ask::kSaveBook), 1);
    EXPECT_EQ(desk.Drawn("TRV_MAP_ADD_LINE"), 0U) << "but is not shown";
    Type(Hamburg, BookSpeed, "13");
    SetState(Destroyed);
    desk.Refuse(Ask::kSavePortCalls);
    book.Commands().OnSave();
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVEEXCEPTION");
    EXPECT_TRUE(Changed());
    EXPECT_EQ(Cell(Hamburg, BookSpeed), "13.00");
}

}  // namespace Tarvik::Seaplan
