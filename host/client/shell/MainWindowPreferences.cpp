// SPDX-License-Identifier: MIT
// What the person prefers, as the main window takes it: theme, language and all that the dialog asks.
#include "host/client/shell/ClientBox.h"
#include "host/client/shell/MainWindow.h"
#include "host/client/shell/PreferencesDialog.h"
#include "host/client/shell/Theme.h"

namespace Tarvik::Client {

void MainWindow::ApplyTheme() {
    const Skin::Theme theme = Skin::ThemeNamed(session_.Preferred().theme);
    Client::ApplyTheme(theme);
    tools_.ApplyIcons();
    ChartCommand("theme " + std::string(Skin::ThemeName(theme)));
}

void MainWindow::Prefer(const Preferences& preferences) {
    // What is not saved yet belongs to the server that it was begun at, and its times to the zone.
    const Preferences& now = session_.Preferred();
    const bool moves = preferences.server != now.server || preferences.timeZone != now.timeZone;
    if (moves && !ClosePanels()) {
        return;
    }
    std::string error;
    const bool kept = session_.Prefer(preferences, error);
    ApplyTexts();
    ApplyTheme();
    if (!kept) {
        TellFault(this, session_.Texts(), QString::fromStdString(error));
    }
}

void MainWindow::NextTheme() {
    Preferences preferences = session_.Preferred();
    preferences.theme = Skin::ThemeName(Skin::NextTheme(Skin::ThemeNamed(preferences.theme)));
    Prefer(preferences);
}

void MainWindow::NextLanguage() {
    Preferences preferences = session_.Preferred();
    if (const Language* next = session_.Texts().Next()) {
        preferences.language = next->code;
        Prefer(preferences);
    }
}

void MainWindow::OpenPreferences(bool atServer) {
    PreferencesDialog dialog(this, session_.Texts(), session_.Preferred());
    if (atServer) {
        dialog.AskForServer();
    }
    if (dialog.exec() == QDialog::Accepted) {
        Prefer(dialog.Chosen());
        dialog.TakePages();
    }
}

}  // namespace Tarvik::Client
