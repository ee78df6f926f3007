// SPDX-License-Identifier: MIT
/// What reaches the book's window from outside: zones, languages, passed time, presses on its buttons.
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/skin/WindowMessages.h>

#include "seaplan/panels/book/CPosBookDlg.h"
#include "seaplan/panels/portcall/PortCallSheet.h"
#include "seaplan/panels/texts/BookTexts.h"
#include "seaplan/views/book/BookLines.h"
#include "seaplan/views/portcall/PortCallWindow.h"
#include "seaplan/views/tests/PositionBookFixture.h"
#include "testsupport/ManualClock.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

namespace {

class PositionBookEventsTest : public PositionBookFixture {
  protected:
    static void SwitchZone(const std::string& zone) {
        Interface::Raise(Interface::Bus::SwitchTimeZone, &zone);
        QApplication::processEvents();
    }
};

/// A main view that remembers the numbers of what is posted to it.
class MainView final : public QWidget {
  public:
    std::vector<int> heard;

  protected:
    bool event(QEvent* event) override {
        if (event->type() == static_cast<QEvent::Type>(Skin::WindowMessage::kPositionBookClosed)) {
            heard.push_back(event->type());
        }
        return QWidget::event(event);
    }
};

}  // namespace

TEST_F(PositionBookEventsTest, AnotherZoneRewritesTheTimesAndTheHeadNamesItAlone) {
    OpenBook();
    const QString before = Cell(0, BookEta);
    const QString name = Cell(1, BookName);
    SwitchZone("UTC");
    EXPECT_NE(Cell(0, BookEta), before);
    EXPECT_EQ(Cell(1, BookName), name);
    EXPECT_EQ(TextOf("bookZone"), "Time zone: UTC") << "the port calls were read anew in it";
    EXPECT_EQ(Find<QLabel>(PortCalls(), "zoneLabel")->text(), "Time zone: UTC");
    EXPECT_FALSE(Changed());
}

TEST_F(PositionBookEventsTest, TheHeadNamesTheZoneOfPortCallsThatStayAsTheyAre) {
    OpenBook();
    BookSheet sheet = views.Book().Sheet();
    sheet.zone = "UTC";
    Book().ShowSheet(sheet);
    EXPECT_EQ(TextOf("bookZone"), "Time zone: UTC (port calls: China Standard Time)");
}

TEST_F(PositionBookEventsTest, ABookIsSavedBehindAChangeOfZone) {
    OpenBook();
    ClickCell(1, BookSpeed);
    Type("15");
    SwitchZone("UTC");
    EXPECT_TRUE(Changed());
    Press(Book(), "saveButton");
    EXPECT_TRUE(messages.messages.empty());
    EXPECT_FALSE(Changed());
    EXPECT_EQ(desk.Count(Ask::kSaveBook), 1);
    const QString arrival = Cell(4, BookEta);
    Press(Book(), "closeButton");
    Press(PortCalls(), "positionBookButton");
    EXPECT_EQ(Cell(1, BookSpeed), "15.00");
    EXPECT_EQ(Cell(4, BookEta), arrival) << "what was saved is what is read again";
}

