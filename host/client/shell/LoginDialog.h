// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include "host/client/services/LanguageFiles.h"

class QLineEdit;

namespace Tarvik::Client {

/// Asks for a user and a password at a voyage server.
class LoginDialog : public QDialog {
    Q_OBJECT
  public:
    /// `user` is offered; `failure` says why the try before failed, empty at the first.
    LoginDialog(QWidget* parent, const LanguageFiles& texts, const QString& server, const QString& user,
                const QString& failure);
    QString User() const;
    QString Password() const;

  private:
    void Agree();

    QLineEdit* user_ = nullptr;
    QLineEdit* password_ = nullptr;
};

}  // namespace Tarvik::Client
