// SPDX-License-Identifier: MIT
/// Where a changed longitude cuts great circles anew, and what a box meanwhile leaves alone.
#include <gmock/gmock.h>

#include "seaplan/panels/book/tests/BookFixture.h"

namespace Tarvik::Seaplan {

namespace {

using BookCutsTest = BookFixture;

/// A person who presses Ctrl+S again while the first box is up, when the server is well again.
class Impatient final : public Interface::SysMsgSink {
  public:
    Impatient(CPosBookDlg& book, PanelDesk& desk) : book_(book), desk_(desk) { Set(this); }
    ~Impatient() override { Set(nullptr); }
    Impatient(const Impatient&) = delete;
    Impatient& operator=(const Impatient&) = delete;

    int boxes = 0;

    Interface::SysMsgHandleRes SyncSendMsg(int, const std::u16string&, int, void*,
                                           const std::u16string&) override {
        if (++boxes == 1) {
            desk_.Heal();
            book_.Commands().OnSaveKey();
        }
        return Interface::SysMsgHandleRes::Ok;
    }

  private:
    CPosBookDlg& book_;
    PanelDesk& desk_;
};

}  // namespace

TEST_F(BookCutsTest, OnlyTheWayToTheRowIsCutWhereThatIsTheGreatCircle) {
    OpenExpanded();
    Choose(2, BookTrack, 0);
    ASSERT_EQ(Cell(3, BookTrack), "RL");
    Type(2, BookLongitude, "12");
    EXPECT_EQ(Column(BookName), Names({"ROTTERDAM", "Mid Cape", "", "", "Plain", "HAMBURG", "GDANSK"}));
}

TEST_F(BookCutsTest, OnlyTheWayBehindTheRowIsCutWhereThatIsTheGreatCircle) {
    OpenExpanded();
    Choose(3, BookTrack, 0);
    ASSERT_EQ(Cell(2, BookTrack), "RL");
    Type(2, BookLongitude, "12");
    EXPECT_EQ(Column(BookName), Names({"ROTTERDAM", "Mid Cape", "Plain", "", "", "HAMBURG", "GDANSK"}));
    EXPECT_EQ(bookView.sheet.selected, 2);
}

TEST_F(BookCutsTest, ASaveOverTheBoxOfAFailedOneIsTheOneThatCounts) {
    OpenBook();
    Type(Hamburg, BookSpeed, "12");
    desk.Refuse(Ask::kSaveBook);
    Impatient person(book, desk);
    book.Commands().OnSaveKey();
    EXPECT_EQ(person.boxes, 1);
    EXPECT_EQ(desk.Count(Ask::kSaveBook), 2);
    EXPECT_FALSE(Changed());
    EXPECT_EQ(store.voyages[kept].positionBook.points[3].psp, 12.0F);
    EXPECT_FALSE(view.Enabled());
    EXPECT_TRUE(bookView.visible);
}

}  // namespace Tarvik::Seaplan
