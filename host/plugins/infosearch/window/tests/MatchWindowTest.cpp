// SPDX-License-Identifier: MIT
// The match window as a port editor asks for it: a window with a field, told by events.
#include <QLineEdit>
#include <QTest>
#include <QTreeWidget>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/SiblingContract.h>
#include <tarvik/skin/WindowMessages.h>

#include "host/plugins/infosearch/window/SearchDesk.h"
#include "testsupport/DataFolder.h"
#include "testsupport/PluginTexts.h"

namespace Tarvik::InfoSearch {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr int kFieldTop = 30;

/// Notes what it is told.
class Editor : public QWidget {
  public:
    Editor() {
        resize(500, 400);
        field->setGeometry(10, kFieldTop, 150, 20);
    }
    QLineEdit* field = new QLineEdit(this);
    std::vector<std::string> told;

  protected:
    bool event(QEvent* event) override {
        if (event->type() == Skin::WindowMessage::kMatchMoved) {
            const auto* moved = static_cast<Skin::MatchMovedEvent*>(event);
            told.push_back(moved->name.toStdString() + (field->hasFocus() ? " unheard" : ""));
            return true;
        }
        if (event->type() == Skin::WindowMessage::kMatchChosen) {
            told.emplace_back("chosen");
            return true;
        }
        return QWidget::event(event);
    }
};

class MatchWindowTest : public testing::Test {
  protected:
    MatchWindowTest() {
        folder.WritePoints({{"40001", "Antwerp", "4", "51"},
                            {"40002", "Rotterdam", "4", "52"},
                            {"40003", "Rotorua", "176", "-38"},
                            {"40004", "Rostock", "12", "54"}});
        editor.show();
        editor.activateWindow();
        editor.field->setFocus();
        QApplication::processEvents();
    }
    /// Asks as the port editor does: shown 20 pixels below the field's top.
    QTreeWidget* Ask(const std::string& text) {
        const Interface::MatchPortQuery query{editor.field, &editor, text, false};
        void* answer = Interface::Call(Interface::Bus::MatchPorts, &query);
        auto* window = static_cast<QWidget*>(answer);
        if (window != nullptr) {
            window->move(editor.field->mapTo(window->parentWidget(), QPoint(0, 20)));
            window->show();
        }
        return dynamic_cast<QTreeWidget*>(window);
    }
    static std::vector<std::string> Names(const QTreeWidget& window) {
        std::vector<std::string> names;
        for (int i = 0; i < window.topLevelItemCount(); ++i) {
            names.push_back(window.topLevelItem(i)->text(0).toStdString());
        }
        return names;
    }

