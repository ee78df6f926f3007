// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <tarvik/bus/BindingList.h>
#include <tarvik/core/TObject.h>
#include <tarvik/interface/SiblingRecords.h>

#include "host/plugins/ais/services/CardFacts.h"
#include "host/plugins/ais/services/TrackLayer.h"
#include "host/plugins/ais/services/VesselNumbers.h"
#include "host/plugins/ais/store/Traffic.h"

namespace Tarvik::Ais {

/// The services that other plug-ins ask for vessels, from construction to destruction. A vessel that was
/// asked for is followed: its track is kept finely and long.
class VesselServices : public Core::TObject {
  public:
    /// The traffic outlives the services.
    VesselServices(Traffic& traffic, CardShower showCard);
    ~VesselServices() override;
    VesselServices(const VesselServices&) = delete;
    VesselServices& operator=(const VesselServices&) = delete;

    /// Draws the tracks on the chart anew whose vessels were heard since.
    void RefreshTracks();
    /// The card of a vessel of the feed, without a voyage. False when it was never heard.
    bool ShowHeard(std::uint32_t mmsi, std::int32_t cursorX, std::int32_t cursorY);
    /// What a card tells with what was heard of its vessel since.
    CardFacts Renewed(CardFacts facts) const;

  private:
    const std::vector<Interface::VesselPosition>* OnPositions(const std::vector<std::string>& vessels);
    const std::string* OnTrace(const Interface::VesselTraceRequest& request);
    void OnHideTrack(const std::string& vessel);
    void OnShowCard(const Interface::VesselCard& card);

    Traffic& traffic_;
    CardShower showCard_;
    VesselNumbers numbers_;
    TrackLayer tracks_;
    std::vector<Interface::VesselPosition> positions_;  ///< answers stay until the next question
    std::string trace_;
    Interface::BindingList bindings_;
};

/// Present time in seconds after 1970, UTC, by the clock of the SDK.
std::int64_t UtcNow();

}  // namespace Tarvik::Ais
