// SPDX-License-Identifier: MIT
#include "host/client/shell/PreferencesDialog.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace Tarvik::Client {
namespace {

class PreferencesDialogTest : public testing::Test {
  protected:
    LanguageFiles texts_;
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

TEST_F(PreferencesDialogTest, SaysWhyTheServerCannotBeChosen) {
    EXPECT_FALSE(dialog_.findChild<QLineEdit*>("serverAddress")->isEnabled());
    EXPECT_EQ(dialog_.findChild<QLabel*>("serverNote")->text(), "PREF_SERVER_NOTE");
}

TEST_F(PreferencesDialogTest, SaysWhatAnotherZoneDoes) {
    EXPECT_EQ(dialog_.findChild<QLabel*>("zoneNote")->text(), "PREF_ZONE_NOTE");
}

}  // namespace
}  // namespace Tarvik::Client
