// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "host/plugins/ais/core/Message.h"

namespace Tarvik::Ais {

/// Where a vessel was at a time.
struct Fix {
    std::int64_t time = 0;  ///< seconds after 1970, UTC
    double longitude = 0;   ///< degrees east
    double latitude = 0;    ///< degrees north
    double speed = -1;      ///< knots; -1 not known
    double course = -1;     ///< degrees over ground; -1 not known
    int heading = -1;       ///< degrees; -1 not known
    bool operator==(const Fix&) const = default;
};

/// What is known of a vessel.
struct Vessel {
    std::uint32_t mmsi = 0;
    Particulars particulars;
    bool hasFix = false;
    Fix last;                ///< the newest fix
    std::int64_t heard = 0;  ///< present time when it was heard last
    std::int64_t kept = 0;   ///< time of the fix that was kept last
    bool watched = false;    ///< somebody follows it
    bool renamed = false;    ///< its particulars changed since TakeRenamed
};

/// A fix that goes into the history.
struct KeptFix {
    std::uint32_t mmsi = 0;
    Fix fix;
};

/// The vessels that are heard, in memory. Bounded: when it is full, those heard longest ago that nobody
/// follows make room.
class Vessels {
  public:
    /// Vessels at once; more than any coastal feed has.
    static constexpr std::size_t kMost = 50'000;
    /// Seconds between two kept fixes of a vessel that is followed, and of any other.
    static constexpr std::int64_t kWatchedStep = 60, kOtherStep = 600;
    /// Seconds that a time may be ahead of the clock before it is taken for wrong.
    static constexpr std::int64_t kAhead = 60;

    explicit Vessels(std::size_t most = kMost) : most_(most) {}

    /// Takes what a message tells at present time `now`, seconds after 1970. A fix whose turn it is for the
    /// history is appended to `kept`.
    ///
    /// The message's own time counts unless it is ahead of the clock. A fix older than the newest is history
    /// alone. A newest fix ahead of the clock was made before the clock went back: anything newer heard
    /// replaces it.
    void Take(const Message& message, std::int64_t now, std::vector<KeptFix>& kept);
    /// Puts a vessel in as it was kept.
    void Restore(const Vessel& vessel);
    /// Follows a vessel from now on, also one that was never heard.
    void Watch(std::uint32_t mmsi);
    /// The vessel, null when it was never heard.
    const Vessel* Find(std::uint32_t mmsi) const;
    const std::unordered_map<std::uint32_t, Vessel>& All() const { return vessels_; }
    /// Vessels whose particulars changed since the last call.
    std::vector<Vessel> TakeRenamed();

  private:
    Vessel& At(std::uint32_t mmsi);
    void MakeRoom();

    std::size_t most_;
    std::unordered_map<std::uint32_t, Vessel> vessels_;
};

}  // namespace Tarvik::Ais
