// SPDX-License-Identifier: MIT
// Every key of a panel stands in its list of the guide's page of keys, which F1 shows over it, and what has
// no key of its own is reached by Tab.
#include <QAbstractButton>
#include <QShortcut>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "seaplan/views/bunker/BunkerWindow.h"
#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "seaplan/views/portcall/PortCallWindow.h"
#include "seaplan/views/remark/RemarkWindow.h"
#include "seaplan/views/tests/PositionBookFixture.h"

namespace Tarvik::Seaplan {

namespace {

/// Keys that all windows have; a list of their own names them.
const std::set<QString> kOfAllWindows = {"F1", "Ctrl+W", "Ctrl+F10"};

class HelpKeysTest : public PositionBookFixture {
  protected:
    std::vector<std::string> pages;  ///< of keys, one a language

    HelpKeysTest() {
        for (const auto& language : std::filesystem::directory_iterator(SEAPLAN_GUIDE_DIR)) {
            std::ifstream in(language.path() / "10-keys.md");
            std::string page{std::istreambuf_iterator<char>(in), {}};
            if (!page.empty()) {
                pages.push_back(std::move(page));
            }
        }
    }
    /// The list of keys of a topic: what stands behind its mark, to the next one.
    static std::string KeysOfTopic(const std::string& page, const std::string& topic) {
        const std::string mark = "<a id=\"keys-" + topic + "\"></a>";
        const std::size_t at = page.find(mark);
        return at == std::string::npos ? "" : page.substr(at, page.find("<a id=", at + 1) - at);
    }
    static std::set<QString> KeysOf(const QWidget& window) {
        std::set<QString> keys;
        for (const QShortcut* shortcut : window.findChildren<QShortcut*>()) {
            keys.insert(shortcut->key().toString(QKeySequence::PortableText));
        }
        for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
            keys.insert(button->shortcut().toString(QKeySequence::PortableText));
        }
        keys.erase(QString());
        return keys;
    }
    /// Every key of a window stands in its list in every language; another way to redo is told once.
    void ExpectTold(const QWidget& window, const char* topic) {
        const std::set<QString> keys = KeysOf(window);
        EXPECT_TRUE(keys.contains("F1")) << topic;
        EXPECT_TRUE(keys.contains("Ctrl+W")) << topic;
        EXPECT_FALSE(pages.empty());
        for (const std::string& page : pages) {
            const std::string help = KeysOfTopic(page, topic);
            for (const QString& key : keys) {
                if (!kOfAllWindows.contains(key) && key != "Ctrl+Shift+Z") {
                    EXPECT_NE(help.find(key.toStdString()), std::string::npos)
                        << topic << ' ' << key.toStdString();
                }
            }
        }
        for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
            if (button->isVisible() && button->isEnabled() && button->shortcut().isEmpty()) {
                EXPECT_TRUE(button->focusPolicy() & Qt::TabFocus)
                    << topic << ' ' << button->objectName().toStdString();
            }
        }
    }
};

}  // namespace

TEST_F(HelpKeysTest, OfTheVoyagePanel) {
    OpenVoyage("Far East 12");
    ExpectTold(Panel(), "func033");
    Panel().findChild<QAbstractButton*>("findButton")->click();
    ExpectTold(Panel(), "func033");
}

TEST_F(HelpKeysTest, OfTheRemarksAndTheConsumption) {
    OpenVoyage("Far East 12");
    ClickPart("Far East 12", "Voyage.child.svr3.exist");
    ExpectTold(*views.RemarksWindow(), "func024");
    ClickPart("Far East 12", "Voyage.child.svr5");
    ExpectTold(*views.FiguresWindow(), "func036");
}

TEST_F(HelpKeysTest, OfThePortCallsAndThePositionBook) {
    OpenBook();
    ExpectTold(PortCalls(), "func034");
    ExpectTold(Book(), "func035");
}

}  // namespace Tarvik::Seaplan
