// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>

#include <tarvik/bus/BindingList.h>

#include "host/client/session/ClientSession.h"
#include "host/client/shell/FirstStartCard.h"

namespace Tarvik::Client {

class MainWindow;

/// The first start of a data folder: asks once how to begin, with a card over the chart that comes again at
/// each start until one of its ways is taken.
class FirstStart {
  public:
    /// Both outlive this.
    FirstStart(MainWindow& window, ClientSession& session);

    /// Shows the card if nobody has chosen yet. Call once, behind MainWindow::AttachPlugins.
    void Offer();
    /// Does what was chosen. The card goes when it is done: it stays when the sample could not be planned,
    /// which is told in a box, or when no server was named.
    void Choose(FirstChoice choice);

  private:
    bool PlanSample();
    QString Word(const char* key) const;

    MainWindow& window_;
    ClientSession& session_;
    QPointer<FirstStartCard> card_;
    Interface::BindingList bindings_;
};

}  // namespace Tarvik::Client