TEST_F(PositionBookEventsTest, AnotherLanguageReachesTitleHeadsTipsAndButtons) {
    OpenBook();
    ClickCell(1, BookSpeed);
    Type("15");
    EXPECT_EQ(Find<QAbstractButton>(Book(), "undoButton")->toolTip(), "Undo speed of row 2 (Ctrl+Z)");
    const FileTexts chinese(std::string(SEAPLAN_LANG_DIR) + "/seaplan.zh-CN.json");
    Interface::Raise(Interface::Bus::SwitchLanguage);
    EXPECT_EQ(Book().windowTitle(), "船位簿");
    const char* heads[] = {"IDS_WP_COL_SEQ",   "IDS_WP_COL_NAME",     "IDS_WP_COL_LAT", "IDS_WP_COL_LON",
                           "IDS_WP_COL_TRACK", "IDS_WP_COL_INTERVAL", "IDS_WP_COL_SPD", "IDS_WP_COL_COURSE",
                           "IDS_WP_COL_ETA",   "IDS_WP_COL_ETD"};
    for (int column = 0; column < 10; ++column) {
        const QString head = Table().model()->headerData(column, Qt::Horizontal).toString();
        EXPECT_TRUE(head.startsWith(QString::fromStdString(TextOfKey(heads[column])))) << column;
        EXPECT_FALSE(head.isEmpty()) << column;
    }
    for (const auto& [name, key] : {std::pair("insertButton", TextIds::IDC_WP_BT_DOWN),
                                    std::pair("deleteButton", TextIds::IDC_WP_BT_DELETE),
                                    std::pair("cancelButton", TextIds::IDC_WP_BT_CANCEL),
                                    std::pair("helpButton", TextIds::IDC_WP_BT_HELP),
                                    std::pair("closeButton", TextIds::IDC_WP_BT_CLOSE)}) {
        EXPECT_TRUE(Find<QAbstractButton>(Book(), name)->toolTip().startsWith(ViewText(key))) << name;
    }
    EXPECT_EQ(Find<QAbstractButton>(Book(), "undoButton")->accessibleName(), "撤销：第 2 行的航速");
    EXPECT_TRUE(Changed());
}

TEST_F(PositionBookEventsTest, APassedRowLooksPassedButForItsNumberAndTellsWhy) {
    OpenBook();
    const auto isDim = [this](int row, int column) {
        return BookLines(views.Book().Sheet()).CellAt(row, column).ink == Skin::Role::Secondary;
    };
    const auto arrival = views.Book().Sheet().data.ports[1].eta;
    EXPECT_FALSE(isDim(0, BookName));
    desk.clock.AdvanceSeconds(arrival.to_gmt_timer() - Util::_datetime_t::gmt_now().to_gmt_timer() + 60);
    views.Book().Recompute();
    for (int column = BookName; column <= BookEtd; ++column) {
        EXPECT_TRUE(isDim(0, column)) << column;
    }
    EXPECT_FALSE(isDim(0, BookOrder));
    EXPECT_FALSE(isDim(4, BookName)) << "the last port lies ahead";
    EXPECT_TRUE(Table()
                    .model()
                    ->index(0, BookName)
                    .data(Qt::ToolTipRole)
                    .toString()
                    .contains(ViewText(TextIds::IDS_VIEW_PASSED)));
    ClickCell(0, BookEtd);
    EXPECT_FALSE(Calendar().isVisible());
    const int lines = views.Book().Sheet().RowCount();
    QTest::keyClick(&Table(), Qt::Key_Insert);
    EXPECT_EQ(views.Book().Sheet().RowCount(), lines);
    EXPECT_FALSE(Changed());
}

TEST_F(PositionBookEventsTest, ABadTextIsToldOnceWhereAButtonIsPressed) {
    OpenBook();
    ClickCell(1, BookSpeed);
    Type("15");
    ClickCell(4, BookSpeed);
    QTest::keyClicks(&Editor(), "x");
    Press(Book(), "saveButton");
    EXPECT_EQ(messages.messages.size(), 1U) << "in the press, and not again by the focus";
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_EQ(desk.Count(Ask::kSaveBook), 1) << "the press goes on to its button: what was taken is saved";
    EXPECT_FALSE(Changed());
    ClickCell(4, BookSpeed);
    Type("14");
    ClickCell(1, BookSpeed);
    QTest::keyClicks(&Editor(), "x");
    Press(Book(), "cancelButton");
    EXPECT_EQ(messages.messages.size(), 2U);
    EXPECT_FALSE(Changed());
    EXPECT_EQ(Cell(1, BookSpeed), "15.00");
}

TEST_F(PositionBookEventsTest, TheMainViewHearsThatTheBookHasClosed) {
    MainView main;
    BookWindow window(&main);
    window.TellClosed();
    EXPECT_TRUE(main.heard.empty()) << "it is posted";
    QApplication::processEvents();
    EXPECT_EQ(main.heard, std::vector<int>{1126});
}

}  // namespace Tarvik::Seaplan
