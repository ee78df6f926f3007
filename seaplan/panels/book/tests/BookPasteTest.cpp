// SPDX-License-Identifier: MIT
/// Ctrl+V over the position book.
#include "seaplan/panels/book/tests/BookFixture.h"
#include "seaplan/panels/texts/EditTexts.h"

namespace Tarvik::Seaplan {

namespace {

using testing::ElementsAre;
using testing::SizeIs;
using Mark = RowsPreview::Mark;

class BookPasteTest : public BookFixture {
  protected:
    void Paste(const std::string& text, int row) {
        book.Cells().OnRowSelected(row);
        bookView.clipboard = text;
        EXPECT_TRUE(book.Commands().OnTableKey({Key::V, false, true}, row, BookName));
    }
    const RowsPreview::Cell& Shown(std::size_t row, std::size_t column) const {
        return bookView.pastes.back().rows.at(row).at(column);
    }
};

constexpr const char* kRoute =
    "Name\tLat\tLon\tTrack\tSpeed\n"
    "Alpha|1\t0 30N\t0 36E\tGC\t12\n"
    "\t0.6\t0.7\t\t\n"
    "Bravo\tnorth\t0.75\tRL\t\n";

TEST_F(BookPasteTest, WaypointsComeBeforeTheRowInFrontAsOneEditOnlyOnAYes) {
    OpenBook();
    const std::size_t before = Data().ports[1].rows.size();
    bookView.takesPaste = false;
    Paste(kRoute, Hamburg);
    EXPECT_FALSE(Changed());
    EXPECT_EQ(Data().ports[1].rows.size(), before);
    bookView.takesPaste = true;
    Paste(kRoute, Hamburg);
    EXPECT_EQ(Column(BookName),
              Names({"ROTTERDAM", "Mid Cape", "Plain", "Alpha\uFF5C1", "A new wp", "HAMBURG", "GDANSK"}));
    EXPECT_EQ(bookView.sheet.selected, 5) << "the row in front stays";
    EXPECT_EQ(Cell(3, BookLatitude), "0.5000");
    EXPECT_EQ(Cell(3, BookLongitude), "0.6000");
    EXPECT_EQ(Cell(3, BookTrack), "GC");
    EXPECT_EQ(Cell(3, BookSpeed), "12.00");
    EXPECT_EQ(Cell(4, BookTrack), "RL") << "as the leg that it comes into";
    EXPECT_EQ(Cell(4, BookSpeed), "10.00");
    PosBookData again = Data();
    EXPECT_DOUBLE_EQ(RecomputeBook(again, book.Sheet().units, Util::_datetime_t::gmt_now()).totalDistance,
                     book.Sheet().totals.totalDistance);
    book.Commands().OnUndo();
    EXPECT_EQ(Data().ports[1].rows.size(), before);
    EXPECT_FALSE(Changed());
    book.Commands().OnRedo();
    EXPECT_EQ(Data().ports[1].rows.size(), before + 2);
}

TEST_F(BookPasteTest, ThePreviewTellsWhatIsReadAndWhatIsLeft) {
    texts.given[u"IDS_VIEW_PASTEWAYPOINTS"] = u"%1 before %2, %3 left";
    OpenBook();
    Paste(kRoute, Hamburg);
    EXPECT_THAT(bookView.pastes.back().rows, SizeIs(3));
    EXPECT_EQ(bookView.pastes.back().words, "2 before 3, 1 left");
    EXPECT_EQ(Shown(0, 0).text, "1");
    EXPECT_EQ(Shown(0, 2).text, "00\u00B0 30.00' N");
    EXPECT_EQ(Shown(0, 2).mark, Mark::Plain);
    EXPECT_EQ(Shown(2, 0).text, "");
    EXPECT_EQ(Shown(2, 1).mark, Mark::Ignored);
    EXPECT_EQ(Shown(2, 2).text, "north");
    EXPECT_EQ(Shown(2, 2).mark, Mark::Unknown);
}

TEST_F(BookPasteTest, AColumnCanBeTakenForAnother) {
    OpenBook();
    // "0.5" and "0.6" were longitude and latitude after all.
    bookView.changedColumn = {0, 3};
    Paste("0.6\t0.5\n", Hamburg);
    EXPECT_FALSE(Changed()) << "one coordinate is no position";
    EXPECT_EQ(statusWord, "IDS_VIEW_PASTENOPLACES");
    EXPECT_THAT(bookView.pastes, SizeIs(2));
    EXPECT_THAT(bookView.pastes.back().taken, ElementsAre(3U, 0U));
}

TEST_F(BookPasteTest, CopiedRowsComeInWithoutTheEndsThatStandThere) {
    OpenExpanded();
    std::string copied = "IDS_WP_COL_SEQ\tIDS_WP_COL_NAME\tIDS_WP_COL_LAT\tIDS_WP_COL_LON\n";
    copied += "3\tPlain\t" + Cell(2, BookLatitude) + "\t" + Cell(2, BookLongitude) + "\n";
    copied += "4\tHAMBURG\t" + Cell(3, BookLatitude) + "\t" + Cell(3, BookLongitude) + "\n";
    Paste(copied, 3);
    EXPECT_FALSE(Changed());
    EXPECT_EQ(statusWord, "IDS_VIEW_PASTENOPLACES");
    EXPECT_EQ(Shown(0, 1).mark, Mark::Ignored);
    statusWord.clear();
    Paste(copied, 2);
    EXPECT_EQ(Column(BookName),
              Names({"ROTTERDAM", "Mid Cape", "Plain", "HAMBURG", "Plain", "HAMBURG", "GDANSK"}))
        << "in another place they are waypoints";
    EXPECT_EQ(statusWord, "");
}

TEST_F(BookPasteTest, ALineThatStandsWhereTheOneBeforeItDoesIsLeft) {
    OpenBook();
    // Half of the last decimal that the book shows is 0.00005.
    Paste("Name\tLat\tLon\nAlpha\t0.5\t0.6\nBravo\t0.50004\t0.60004\nCharlie\t0.5001\t0.6\n", Hamburg);
    EXPECT_EQ(Shown(1, 1).mark, Mark::Ignored);
    EXPECT_EQ(Column(BookName),
              Names({"ROTTERDAM", "Mid Cape", "Plain", "Alpha", "Charlie", "HAMBURG", "GDANSK"}));
}

TEST_F(BookPasteTest, NothingIsPastedWithoutTextOrARowThatTakesWaypoints) {
    OpenBook();
    Paste("", Hamburg);
    EXPECT_EQ(statusWord, "IDS_VIEW_PASTENOPLACES");
    Paste(kRoute, Rotterdam);
    EXPECT_EQ(statusWord, "IDS_VIEW_NOINSERT");
    EXPECT_TRUE(bookView.pastes.empty());
    EXPECT_FALSE(Changed());
}

TEST_F(BookPasteTest, ABookThatChangesWhileThePersonLooksTakesNothing) {
    OpenBook();
    bookView.whileAsked = [this] { book.Cells().OnRowSelected(Gdansk); };
    Paste(kRoute, Hamburg);
    EXPECT_EQ(statusWord, "IDS_VIEW_PASTECHANGED");
    EXPECT_FALSE(Changed());
    bookView.whileAsked = [this] { book.OnLogout(); };
    Paste(kRoute, Hamburg);
    EXPECT_EQ(bookView.sheet.RowCount(), 0);
}

TEST_F(BookPasteTest, ATextBeingTypedIsTakenFirst) {
    OpenBook();
    Click(Hamburg, BookSpeed);
    book.Cells().OnTyped("14");
    bookView.clipboard = kRoute;
    EXPECT_TRUE(book.Commands().OnTableKey({Key::V, false, true}, Hamburg, BookSpeed));
    EXPECT_EQ(Cell(5, BookSpeed), "14.00");
    EXPECT_EQ(Cell(4, BookSpeed), "14.00");
}

TEST_F(BookPasteTest, APastedRouteIsSavedAndOpensAgain) {
    OpenBook();
    Paste(kRoute, Hamburg);
    const double distance = book.Sheet().totals.totalDistance;
    book.Commands().OnSave();
    EXPECT_FALSE(Changed());
    PosBookData stored = ReadAgain();
    ASSERT_EQ(stored.ports.size(), Data().ports.size());
    EXPECT_EQ(stored.ports[1].rows.size(), Data().ports[1].rows.size());
    const BookTotals totals = RecomputeBook(stored, book.Sheet().units, Util::_datetime_t::gmt_now());
    EXPECT_NEAR(totals.totalDistance, distance, 0.3 * static_cast<double>(stored.ports[1].rows.size()));
}

}  // namespace

}  // namespace Tarvik::Seaplan
