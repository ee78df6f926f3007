// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include "host/client/services/LanguageFiles.h"
#include "host/client/services/Preferences.h"

class QComboBox;
class QLineEdit;

namespace Tarvik::Client {

/// Language, time zone and server. Changes nothing itself: the caller takes Chosen() when the person agreed.
class PreferencesDialog : public QDialog {
    Q_OBJECT
  public:
    PreferencesDialog(QWidget* parent, const LanguageFiles& texts, const Preferences& current);
    Preferences Chosen() const;

  private:
    void BuildFields(const LanguageFiles& texts);
    void Agree();
    void AskAgain(QLineEdit* field);

    Preferences current_;
    QComboBox* language_ = nullptr;
    QComboBox* zone_ = nullptr;
    QLineEdit* server_ = nullptr;
};

}  // namespace Tarvik::Client
