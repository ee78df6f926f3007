// SPDX-License-Identifier: MIT
#include "host/plugins/fleet/store/FleetImport.h"

#include <algorithm>

#include "host/plugins/fleet/core/VesselFile.h"

namespace Tarvik::Fleet {

namespace {

using Interface::FleetVessel;

bool IsSame(const FleetVessel& known, const FleetVessel& read) {
    if (read.imo != 0 && known.imo != 0) {
        return read.imo == known.imo;
    }
    if (read.mmsi != 0 && known.mmsi != 0) {
        return read.mmsi == known.mmsi;
    }
    return read.name == known.name;
}

template <class Value>
void Keep(Value& value, const Value& known) {
    if (value == Value()) {
        value = known;
    }
}

/// What the file does not say stays.
FleetVessel Joined(const FleetVessel& known, FleetVessel read) {
    read.id = known.id;
    Keep(read.mmsi, known.mmsi);
    Keep(read.imo, known.imo);
    Keep(read.callSign, known.callSign);
    Keep(read.type, known.type);
    Keep(read.length, known.length);
    Keep(read.serviceSpeed, known.serviceSpeed);
    return read;
}

/// Nothing to do for a vessel that is known as it is.
std::optional<Outcome> TakeVessel(FleetStore& store, FleetVessel vessel, ImportReport& report) {
    const auto& fleet = store.Vessels();
    const auto known = std::find_if(fleet.begin(), fleet.end(),
                                    [&vessel](const auto& other) { return IsSame(other, vessel); });
    if (known == fleet.end()) {
        const Outcome outcome = store.Change(Operation::Add, vessel);
        report.added += outcome == Outcome::Done ? 1 : 0;
        return outcome;
    }
    FleetVessel joined = Joined(*known, vessel);
    if (joined == *known) {
        ++report.same;
        return std::nullopt;
    }
    const Outcome outcome = store.Change(Operation::Set, joined);
    report.changed += outcome == Outcome::Done ? 1 : 0;
    return outcome;
}

}  // namespace

std::optional<ImportReport> ImportVessels(FleetStore& store, const std::string& text) {
    const auto rows = ReadVesselFile(text);
    if (!rows) {
        return std::nullopt;
    }
    ImportReport report;
    store.Reload();
    for (const FileRow& row : *rows) {
        if (const auto fault = row.draft.Check()) {
            report.leftOut.push_back({row.line, *fault});
            continue;
        }
        const auto outcome = TakeVessel(store, row.draft.Vessel(), report);
        if (outcome.value_or(Outcome::Done) != Outcome::Done) {
            report.leftOut.push_back({row.line, *outcome});
        }
        if (outcome == Outcome::NoServer || outcome == Outcome::NoUser) {
            break;
        }
    }
    return report;
}

}  // namespace Tarvik::Fleet
