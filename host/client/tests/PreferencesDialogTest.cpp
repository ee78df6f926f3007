// SPDX-License-Identifier: MIT
#include <QComboBox>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/PlacesContract.h>

#include "host/client/shell/PreferencesDialog.h"
#include "host/client/shell/Theme.h"
#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Client {

namespace {

class PreferencesDialogTest : public testing::Test {
  protected:
    /// Two languages without any text, so that every label shows its key.
    static LanguageFiles TwoLanguages() {
        const TestSupport::TemporaryFolder folder;
        folder.Write("client.en-US.json", R"({"Client":{}})");
        folder.Write("client.zh-CN.json", R"({"Client":{}})");
        LanguageFiles texts;
        texts.Load(folder.Path(), "en-US");
        return texts;
    }

    LanguageFiles texts_ = TwoLanguages();
    Preferences current_;
    PreferencesDialog dialog_{nullptr, texts_, current_};
};

TEST_F(PreferencesDialogTest, OpensWithThePresentValuesAndGivesThemBackUntouched) {
    EXPECT_EQ(dialog_.Chosen(), current_);
    EXPECT_EQ(dialog_.findChild<QComboBox*>("timeZoneChoice")->currentText(), "China Standard Time");
}

TEST_F(PreferencesDialogTest, TakesWhatThePersonChooses) {
    auto* language = dialog_.findChild<QComboBox*>("languageChoice");
    language->setCurrentIndex(language->findData("zh-CN"));
    dialog_.findChild<QComboBox*>("timeZoneChoice")->setCurrentText("UTC");
    dialog_.findChild<QPushButton*>("preferencesOk")->click();
    EXPECT_EQ(dialog_.result(), QDialog::Accepted);
    EXPECT_EQ(dialog_.Chosen().language, "zh-CN");
    EXPECT_EQ(dialog_.Chosen().timeZone, "UTC");
}

TEST_F(PreferencesDialogTest, DoesNotCloseOnAZoneThatIsNone) {
    dialog_.show();
    dialog_.findChild<QComboBox*>("timeZoneChoice")->setCurrentText("Middle/Earth");
    dialog_.findChild<QPushButton*>("preferencesOk")->click();
    EXPECT_TRUE(dialog_.isVisible());
    EXPECT_EQ(dialog_.result(), QDialog::Rejected);
}

TEST_F(PreferencesDialogTest, TakesAServersAddressOrNone) {
    auto* server = dialog_.findChild<QLineEdit*>("serverAddress");
    dialog_.show();
    for (const char* none : {"office", "http://office:99999", "https://my office"}) {
        server->setText(none);
        dialog_.findChild<QPushButton*>("preferencesOk")->click();
        EXPECT_TRUE(dialog_.isVisible()) << "no address of a server: " << none;
    }
    server->setText(" https://office:8470 ");
    dialog_.findChild<QPushButton*>("preferencesOk")->click();
    EXPECT_FALSE(dialog_.isVisible());
    EXPECT_EQ(dialog_.Chosen().server, "https://office:8470");
    server->clear();
    EXPECT_EQ(dialog_.Chosen().server, "");
}

TEST_F(PreferencesDialogTest, AWrongValueIsToldBesideItUntilItIsChanged) {
    LanguageFiles words;
    ASSERT_TRUE(
        words.Merge(R"({"Client":{"PREF_ZONE_FAULT":"no zone: %1","PREF_SERVER_FAULT":"no server: %1"}})"));
    PreferencesDialog dialog(nullptr, words, current_);
    dialog.show();
    auto* zone = dialog.findChild<QComboBox*>("timeZoneChoice");
    const auto* zoneFault = dialog.findChild<QLabel*>("zoneFault");
    const auto* serverFault = dialog.findChild<QLabel*>("serverFault");
    zone->setCurrentText("Middle/Earth");
    dialog.findChild<QLineEdit*>("serverAddress")->setText("ftp://office");
    EXPECT_FALSE(zoneFault->isVisible()) << "nobody has typed all yet";
    dialog.findChild<QPushButton*>("preferencesOk")->click();
    EXPECT_TRUE(zoneFault->isVisible());
    EXPECT_EQ(zoneFault->text(), "no zone: Middle/Earth");
    EXPECT_EQ(zone->accessibleDescription(), "no zone: Middle/Earth");
    EXPECT_TRUE(serverFault->isVisible()) << "all that is wrong is told at once";
    EXPECT_EQ(serverFault->text(), "no server: ftp://office");
    EXPECT_EQ(dialog.focusWidget(), zone);
    zone->setCurrentText("UTC");
    EXPECT_FALSE(zoneFault->isVisible());
    EXPECT_EQ(zone->accessibleDescription(), "");
    EXPECT_TRUE(serverFault->isVisible());
}

TEST_F(PreferencesDialogTest, TypedWordsLeaveTheZonesThatTheyMean) {
    dialog_.show();
    auto* zone = dialog_.findChild<QComboBox*>("timeZoneChoice");
    zone->lineEdit()->setFocus();
    zone->lineEdit()->selectAll();
    QTest::keyClicks(zone->lineEdit(), "italy");
    const QAbstractItemModel* left = zone->completer()->model();
    ASSERT_GE(left->rowCount(), 1);
    for (int row = 0; row < left->rowCount(); ++row) {
        const QModelIndex line = left->index(row, 0);
        EXPECT_TRUE(line.data(Qt::DisplayRole).toString().contains("Italy"))
            << line.data(Qt::DisplayRole).toString().toStdString();
    }
    zone->completer()->activated(left->index(0, 0));
    EXPECT_EQ(dialog_.Chosen().timeZone, "Europe/Rome");
}

TEST_F(PreferencesDialogTest, TheOnlyZoneThatTypedWordsLeaveIsTaken) {
    dialog_.show();
    auto* zone = dialog_.findChild<QComboBox*>("timeZoneChoice");
    for (const auto& [typed, meant] :
         {std::pair("new york", "America/New_York"), {"utc", "UTC"}, {"europe/rome", "Europe/Rome"}}) {
        zone->setCurrentText(typed);
        emit zone->lineEdit()->editingFinished();
        EXPECT_EQ(zone->currentText(), meant);
    }
    zone->setCurrentText("germany");
    emit zone->lineEdit()->editingFinished();
    EXPECT_EQ(zone->currentText(), "germany") << "two zones are not one";
    EXPECT_TRUE(dialog_.findChild<QLabel*>("zoneFault")->isVisible());
}

TEST_F(PreferencesDialogTest, TheLookIsChosenHereToo) {
    auto* look = dialog_.findChild<QComboBox*>("lookChoice");
    EXPECT_EQ(look->currentData(), "light");
    EXPECT_EQ(look->count(), 3);
    look->setCurrentIndex(look->findData("night"));
    EXPECT_EQ(dialog_.Chosen().theme, "night");
}

TEST_F(PreferencesDialogTest, SaysWhatTheServersFieldTakes) {
    EXPECT_EQ(dialog_.findChild<QLabel*>("serverNote")->text(), "PREF_SERVER_NOTE");
}

TEST_F(PreferencesDialogTest, SaysWhatAnotherZoneDoes) {
    EXPECT_EQ(dialog_.findChild<QLabel*>("zoneNote")->text(), "PREF_ZONE_NOTE");
}

/// A plug-in with one page on which a word is typed.
class PageOfAPlugin {
  public:
    std::string taken;

