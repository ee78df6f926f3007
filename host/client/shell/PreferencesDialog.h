// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <vector>

#include <tarvik/bus/PlacesContract.h>

#include "host/client/services/LanguageFiles.h"
#include "host/client/services/Preferences.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QTabWidget;

namespace Tarvik::Client {

/// Language, time zone and server, and the pages of plug-ins on tabs of their own. Changes nothing itself:
/// when the person agreed the caller takes Chosen() and lets the pages take what is on them.
class PreferencesDialog : public QDialog {
    Q_OBJECT
  public:
    PreferencesDialog(QWidget* parent, const LanguageFiles& texts, const Preferences& current);
    Preferences Chosen() const;
    /// Puts the keyboard on the server's address.
    void AskForServer();
    /// Lets each plug-in take what was typed on its page.
    void TakePages() const;

  private:
    void BuildFields(const LanguageFiles& texts);
    void AddPages();
    void AddButtons(const LanguageFiles& texts);
    /// Whether all pages are right; shows the first that is not, and what is wrong.
    bool ArePagesRight();
    void Agree();
    void AskAgain(QLineEdit* field);

    Preferences current_;
    QComboBox* language_ = nullptr;
    QComboBox* zone_ = nullptr;
    QLineEdit* server_ = nullptr;
    QTabWidget* tabs_ = nullptr;
    QLabel* fault_ = nullptr;
    std::vector<Interface::PreferencePage> pages_;
};

}  // namespace Tarvik::Client
