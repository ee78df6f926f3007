// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/data/Outcome.h"
#include "seaplan/data/VoyageStore.h"

namespace Tarvik::Seaplan {

class VoyPortCallModule;

/// Stands for a voyage's id while the port distance table is on show, which is none.
inline constexpr const char* kDistanceTableId = "DISTANCE TABLE USE";

enum class RecordStep { Id, Server, Voyage };
/// Numbers of GetFigures, ClearAisMod and GetModAis.
inline constexpr CodeTable kReadRecordCodes{
    Code{RecordStep::Id, -1},      // empty id
    Code{RecordStep::Voyage, -2},  // unknown voyage
};
/// Numbers of SaveFigures.
inline constexpr CodeTable kSaveFiguresCodes{
    Code{RecordStep::Id, -1},      // empty id
    Code{RecordStep::Server, -2},  // the server takes no figures
    Code{RecordStep::Voyage, -3},  // they are saved, but the voyage is unknown here
};

/// The consumption figures in a voyage's record, and the count of its corrections from AIS.
class VoyageRecords {
  public:
    /// Keeps its collaborators, which outlive it.
    VoyageRecords(VoyPortCallModule* module, VoyageStore* store) : module_(module), store_(store) {}

    /// Of the record, in kg/day: kReadRecordCodes.
    Outcome<RecordStep> GetFigures(const std::string& vi, BunkerFigures& figures) const;
    /// Name of a voyage, empty for an unknown one.
    std::string NameOf(const std::string& vi) const;
    /// To the server, then into the record: kSaveFiguresCodes.
    Outcome<RecordStep> SaveFigures(const std::string& vi, const BunkerFigures& figures);
    /// Makes a corrected voyage a plain one, in memory: kReadRecordCodes.
    Outcome<RecordStep> ClearCorrections(const std::string& vi);
    /// The distance table stands for a voyage without corrections; `count` is left alone for it:
    /// kReadRecordCodes.
    Outcome<RecordStep> CountCorrections(const std::string& vi, int& count) const;

  private:
    VoyPortCallModule* module_;
    VoyageStore* store_;
};

}  // namespace Tarvik::Seaplan
