// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/data/Outcome.h"

/// The steps at which the operations of the tree fail, and the numbers that SeaplanTreeCtrl owes its callers.
/// The classes behind it answer with the step.
namespace Tarvik::Seaplan {

/// Loading everything anew.
enum class ReloadStep { Connect, Load, Rows, Counts };
inline constexpr CodeTable kReloadCodes{
    Code{ReloadStep::Connect, -1},
    Code{ReloadStep::Load, -2},
    Code{ReloadStep::Rows, -3},
    Code{ReloadStep::Counts, -4},
};

/// Making rows from the store.
enum class RowsStep { Row, Category, Voyages, Voyage, SortState, SortKey };
inline constexpr CodeTable kRowsCodes{
    Code{RowsStep::Row, -1},        // empty id, or a category without a row
    Code{RowsStep::Voyages, -2},    // a category without a list of voyages
    Code{RowsStep::Voyage, -3},     // a voyage that nobody knows
    Code{RowsStep::SortState, -4},  // a category without an order
    Code{RowsStep::SortKey, -5},    // an order that nobody knows
    Code{RowsStep::Category, -6},   // a category without a record or a state
};

/// Another order of a category's voyages.
enum class SortStep { Id, State, Rows };
inline constexpr CodeTable kSortCodes{
    Code{SortStep::Id, -1},
    Code{SortStep::State, -2},
    Code{SortStep::Rows, -3},
};

/// Status and dates of a voyage's row.
enum class StatusStep { Id, Voyage, Row };
inline constexpr CodeTable kStatusCodes{
    Code{StatusStep::Id, -1}, Code{StatusStep::Voyage, -2}, Code{StatusStep::Row, -4},  // -3 is free
};
enum class DatesStep { PortCalls };
inline constexpr CodeTable kShowDatesCodes{Code{DatesStep::PortCalls, -1}};
enum class RowRefreshStep { Voyage };
inline constexpr CodeTable kRefreshRowCodes{Code{RowRefreshStep::Voyage, -3}};

/// Taking the name in the box. The numbers of a category and a voyage differ.
enum class RenameStep {
    Empty,
    Invisible,
    CategoryWidth,
    CategoryRecord,
    CategoryId,
    CategoryName,
    CategoryServer,
    CategoryRows,
    VoyageWidth,
    VoyageRecord,
    VoyageId,
    VoyageName,
    VoyageServer
};
inline constexpr CodeTable kRenameCodes{
    Code{RenameStep::Empty, -1},  // -3 is free
    Code{RenameStep::Invisible, -2},      Code{RenameStep::CategoryWidth, -4},
    Code{RenameStep::CategoryRecord, -5}, Code{RenameStep::CategoryId, -6},
    Code{RenameStep::CategoryName, -7},  // taken, or untouched
    Code{RenameStep::CategoryServer, -8}, Code{RenameStep::CategoryRows, -9},
    Code{RenameStep::VoyageWidth, -10},   Code{RenameStep::VoyageRecord, -11},
    Code{RenameStep::VoyageId, -12},      Code{RenameStep::VoyageName, -13},  // taken, or untouched
    Code{RenameStep::VoyageServer, -14},
};

/// Giving a voyage a vessel.
enum class VesselStep { Row, Voyage, Server };
inline constexpr CodeTable kOpenVesselCodes{Code{VesselStep::Row, -1}};
inline constexpr CodeTable kCommitVesselCodes{
    Code{VesselStep::Voyage, -1},
    Code{VesselStep::Server, -2},
};

/// Keeping a port distance table as a voyage.
enum class TableVoyageStep { Names, Taken, Category, Voyage, Counts };
inline constexpr CodeTable kTableVoyageCodes{
    Code{TableVoyageStep::Names, -1},  // one is empty; the person was told
    Code{TableVoyageStep::Taken, -2},  // the voyage's; the person was told
    Code{TableVoyageStep::Category, -3}, Code{TableVoyageStep::Voyage, -4}, Code{TableVoyageStep::Counts, -5},
};

/// Taking back.
enum class UndoStep { Nothing, Refused };
inline constexpr CodeTable kUndoCodes{
    Code{UndoStep::Nothing, -51},
    Code{UndoStep::Refused, -52},  // by the server, or by a person who was asked
};

/// A click on an item: which rows it is about, and then the item's command.
enum class ItemStep {
    CategoryRecord,
    CategoryId,
    ParentRecord,
    ParentId,
    VoyageRecord,
    VoyageId,
    NewVoyage,
    NewRow,
    NewCounts,
    DeleteCategory,
    RecoverCategory,
    Reload,
    DestroyCategory,
    SortPanel,
    Direction,
    DirectionRows,
    Pin,
    Unpin,
    FillPortCalls,
    PortCallPanel,
    DropRow,
    DropCounts,
    DeleteVoyage,
    Drawing,
    CloseRoute,
    TrackOfDeleted,
    ShowTrack,
    RecoverVoyage,
    DestroyVoyage,
    Correct,
    ReplaceVessel,
    HideTrack,
    CorrectionPanel,
    ShowCorrection,
    Remarks,
    Figures,
    Copy,
    CopyRow
};
using ItemOutcome = Outcome<ItemStep>;
/// Numbers 3 to 18 are those of a category's commands, the others those of a voyage's.
inline constexpr CodeTable kItemCodes{
    Code{ItemStep::CategoryRecord, -1},
    Code{ItemStep::CategoryId, -2},
    Code{ItemStep::NewVoyage, -3},
    Code{ItemStep::NewRow, -4},
    Code{ItemStep::NewCounts, -5},
    Code{ItemStep::DeleteCategory, -6},
    Code{ItemStep::RecoverCategory, -7},
    Code{ItemStep::Reload, -8},
    Code{ItemStep::DestroyCategory, -9},
    Code{ItemStep::SortPanel, -13},
    Code{ItemStep::Direction, -14},
    Code{ItemStep::DirectionRows, -15},
    Code{ItemStep::ParentRecord, -19},
    Code{ItemStep::ParentId, -20},
    Code{ItemStep::VoyageRecord, -21},
    Code{ItemStep::VoyageId, -22},
    Code{ItemStep::Pin, -23},
    Code{ItemStep::Unpin, -24},
    Code{ItemStep::FillPortCalls, -25},
    Code{ItemStep::PortCallPanel, -26},
    Code{ItemStep::DropRow, -27},
    Code{ItemStep::DropCounts, -28},
    Code{ItemStep::DeleteVoyage, -29},
    Code{ItemStep::Drawing, -30},
    Code{ItemStep::CloseRoute, -31},
    Code{ItemStep::TrackOfDeleted, -32},
    Code{ItemStep::ShowTrack, -33},
    Code{ItemStep::RecoverVoyage, -34},
    Code{ItemStep::DestroyVoyage, -35},
    Code{ItemStep::Correct, -36},
    Code{ItemStep::ReplaceVessel, -37},
    Code{ItemStep::HideTrack, -38},
    Code{ItemStep::CorrectionPanel, -39},
    Code{ItemStep::ShowCorrection, -40},
    Code{ItemStep::Remarks, -41},
    Code{ItemStep::Figures, -42},
    Code{ItemStep::Copy, -43},
    Code{ItemStep::CopyRow, -44},
};

}  // namespace Tarvik::Seaplan
