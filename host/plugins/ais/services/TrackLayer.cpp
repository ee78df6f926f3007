// SPDX-License-Identifier: MIT
#include "host/plugins/ais/services/TrackLayer.h"

#include <utility>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>
#include <tarvik/interface/ChartRecords.h>
#include <tarvik/util/PointText.h>

namespace Tarvik::Ais {

namespace {

constexpr std::int32_t kTrackColour = 0x8C7A00;  ///< 0x00BBGGRR: a sea green unlike the colours of plans
constexpr std::int32_t kTrackWidth = 2;

}  // namespace

void TrackLayer::Draw(const std::string& id, const Shown& shown, const std::vector<Fix>& track) {
    Interface::TrvMapLayerParams layer;
    layer.layer = kLayer;
    Interface::Call(Interface::Bus::MapAddLayer, &std::as_const(layer));
    Interface::TrvMapLineParams line;
    line.ref = {kLayer, id, kType};
    line.colour = kTrackColour;
    line.width = kTrackWidth;
    line.points.reserve(track.size());
    for (const Fix& fix : track) {
        line.points.push_back(Util::PointText({fix.longitude, fix.latitude}, 5));
    }
    Interface::Call(Interface::Bus::MapAddLine, &std::as_const(line));
    shown_[id] = shown;
    shown_[id].newest = track.empty() ? 0 : track.back().time;
}

void TrackLayer::Hide(const std::string& id) {
    if (shown_.erase(id) == 0) {
        return;
    }
    Interface::TrvMapObjectRef ref{kLayer, id, kType};
    const Interface::TrvMapObjectList list{kLayer, &ref, 1};
    Interface::Call(Interface::Bus::MapDeleteObjects, &list);
}

void TrackLayer::Clear() {
    shown_.clear();
    const Interface::TrvMapObjectRef ref{kLayer, "", kType};
    Interface::Call(Interface::Bus::MapDeleteObjectsByType, &ref);
}

}  // namespace Tarvik::Ais
