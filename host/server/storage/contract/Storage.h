// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/server/storage/contract/Outcome.h"
#include "host/server/storage/contract/Records.h"

namespace Tarvik::Server {

class CatalogStorage;
class ScheduleStorage;

/// Remarks on categories, voyages and port calls. The object must be known to the catalog of the same owner.
class RemarkStorage {
  public:
    virtual ~RemarkStorage() = default;

    /// In the order of their numbers.
    virtual Outcome<std::vector<RemarkRecord>> LoadRemarks(const std::string& owner,
                                                           const RemarkObject& object) = 0;
    /// Refused when the object has a remark of this number.
    virtual Status AddRemark(const std::string& owner, const RemarkObject& object,
                             const RemarkRecord& remark) = 0;
    /// Changes subject, body and time of the last change; the time of creation stays.
    virtual Status ChangeRemark(const std::string& owner, const RemarkObject& object,
                                const RemarkRecord& remark) = 0;
    virtual Status DeleteRemark(const std::string& owner, const RemarkObject& object, std::int32_t seq) = 0;
};

/// Each user's fleet.
class FleetStorage {
  public:
    virtual ~FleetStorage() = default;

    /// In the order of their addition.
    virtual Outcome<std::vector<FleetRecord>> LoadFleet(const std::string& owner) = 0;
    /// Gives the id of the new vessel; its own is ignored. Refused when the fleet has kMostVessels.
    virtual Outcome<std::string> AddVessel(const std::string& owner, const FleetRecord& vessel) = 0;
    /// Puts the record in the place of the one of its id.
    virtual Status SetVessel(const std::string& owner, const FleetRecord& vessel) = 0;
    /// Voyages that it sails keep its name and numbers.
    virtual Status RemoveVessel(const std::string& owner, const std::string& id) = 0;
};

/// Each user's own ports.
class PlaceStorage {
  public:
    virtual ~PlaceStorage() = default;

    /// In the order of their addition.
    virtual Outcome<std::vector<PlaceRecord>> LoadPlaces(const std::string& owner) = 0;
    /// Gives the id of the new port; its own is ignored. Refused when the owner has kMostPlaces.
    virtual Outcome<std::string> AddPlace(const std::string& owner, const PlaceRecord& place) = 0;
    /// Puts the record in the place of the one of its id.
    virtual Status SetPlace(const std::string& owner, const PlaceRecord& place) = 0;
    /// Port calls there stay as they are.
    virtual Status RemovePlace(const std::string& owner, const std::string& id) = 0;
};

/// Everything that the voyage server keeps.
///
/// Every operation takes the owner first and reaches nothing of anybody else. An operation is one
/// transaction: it is on disk when it succeeds and has changed nothing when it does not, unless its fault is
/// MaybeStored: then who asked is to look. Ids are decimal
/// texts from 1000001 upward, unique over all owners and kinds of record, and never given out twice.
/// Operations may be called from any thread and never throw.
class Storage {
  public:
    virtual ~Storage() = default;

    /// Whether changes can be stored now: makes one that changes nothing, through to the disk.
    virtual Status Check() = 0;
    /// From now on no operation waits for others or for a data base that is silent: it fails instead. For the
    /// end of a process.
    virtual void GiveUp() = 0;

    virtual CatalogStorage& Catalog() = 0;
    virtual ScheduleStorage& Schedule() = 0;
    virtual RemarkStorage& Remarks() = 0;
    virtual FleetStorage& Fleet() = 0;
    virtual PlaceStorage& Places() = 0;
};

}  // namespace Tarvik::Server
