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

class ZoneBox;

/// Look, language, time zone and server, and the pages of plug-ins on tabs of their own. A value that is
/// wrong is told below its field, and keeps the dialog open. Changes nothing itself: when the person agreed
/// the caller takes Chosen() and lets the pages take what is on them.
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
    void FillChoices(const LanguageFiles& texts);
    void AddPages();
    void AddButtons(const LanguageFiles& texts);
    /// Whether all pages are right; shows the first that is not, and what is wrong.
    bool ArePagesRight();
    void Agree();
    /// Tells or takes back what is wrong with a field; whether it is right.
    bool IsZoneRight();
    bool IsServerRight();
    void AskAgain(QLineEdit* field);

    /// A line below a field for what is wrong with it, and how to tell it.
    struct FaultLine {
        QLabel* label = nullptr;
        QString text;  ///< with %1 for the value
        void Tell(QWidget* field, const QString& value, bool isRight) const;
    };

    Preferences current_;
    QComboBox* look_ = nullptr;
    QComboBox* language_ = nullptr;
    ZoneBox* zone_ = nullptr;
    FaultLine zoneFault_;
    QLineEdit* server_ = nullptr;
    FaultLine serverFault_;
    QTabWidget* tabs_ = nullptr;
    QLabel* fault_ = nullptr;
    std::vector<Interface::PreferencePage> pages_;
};

}  // namespace Tarvik::Client
