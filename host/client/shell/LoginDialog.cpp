// SPDX-License-Identifier: MIT
#include "host/client/shell/LoginDialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace Tarvik::Client {

LoginDialog::LoginDialog(QWidget* parent, const LanguageFiles& texts, const QString& server,
                         const QString& user, const QString& failure)
    : QDialog(parent), user_(new QLineEdit(user, this)), password_(new QLineEdit(this)) {
    const auto word = [&texts](const char* key) { return QString::fromStdString(texts.Text("Client", key)); };
    setObjectName("login");
    setWindowTitle(word("LOGIN"));
    setMinimumWidth(380);
    auto* form = new QFormLayout(this);
    form->setSpacing(8);
    form->addRow(word("PREF_SERVER"), new QLabel(server, this));
    const auto row = [&](const char* key, const char* name, QLineEdit* field) {
        field->setObjectName(name);
        field->setAccessibleName(word(key));
        form->addRow(word(key), field);
    };
    row("USER_NAME", "loginUser", user_);
    row("LOGIN_PASSWORD", "loginPassword", password_);
    password_->setEchoMode(QLineEdit::Password);
    auto* reason = new QLabel(failure, this);
    reason->setObjectName("loginFailure");
    reason->setWordWrap(true);
    reason->setVisible(!failure.isEmpty());
    form->addRow(reason);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(word("LOGIN"));
    buttons->button(QDialogButtonBox::Ok)->setObjectName("loginOk");
    buttons->button(QDialogButtonBox::Cancel)->setText(word("CANCEL"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName("loginCancel");
    connect(buttons, &QDialogButtonBox::accepted, this, &LoginDialog::Agree);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
    (user.isEmpty() ? user_ : password_)->setFocus();
}

void LoginDialog::Agree() {
    for (QLineEdit* field : {user_, password_}) {
        if (field->text().isEmpty()) {
            return field->setFocus();
        }
    }
    accept();
}

QString LoginDialog::User() const {
    return user_->text().trimmed();
}

QString LoginDialog::Password() const {
    return password_->text();
}

}  // namespace Tarvik::Client
