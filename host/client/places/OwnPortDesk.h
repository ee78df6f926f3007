// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <string>

#include <tarvik/bus/BindingList.h>

#include "host/client/places/OwnPortForm.h"
#include "host/client/places/OwnPortWindow.h"
#include "host/client/session/ClientSession.h"

namespace Tarvik::Interface {
struct PanelShow;
}

namespace Tarvik::Client {

/// The windows for the user's own ports over a session, and the services by which the chart adds, changes and
/// removes one, from construction to destruction.
class OwnPortDesk {
  public:
    /// `mainWindow` owns the windows; it and the session outlive this.
    OwnPortDesk(QWidget& mainWindow, ClientSession& session);
    ~OwnPortDesk();
    OwnPortDesk(const OwnPortDesk&) = delete;
    OwnPortDesk& operator=(const OwnPortDesk&) = delete;

  private:
    void OnShowPanel(const Interface::PanelShow& show);
    void OnLanguage();
    void OnLogout();
    void ShowList();
    /// Tells below the list, which is opened for trouble, so that a change made on the chart does not fail
    /// unseen.
    void TellOutcome(PortOutcome outcome);
    /// Shows the form filled with a port, unless a person keeps what is typed in it.
    void OpenForm(const Ports::Place& port);
    void Change(const std::string& id);
    void Remove(const std::string& id);
    QString Save(const Ports::Place& port);
    void Refresh();
    /// The own port of an id, null when there is none.
    const Ports::Place* Find(const std::string& id) const;
    OwnPortWindow& List();
    OwnPortForm& Form();

    QWidget& mainWindow_;
    ClientSession& session_;
    QPointer<OwnPortWindow> list_;
    QPointer<OwnPortForm> form_;
    Interface::BindingList bindings_;
};

}  // namespace Tarvik::Client
