// SPDX-License-Identifier: MIT
#include <QGuiApplication>
#include <QScreen>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include <tarvik/skin/WindowPlace.h>
#include <tarvik/util/FileUtl.h>

#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Skin {

namespace {

class WindowPlaceTest : public testing::Test {
  protected:
    WindowPlaceTest() { Util::FileUtl::SetCurrentAppDirectory(folder_.Path()); }
    ~WindowPlaceTest() override { Util::FileUtl::SetCurrentAppDirectory(before_); }
    std::string File() const { return Util::FileUtl::BusinessData("windows.txt"); }
    std::string Text() const {
        std::ostringstream text;
        text << std::ifstream(File()).rdbuf();
        return text.str();
    }

    std::string before_ = Util::FileUtl::GetCurrentAppDirectory();
    TestSupport::TemporaryFolder folder_;
};

}  // namespace

TEST_F(WindowPlaceTest, EachWindowHasItsOwnLine) {
    EXPECT_FALSE(KeptPlace("book"));
    const WindowPlace book{{-20, 40, 900, 500}, Dock::None, 0};
    const WindowPlace table{{10, 20, 800, 400}, Dock::Bottom, 300};
    EXPECT_TRUE(KeepPlace("book", {{1, 2, 3, 4}, Dock::Left, 5}));
    EXPECT_TRUE(KeepPlace("table", table));
    EXPECT_TRUE(KeepPlace("book", book));
    EXPECT_EQ(Text(), "table 10 20 800 400 bottom 300\nbook -20 40 900 500 none 0\n");
    EXPECT_EQ(KeptPlace("book"), book);
    EXPECT_EQ(KeptPlace("table"), table);
    EXPECT_TRUE(ForgetPlace("book"));
    EXPECT_FALSE(KeptPlace("book"));
    EXPECT_EQ(KeptPlace("table"), table);
}

TEST_F(WindowPlaceTest, ALineThatCannotBeReadCountsForNothing) {
    std::filesystem::create_directories(std::filesystem::path(File()).parent_path());
    for (const char* line :
         {"book", "book 1 2 3 4 left", "book 1 2 3 4 left 5 6", "book 1 2 x 4 left 5", "book 1 2 0 4 left 5",
          "book 1 2 3 -4 left 5", "book 1 2 3 4 middle 5", "book 1 2 3 4 left -5",
          "book 1 99999999999 3 4 left 5", "book 1 2 30000 4 left 5"}) {
        std::ofstream(File()) << line << "\nother 1 2 3 4 none 0\n";
        EXPECT_FALSE(KeptPlace("book")) << line;
        EXPECT_TRUE(KeptPlace("other")) << line;
    }
    EXPECT_TRUE(KeepPlace("book", {{1, 2, 3, 4}, Dock::Whole, 0}));
    EXPECT_EQ(Text(), "other 1 2 3 4 none 0\nbook 1 2 3 4 whole 0\n") << "and is gone with the next choice";
}

TEST_F(WindowPlaceTest, AFolderThatCannotBeWrittenIsTold) {
    std::ofstream(folder_.File("businessdata")) << "a file where the folder should be";
    EXPECT_FALSE(KeepPlace("book", {{1, 2, 3, 4}, Dock::None, 0}));
    EXPECT_TRUE(ForgetPlace("book")) << "there is nothing to forget";
}

TEST_F(WindowPlaceTest, ARectangleOffTheScreenComesBackByTheShortestWay) {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    const QSize size(200, 100);
    EXPECT_EQ(KeptOnScreen({room.topLeft() + QPoint(10, 20), size}),
              QRect(room.topLeft() + QPoint(10, 20), size));
    EXPECT_EQ(KeptOnScreen({{room.left() - 5000, room.top() + 20}, size}),
              QRect(QPoint(room.left(), room.top() + 20), size));
    EXPECT_EQ(KeptOnScreen({{room.right() - 50, room.bottom() - 50}, size}),
              QRect(QPoint(room.right() - 199, room.bottom() - 99), size));
    const QSize large(room.width() + 100, room.height() + 100);
    EXPECT_EQ(KeptOnScreen({{300, 300}, large}), QRect(room.topLeft(), large)) << "its caption is in sight";
}

}  // namespace Tarvik::Skin
