// SPDX-License-Identifier: MIT
/// The lists and the text editor that drop from fields and cells.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/panels/editors/BookEditors.h"
#include "seaplan/panels/editors/CVoyageListDlg.h"
#include "seaplan/panels/tests/PanelDesk.h"
#include "seaplan/panels/tests/TreeViews.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class RecordingList final : public DropList {
  public:
    bool open = false;
    Rect place;
    std::vector<std::string> texts;
    int current = -1;
    int focused = -1;

    void ShowList(const Rect& screen, const std::vector<std::string>& shown, int front) override {
        open = true;
        place = screen;
        texts = shown;
        current = front;
    }
    void HideList() override { open = false; }
    void FocusList(int row) override { focused = row; }
};

class CVoyageListDlgTest : public ::testing::Test {
  protected:
    RecordingList view;
    std::vector<std::string> taken;
    CVoyageListDlg list{view, [this](const std::string& name) { taken.push_back(name); }};
    static constexpr Rect kField{100, 50, 260, 74};

    int HeightWith(std::size_t names) {
        list.ShowNames(std::vector<std::string>(names, "x"), kField);
        return view.place.bottom - view.place.top;
    }
};

class CComboxDlgTest : public ::testing::Test {
  protected:
    RecordingList view;
    std::vector<std::string> told;
    CComboxDlg combo{view,
                     {[this](const std::string& track) { told.push_back(track); },
                      [this](int step) { told.push_back(std::to_string(step)); }}};

    void Open(std::initializer_list<const char*> texts) {
        combo.Clear();
        for (const char* text : texts) {
            combo.Add(text);
        }
        combo.Put({10, 20, 90, 120}, 1);
        combo.Show(true);
    }
};

/// A box that reports at its hiding that the keyboard has left, as a window does.
class LeavingBox final : public TextBox {
  public:
    CEditDlg* editor = nullptr;
    std::string text;
    Rect place;
    int shown = 0;
    void Show(const Rect& at, const std::string& with, std::size_t) override {
        place = at;
        text = with;
        ++shown;
    }
    void Hide() override { editor->OnDone(); }
};

class CEditDlgTest : public ::testing::Test {
  protected:
    CEditDlgTest() { view.editor = &editor; }
    LeavingBox view;
    std::vector<std::string> taken;
    CEditDlg editor{view, 30, [this](const std::string& text) { taken.push_back(text); }};
};

}  // namespace

TEST_F(CVoyageListDlgTest, IsTwentyThreeHighForEachNameAndNeverHigherThanSix) {
    EXPECT_EQ(HeightWith(1), 23);
    EXPECT_EQ(HeightWith(2), 46);
    EXPECT_EQ(HeightWith(6), 138);
    EXPECT_EQ(HeightWith(7), 138);
    EXPECT_EQ(HeightWith(70), 138);
}

TEST_F(CVoyageListDlgTest, WithoutNamesItFailsAndStaysAsItWas) {
    EXPECT_EQ(list.ShowNames({}, kField), -1);
    EXPECT_FALSE(list.IsVisible());
    EXPECT_EQ(list.ShowNames({"A", "B"}, kField), 0);
    EXPECT_EQ(list.ShowNames({}, kField), -1);
    EXPECT_TRUE(list.IsVisible());
    EXPECT_THAT(view.texts, ElementsAre("A", "B"));
    EXPECT_EQ(view.place.left, 100);
    EXPECT_EQ(view.place.top, 50);
    EXPECT_EQ(view.place.right, 260);
}

TEST_F(CVoyageListDlgTest, AnotherListReplacesTheNames) {
    list.ShowNames({"A", "B"}, kField);
    list.ShowNames({"C"}, kField);
    list.OnChosen(1);
    EXPECT_THAT(taken, IsEmpty());
    list.OnChosen(0);
    EXPECT_THAT(taken, ElementsAre("C"));
}

TEST_F(CVoyageListDlgTest, AChoiceIsTakenOnceAndHidesIt) {
    list.OnChosen(0);
    list.ShowNames({"A", "B"}, kField);
    list.OnChosen(-1);
    list.OnChosen(2);
    EXPECT_TRUE(list.IsVisible());
    list.OnChosen(1);
    EXPECT_FALSE(view.open);
    list.OnChosen(1);
    EXPECT_THAT(taken, ElementsAre("B"));
}

