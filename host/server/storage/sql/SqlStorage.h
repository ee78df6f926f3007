// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/server/storage/contract/CatalogStorage.h"
#include "host/server/storage/contract/ScheduleStorage.h"
#include "host/server/storage/contract/Storage.h"
#include "host/server/storage/contract/TransferStorage.h"
#include "host/server/storage/sql/SqlSession.h"

/// The storage in a data base that speaks SQL, in its parts. None of them owns its session.
namespace Tarvik::Server {

/// Categories and voyages.
class SqlCatalog : public CatalogStorage {
  public:
    explicit SqlCatalog(SqlSession& session) : session_(session) {}

    Outcome<std::vector<CategoryRecord>> LoadCatalog(const std::string& owner) override;
    Outcome<std::string> CreateCategory(const std::string& owner, const std::string& name) override;
    Status RenameCategory(const std::string& owner, const std::string& id, const std::string& name) override;
    Status MoveCategory(const std::string& owner, const std::string& id, DeletionState to) override;
    Outcome<std::string> CreateVoyage(const std::string& owner, const std::string& categoryId,
                                      const VoyageRecord& voyage) override;
    Status RenameVoyage(const std::string& owner, const std::string& id, const std::string& name) override;
    Status MoveVoyage(const std::string& owner, const std::string& id, DeletionState to) override;
    Status ChangeVessel(const std::string& owner, const std::string& id, const VesselRecord& vessel) override;
    Status ShowRoute(const std::string& owner, const std::string& id, bool shown) override;
    Status TraceAis(const std::string& owner, const std::string& id, bool traced) override;
    Status SetFigures(const std::string& owner, const std::string& id, const Figures& figures) override;

  private:
    /// Runs an update whose first two places are owner and voyage id.
    template <class... Values>
    Status UpdateVoyage(std::string_view sql, const std::string& owner, const std::string& id,
                        const Values&... values);

    SqlSession& session_;
};

/// Port calls, position books and AIS modification times.
class SqlSchedule : public ScheduleStorage {
  public:
    explicit SqlSchedule(SqlSession& session) : session_(session) {}

    Outcome<std::vector<PortCallRecord>> LoadPortCalls(const std::string& owner,
                                                       const std::string& voyageId) override;
    Status ReplacePortCalls(const std::string& owner, const std::string& voyageId,
                            const std::vector<PortCallRecord>& calls) override;
    Outcome<std::optional<BookRecord>> LoadBook(const std::string& owner,
                                                const std::string& voyageId) override;
    Outcome<std::string> CreateBook(const std::string& owner, const std::string& voyageId,
                                    const std::string& date) override;
    Status SetBookDate(const std::string& owner, const std::string& bookId, const std::string& date) override;
    Status ReplaceBookRows(const std::string& owner, const std::string& bookId, const std::string& writer,
                           const std::vector<BookRowRecord>& rows) override;
    Status AppendBookRows(const std::string& owner, const std::string& bookId, const std::string& writer,
                          const std::vector<BookRowRecord>& rows) override;
    Outcome<std::vector<std::string>> LoadAisTimes(const std::string& owner,
                                                   const std::string& voyageId) override;
    Status AddAisTime(const std::string& owner, const std::string& voyageId,
                      const std::string& time) override;

  private:
    SqlSession& session_;
};

/// Remarks.
class SqlRemarks : public RemarkStorage {
  public:
    explicit SqlRemarks(SqlSession& session) : session_(session) {}

    Outcome<std::vector<RemarkRecord>> LoadRemarks(const std::string& owner,
                                                   const RemarkObject& object) override;
    Status AddRemark(const std::string& owner, const RemarkObject& object,
                     const RemarkRecord& remark) override;
    Status ChangeRemark(const std::string& owner, const RemarkObject& object,
                        const RemarkRecord& remark) override;
    Status DeleteRemark(const std::string& owner, const RemarkObject& object, std::int32_t seq) override;

  private:
    SqlSession& session_;
};

/// Fleets.
class SqlFleet : public FleetStorage {
  public:
    explicit SqlFleet(SqlSession& session) : session_(session) {}

    Outcome<std::vector<FleetRecord>> LoadFleet(const std::string& owner) override;
    Outcome<std::string> AddVessel(const std::string& owner, const FleetRecord& vessel) override;
    Status SetVessel(const std::string& owner, const FleetRecord& vessel) override;
    Status RemoveVessel(const std::string& owner, const std::string& id) override;

  private:
    SqlSession& session_;
};

/// Ports of users' own.
class SqlPlaces : public PlaceStorage {
  public:
    explicit SqlPlaces(SqlSession& session) : session_(session) {}

    Outcome<std::vector<PlaceRecord>> LoadPlaces(const std::string& owner) override;
    Outcome<std::string> AddPlace(const std::string& owner, const PlaceRecord& place) override;
    Status SetPlace(const std::string& owner, const PlaceRecord& place) override;
    Status RemovePlace(const std::string& owner, const std::string& id) override;

  private:
    SqlSession& session_;
};

/// Whole owners, taken out and put in.
class SqlTransfer : public TransferStorage {
  public:
    explicit SqlTransfer(SqlSession& session) : session_(session) {}

    Outcome<std::vector<std::string>> ListOwners() override;
    Outcome<OwnerCopy> ReadOwner(const std::string& owner) override;
    Outcome<AddReport> AddOwners(const CopyManifest& manifest, const OwnerSource& source) override;

  private:
    SqlSession& session_;
};

/// All of it over one session. What opens a data base derives from it.
class SqlStorage : public Storage {
  public:
    Status Check() override {
        return session_->Write([](SqlConnection& connection) -> Status {
            connection.Run("{touch}");
            return Done{};
        });
    }
    void GiveUp() override { session_->GiveUp(); }
    CatalogStorage& Catalog() override { return catalog_; }
    ScheduleStorage& Schedule() override { return schedule_; }
    RemarkStorage& Remarks() override { return remarks_; }
    FleetStorage& Fleet() override { return fleet_; }
    PlaceStorage& Places() override { return places_; }
    /// Takes owners out and puts them in, as export and import do.
    TransferStorage& Transfer() { return transfer_; }

  protected:
    /// The tables of the session's data base are of the present version.
    explicit SqlStorage(std::unique_ptr<SqlSession> session)
        : session_(std::move(session)),
          catalog_(*session_),
          schedule_(*session_),
          remarks_(*session_),
          fleet_(*session_),
          places_(*session_),
          transfer_(*session_) {}

  private:
    std::unique_ptr<SqlSession> session_;
    SqlCatalog catalog_;
    SqlSchedule schedule_;
    SqlRemarks remarks_;
    SqlFleet fleet_;
    SqlPlaces places_;
    SqlTransfer transfer_;
};

}  // namespace Tarvik::Server