  private:
    void Add(Interface::PreferencePages& pages) {
        auto* field = new QLineEdit(pages.parent);
        field->setObjectName("pluginField");
        pages.pages.push_back(
            {"Plug-in", field,
             [field] { return field->text() == "bad" ? std::string("This is bad") : std::string(); },
             [this, field] { taken = field->text().toStdString(); }});
    }
    Interface::Binding binding_ =
        Interface::Subscribe(Interface::Bus::OpenPreferences, this, &PageOfAPlugin::Add);
};

TEST_F(PreferencesDialogTest, PageOfAPluginHasATabAndIsTakenWhenThePersonAgreed) {
    PageOfAPlugin plugin;
    PreferencesDialog dialog(nullptr, texts_, current_);
    dialog.show();
    const auto* tabs = dialog.findChild<QTabWidget*>("preferencesTabs");
    ASSERT_EQ(tabs->count(), 2);
    EXPECT_EQ(tabs->tabText(1), "Plug-in");
    auto* field = dialog.findChild<QLineEdit*>("pluginField");
    field->setText("bad");
    dialog.findChild<QPushButton*>("preferencesOk")->click();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(tabs->currentWidget(), field);
    EXPECT_EQ(dialog.findChild<QLabel*>("pageFault")->text(), "This is bad");
    field->setText("good");
    dialog.findChild<QPushButton*>("preferencesOk")->click();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(plugin.taken, "") << "the caller says when";
    dialog.TakePages();
    EXPECT_EQ(plugin.taken, "good");
}

TEST_F(PreferencesDialogTest, NothingIsBrightInTheNightLook) {
    const PageOfAPlugin plugin;
    ApplyTheme(Skin::Theme::Night);
    PreferencesDialog dialog(nullptr, texts_, current_);
    dialog.show();
    const QImage seen = dialog.grab().toImage();
    int bright = 0;
    for (int y = 0; y < seen.height(); ++y) {
        for (int x = 0; x < seen.width(); ++x) {
            // Every colour of this look is a red.
            bright += seen.pixelColor(x, y).green() > 160 ? 1 : 0;
        }
    }
    EXPECT_EQ(bright, 0);
    ApplyTheme(Skin::Theme::Light);
}

TEST_F(PreferencesDialogTest, WithoutPagesThereAreNoTabs) {
    dialog_.show();
    EXPECT_FALSE(dialog_.findChild<QTabBar*>()->isVisible());
}

}  // namespace
}  // namespace Tarvik::Client
