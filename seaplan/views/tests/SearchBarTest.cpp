// SPDX-License-Identifier: MIT
/// The search line of the voyage panel, driven as a person does it.
#include <QRadioButton>

#include "seaplan/panels/mainview/SeaplanViewDlg.h"
#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "seaplan/views/tests/ViewsFixture.h"

namespace Tarvik::Seaplan {

namespace {

class SearchBarTest : public ViewsFixture {
  protected:
    SearchBarTest() {
        Toggle();
        desk.ForgetRecords();
    }
    QLineEdit* Field() { return Find<QLineEdit>(Panel(), "searchField"); }
    QString Report() { return Find<QLabel>(Panel(), "searchReport")->text(); }
    void Begin(const char* text = "") {
        QTest::keyClick(&Panel(), Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(Field(), text);
    }
    /// Lets the search read what it asks for.
    void ReadAll() {
        ASSERT_TRUE(QTest::qWaitFor([this] { return views.Panel().Search().State().unread == 0; }));
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(Field(), key, modifiers); }
    bool OnScreen(const std::string& text) {
        for (const SubItem& part : Tree().PartsOf(RowOf(text))) {
            if (part.name == "name") {
                return part.rect.height() > 0 && Tree().viewport()->rect().intersects(part.rect);
            }
        }
        return false;
    }
};

}  // namespace

TEST_F(SearchBarTest, CtrlFShowsTheLineAndEscapeEndsIt) {
    EXPECT_FALSE(Field()->isVisible());
    Begin("baltic");
    EXPECT_TRUE(Field()->isVisible());
    EXPECT_EQ(Rows().GetRowFinding(RowOf("Bulk")), RowFinding::Aside);
    EXPECT_TRUE(Rows().IsItemExpanded(RowOf("Container 2024")));
    EXPECT_TRUE(OnScreen("Baltic feeder"));
    Key(Qt::Key_Escape);
    EXPECT_FALSE(Field()->isVisible());
    EXPECT_FALSE(Rows().IsItemExpanded(RowOf("Container 2024")));
    EXPECT_TRUE(OnScreen("Bulk"));
    EXPECT_TRUE(Tree().hasFocus());
}

TEST_F(SearchBarTest, EscapeInTheTreeEndsItToo) {
    Begin("baltic");
    Key(Qt::Key_Down);
    EXPECT_TRUE(Tree().hasFocus());
    QTest::keyClick(&Tree(), Qt::Key_Escape);
    EXPECT_FALSE(Field()->isVisible());
}

TEST_F(SearchBarTest, EnterGoesOnAndTheLineTellsWhere) {
    Begin("rotterdam");
    ReadAll();
    EXPECT_EQ(Report(), "2 found");
    Key(Qt::Key_Return);
    EXPECT_EQ(Report(), "1 of 2");
    EXPECT_EQ(Rows().Selected(), RowOf("Far East 12"));
    Key(Qt::Key_Return);
    EXPECT_EQ(Rows().Selected(), RowOf("Ore to Rotterdam"));
    Key(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(Report(), "1 of 2");
    EXPECT_TRUE(Field()->hasFocus()) << "the next Enter goes on";
    QTest::keyClicks(Field(), "x");
    EXPECT_EQ(Report(), "Nothing found");
}

TEST_F(SearchBarTest, TheReadyQuestionsStandInAPopup) {
    Begin();
    Press(Panel(), "searchFilter");
    auto* withoutRoute = Find<QRadioButton>(Panel(), "findWithoutRoute");
    ASSERT_NE(withoutRoute, nullptr);
    EXPECT_TRUE(Find<QRadioButton>(Panel(), "findAll")->isChecked());
    withoutRoute->click();
    ReadAll();
    EXPECT_FALSE(withoutRoute->isVisible()) << "a choice closes the popup";
    EXPECT_EQ(Report(), "Not saved with a route · 2 found");
    EXPECT_EQ(Rows().GetRowFinding(RowOf("North Sea")), RowFinding::Found);
    EXPECT_EQ(Rows().GetRowFinding(RowOf("Far East 12")), RowFinding::Aside);
    Press(Panel(), "searchFilter");
    EXPECT_TRUE(withoutRoute->isChecked());
}

TEST_F(SearchBarTest, ClosingThePanelEndsTheSearch) {
    Begin("baltic");
    Toggle();
    Toggle();
    EXPECT_FALSE(Field()->isVisible());
    EXPECT_EQ(Rows().GetRowFinding(RowOf("Bulk")), RowFinding::None);
}

}  // namespace Tarvik::Seaplan
