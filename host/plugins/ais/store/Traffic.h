// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "host/plugins/ais/store/TrackStore.h"
#include "host/plugins/ais/store/Vessels.h"

namespace Tarvik::Ais {

/// The ships as they are heard, with their history: one thread takes messages and keeps them, another asks.
/// An asking thread waits for memory alone, never for the disk's writing.
class Traffic {
  public:
    /// Fixes that wait for the disk at most; when it fails for so long, the oldest go.
    static constexpr std::size_t kMostWaiting = 200'000;

    /// Takes up what the file has at present time `now`; an empty name keeps nothing. Where the file cannot
    /// be opened all goes on in memory, and Error tells why.
    Traffic(const std::string& file, std::int64_t now);
    ~Traffic();

    ///@{
    /// Taking thread: a message at present time `now`; writing what waits; thinning.
    void Take(const Message& message, std::int64_t now);
    void Flush();
    void Thin(std::int64_t now);
    ///@}

    /// The vessel as it is now; nothing when it was never heard.
    std::optional<Vessel> Find(std::uint32_t mmsi) const;
    /// All vessels with a fix that were heard at `since` or later.
    std::vector<Vessel> HeardSince(std::int64_t since) const;
    /// The fixes of a vessel from `begin` to `end` in order of time, the newest one with them.
    std::vector<Fix> Track(std::uint32_t mmsi, std::int64_t begin, std::int64_t end) const;
    /// Keeps this vessel's track finely and long from now on.
    void Watch(std::uint32_t mmsi);
    /// What went wrong with the file last; empty when nothing did.
    std::string Error() const;

  private:
    void Note(const std::string& error);

    mutable std::mutex mutex_;  ///< of all but the two stores
    Vessels vessels_;
    std::vector<KeptFix> waiting_;  ///< for the next Flush
    std::vector<KeptFix> writing_;  ///< being written
    std::string error_;
    std::unique_ptr<TrackStore> writer_;  ///< the taking thread's
    std::unique_ptr<TrackStore> reader_;  ///< the asking thread's
};

}  // namespace Tarvik::Ais
