// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace Tarvik::Server {

/// Where a category or voyage stands between use and destruction. There is no way back from Destroyed.
enum class DeletionState : int { InUse = 0, InBin = 1, Destroyed = 2 };

/// The vessel that sails a voyage. An empty id with a name is a vessel that no register knows.
struct VesselRecord {
    std::string id;
    std::string name;
    std::int32_t mmsi = 0;  ///< 0 until known
};

/// Consumption in kg/day: fuel oil in ballast, laden, in port; diesel oil under way, in port; fresh water
/// under way, in port.
using Figures = std::array<std::int32_t, 7>;

/// One voyage without its schedule.
struct VoyageRecord {
    std::string id;
    std::string name;
    VesselRecord vessel;
    bool routeShown = false;
    bool aisTraced = false;
    Figures figures{};
    bool hasRemark = false;  ///< derived: a remark of the voyage itself exists
    int aisTimes = 0;        ///< derived: count of AIS modification times
    DeletionState state = DeletionState::InUse;
};

/// One category with its voyages, destroyed ones left out.
struct CategoryRecord {
    std::string id;
    std::string name;
    bool hasRemark = false;  ///< derived: a remark of the category itself exists
    DeletionState state = DeletionState::InUse;
    std::vector<VoyageRecord> voyages;
};

/// One port call.
struct PortCallRecord {
    std::int32_t order = 0;
    std::string portId;
    std::string portName;
    std::string purpose;
    double speedKmh = 0;
    double weatherFactor = 0;  ///< fraction, 0 to 1
    double hoursInPort = 0;

    bool operator==(const PortCallRecord&) const = default;
};

/// One row of a position book.
struct BookRowRecord {
    std::int32_t order = 0;
    std::string name;
    double longitude = 0;  ///< degrees
    double latitude = 0;   ///< degrees
    std::string sailing;   ///< "GC" great circle, anything else rhumb line
    std::int32_t spacing = 0;
    double speedKmh = 0;
    std::int32_t kind = 0;

    bool operator==(const BookRowRecord&) const = default;
};

/// Most port calls of a voyage, and most rows of its position book.
inline constexpr std::size_t kMostRows = 100000;

/// The position book of a voyage; a voyage has at most one.
struct BookRecord {
    std::string id;
    std::string date;  ///< the text as it was given
    std::vector<BookRowRecord> rows;
};

/// What a remark is attached to: 2 a category (its id), 3 a voyage (its id), 4 a port call (the voyage's id
/// directly followed by the port's name).
struct RemarkObject {
    int type = 0;
    std::string id;
};

inline constexpr int kCategoryRemark = 2;
inline constexpr int kVoyageRemark = 3;
inline constexpr int kPortCallRemark = 4;

/// One remark of an object.
struct RemarkRecord {
    std::int32_t seq = 0;  ///< number within its object, at least 1, chosen by the client
    std::string subject;
    std::string body;
    std::int64_t created = 0;  ///< seconds since 1970-01-01 00:00:00 UTC
    std::int64_t updated = 0;  ///< the same
};

/// One vessel of a user's fleet.
struct FleetRecord {
    std::string id;
    std::string name;
    std::int32_t mmsi = 0;  ///< 0 when unknown
    std::int32_t imo = 0;   ///< the same
    std::string callSign;
    std::string type;         ///< as people call it
    double lengthMetres = 0;  ///< 0 when unknown
    double speedKmh = 0;      ///< in service; 0 when unknown

    bool operator==(const FleetRecord&) const = default;
};

/// Most vessels of a fleet. With the longest texts the reply that lists them still fits an envelope.
inline constexpr std::size_t kMostVessels = 2000;

/// A port of a user's own. Its id is one of this server's, which begin beyond all of the sea network's.
struct PlaceRecord {
    std::string id;
    std::string name;
    double longitude = 0;  ///< degrees
    double latitude = 0;   ///< degrees

    bool operator==(const PlaceRecord&) const = default;
};

/// Most ports of a user's own.
inline constexpr std::size_t kMostPlaces = 1000;

}  // namespace Tarvik::Server
