// SPDX-License-Identifier: MIT
#include <QContextMenuEvent>
#include <QLabel>
#include <algorithm>

#include "seaplan/panels/texts/TreeTexts.h"
#include "seaplan/panels/tree/ItemNames.h"
#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "seaplan/views/tests/ViewsFixture.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

namespace {

class TreeLineTest : public ViewsFixture {
  protected:
    QLabel& Line() { return *Find<QLabel>(Panel(), "treeLine"); }
};

}  // namespace

TEST_F(TreeLineTest, StandsInTheFreeStripBelowTheTreeAndGoesWhenThereIsNothingToSay) {
    Toggle();
    EXPECT_FALSE(Line().isVisible());
    Toggle();
    OpenVoyage("North Sea");
    QTest::keyClick(&Tree(), Qt::Key_Delete);
    ASSERT_TRUE(Line().isVisible());
    EXPECT_TRUE(Line().text().contains("North Sea"));
    EXPECT_EQ(Line().geometry().bottom(), Panel().height() - 2) << "above the border";
    EXPECT_EQ(Tree().size(), QSize(310 - 8 - 10, 460 - 30 - 45)) << "the tree keeps its place";
    const QFontMetrics metrics(Line().font());
    EXPECT_LE(metrics.boundingRect(Line().rect(), Qt::TextWordWrap, Line().text()).height(), Line().height())
        << "the whole line can be read";
}

TEST_F(TreeLineTest, CtrlZInTheTreeTakesADeletionBack) {
    OpenVoyage("North Sea");
    QTest::keyClick(&Tree(), Qt::Key_Delete);
    ASSERT_EQ(RowOf("North Sea"), kNoRow);
    QTest::keyClick(&Tree(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(RowOf("North Sea"), kNoRow);
    EXPECT_EQ(desk.Count(Ask::kRecoverVoyage), 1);
}

TEST_F(TreeLineTest, ADeleteKeyThatIsHeldTakesOneRow) {
    OpenVoyage("North Sea");
    for (const bool held : {false, true, true}) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, QString(), held);
        QApplication::sendEvent(&Tree(), &press);
    }
    EXPECT_EQ(desk.Count(Ask::kDeleteVoyage), 1);
    EXPECT_EQ(RowOf("North Sea"), kNoRow);
    QTest::keyClick(&Tree(), Qt::Key_Delete);
    EXPECT_EQ(desk.Count(Ask::kDeleteVoyage), 2) << "pressed anew it takes the row in its place";
}

TEST_F(TreeLineTest, CtrlZInABoxOfTheTreeIsTheBoxes) {
    OpenVoyage("North Sea");
    ClickPart("North Sea", Item::kRenameVoyage);
    auto* editor = Find<QLineEdit>(Panel(), "renameEditor");
    QTest::keyClicks(editor, "Skagerrak");
    QTest::keyClick(editor, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(editor->isVisible());
    EXPECT_EQ(desk.Count(Ask::kRenameVoyage), 0);
}

TEST_F(TreeLineTest, TheMenuOfAVoyageDuplicatesItAndOffersTheWayBack) {
    OpenVoyage("North Sea");
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, Tree().mapToGlobal(QPoint()));
    QApplication::sendEvent(&Tree(), &event);
    auto* menu = Tree().findChild<QMenu*>("rowMenu");
    ASSERT_NE(menu, nullptr);
    const auto action = [menu](TextId id) -> QAction* {
        const auto actions = menu->actions();
        const auto found = std::find_if(actions.begin(), actions.end(),
                                        [id](const QAction* each) { return each->text() == ViewText(id); });
        return found == actions.end() ? nullptr : *found;
    };
    EXPECT_NE(action(TextIds::IDS_VIEW_TREEUNDO), nullptr);
    ASSERT_NE(action(TextIds::IDS_VIEW_DUPLICATE), nullptr);
    action(TextIds::IDS_VIEW_DUPLICATE)->trigger();
    EXPECT_NE(RowOf("North Sea (2)"), kNoRow);
}

}  // namespace Tarvik::Seaplan