TEST_F(CVoyageListDlgTest, OnlyAListOnShowTakesTheKeyboard) {
    EXPECT_FALSE(list.TakeKeyboard());
    list.ShowNames({"A", "B"}, kField);
    EXPECT_EQ(view.current, -1) << "the keyboard stays in the field";
    EXPECT_EQ(view.focused, -1);
    EXPECT_TRUE(list.TakeKeyboard());
    EXPECT_EQ(view.focused, 0);
}

TEST_F(CVoyageListDlgTest, OffersTheCategoriesOfTheServerByTheirBeginning) {
    PanelDesk desk;
    for (const char* name : {"Bulk", "Bunker", "bulk", "B", "Gone"}) {
        desk.AddCategory(name);
    }
    desk.MoveCategory("Gone", InRecycleBin);
    std::string user;
    ASSERT_EQ(desk.catalog.Connect(user), 0);
    ASSERT_GE(desk.catalog.Load(user), 0);
    std::vector<std::string> names;
    desk.catalog.ListCategories(names);
    EXPECT_THAT(NamesBeginning(names, ""), ElementsAre("Bulk", "Bunker", "bulk", "B"));
    EXPECT_THAT(NamesBeginning(names, "Bu"), ElementsAre("Bulk", "Bunker"));
    EXPECT_THAT(NamesBeginning(names, "Bulk carriers"), IsEmpty());
    list.ShowNames(NamesBeginning(names, "Bun"), kField);
    list.OnChosen(0);
    EXPECT_THAT(taken, ElementsAre("Bunker"));
}

TEST_F(CComboxDlgTest, UpToTwoRowsAreTracks) {
    Open({"GC", "RL"});
    combo.OnChosen(0);
    Open({"GC", "RL"});
    combo.OnChosen(1);
    Open({"only"});
    combo.OnChosen(0);
    EXPECT_THAT(told, ElementsAre("GC", "RL", "GC"));
}

TEST_F(CComboxDlgTest, ThreeRowsAndMoreAreSteps) {
    Open({"1", "2", "3"});
    combo.OnChosen(2);
    Open({"1", "2", "3", "4", "5"});
    combo.OnChosen(0);
    EXPECT_THAT(told, ElementsAre("3", "1"));
}

TEST_F(CComboxDlgTest, HidesBehindAChoiceAndPassesOverRowsThatAreNone) {
    Open({"GC", "RL"});
    EXPECT_EQ(view.current, 1);
    combo.OnChosen(2);
    combo.OnChosen(-1);
    EXPECT_TRUE(view.open);
    combo.OnChosen(1);
    EXPECT_FALSE(view.open);
    combo.OnChosen(1);
    EXPECT_THAT(told, ElementsAre("RL"));
}

TEST_F(CComboxDlgTest, IsAtLeastFortyThreeWideAndNeverEmpty) {
    combo.Show(true);
    EXPECT_FALSE(view.open);
    combo.Add("GC");
    combo.Put({10, 20, 30, 120}, -1);
    combo.Show(true);
    EXPECT_EQ(view.place, (Rect{10, 20, 53, 120}));
    combo.Put({10, 20, 90, 120}, -1);
    combo.Show(true);
    EXPECT_EQ(view.place.right, 90);
    combo.Show(false);
    EXPECT_FALSE(combo.IsVisible());
}

TEST_F(CEditDlgTest, HandsItsTextOverOnceAndHides) {
    editor.Put({1, 2, 3, 4});
    editor.SetText("12.5");
    EXPECT_EQ(view.shown, 0);
    editor.Show(true);
    EXPECT_EQ(view.text, "12.5");
    EXPECT_EQ(view.place, (Rect{1, 2, 3, 4}));
    editor.OnTyped("13");
    editor.OnDone();
    EXPECT_FALSE(editor.IsVisible());
    EXPECT_THAT(taken, ElementsAre("13")) << "hiding it takes the keyboard, which is no second commit";
    editor.OnDone();
    EXPECT_THAT(taken, ElementsAre("13"));
}

TEST_F(CEditDlgTest, HiddenByItsOwnerItHandsNothingOver) {
    editor.SetText("12.5");
    editor.Show(true);
    editor.SetText("14");
    EXPECT_EQ(view.text, "14") << "a text set while it is open is shown";
    editor.Show(false);
    EXPECT_THAT(taken, IsEmpty());
}

}  // namespace Tarvik::Seaplan
