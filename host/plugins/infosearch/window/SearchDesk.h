// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <optional>
#include <string>

#include <tarvik/bus/BindingList.h>
#include <tarvik/core/TObject.h>
#include <tarvik/interface/SiblingRecords.h>
#include <tarvik/skin/FactsWindow.h>

#include "host/plugins/infosearch/window/MatchWindow.h"

namespace Tarvik::Interface {
struct OpaqueWindow;
}

namespace Tarvik::InfoSearch {

/// The plug-in at work: its two services, from construction to destruction. Without a window system they
/// answer nothing.
class SearchDesk : public Core::TObject {
  public:
    /// `databaseFile` holds the ports; it is read at the first question, and at the first behind each change
    /// of the ports.
    explicit SearchDesk(std::string databaseFile);
    ~SearchDesk() override;
    SearchDesk(const SearchDesk&) = delete;
    SearchDesk& operator=(const SearchDesk&) = delete;

  private:
    Interface::OpaqueWindow* OnMatch(const Interface::MatchPortQuery& query);
    void OnVessel(const std::string& id);
    const PortIndex& Ports();

    std::string databaseFile_;
    std::optional<PortIndex> ports_;
    QPointer<MatchWindow> matches_;       ///< an editor's window may delete it first
    QPointer<Skin::FactsWindow> vessel_;  ///< the main window may delete it first
    Interface::BindingList bindings_;
};

}  // namespace Tarvik::InfoSearch
