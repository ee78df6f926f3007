// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>
#include <optional>
#include <string>
#include <vector>

#include "host/client/places/OwnPortDesk.h"
#include "host/client/session/ClientSession.h"
#include "host/client/shell/ChartLink.h"
#include "host/client/shell/MainTools.h"
#include "host/client/shell/StatusLine.h"

namespace Tarvik::Client {

class HelpWindow;

/// The client's window: the chart in the middle, tools above, status line below.
class MainWindow : public QMainWindow {
    Q_OBJECT
  public:
    explicit MainWindow(ClientSession& session);
    ~MainWindow() override;

    /// Puts the chart of the loaded plug-ins in the middle and shows the tools that they answer; call once,
    /// behind ClientSession::LoadPlugins.
    void AttachPlugins();
    /// Before it is shown: where it was when it was closed last, else its usual size, made small enough for a
    /// screen's room.
    void TakePlace(const QRect& room);
    /// Raises the event that shows or hides a panel (a PanelCode).
    void TogglePanel(int panel);
    /// Tells the chart a command of its contract; false when there is no chart or it did not understand.
    bool ChartCommand(const std::string& command);

    /// Takes new preferences into use. Another server or zone comes only once the panels have closed with
    /// their questions; when one stays, nothing changes.
    void Prefer(const Preferences& preferences);
    /// Asks for preferences and takes them; with `atServer` the keyboard is on the server's address.
    void OpenPreferences(bool atServer = false);
    /// Gives the keyboard to the next of the client's open windows, or with -1 to the one before.
    void NextWindow(int step);

    /// Shows the guide at a topic ("func033", …), for an unknown one its first page.
    void ShowHelp(const QString& topic);

  protected:
    /// Takes the help requests that plug-ins send to the main window.
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    /// Closes the panels, the last made before the others. False when one stays, since a person wants to keep
    /// what is not saved.
    bool ClosePanels();
    void LogOut();
    void AttachChart();
    std::vector<MainTools::Tool> Tools();
    void ApplyTexts();
    void ApplyTheme();
    void ShowConnection();
    std::optional<Credentials> AskLogin(const std::string& server, const std::string& user,
                                        const std::string& failure);
    void NextTheme();
    void NextLanguage();
    /// Shows the ships of the feed, or hides them.
    static void ToggleShips();
    QString Word(const char* key) const;
    /// Text of a tool's key; the names of languages come from their files.
    QString ToolWord(const char* key) const;

    ClientSession& session_;
    ChartLink chart_;
    MainTools tools_;
    StatusLine status_;
    OwnPortDesk ownPorts_;
    HelpWindow* help_ = nullptr;  ///< made when it is first asked for
};

}  // namespace Tarvik::Client
