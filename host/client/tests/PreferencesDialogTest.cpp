// SPDX-License-Identifier: MIT
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

#include "host/client/shell/PreferencesDialog.h"
#include "host/client/tests/TemporaryFolder.h"

namespace Tarvik::Client {

namespace {

class PreferencesDialogTest : public testing::Test {
  protected:
    /// Two languages without any text, so that every label shows its key.
    static LanguageFiles TwoLanguages() {
        const TemporaryFolder folder;
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

}  // namespace
}  // namespace Tarvik::Client
