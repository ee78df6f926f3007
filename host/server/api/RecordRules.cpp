// SPDX-License-Identifier: MIT
#include "host/server/api/RecordRules.h"

#include <initializer_list>
#include <string>

#include <tarvik/interface/PlanTerms.h>
#include <tarvik/interface/VesselNumbers.h>
#include <tarvik/util/Geodesy.h>

namespace Tarvik::Server {

namespace {

constexpr std::int32_t kMostOrder = 1000000;
// Far beyond any ship: a speed between two fixes close in time is what it is, and a save must not fail for
// it.
constexpr double kMostSpeedKmh = 1e9;
constexpr double kMostHours = 1000000;
// A line that crosses the date line may go on beyond 180 degrees.
constexpr double kLongitudeLimit = 360;
constexpr std::int32_t kMostSpacing = 360;
constexpr std::int32_t kMostKind = 9;
constexpr double kMostLengthMetres = 1000;
constexpr double kMostServiceKmh = 200;

/// False for what is no number, too.
template <class Number>
bool IsWithin(Number number, Number least, Number most) {
    return number >= least && number <= most;
}

/// A text of a row, whose fields are parted by bars.
std::optional<ErrorCode> FaultOfFields(std::initializer_list<std::string_view> fields) {
    for (const std::string_view field : fields) {
        if (const auto fault = FaultOf(field, kMaxNameBytes)) {
            return fault;
        }
        if (field.find('|') != std::string_view::npos) {
            return ErrorCode::BadRow;
        }
    }
    return std::nullopt;
}

/// A purpose may be missing, or blank on a row that stands for a ship's position; otherwise it is one of the
/// list.
bool IsPurpose(std::string_view text) {
    return text.empty() || text == " " || Interface::IsPurposeCode(text);
}

}  // namespace

std::optional<ErrorCode> FaultOf(std::string_view text, std::size_t most) {
    if (text.size() > most) {
        return ErrorCode::TextTooLong;
    }
    if (text.find('\0') != std::string_view::npos) {
        return ErrorCode::BadText;
    }
    return std::nullopt;
}

std::optional<ErrorCode> FaultOf(const PortCallRecord& call) {
    if (const auto fault = FaultOfFields({call.portId, call.portName, call.purpose})) {
        return fault;
    }
    if (call.portId.empty() && call.portName.empty()) {
        return ErrorCode::BadRow;
    }
    if (!IsPurpose(call.purpose)) {
        return ErrorCode::BadPurpose;
    }
    const bool good = IsWithin(call.order, 0, kMostOrder) && IsWithin(call.speedKmh, 0.0, kMostSpeedKmh) &&
                      IsWithin(call.weatherFactor, 0.0, 1.0) && IsWithin(call.hoursInPort, 0.0, kMostHours);
    return good ? std::nullopt : std::optional(ErrorCode::BadNumber);
}

std::optional<ErrorCode> FaultOf(const BookRowRecord& row) {
    if (const auto fault = FaultOfFields({row.name, row.sailing})) {
        return fault;
    }
    const bool good = IsWithin(row.order, 0, kMostOrder) &&
                      IsWithin(row.longitude, -kLongitudeLimit, kLongitudeLimit) &&
                      IsWithin(row.latitude, -Util::kMostLatitude, Util::kMostLatitude) &&
                      IsWithin(row.spacing, 0, kMostSpacing) && IsWithin(row.speedKmh, 0.0, kMostSpeedKmh) &&
                      IsWithin(row.kind, 0, kMostKind);
    return good ? std::nullopt : std::optional(ErrorCode::BadNumber);
}

std::optional<ErrorCode> FaultOf(const FleetRecord& vessel) {
    if (vessel.name.empty()) {
        return ErrorCode::EmptyName;
    }
    for (const std::string_view text : {std::string_view(vessel.name), std::string_view(vessel.type)}) {
        if (const auto fault = FaultOf(text, kMaxListTextBytes)) {
            return fault;
        }
    }
    if (const auto fault = FaultOf(vessel.callSign, kMaxCallSignBytes)) {
        return fault;
    }
    if (vessel.mmsi != 0 && !Interface::IsShipMmsi(vessel.mmsi)) {
        return ErrorCode::BadMmsi;
    }
    if (vessel.imo != 0 && !Interface::IsImoNumber(vessel.imo)) {
        return ErrorCode::BadImo;
    }
    const bool good = IsWithin(vessel.lengthMetres, 0.0, kMostLengthMetres) &&
                      IsWithin(vessel.speedKmh, 0.0, kMostServiceKmh);
    return good ? std::nullopt : std::optional(ErrorCode::BadNumber);
}

std::optional<ErrorCode> FaultOf(const PlaceRecord& place) {
    if (place.name.empty()) {
        return ErrorCode::EmptyName;
    }
    if (const auto fault = FaultOf(place.name, kMaxListTextBytes)) {
        return fault;
    }
    // It goes into the rows of port calls, whose fields are parted by bars.
    if (place.name.find('|') != std::string::npos) {
        return ErrorCode::BadName;
    }
    const bool good = Util::IsOnEarth(place.longitude, place.latitude);
    return good ? std::nullopt : std::optional(ErrorCode::BadPosition);
}

std::optional<ErrorCode> FaultOfNew(const PortCallRecord& call) {
    if (const auto fault = FaultOf(call)) {
        return fault;
    }
    if (call.portName.empty()) {
        return ErrorCode::BadRow;
    }
    if (call.portId.empty()) {
        return ErrorCode::UnknownPort;
    }
    if (call.weatherFactor >= Interface::kLeastFullWeather) {
        return ErrorCode::BadNumber;
    }
    // A blank stands for a ship's position in the plug-in's table, which is no port call.
    const bool purposeless = call.purpose.empty() || call.purpose == " ";
    return purposeless ? std::optional(ErrorCode::BadPurpose) : std::nullopt;
}

}  // namespace Tarvik::Server
