// SPDX-License-Identifier: MIT
// The chain by which a window takes its texts, over windows without a panel.
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <map>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include <tarvik/interface/LoadString.h>
#include <tarvik/util/StringUtl.h>

#include "seaplan/panels/texts/PortCallTexts.h"
#include "seaplan/panels/texts/TreeTexts.h"
#include "seaplan/views/editors/ChoiceBox.h"
#include "seaplan/views/window/DialogTexts.h"

namespace Tarvik::Seaplan {

namespace {

using ::testing::ElementsAre;

/// A language of few words.
class FewWords : public Interface::LanguageSource {
  public:
    FewWords() { Set(this); }
    ~FewWords() override { Set(nullptr); }
    std::optional<std::u16string> Find(const std::u16string& section, const std::u16string&,
                                       const std::u16string& key) const override {
        const auto found = words.find(Util::StringUtl::TranslateString(key));
        return section != u"Seaplan" || found == words.end() ? std::nullopt : std::optional(found->second);
    }
    std::map<std::string, std::u16string> words{{"IDS_PORTCALL_POSTBOOK", u"Book"},
                                                {"IDS_PORTCALL_PORT", u"Port"},
                                                {"IDS_TREE_VOYTITLE", u"Voyages"}};
};

/// Writes down the order of the chain.
class Chain : public DialogTexts {
  public:
    std::vector<std::string> steps;

  protected:
    void ApplyDialogTexts(QWidget& window) override {
        steps.emplace_back("dialog");
        DialogTexts::ApplyDialogTexts(window);
    }
    void ApplyMenuTexts(QWidget& window) override {
        steps.emplace_back("menu");
        DialogTexts::ApplyMenuTexts(window);
    }
    void ApplyReservedTexts(QWidget&) override { steps.emplace_back("reserved texts"); }
    void ApplyReservedLooks(QWidget&) override { steps.emplace_back("reserved looks"); }
    void ApplyClassTexts(QWidget&) override { steps.emplace_back("class"); }
};

TEST(DialogTextsTest, TheFiveStepsRunInTheirOrder) {
    QWidget window;
    Chain chain;
    chain.ApplyLanguage(window);
    EXPECT_THAT(chain.steps, ElementsAre("dialog", "menu", "reserved texts", "reserved looks", "class"));
}

TEST(DialogTextsTest, TitleAndControlsTakeTheTextsOfTheirNumbers) {
    const FewWords words;
    QWidget window;
    auto* inner = new QWidget(&window);
    auto* button = new QPushButton("old", inner);
    auto* label = new QLabel("old", &window);
    TieText(window, TextIds::IDS_TREE_VOYTITLE);
    TieText(*button, TextIds::IDS_PORTCALL_POSTBOOK);
    TieText(*label, TextIds::IDS_PORTCALL_PORT);
    DialogTexts().ApplyLanguage(window);
    EXPECT_EQ(window.windowTitle(), "Voyages");
    EXPECT_EQ(button->text(), "Book") << "a child of a child is found";
    EXPECT_EQ(label->text(), "Port");
}

TEST(DialogTextsTest, AControlWithoutNumberKeepsItsCaption) {
    const FewWords words;
    QWidget window;
    window.setWindowTitle("Mine");
    auto* button = new QPushButton("Mine", &window);
    auto* unknown = new QPushButton("Mine", &window);
    unknown->setProperty("textNumber", 123456);
    DialogTexts().ApplyLanguage(window);
    EXPECT_EQ(window.windowTitle(), "Mine");
    EXPECT_EQ(button->text(), "Mine");
    EXPECT_EQ(unknown->text(), "Mine") << "the string table has no such number";
}

TEST(DialogTextsTest, AKeyThatTheLanguageLacksBlanksTheControl) {
    FewWords words;
    QWidget window;
    auto* button = new QPushButton("old", &window);
    TieText(*button, TextIds::IDS_PORTCALL_POSTBOOK);
    words.words.clear();
    DialogTexts().ApplyLanguage(window);
    EXPECT_EQ(button->text(), "");
}

TEST(DialogTextsTest, AButtonKeepsItsKeyOverANewText) {
    const FewWords words;
    QWidget window;
    auto* button = new QPushButton("old", &window);
    TieText(*button, TextIds::IDS_PORTCALL_POSTBOOK);
    TieKey(*button, QKeySequence(Qt::CTRL | Qt::Key_B));
    DialogTexts().ApplyLanguage(window);
    EXPECT_EQ(button->text(), "Book");
    EXPECT_EQ(button->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_B));
}

TEST(DialogTextsTest, APopupOfChoicesTakesItsTextsByTheChain) {
    FewWords words;
    words.words["IDS_VOY_SORTBYNAME"] = u"Name";
    ChoiceBox box(nullptr, ChoiceBox::Kind::Radios, nullptr, {{TextIds::IDS_VOY_SORTBYNAME, "byName"}});
    box.SetChoices({{TextIds::IDS_VOY_SORTBYNAME, true}});
    auto* button = box.findChild<QAbstractButton*>("byName");
    EXPECT_EQ(button->text(), "Name");
    EXPECT_EQ(button->accessibleName(), "Name");
    words.words["IDS_VOY_SORTBYNAME"] = u"Nom";
    box.ApplyLanguage(box);
    EXPECT_EQ(button->text(), "Nom") << "hidden, and told by its number alone";
    EXPECT_EQ(button->accessibleName(), "Nom");
    EXPECT_TRUE(button->isChecked());
}

TEST(DialogTextsTest, MenusAreWalkedIntoTheirSubMenus) {
    const FewWords words;
    QWidget window;
    QMenu menu;
    QMenu* sub = menu.addMenu("old");
    sub->menuAction()->setProperty("textNumber", static_cast<int>(TextIds::IDS_TREE_VOYTITLE));
    QAction* entry = sub->addAction("old");
    entry->setProperty("textNumber", static_cast<int>(TextIds::IDS_PORTCALL_PORT));
    QAction* own = sub->addAction("Mine");
    window.addAction(menu.menuAction());
    DialogTexts().ApplyLanguage(window);
    EXPECT_EQ(sub->title(), "Voyages");
    EXPECT_EQ(entry->text(), "Port");
    EXPECT_EQ(own->text(), "Mine");
}

TEST(DialogTextsTest, AHiddenWindowChangesToo) {
    FewWords words;
    QWidget window;
    auto* button = new QPushButton(&window);
    TieText(*button, TextIds::IDS_PORTCALL_POSTBOOK);
    DialogTexts().ApplyLanguage(window);
    words.words["IDS_PORTCALL_POSTBOOK"] = u"Buch";
    window.hide();
    DialogTexts().ApplyLanguage(window);
    EXPECT_EQ(button->text(), "Buch");
}

}  // namespace
}  // namespace Tarvik::Seaplan
