// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "seaplan/data/VoyInfo.h"
#include "seaplan/data/VoyPortCall.h"

namespace Tarvik::Seaplan {

class VesselWatch;
class VoyCatalogController;
class VoyPortCallModule;
class VoyageRecords;
class VoyageStore;

/// What VoyController answers from a voyage's record alone.
class VoyageRecordFacade {
  public:
    /// The seven consumption figures of the record, in kg/day: kReadRecordCodes.
    int GetFigures(const std::string& vi, BunkerFigures& figures) const;
    /// The same to the server, then into the record: kSaveFiguresCodes.
    int SaveFigures(const std::string& vi, const BunkerFigures& figures);
    /// Makes a corrected voyage a plain one, in memory: kReadRecordCodes.
    int ClearAisMod(const std::string& vi);
    /// Name of a voyage, empty for an unknown one.
    std::string NameOf(const std::string& vi) const;
    /// How often the voyage was corrected from AIS; `count` is left alone for the distance table, which is
    /// none: kReadRecordCodes.
    int GetModAis(const std::string& vi, int& count) const;

  protected:
    /// Keeps its collaborators, which outlive it.
    VoyageRecordFacade(VoyPortCallModule* module, VoyageStore* store);
    ~VoyageRecordFacade();

  private:
    std::unique_ptr<VoyageRecords> records_;
};

/// What VoyController does with the vessels that sail the voyages.
class VesselFacade {
  public:
    /// Takes over newer positions of all vessels: kRefreshPositionsCodes.
    int RefreshVesselPositions();
    /// Takes over the last position of the vessel's track, if newer: kRefreshTraceCodes.
    int RefreshTrace(const std::string& vi);
    /// Has the vessel's track hidden: kRefreshTraceCodes, of which -1 and -2.
    int HideAisTrack(const std::string& vi);

  protected:
    /// Keeps its collaborators, which outlive it.
    VesselFacade(VoyCatalogController* catalog, VoyageStore* store);
    ~VesselFacade();

  private:
    std::unique_ptr<VesselWatch> watch_;
};

/// What VoyController makes of the rows at hand, which are nobody's yet, and of the route under way for them.
class RouteRowsFacade {
  public:
    /// A new list. -1 when the insertion, -2 when the removal fails; then `out` is empty.
    int MoveRowUp(const PortCallRows& rows, int index, PortCallRows& out);
    /// As MoveRowUp.
    int MoveRowDown(const PortCallRows& rows, int index, PortCallRows& out);
    /// A new list. -1 a negative index, -2 one at or beyond the size.
    int DeleteRow(const PortCallRows& rows, int index, PortCallRows& out);
    /// 1 after a schedule was loaded or saved; -1 at the start and after its rows were moved or deleted.
    int RouteIsCurrent() const;

  protected:
    /// Keeps the module, which outlives it.
    explicit RouteRowsFacade(VoyPortCallModule* module) : rowsModule_(module) {}
    ~RouteRowsFacade() = default;

  private:
    VoyPortCallModule* rowsModule_;
};

}  // namespace Tarvik::Seaplan
