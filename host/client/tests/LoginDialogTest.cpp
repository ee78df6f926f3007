// SPDX-License-Identifier: MIT
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

#include "host/client/shell/LoginDialog.h"

namespace Tarvik::Client {

namespace {

class LoginDialogTest : public testing::Test {
  protected:
    LanguageFiles texts_;
    LoginDialog dialog_{nullptr, texts_, "https://office:8470", "anna", "wrong password"};
};

TEST_F(LoginDialogTest, OffersTheLastUserAndSaysWhyItAsksAgain) {
    EXPECT_EQ(dialog_.User(), "anna");
    EXPECT_EQ(dialog_.findChild<QLabel*>("loginFailure")->text(), "wrong password");
    EXPECT_EQ(dialog_.findChild<QLineEdit*>("loginPassword")->echoMode(), QLineEdit::Password);
}

TEST_F(LoginDialogTest, ClosesOnlyWithUserAndPassword) {
    dialog_.show();
    auto* agree = dialog_.findChild<QPushButton*>("loginOk");
    agree->click();
    EXPECT_TRUE(dialog_.isVisible());
    dialog_.findChild<QLineEdit*>("loginPassword")->setText("secret");
    agree->click();
    EXPECT_EQ(dialog_.result(), QDialog::Accepted);
    EXPECT_EQ(dialog_.Password(), "secret");
}

TEST_F(LoginDialogTest, CanBeLeft) {
    dialog_.show();
    dialog_.findChild<QPushButton*>("loginCancel")->click();
    EXPECT_EQ(dialog_.result(), QDialog::Rejected);
}

}  // namespace
}  // namespace Tarvik::Client
