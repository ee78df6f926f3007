// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/PastePlan.h"

#include <algorithm>
#include <array>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/texts/EditTexts.h"

namespace Tarvik::Seaplan {

namespace {

using Mark = RowsPreview::Mark;

/// Puts the rows into a copy of the table one by one, and tells of each cell
/// what becomes of it.
class Planner {
  public:
    Planner(const PastedRows& pasted, const PortCallTable& table, int first, double hoursPerUnit)
        : pasted_(pasted), first_(first), hoursPerUnit_(hoursPerUnit) {
        plan_.table = table;
    }

    PastePlan Make(const std::function<std::string(const std::string&)>& portId) {
        plan_.portsChange = ChangesPorts();
        PutTitles();
        for (std::size_t i = 0; i < pasted_.rows.size(); ++i) {
            PutRow(first_ + static_cast<int>(i), pasted_.rows[i], portId);
        }
        PutWords();
        return plan_;
    }

  private:
    bool ChangesPorts() const {
        const int at = PlaceOf(ColPort);
        for (std::size_t i = 0; at >= 0 && i < pasted_.rows.size(); ++i) {
            const std::string& port = pasted_.rows[i][static_cast<std::size_t>(at)].value;
            const int row = first_ + static_cast<int>(i);
            if (!port.empty() && (!plan_.table.IsNumbered(row) || plan_.table.Cell(row, ColPort) != port)) {
                return true;
            }
        }
        return false;
    }
    /// Which pasted column goes into one of the table.
    int PlaceOf(int column) const {
        const auto found = std::find(pasted_.columns.begin(), pasted_.columns.end(), column);
        return found == pasted_.columns.end() ? kNoColumn : static_cast<int>(found - pasted_.columns.begin());
    }
    std::string ValueOf(const std::vector<PastedCell>& cells, int column) const {
        const int at = PlaceOf(column);
        return at < 0 ? std::string() : cells[static_cast<std::size_t>(at)].value;
    }
    void PutTitles() {
        plan_.preview.titles.push_back(TextOfKey(kPortCallColumns[ColOrder].title));
        for (const int kind : kPastedKinds) {
            plan_.preview.kinds.push_back(
                kind == kNoColumn ? Text(TextIds::IDS_VIEW_PASTEIGNORED)
                                  : TextOfKey(kPortCallColumns[static_cast<std::size_t>(kind)].title));
        }
        for (const int column : pasted_.columns) {
            const auto* kind = std::find(std::begin(kPastedKinds), std::end(kPastedKinds), column);
            plan_.preview.taken.push_back(kind == std::end(kPastedKinds)
                                              ? 0
                                              : static_cast<std::size_t>(kind - std::begin(kPastedKinds)));
            const bool known = column > ColOrder && column < kPortCallColumnCount;
            plan_.preview.titles.push_back(
                known ? TextOfKey(kPortCallColumns[static_cast<std::size_t>(column)].title)
                      : Text(TextIds::IDS_VIEW_PASTEIGNORED));
        }
    }
    /// The table always has a free row below its last one, so that each row finds
    /// its place.
    void PutRow(int row, const std::vector<PastedCell>& cells,
                const std::function<std::string(const std::string&)>& portId) {
        plan_.table.GrowIfLast(row);
        before_ = plan_.table.Rows()[static_cast<std::size_t>(row)].cells;
        const std::string port = ValueOf(cells, ColPort);
        if (!port.empty() && before_[ColPort] != port) {
            plan_.table.SetPort(row, port, portId(port));
            if (row == 0) {
                plan_.table.SetCell(row, ColSpeed, "0.00");
                plan_.table.SetCell(row, ColWeather, "0%");
                plan_.table.SetCell(row, ColPortTime, "0.00");
            }
        }
        auto& shown = plan_.preview.rows.emplace_back();
        shown.push_back({std::to_string(row + 1)});
        const bool hasPort = !plan_.table.IsBlank(row);
        bool takes = !port.empty();
        for (std::size_t at = 0; at < cells.size(); ++at) {
            shown.push_back(PutCell(row, pasted_.columns[at], cells[at], hasPort));
            takes = takes || (shown.back().mark != Mark::Ignored && !cells[at].value.empty());
        }
        if (hasPort) {
            PutStay(row, cells);
        }
        plan_.rows += takes ? 1 : 0;
    }
    RowsPreview::Cell PutCell(int row, int column, const PastedCell& cell, bool hasPort) {
        if (cell.value.empty() || (!hasPort && column != ColPort)) {
            unknown_ += cell.known ? 0 : 1;
            return {cell.text, cell.known ? Mark::Ignored : Mark::Unknown};
        }
        if ((column == ColEta || column == ColEtd) && !PutTime(row, column, cell.value)) {
            return {cell.text, Mark::Ignored};
        }
        if (column != ColPort && column != ColEta && column != ColEtd) {
            plan_.table.SetCell(row, column, cell.value);
        }
        const std::string& old = before_.at(static_cast<std::size_t>(column));
        const bool replaces = !IsBlankCell(old) && old != cell.value;
        unknown_ += cell.known ? 0 : 1;
        replaced_ += replaces ? 1 : 0;
        const std::string text =
            replaces ? Text(TextIds::IDS_VIEW_PASTEREPLACES, {cell.value, old}) : cell.value;
        return {text, !cell.known ? Mark::Unknown : replaces ? Mark::Replaces : Mark::Plain};
    }
    /// Whether a time counts: in a row with times of its own ports as if it were
    /// typed, else as the start.
    bool PutTime(int row, int column, const std::string& text) {
        hasTimes_ = true;
        const bool hasOwn = !IsBlankCell(before_[ColEta]) && !IsBlankCell(before_[ColEtd]);
        if (!plan_.portsChange && hasOwn) {
            plan_.times.push_back({plan_.table.CompactIndex(row), column, text});
            return true;
        }
        if (row != 0 || (column == ColEtd && started_)) {
            return false;
        }
        started_ = true;
        plan_.table.SetCell(row, ColEta, text);
        if (!IsBlankCell(plan_.table.Cell(row, ColEtd))) {
            plan_.table.SetCell(row, ColEtd, text);
        }
        return true;
    }
    /// The stay in port of arrival and departure, where the text has no column
    /// for it.
    void PutStay(int row, const std::vector<PastedCell>& cells) {
        const std::string eta = ValueOf(cells, ColEta);
        const std::string etd = ValueOf(cells, ColEtd);
        float hours = 0;
        if (plan_.portsChange && PlaceOf(ColPortTime) < 0 && !eta.empty() && !etd.empty() &&
            HoursBetween(etd, eta, hours) == 0 && hours >= 0) {
            plan_.table.SetCell(row, ColPortTime, TwoDecimals(static_cast<double>(hours) / hoursPerUnit_));
        }
    }
    void PutWords() {
        const auto add = [this](const std::string& text) {
            plan_.preview.words += (plan_.preview.words.empty() ? "" : " ") + text;
        };
        add(Text(TextIds::IDS_VIEW_PASTECOUNTS,
                 {std::to_string(plan_.rows), std::to_string(unknown_), std::to_string(replaced_)}));
        if (hasTimes_ && plan_.portsChange) {
            add(Text(TextIds::IDS_VIEW_PASTETIMES));
        }
        if (pasted_.cut) {
            add(Text(TextIds::IDS_VIEW_PASTECUT, {std::to_string(kMostPastedRows)}));
        }
    }

    const PastedRows& pasted_;
    int first_;
    double hoursPerUnit_;
    PastePlan plan_;
    CellTexts before_;  ///< cells of the row under way, as they are now
    int unknown_ = 0;
    int replaced_ = 0;
    bool hasTimes_ = false;
    bool started_ = false;
};

}  // namespace

PastePlan PlanPaste(const PastedRows& pasted, const PortCallTable& table, int first, double hoursPerUnit,
                    const std::function<std::string(const std::string&)>& portId) {
    return Planner(pasted, table, first, hoursPerUnit).Make(portId);
}

}  // namespace Tarvik::Seaplan