    TestSupport::PluginTexts texts{LANGUAGES "/infosearch.en-US.json"};
    TestSupport::DataFolder folder;
    Editor editor;
    SearchDesk desk{folder.PointsFile().string()};
};

TEST_F(MatchWindowTest, ShowsThePortsThatFitBelowTheField) {
    QTreeWidget* window = Ask("ro");
    ASSERT_NE(window, nullptr);
    EXPECT_THAT(Names(*window), ElementsAre("Rostock", "Rotorua", "Rotterdam"));
    EXPECT_EQ(window->pos(), QPoint(10, kFieldTop + 20));
    EXPECT_EQ(window->height(), 3 * 23 + 2 * window->frameWidth());
    EXPECT_EQ(window->accessibleName(), "Matching ports");
    EXPECT_TRUE(editor.field->hasFocus());
    EXPECT_THAT(editor.told, IsEmpty());
}

TEST_F(MatchWindowTest, ArrowsGoInAndTellEachNameEnterChooses) {
    QTreeWidget* window = Ask("ro");
    QTest::keyClick(editor.field, Qt::Key_Down);
    EXPECT_TRUE(window->hasFocus());
    QTest::keyClick(window, Qt::Key_Down);
    QTest::keyClick(window, Qt::Key_Return);
    EXPECT_THAT(editor.told, ElementsAre("Rostock", "Rotorua", "chosen"));
    EXPECT_TRUE(editor.field->hasFocus());
}

TEST_F(MatchWindowTest, UpFromTheFirstPortLeadsBackAndFromTheFieldToTheLast) {
    QTreeWidget* window = Ask("ro");
    QTest::keyClick(editor.field, Qt::Key_Up);
    EXPECT_THAT(editor.told, ElementsAre("Rotterdam"));
    QTest::keyClick(window, Qt::Key_PageUp);
    QTest::keyClick(window, Qt::Key_Up);
    EXPECT_TRUE(editor.field->hasFocus());
}

TEST_F(MatchWindowTest, OtherKeysGoOnToTheField) {
    QTreeWidget* window = Ask("ro");
    QTest::keyClick(editor.field, Qt::Key_Down);
    QTest::keyClick(window, Qt::Key_T);
    EXPECT_TRUE(editor.field->hasFocus());
    EXPECT_EQ(editor.field->text(), "t");
}

TEST_F(MatchWindowTest, AClickTellsTheNameAndChooses) {
    QTreeWidget* window = Ask("ro");
    QTest::mouseClick(window->viewport(), Qt::LeftButton, {},
                      window->visualItemRect(window->topLevelItem(2)).center());
    EXPECT_THAT(editor.told, ElementsAre("Rotterdam", "chosen"));
}

TEST(MatchRows, TellTheOtherNameThatFitsAndInChineseAlwaysTheChineseOne) {
    const Port busan{"Busan", "釜山", "KRPUS", 0, 0, {"Pusan"}};
    Editor editor;
    MatchWindow window(&editor);
    {
        const TestSupport::PluginTexts english(LANGUAGES "/infosearch.en-US.json");
        window.Fill({{&busan, Ports::Fit::Whole, "Pusan"}, {&busan, Ports::Fit::Whole, ""}});
        EXPECT_EQ(window.topLevelItem(0)->text(0), "Busan (Pusan)");
        EXPECT_EQ(window.topLevelItem(1)->text(0), "Busan");
        EXPECT_EQ(window.topLevelItem(1)->text(1), "South Korea");
        EXPECT_EQ(window.topLevelItem(1)->text(2), "KRPUS");
    }
    const TestSupport::PluginTexts chinese(LANGUAGES "/infosearch.zh-TW.json");
    window.Fill({{&busan, Ports::Fit::Whole, ""}});
    EXPECT_EQ(window.topLevelItem(0)->text(0), "Busan (釜山)");
    EXPECT_EQ(window.topLevelItem(0)->text(1), "南韓");
}

TEST_F(MatchWindowTest, NothingThatFitsHidesIt) {
    QTreeWidget* window = Ask("ro");
    EXPECT_EQ(Ask(""), nullptr);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(Ask("qqqq"), nullptr);
    EXPECT_EQ(Ask("Antwerp"), nullptr) << "nothing to choose where the name stands already";
    QTest::keyClick(editor.field, Qt::Key_Down);
    EXPECT_THAT(editor.told, IsEmpty());
}

TEST_F(MatchWindowTest, StandsAboveTheFieldWhereThereIsNoRoomBelow) {
    editor.field->move(10, 370);
    QTreeWidget* window = Ask("ro");
    EXPECT_EQ(window->geometry().bottom() + 1, 370);
}

TEST_F(MatchWindowTest, OutlivesTheEditorsWindow) {
    {
        Editor other;
        other.show();
        const Interface::MatchPortQuery query{other.field, &other, "ro", false};
        EXPECT_NE(Interface::Call(Interface::Bus::MatchPorts, &query), nullptr);
    }
    EXPECT_NE(Ask("ro"), nullptr);
}

TEST_F(MatchWindowTest, AMissingTableFindsNothing) {
    std::filesystem::remove(folder.PointsFile());
    EXPECT_EQ(Ask("ro"), nullptr);
}

}  // namespace
}  // namespace Tarvik::InfoSearch
