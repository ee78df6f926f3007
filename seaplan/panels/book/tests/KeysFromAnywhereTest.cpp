// SPDX-License-Identifier: MIT
/// Ctrl+S and F9 while the keyboard is elsewhere than in the panel that they are for.
#include "seaplan/panels/book/tests/BookFixture.h"
#include "seaplan/panels/mainview/KeysFromAnywhere.h"

namespace Tarvik::Seaplan {

namespace {

constexpr KeyPress kSave{Key::S, false, true};
constexpr KeyPress kCalculate{Key::F9};

using KeysFromAnywhereTest = BookFixture;

TEST_F(KeysFromAnywhereTest, OtherKeysMeanNothing) {
    Open(kept);
    for (const KeyPress& press : {KeyPress{Key::S}, KeyPress{Key::F9, false, true},
                                  KeyPress{Key::D, false, true}, KeyPress{Key::S, false, false, true}}) {
        EXPECT_FALSE(OnKeyFromAnywhere(press, {&panel, nullptr}));
    }
    EXPECT_EQ(statusWord, "");
}

TEST_F(KeysFromAnywhereTest, WithNothingOpenTheStatusLineSaysWhatToDo) {
    EXPECT_TRUE(OnKeyFromAnywhere(kSave, {}));
    EXPECT_EQ(statusWord, "IDS_VIEW_NOTHINGOPEN");
}

TEST_F(KeysFromAnywhereTest, PortCallsAreCalculatedAndSavedWithWhatIsBeingTyped) {
    SaveOther([](PortCallRows&) {});
    Open(kept);
    EXPECT_TRUE(OnKeyFromAnywhere(kSave, {&panel, nullptr}));
    EXPECT_EQ(statusWord, "IDS_VIEW_NOCHANGES");
    EXPECT_EQ(desk.Count(Ask::kSavePortCalls), 0);
    panel.Cells().OnCellClicked(1, ColSpeed);
    Retype(CellEditor::Speed, "13");
    EXPECT_TRUE(OnKeyFromAnywhere(kSave, {&panel, nullptr}));
    EXPECT_EQ(SavedRows(kept)[1].psp, 13.0F);
    panel.Cells().OnCellClicked(1, ColSpeed);
    Retype(CellEditor::Speed, "14");
    EXPECT_TRUE(OnKeyFromAnywhere(kCalculate, {&panel, nullptr}));
    EXPECT_EQ(PortCallFixture::Cell(1, ColSpeed), "14.00");
    EXPECT_EQ(desk.Count(Ask::kSavePortCalls), 2) << "a saved voyage is saved by its calculation";
}

TEST_F(KeysFromAnywhereTest, APortThatIsBeingTypedCountsForTheCalculation) {
    Open(fresh);
    PortCallFixture::Type(0, ColPort, "ROTTERDAM");
    panel.Cells().OnCellClicked(1, ColPort);
    Retype(CellEditor::Port, "HAMBURG");
    EXPECT_TRUE(OnKeyFromAnywhere(kCalculate, {&panel, nullptr}));
    EXPECT_EQ(statusWord, "");
    EXPECT_EQ(desk.Count(Ask::kRoute), 1);
}

TEST_F(KeysFromAnywhereTest, ATableWithoutTwoPortsTellsWhatItNeeds) {
    Open(fresh);
    EXPECT_TRUE(OnKeyFromAnywhere(kCalculate, {&panel, nullptr}));
    EXPECT_EQ(statusWord, "IDS_VIEW_NEEDTWOPORTS");
}

TEST_F(KeysFromAnywhereTest, TheBookInFrontIsSavedAndThePortCallsWait) {
    OpenBook();
    EXPECT_TRUE(OnKeyFromAnywhere(kSave, {&panel, &book}));
    EXPECT_EQ(statusWord, "IDS_VIEW_NOCHANGES");
    Click(Hamburg, BookSpeed);
    book.Cells().OnTyped("12");
    EXPECT_TRUE(OnKeyFromAnywhere(kSave, {&panel, &book}));
    EXPECT_EQ(desk.Count(Ask::kSaveBook), 1);
    EXPECT_FALSE(Changed());
    EXPECT_TRUE(OnKeyFromAnywhere(kCalculate, {&panel, &book}));
    EXPECT_EQ(statusWord, "IDS_VIEW_BOOKWAITS");
    Click(Hamburg, BookSpeed);
    book.Cells().OnTyped("never");
    EXPECT_TRUE(OnKeyFromAnywhere(kSave, {&panel, &book}));
    EXPECT_EQ(LastMessage(), "IDS_WP_NUM_ERR");
    EXPECT_EQ(desk.Count(Ask::kSaveBook), 1) << "nothing is saved that was refused";
}

}  // namespace

}  // namespace Tarvik::Seaplan
