// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/TableHistory.h"

#include <algorithm>

#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/panels/editors/EditHistory.h"
#include "seaplan/panels/portcall/PortCallSheet.h"

namespace Tarvik::Seaplan {

namespace {

/// Whether all cells but the row's number are blank; a row beyond the table's end is.
bool IsEmptyRow(const PortCallTable& table, int row) {
    return !table.IsNumbered(row) ||
           std::all_of(table.Rows()[row].cells.begin() + ColPort, table.Rows()[row].cells.end(), IsBlankCell);
}

bool SameUnits(const PortCallState& a, const PortCallState& b) {
    return a.speedUnit == b.speedUnit && a.distanceUnit == b.distanceUnit && a.timeUnit == b.timeUnit;
}

/// Whether a person would see no edit between the two: a free row more at the end is none.
bool SameContent(const PortCallSheet& a, const PortCallSheet& b) {
    const int rows = std::max(a.table.RowCount(), b.table.RowCount());
    for (int row = 0; row < rows; ++row) {
        const bool empty = IsEmptyRow(a.table, row);
        if (empty != IsEmptyRow(b.table, row)) {
            return false;
        }
        if (!empty && (a.table.Rows()[row].cells != b.table.Rows()[row].cells ||
                       a.table.Rows()[row].look != b.table.Rows()[row].look)) {
            return false;
        }
    }
    return SameUnits(a.state, b.state);
}

}  // namespace

struct TableHistory::TableState {
    PortCallSheet sheet;
    PendingRoute route;
};

struct TableHistory::States : EditHistory<TableState> {
    static constexpr std::size_t kMost = 250;

    States() : EditHistory<TableState>(kMost) {}
};

TableHistory::TableHistory(PortCallSheet& sheet, VoyController& voyages, PortDirectory& ports)
    : sheet_(sheet), voyages_(voyages), ports_(ports), history_(std::make_unique<States>()) {}

TableHistory::~TableHistory() = default;

UndoTexts TableHistory::Texts() const {
    return history_->Texts();
}

/// A corrected voyage's history is rebuilt by its save, and cannot be taken back any more.
bool TableHistory::BeginsAnew() const {
    int corrected = 0;
    return begins_ || !history_->IsThere() ||
           (!sheet_.state.changed && voyages_.GetModAis(sheet_.voyageId, corrected) == 0 && corrected > 0);
}

void TableHistory::Take(const EditName& name) {
    const PendingRoute& route = voyages_.Module().Pending();
    if (BeginsAnew()) {
        begins_ = false;
        history_->Start({sheet_, route});
        if (sheet_.state.changed) {
            history_->MarkUnsaved();
        }
    } else if (!SameContent(history_->Now().state.sheet, sheet_)) {
        history_->Push({sheet_, route}, name);
    }
    if (!sheet_.state.changed && !history_->IsSaved()) {
        history_->MarkSaved({sheet_, route});
    }
}

void TableHistory::NoteNotSaved() {
    history_->MarkUnsaved();
}

bool TableHistory::IsStoredKnown() const {
    return history_->IsBackupStored();
}

void TableHistory::ShowState(const TableState& to) {
    const PortCallSheet now = sheet_;
    sheet_ = to.sheet;
    sheet_.voyageId = now.voyageId;
    sheet_.editedVoyageId = now.editedVoyageId;
    sheet_.aisCorrectionPending = now.aisCorrectionPending;
    sheet_.unread = now.unread;
    sheet_.cause = now.cause;
    PortCallState& state = sheet_.state;
    if (SameUnits(now.state, state)) {
        // What the server has is not taken back, but of which ports the figures are.
        sheet_.stored = now.stored;
        sheet_.stored.TakeRoute(to.sheet.stored);
    }
    state.caption = now.state.caption;
    state.zone = now.state.zone;
    state.distanceTable = now.state.distanceTable;
    state.calculateText = now.state.calculateText;
    state.canClear = now.state.canClear;
    state.canOpenBook = now.state.canOpenBook;
    state.canCalculate = sheet_.PlaceCount(ports_) >= 2;
    state.changed = !history_->IsSaved() && (to.sheet.state.changed || state.canCalculate);
    state.canSave = state.changed;
    if (state.changed) {
        sheet_.editedVoyageId = sheet_.voyageId;
    }
    ShowRoute(to);
}

/// The route goes with the rows that it was calculated for, in the module and on the chart.
void TableHistory::ShowRoute(const TableState& to) {
    PendingRoute& route = voyages_.Module().Pending();
    if (to.route.IsFor(to.sheet.voyageId)) {
        route.PutBack(to.route, sheet_.voyageId);
        voyages_.Module().DrawCurrentRoute();
    } else if (route.IsFor(sheet_.voyageId)) {
        route.Drop();
        voyages_.ClearChart();
        if (sheet_.state.canOpenBook) {
            voyages_.ShowVoyage(sheet_.voyageId);
        }
    }
}

bool TableHistory::GoBack() {
    const TableState* to = history_->Back();
    if (to != nullptr) {
        ShowState(*to);
    }
    return to != nullptr;
}

bool TableHistory::GoForward() {
    const TableState* to = history_->Forward();
    if (to != nullptr) {
        ShowState(*to);
    }
    return to != nullptr;
}

}  // namespace Tarvik::Seaplan
