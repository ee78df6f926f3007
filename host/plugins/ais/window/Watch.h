// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <memory>
#include <string>

#include <tarvik/bus/BindingList.h>
#include <tarvik/bus/PlacesContract.h>
#include <tarvik/core/TObject.h>

#include "host/plugins/ais/input/Feed.h"
#include "host/plugins/ais/services/Settings.h"
#include "host/plugins/ais/services/ShipLayer.h"
#include "host/plugins/ais/services/VesselServices.h"
#include "host/plugins/ais/store/Traffic.h"
#include "host/plugins/ais/window/VesselCardWindow.h"

namespace Tarvik::Ais {

/// The plug-in at work: feed, services, chart, card, preferences and status. From construction to
/// destruction; it begins to hear with Start.
class Watch : public Core::TObject {
  public:
    /// `folder` holds the settings and the tracks; it is made when it is missing.
    explicit Watch(const std::string& folder);
    ~Watch() override;
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    /// Takes the settings into use and goes by the client's timer, once all plug-ins are there.
    void Start();
    /// How the inputs are.
    FeedStatus Status() const { return feed_.Status(); }

  private:
    /// Takes what a person chose into use.
    void Apply(const Settings& chosen);
    void OpenInputs();
    void Turn();
    void TellStatus() const;
    void ShowCard(const CardFacts& facts);
    void RenewCard();
    void OnPreferences(Interface::PreferencePages& pages);
    const bool* OnShowShips(const bool* shown);
    const char* OnShipClicked(const std::string& id);

    std::string folder_;
    Settings settings_;
    Traffic traffic_;
    VesselServices services_;
    ShipLayer ships_;
    Feed feed_;
    QPointer<VesselCardWindow> card_;  ///< the main window may delete it first
    unsigned timer_ = 0;
    bool shownAnswer_ = false;
    Interface::BindingList bindings_;
};

}  // namespace Tarvik::Ais
