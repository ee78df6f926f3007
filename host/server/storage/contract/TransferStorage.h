// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "host/server/storage/contract/Outcome.h"
#include "host/server/storage/contract/Records.h"

namespace Tarvik::Server {

/// One voyage with everything that hangs on it. The derived fields of `voyage` are ignored when it is added.
struct VoyageCopy {
    VoyageRecord voyage;
    std::vector<PortCallRecord> calls;  ///< in the order of their numbers
    std::optional<BookRecord> book;     ///< rows in the order of their numbers
    std::vector<std::string> aisTimes;  ///< in the order of their addition
};

/// One category with its voyages.
struct CategoryCopy {
    std::string id;
    std::string name;
    DeletionState state = DeletionState::InUse;
    std::vector<VoyageCopy> voyages;
};

/// One remark and what it is attached to.
struct RemarkCopy {
    RemarkObject object;
    RemarkRecord remark;
};

/// Everything of one owner that is not destroyed, in the order of creation.
struct OwnerCopy {
    std::string owner;
    std::vector<CategoryCopy> categories;
    std::vector<RemarkCopy> remarks;
    std::vector<FleetRecord> fleet{};
    std::vector<PlaceRecord> places{};
};

/// Ids beyond this are not kept when they are added: those that are given out behind them would soon be too
/// high for a file of exported users.
inline constexpr std::int64_t kMostKeptId = 1'000'000'000'000;
/// Ids beyond this are in no file: no server that counts on from the one above ever gets there.
inline constexpr std::int64_t kMostCopiedId = 10 * kMostKeptId;

/// What is about to be added.
struct CopyManifest {
    std::vector<std::string> owners;
    std::int64_t lowestId =
        0;  ///< of all categories, voyages, books, vessels and own ports; 0 when there are none
    std::int64_t highestId = 0;  ///< the same
    bool besideOthers = false;   ///< whether an owner may have records already
};

/// How adding ended that did not fail.
struct AddReport {
    bool idsKept = false;
    std::string occupied;  ///< an owner who has records already and may not: nothing was added
};

/// Hands out one owner after the other, nothing behind the last. A fault ends the adding with it.
using OwnerSource = std::function<Outcome<std::optional<OwnerCopy>>()>;

/// Takes owners out of a storage whole and puts them in whole. As with the other operations, each is one
/// transaction, none throws.
class TransferStorage {
  public:
    virtual ~TransferStorage() = default;

    /// Every owner of a category that is not destroyed or of a list, in the order of their bytes.
    virtual Outcome<std::vector<std::string>> ListOwners() = 0;
    /// What the owner had at one moment.
    virtual Outcome<OwnerCopy> ReadOwner(const std::string& owner) = 0;
    /// Adds all that the source hands out, or nothing. Ids stay as they are when all of them are beyond
    /// those given out here and none is beyond kMostKeptId; else every record gets a new one; remarks follow
    /// their objects, voyages their vessels, and port calls their own ports.
    virtual Outcome<AddReport> AddOwners(const CopyManifest& manifest, const OwnerSource& source) = 0;
};

/// The ids of one owner's copied records and those that they get where they are added.
class CopyIds {
  public:
    void PutCategory(const std::string& before, std::string after) { categories_[before] = std::move(after); }
    void PutVoyage(const std::string& before, std::string after) { voyages_[before] = std::move(after); }
    void PutVessel(const std::string& before, std::string after) { vessels_[before] = std::move(after); }
    void PutPlace(const std::string& before, std::string after) { places_[before] = std::move(after); }
    /// Whether the object is one of these categories and voyages, or a port call of one.
    bool Knows(const RemarkObject& object) const { return LengthOfId(object) > 0; }
    /// The object where it is added; the same for one that is not known here.
    RemarkObject Renamed(const RemarkObject& object) const;
    /// The same of a vessel of the fleet, by its id.
    std::string RenamedVessel(const std::string& id) const { return RenamedIn(vessels_, id); }
    /// The same of an own port.
    std::string RenamedPlace(const std::string& id) const { return RenamedIn(places_, id); }

  private:
    /// How much of the object's text is an id; 0 when none is known.
    std::size_t LengthOfId(const RemarkObject& object) const;

    using Renames = std::unordered_map<std::string, std::string>;

    static std::string RenamedIn(const Renames& renames, const std::string& id);

    Renames categories_;
    Renames voyages_;
    Renames vessels_;
    Renames places_;
};

}  // namespace Tarvik::Server
