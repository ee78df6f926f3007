// SPDX-License-Identifier: MIT
/// Ctrl+V over the port calls: the preview, and its answer.
#include <QClipboard>
#include <QLabel>
#include <QTimer>

#include "seaplan/views/tests/PortCallWindowFixture.h"

namespace Tarvik::Seaplan {

namespace {

class PasteWindowTest : public PortCallWindowTest {
  protected:
    /// Presses Ctrl+V, looks at the dialog, and presses one of its buttons.
    void Paste(const QString& text, const char* button) {
        QApplication::clipboard()->setText(text);
        PortCalls().activateWindow();
        Table().setFocus();
        Table().setCurrentIndex(Table().model()->index(0, ColPort));
        QTimer::singleShot(0, &PortCalls(), [this, button] {
            QWidget* dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            const auto* table = Find<PanelTable>(*dialog, "pasteTable");
            for (int row = 0; row < table->model()->rowCount(); ++row) {
                shown_.append(table->model()->index(row, 1).data().toString());
            }
            words_ = Find<QLabel>(*dialog, "pasteWords")->text();
            Press(*dialog, button);
        });
        QTest::keyClick(&Table(), Qt::Key_V, Qt::ControlModifier);
    }
    QStringList shown_;
    QString words_;
};

TEST_F(PasteWindowTest, RowsAreShownAndTakenOnAYes) {
    OpenPortCalls("North Sea");
    Paste(QStringLiteral("ROTTERDAM\n<b>HAMBURG\n"), "pasteTakeButton");
    EXPECT_EQ(shown_, QStringList({"ROTTERDAM", "<b>HAMBURG"}));
    EXPECT_FALSE(words_.isEmpty());
    EXPECT_EQ(Cell(0, ColPort), "ROTTERDAM");
    EXPECT_EQ(Cell(1, ColPort), "<b>HAMBURG");
    PortCalls().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&PortCalls()));
    QTest::keyClick(&Table(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Cell(0, ColPort), "");
}

TEST_F(PasteWindowTest, NothingIsTakenOnANo) {
    OpenPortCalls("North Sea");
    Paste(QStringLiteral("ROTTERDAM\nHAMBURG\n"), "pasteLeaveButton");
    EXPECT_EQ(shown_.size(), 2);
    EXPECT_EQ(Cell(0, ColPort), "");
}

}  // namespace

}  // namespace Tarvik::Seaplan
