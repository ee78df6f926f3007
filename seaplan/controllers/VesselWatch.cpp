// SPDX-License-Identifier: MIT
#include "seaplan/controllers/VesselWatch.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <utility>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/SiblingContract.h>
#include <tarvik/interface/SiblingRecords.h>
#include <tarvik/util/Clock.h>
#include <tarvik/util/DateTimeUtl.h>
#include <tarvik/util/StringUtl.h>

#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/controllers/VoyageChanges.h"
#include "seaplan/data/Position.h"
#include "seaplan/data/TimeText.h"

namespace Tarvik::Seaplan {

namespace {

using Interface::VesselPosition;
using PositionMap = std::map<std::string, VesselPosition>;

constexpr std::size_t kTrackFields = 4;
constexpr int kTrackNumbers = 3;  ///< time, x and y; the fourth field, the vessel's number, may be unknown

/// One text "vessel id|number" a vessel; of voyages with one vessel the first known number counts.
std::vector<std::string> VesselsOf(const VoyageStore& store) {
    std::map<std::string, int> numbers;
    for (const auto& [vi, voyage] : store.voyages) {
        if (!voyage.vsi.empty()) {
            int& number = numbers[voyage.vsi];
            number = number == 0 ? voyage.vsmsi : number;
        }
    }
    std::vector<std::string> texts;
    texts.reserve(numbers.size());
    for (const auto& [vsi, number] : numbers) {
        texts.push_back(vsi + Util::StringUtl::Format("|%d", number));
    }
    return texts;
}

/// Asks the tracking service; the answer is copied, as a further call in between replaces it.
PositionMap AskPositions(const std::vector<std::string>& vessels) {
    PositionMap positions;
    const auto* answer = Interface::Call(Interface::Bus::VesselPositions, &vessels);
    if (answer != nullptr) {
        for (const VesselPosition& record : *answer) {
            positions[record.vesselId] = record;
        }
    }
    return positions;
}

bool IsNewer(int time, const std::string& place, const VoyInfo& voyage) {
    return static_cast<std::uint32_t>(time) > static_cast<std::uint32_t>(voyage.lastPosTime) &&
           place != voyage.lastPosText;
}

/// Takes a newer position; a first number is saved first. False when that fails. A record without numbers
/// for its place tells nothing.
bool TakePosition(const VesselPosition& record, VoyCatalogController& catalog, VoyInfo& voyage) {
    const std::string text = PositionText({record.x, record.y});
    if (!std::isfinite(record.x) || !std::isfinite(record.y) || !IsNewer(record.time, text, voyage)) {
        return true;
    }
    if (voyage.vsmsi == 0 && record.vsmsi >= 1) {
        const std::string vi = voyage.vi;
        const std::string vsi = voyage.vsi;
        const std::string vsn = voyage.vsn;
        if (!IsVesselChanged(catalog.ChangeVessel(vi, vsi, vsn, record.vsmsi))) {
            return false;
        }
    }
    voyage.vsmsi = record.vsmsi == 0 ? voyage.vsmsi : record.vsmsi;
    voyage.lastPosTime = record.time;
    voyage.lastPosText = text;
    return true;
}

void NoteCorrectionTime(VoyCatalogController& catalog, VoyInfo& voyage) {
    if (voyage.modais <= 0 || voyage.lastAisModTime != 0) {
        return;
    }
    std::vector<std::string> times;
    if (catalog.GetAisModTimes(voyage.vi, times) < 0 || times.empty()) {
        return;
    }
    if (const auto last = Util::DateTimeUtl::Parse(times.back())) {
        voyage.lastAisModTime = GmtTimerOfPlanTime(*last);
    }
}

bool HasNumber(const std::string& text) {
    return text.find_first_of("0123456789") != std::string::npos;
}

/// The four fields of a track text: time, x, y, vessel number.
Outcome<TraceStep> ReadTrack(const std::string& text, std::vector<std::string>& fields) {
    if (text.empty()) {
        return TraceStep::NoTrack;
    }
    if (!HasNumber(text)) {
        return TraceStep::NoNumbers;
    }
    if (!Util::StringUtl::split(text, "|", fields) || fields.size() != kTrackFields) {
        return TraceStep::Fields;
    }
    const bool numbers = std::all_of(fields.begin(), fields.begin() + kTrackNumbers, HasNumber);
    return numbers ? Outcome<TraceStep>() : TraceStep::NoNumbers;
}

std::string AskTrack(const VoyInfo& voyage) {
    Interface::VesselTraceRequest request;
    request.vsi = voyage.vsi;
    request.vsmsi = voyage.vsmsi;
    request.begin = GmtTimerOfPlanTime(voyage.portCalls.front().etd);
    request.end = GmtTimerOfPlanTime(voyage.portCalls.back().eta);
    const std::string* answer = Interface::Call(Interface::Bus::VesselTrace, &std::as_const(request));
    return answer == nullptr ? "" : *answer;
}

constexpr int kPeriodMs = 100000;

}  // namespace

Outcome<RefreshStep> VesselWatch::RefreshPositions() {
    const std::vector<std::string> vessels = VesselsOf(*store_);
    if (vessels.empty()) {
        return RefreshStep::NoAnswer;
    }
    const PositionMap positions = AskPositions(vessels);
    if (positions.empty()) {
        return RefreshStep::NoAnswer;
    }
    for (auto& [vi, voyage] : store_->voyages) {
        const auto found = positions.find(voyage.vsi);
        if (voyage.vsi.empty() || found == positions.end()) {
            continue;
        }
        if (TakePosition(found->second, *catalog_, voyage)) {
            NoteCorrectionTime(*catalog_, voyage);
        }
    }
    return {};
}

Outcome<TraceStep> VesselWatch::RefreshTrace(const std::string& vi) {
    if (vi.empty()) {
        return TraceStep::Id;
    }
    VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return TraceStep::Voyage;
    }
    if (voyage->vsi.empty()) {
        return TraceStep::Vessel;
    }
    if (voyage->portCalls.size() < 2) {
        return TraceStep::PortCalls;
    }
    std::vector<std::string> fields;
    if (const auto failed = ReadTrack(AskTrack(*voyage), fields); failed.Failed()) {
        return failed;
    }
    return TakeTrack(*voyage, fields);
}

