// SPDX-License-Identifier: MIT
/// What stays as it is while edits of the book are taken back: the place in front, and what is unfolded.
#include <gmock/gmock.h>

#include "seaplan/panels/book/tests/BookFixture.h"
#include "seaplan/panels/texts/EditTexts.h"

namespace Tarvik::Seaplan {

namespace {

class BookUndoTest : public BookFixture {
  protected:
    std::string NameInFront() const {
        const int row = book.Sheet().selected;
        return row < 0 ? "none" : Cell(row, BookName);
    }
    void Undo() { book.Commands().OnUndo(); }
    void Redo() { book.Commands().OnRedo(); }
};

}  // namespace

TEST_F(BookUndoTest, TheSamePlaceStaysInFront) {
    OpenBook();
    book.Cells().OnRowSelected(Hamburg);
    book.Commands().OnInsert();
    ASSERT_EQ(NameInFront(), "HAMBURG");
    Undo();
    EXPECT_EQ(NameInFront(), "HAMBURG");
    Redo();
    EXPECT_EQ(NameInFront(), "HAMBURG");
}

TEST_F(BookUndoTest, TheDeletedWaypointIsInFrontAgain) {
    OpenExpanded();
    book.Cells().OnRowSelected(Hamburg);
    book.Commands().OnDelete();
    ASSERT_EQ(Column(BookName), Names({"ROTTERDAM", "Mid Cape", "HAMBURG", "GDANSK"}));
    Undo();
    EXPECT_EQ(NameInFront(), "Plain");
}

TEST_F(BookUndoTest, WhatIsUnfoldedStaysSo) {
    OpenExpanded();
    Type(2, BookLatitude, "12");
    Undo();
    EXPECT_EQ(Column(BookName), Names({"ROTTERDAM", "Mid Cape", "Plain", "HAMBURG", "GDANSK"}));
    EXPECT_EQ(NameInFront(), "Plain");
    book.Commands().OnExpand(MidCape);
    ASSERT_EQ(Column(BookName), Names({"ROTTERDAM", "Mid Cape", "HAMBURG", "GDANSK"}));
    Redo();
    EXPECT_EQ(Column(BookName), Names({"ROTTERDAM", "Mid Cape", "HAMBURG", "GDANSK"}));
    EXPECT_EQ(NameInFront(), "Mid Cape") << "it hides the waypoint that was edited";
}

TEST_F(BookUndoTest, CancelShowsWhatWasUnfoldedAtTheSave) {
    OpenBook();
    Type(Hamburg, BookSpeed, "12");
    book.Commands().OnExpand(MidCape);
    book.Commands().OnSave();
    Type(Gdansk + 1, BookSpeed, "13");
    book.Commands().OnCancel();
    EXPECT_EQ(Column(BookName), Names({"ROTTERDAM", "Mid Cape", "Plain", "HAMBURG", "GDANSK"}));
}

TEST_F(BookUndoTest, AnImagePressedWhileALongitudeIsTypedIsThatRows) {
    OpenExpanded();
    Choose(2, BookTrack, 0);
    Choose(3, BookTrack, 0);
    Click(2, BookLongitude);
    book.Cells().OnTyped("12");
    const auto hamburg = static_cast<std::size_t>(1);
    ASSERT_FALSE(Data().ports[hamburg].expanded);
    book.Commands().OnExpand(3);
    EXPECT_TRUE(Data().ports[hamburg].expanded);
}

TEST_F(BookUndoTest, EveryEditHasAName) {
    OpenBook();
    EXPECT_EQ(book.Sheet().edits.undo, "");
    Type(Hamburg, BookSpeed, "12");
    EXPECT_EQ(book.Sheet().edits.undo, "IDS_VIEW_UNDOOF");
    EXPECT_EQ(book.Sheet().edits.redo, "");
    Undo();
    EXPECT_EQ(book.Sheet().edits.undo, "");
    EXPECT_EQ(book.Sheet().edits.redo, "IDS_VIEW_REDOOF");
}

}  // namespace Tarvik::Seaplan
