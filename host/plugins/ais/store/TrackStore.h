// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "host/plugins/ais/store/Vessels.h"

namespace SQLite {
class Database;
}

namespace Tarvik::Ais {

/// Vessels and their tracks in an SQLite file, thinned by age. Every operation may throw std::exception; what
/// was written before stays whole. One object belongs to one thread at a time; several may have the file
/// open.
class TrackStore {
  public:
    /// How old fixes are thinned, in seconds of age and between fixes that stay.
    struct Thinning {
        std::int64_t age;
        std::int64_t step;
    };
    /// From the youngest on: after a day one in 5 minutes stays, after a week one in 30.
    static constexpr Thinning kSteps[] = {{86'400, 300}, {7 * 86'400, 1800}};
    /// Seconds until a fix goes: of a vessel that is followed 180 days, of any other a day.
    static constexpr std::int64_t kWatchedAge = 180 * 86'400, kOtherAge = 86'400;
    /// Fixes at most, some 200 MB; beyond it the oldest go whatever their age.
    static constexpr std::int64_t kMostFixes = 4'000'000;

    /// Opens the file, or makes it. A file that is no such database is put aside as "<file>.damaged" first.
    explicit TrackStore(const std::string& file);
    ~TrackStore();

    /// Writes all or nothing. Of two fixes of a vessel with one time the later written stays.
    void Write(const std::vector<KeptFix>& fixes, const std::vector<Vessel>& vessels);
    /// Thins by age at present time `now`; at most `most` fixes stay.
    void Thin(std::int64_t now, std::int64_t most = kMostFixes);
    /// All vessels, each with its newest fix that is not ahead of `now`.
    std::vector<Vessel> Load(std::int64_t now) const;
    /// The fixes of a vessel from `begin` to `end`, in order of time.
    std::vector<Fix> Track(std::uint32_t mmsi, std::int64_t begin, std::int64_t end) const;
    std::int64_t CountFixes() const;

  private:
    void Open(const std::string& file);
    void ThinOlder(std::int64_t before, std::int64_t step);

    std::unique_ptr<SQLite::Database> database_;
};

}  // namespace Tarvik::Ais