/// The place and the first vessel number are taken apart from one another.
Outcome<TraceStep> VesselWatch::TakeTrack(VoyInfo& voyage, const std::vector<std::string>& fields) {
    using Util::StringUtl;
    const int time = static_cast<int>(StringUtl::ToLong(fields[0]));
    const int vsmsi = static_cast<int>(StringUtl::ToLong(fields[3]));
    const std::string place = PositionText({StringUtl::ToDouble(fields[1]), StringUtl::ToDouble(fields[2])});
    if (IsNewer(time, place, voyage)) {
        voyage.lastPosTime = time;
        voyage.lastPosText = place;
    }
    if (voyage.vsmsi != 0 || vsmsi < 1) {
        return {};
    }
    const std::string vsi = voyage.vsi;
    const std::string vsn = voyage.vsn;
    return IsVesselChanged(catalog_->ChangeVessel(voyage.vi, vsi, vsn, vsmsi)) ? Outcome<TraceStep>()
                                                                               : TraceStep::Number;
}

Outcome<TraceStep> VesselWatch::HideTrack(const std::string& vi) const {
    if (vi.empty()) {
        return TraceStep::Id;
    }
    const VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return TraceStep::Voyage;
    }
    if (!voyage->vsi.empty()) {
        const std::string vessel = voyage->vsi + Util::StringUtl::Format("|%d", voyage->vsmsi);
        Interface::Call(Interface::Bus::HideAisTrack, &vessel);
    }
    return {};
}

void RefreshTimer::Start() {
    Util::TimerService* timers = Util::TimerService::Current();
    if (id_ == 0 && timers != nullptr) {
        id_ = timers->Start(kPeriodMs, work_);
    }
}

void RefreshTimer::Stop() {
    Util::TimerService* timers = Util::TimerService::Current();
    if (id_ != 0 && timers != nullptr) {
        timers->Stop(id_);
    }
    id_ = 0;
}

}  // namespace Tarvik::Seaplan
