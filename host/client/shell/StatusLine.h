// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <map>
#include <string>

#include <tarvik/bus/BindingList.h>
#include <tarvik/bus/ChartContract.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/bus/PlacesContract.h>

#include "host/client/session/ClientSession.h"

class QStatusBar;

namespace Tarvik::Client {

/// The line below the chart: user, connection, place under the pointer, zone of the times on show.
class StatusLine {
  public:
    /// Fills `line`, which outlives this.
    StatusLine(QStatusBar& line, ClientSession& session);

    void ApplyTexts();
    /// User and connection as they are now.
    void ShowConnection();

  private:
    QString Word(const char* key) const;
    /// The hour, and the day unless it is today, in the zone of the times on show.
    QString TimeText(const Util::_datetime_t& utc) const;
    void ShowCursor(const Interface::ChartPlace& place);
    void ShowZone(const std::string* zone);
    /// A plug-in's word; each plug-in has one label, made with its first word.
    void ShowWord(const Interface::StatusWord& word);

    QStatusBar& line_;
    ClientSession& session_;
    QLabel* user_;
    QLabel* connection_;
    QLabel* cursor_;
    QLabel* zone_;
    std::map<std::string, QLabel*> words_;  ///< by owner
    bool cursorKnown_ = false;
    Interface::BindingList bindings_;
};

}  // namespace Tarvik::Client
