// SPDX-License-Identifier: MIT
/// The strip of questions, the menu of further commands and the comparison of a route on the screen.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>

#include "seaplan/views/table/RowsDialog.h"
#include "seaplan/views/tests/PortCallWindowFixture.h"

namespace Tarvik::Seaplan {

namespace {

class WhatIfWindowTest : public PortCallWindowTest {
  protected:
    void SetUp() override {
        OpenPortCalls("Far East 12");
        PortCalls().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&PortCalls()));
    }
    QWidget& Strip() { return *Find<QWidget>(PortCalls(), "whatIfStrip"); }
    QLineEdit& Arrival() { return *Find<QLineEdit>(PortCalls(), "whatIfArrival"); }
    QComboBox& Ports() { return *Find<QComboBox>(PortCalls(), "whatIfPort"); }
    QString Answer(const char* name) { return Find<QLabel>(PortCalls(), name)->text(); }
    bool CanTake(const char* name) { return Find<QAbstractButton>(PortCalls(), name)->isEnabled(); }
    QMenu& Menu() { return *Table().findChildren<QMenu*>("portCallMenu").constLast(); }
    QAction* Entry(const char* key) {
        for (QAction* action : Menu().actions()) {
            if (action->text().endsWith(QString::fromLatin1("\t") + QString::fromLatin1(key))) {
                return action;
            }
        }
        return nullptr;
    }
};

TEST_F(WhatIfWindowTest, TheButtonOpensAndClosesTheStrip) {
    EXPECT_FALSE(Strip().isVisible());
    Button("whatIfButton");
    ASSERT_TRUE(Strip().isVisible());
    EXPECT_EQ(Ports().currentText(), Ports().itemText(Ports().count() - 1));
    EXPECT_EQ(Arrival().text(), Cell(Ports().count(), ColEta));
    EXPECT_FALSE(Answer("whatIfFaster").isEmpty());
    Button("whatIfButton");
    EXPECT_FALSE(Strip().isVisible());
}

TEST_F(WhatIfWindowTest, AnAnswerIsTypedForAndTaken) {
    Button("whatIfButton");
    const QString speed = Cell(1, ColSpeed);
    EXPECT_FALSE(CanTake("whatIfDepartureTake"));
    const QString now = Arrival().text();
    Arrival().setFocus();
    Arrival().selectAll();
    const auto day = QDateTime::fromString(now, "yyyy-MM-dd HH:mm:ss").addDays(2);
    QTest::keyClicks(&Arrival(), day.toString("yyyy-MM-dd HH:mm"));
    EXPECT_EQ(Arrival().text(), day.toString("yyyy-MM-dd HH:mm")) << "what is typed stays as it is";
    ASSERT_TRUE(CanTake("whatIfSpeedTake"));
    EXPECT_EQ(Cell(1, ColSpeed), speed);
    Button("whatIfSpeedTake");
    EXPECT_NE(Cell(1, ColSpeed), speed);
    EXPECT_EQ(Cell(1, ColSpeed), Cell(2, ColSpeed));
    QTest::keyClick(&Table(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Cell(1, ColSpeed), speed);
}

TEST_F(WhatIfWindowTest, AnotherPortBringsItsArrival) {
    Button("whatIfButton");
    Ports().setCurrentIndex(0);
    emit Ports().activated(0);
    EXPECT_EQ(Arrival().text(), Cell(1, ColEta));
}

TEST_F(WhatIfWindowTest, TheMenuOfARowWorksOnIt) {
    const QString third = Cell(2, ColPort);
    const QRect cell = Table().visualRect(Table().model()->index(1, ColSpeed));
    emit Table().customContextMenuRequested(cell.center());
    EXPECT_EQ(Table().currentIndex().row(), 1);
    ASSERT_NE(Entry("Delete"), nullptr);
    Entry("Delete")->trigger();
    EXPECT_EQ(Cell(1, ColPort), third);
    Menu().close();
}

TEST_F(WhatIfWindowTest, TheMenuButtonAsksTheRouteAnewAndComparesIt) {
    const QString miles = Cell(1, ColDistance);
    QString words;
    int rows = 0;
    QTimer::singleShot(0, &PortCalls(), [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        rows = Find<PanelTable>(*dialog, "anewTable")->model()->rowCount();
        words = Find<QLabel>(*dialog, "anewWords")->text();
        Press(*dialog, "anewLeaveButton");
    });
    Table().setFocus();
    QTest::keyClick(&Table(), Qt::Key_R, Qt::ControlModifier);
    EXPECT_GT(rows, 1);
    EXPECT_FALSE(words.isEmpty());
    EXPECT_EQ(Cell(1, ColDistance), miles);
}

TEST_F(WhatIfWindowTest, AWayIsChosenByTheKeyboardOrNone) {
    const RowsPreview preview{RowsPreview::Command::Ways,
                              {"Instead of", "By", "More", "Hours", "ETA"},
                              {{{""}, {"As it is"}, {"0.00"}, {"0.0"}, {"a"}},
                               {{"Suez Canal"}, {"Cape"}, {"+3500.00"}, {"+250.0"}, {"b"}}},
                              "words"};
    const auto choose = [&](const std::vector<Qt::Key>& keys) {
        QTimer::singleShot(0, &PortCalls(), [&] {
            QWidget* dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            EXPECT_EQ(dialog->objectName(), "waysDialog");
            auto* table = Find<PanelTable>(*dialog, "waysTable");
            EXPECT_EQ(dialog->focusWidget(), table);
            EXPECT_NE(table->model()->index(1, 2).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight, 0);
            for (const Qt::Key key : keys) {
                QTest::keyClick(table, key);
            }
        });
        return ChooseRowOver(PortCalls(), preview);
    };
    EXPECT_EQ(choose({Qt::Key_Down, Qt::Key_Return}), 1);
    EXPECT_EQ(choose({Qt::Key_Return}), 0) << "the route as it is stands in front";
    EXPECT_EQ(choose({Qt::Key_Down, Qt::Key_Escape}), std::nullopt);
}

}  // namespace

}  // namespace Tarvik::Seaplan
