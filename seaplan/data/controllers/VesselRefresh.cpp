// SPDX-License-Identifier: MIT
#include "seaplan/data/controllers/VoyCatalogController.h"
#include "seaplan/data/controllers/VoyController.h"

#include <tarvik/interface/BusContract.h>
#include <tarvik/util/DateTimeUtl.h>
#include <tarvik/util/StringUtl.h>

#include <cstdint>
#include <map>

/// Keeps each voyage's last known vessel position.
namespace Tarvik::Seaplan {

namespace {

using Interface::VesselPosition;
using PositionMap = std::map<std::string, VesselPosition>;

constexpr const char* kPlanZone = "China Standard Time";

/// One text "vessel id|number" a vessel; of voyages with one vessel the first known number counts.
std::vector<std::string> vesselsOf(const VoyageStore& store) {
    std::map<std::string, int> numbers;
    for (const auto& [vi, voyage] : store.voyages) {
        if (!voyage.vsi.empty()) {
            int& number = numbers[voyage.vsi];
            number = number == 0 ? voyage.vsmsi : number;
        }
    }
    std::vector<std::string> texts;
    for (const auto& [vsi, number] : numbers) {
        texts.push_back(vsi + Util::StringUtl::Format("|%d", number));
    }
    return texts;
}

/// Asks the tracking service; the answer is copied, as a further call in between replaces it.
PositionMap askPositions(const std::vector<std::string>& vessels) {
    PositionMap positions;
    const auto* answer = Interface::Call(Interface::Bus::VesselPositions, &vessels);
    if (answer != nullptr) {
        for (const VesselPosition& record : *answer) {
            positions[record.vesselId] = record;
        }
    }
    return positions;
}

bool isNewer(const VesselPosition& record, const std::string& text, const VoyInfo& voyage) {
    return static_cast<std::uint32_t>(record.time) > static_cast<std::uint32_t>(voyage.lastPosTime) &&
           text != voyage.lastPosText;
}

/// Takes a newer position; a first number is saved first. False when that fails.
bool takePosition(const VesselPosition& record, VoyCatalogController& catalog, VoyInfo& voyage) {
    const std::string text = Util::StringUtl::Format("%.3f,%.3f", record.x, record.y);
    if (!isNewer(record, text, voyage)) {
        return true;
    }
    if (voyage.vsmsi == 0 && record.vsmsi >= 1) {
        const std::string vi = voyage.vi;
        const std::string vsi = voyage.vsi;
        const std::string vsn = voyage.vsn;
        if (catalog.ChangeVessel(vi, vsi, vsn, record.vsmsi) < 0) {
            return false;
        }
    }
    voyage.vsmsi = record.vsmsi == 0 ? voyage.vsmsi : record.vsmsi;
    voyage.lastPosTime = record.time;
    voyage.lastPosText = text;
    return true;
}

void noteCorrectionTime(VoyCatalogController& catalog, VoyInfo& voyage) {
    if (voyage.modais <= 0 || voyage.lastAisModTime != 0) {
        return;
    }
    std::vector<std::string> times;
    if (catalog.GetAisModTimes(voyage.vi, times) < 0 || times.empty()) {
        return;
    }
    if (const auto last = Util::DateTimeUtl::Parse(times.back())) {
        const auto utc = Util::DateTimeUtl::ConvertToUTC(*last, kPlanZone);
        voyage.lastAisModTime = static_cast<int>(utc.to_gmt_timer());
    }
}

}  // namespace

int VoyController::RefreshVesselPositions() {
    const std::vector<std::string> vessels = vesselsOf(*store_);
    if (vessels.empty()) {
        return -1;
    }
    const PositionMap positions = askPositions(vessels);
    if (positions.empty()) {
        return -1;
    }
    for (auto& [vi, voyage] : store_->voyages) {
        const auto found = positions.find(voyage.vsi);
        if (voyage.vsi.empty() || found == positions.end()) {
            continue;
        }
        if (takePosition(found->second, *catalog_, voyage)) {
            noteCorrectionTime(*catalog_, voyage);
        }
    }
    return 0;
}

}  // namespace Tarvik::Seaplan
