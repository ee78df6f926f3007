// SPDX-License-Identifier: MIT
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <string>

#include <gtest/gtest.h>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/PlacesContract.h>

#include "host/client/shell/PreferencesDialog.h"
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
    server->setText("office");
    dialog_.findChild<QPushButton*>("preferencesOk")->click();
    EXPECT_TRUE(dialog_.isVisible()) << "no address of a server";
    server->setText(" https://office:8470 ");
    dialog_.findChild<QPushButton*>("preferencesOk")->click();
    EXPECT_FALSE(dialog_.isVisible());
    EXPECT_EQ(dialog_.Chosen().server, "https://office:8470");
    server->clear();
    EXPECT_EQ(dialog_.Chosen().server, "");
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

TEST_F(PreferencesDialogTest, WithoutPagesThereAreNoTabs) {
    dialog_.show();
    EXPECT_FALSE(dialog_.findChild<QTabBar*>()->isVisible());
}

}  // namespace
}  // namespace Tarvik::Client
