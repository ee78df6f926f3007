// SPDX-License-Identifier: MIT
/// Ctrl+V over the port calls: the preview, and its answer.
#include <QClipboard>
#include <QComboBox>
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
            if (correct_) {
                correct_(*dialog);
            }
            Press(*dialog, button);
        });
        QTest::keyClick(&Table(), Qt::Key_V, Qt::ControlModifier);
    }
    std::function<void(QWidget&)> correct_;  ///< what the person does before the answer
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

TEST_F(PasteWindowTest, AColumnIsTakenForWhatThePersonSays) {
    OpenPortCalls("North Sea");
    correct_ = [this](QWidget& dialog) {
        auto* columns = Find<QComboBox>(dialog, "pasteColumn");
        auto* kinds = Find<QComboBox>(dialog, "pasteKind");
        EXPECT_FALSE(columns->accessibleName().isEmpty());
        EXPECT_FALSE(kinds->accessibleName().isEmpty());
        ASSERT_EQ(columns->count(), 3);
        EXPECT_EQ(columns->currentText(), "1: Port");
        columns->setCurrentIndex(1);
        EXPECT_EQ(kinds->currentText(), "Speed");
        QTest::keyClick(kinds, Qt::Key_Home);
        EXPECT_EQ(columns->currentText(), "2: not taken");
        columns->setCurrentIndex(2);
        kinds->setCurrentIndex(3);
        EXPECT_EQ(columns->currentText(), "3: Speed");
        EXPECT_EQ(Find<PanelTable>(dialog, "pasteTable")->model()->index(1, 3).data().toString(), "15.00");
    };
    Paste(QStringLiteral("ROTTERDAM\t6\t14\nHAMBURG\t7\t15\n"), "pasteTakeButton");
    EXPECT_EQ(Cell(1, ColPort), "HAMBURG");
    EXPECT_EQ(Cell(1, ColSpeed), "15.00");
}

}  // namespace

}  // namespace Tarvik::Seaplan
