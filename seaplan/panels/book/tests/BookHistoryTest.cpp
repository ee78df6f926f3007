// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/panels/book/BookDesk.h"

namespace Tarvik::Seaplan {

namespace {

PosBookData Book(double x) {
    PosBookData book;
    book.ports.resize(1);
    book.ports[0].x = x;
    return book;
}

double At(const PosBookData* book) {
    return book == nullptr ? -1 : book->ports[0].x;
}

TEST(BookHistory, StatesComeBackInOrder) {
    BookHistory history;
    history.Start(Book(0));
    history.Push(Book(1));
    history.Push(Book(2));
    EXPECT_EQ(At(history.Back()), 1);
    EXPECT_EQ(At(history.Back()), 0);
    EXPECT_EQ(history.Back(), nullptr);
    EXPECT_EQ(At(history.Forward()), 1);
    history.Push(Book(9));
    EXPECT_EQ(history.Forward(), nullptr) << "what was undone is gone behind a new edit";
    EXPECT_EQ(At(history.Back()), 1);
}

TEST(BookHistory, ASaveMarksAStateAndEndsNothing) {
    BookHistory history;
    history.Start(Book(0));
    EXPECT_TRUE(history.IsSaved());
    history.Push(Book(1));
    EXPECT_FALSE(history.IsSaved());
    history.MarkSaved();
    EXPECT_TRUE(history.IsSaved());
    EXPECT_EQ(At(&history.Backup()), 1);
    history.Back();
    EXPECT_FALSE(history.IsSaved());
    history.Forward();
    EXPECT_TRUE(history.IsSaved());
    history.Back();
    history.Push(Book(5));
    EXPECT_FALSE(history.IsSaved()) << "the saved state cannot be reached any more";
    EXPECT_EQ(At(&history.Backup()), 1);
}

TEST(BookHistory, TheOldestStatesGo) {
    BookHistory history;
    history.Start(Book(0));
    for (int i = 1; i <= 150; ++i) {
        history.Push(Book(i));
    }
    int back = 0;
    while (history.CanGoBack()) {
        EXPECT_EQ(At(history.Back()), 150 - ++back);
        EXPECT_FALSE(history.IsSaved());
    }
    EXPECT_EQ(back, 99);
}

}  // namespace

}  // namespace Tarvik::Seaplan
