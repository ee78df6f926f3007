// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/PasteRows.h"

#include <algorithm>
#include <cctype>

#include <tarvik/util/Units.h>

#include "seaplan/data/PointTables.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/portcall/PortCallWords.h"
#include "seaplan/panels/texts/EditTexts.h"
#include "seaplan/panels/window/StatusWords.h"

namespace Tarvik::Seaplan {

namespace {

constexpr std::size_t kCodeLetters = 5;

/// A text as a UN/LOCODE, "nl rtm" as "NLRTM"; empty where it is none by its
/// form.
std::string CodeOf(const std::string& text) {
    std::string code;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (std::isalnum(byte) != 0) {
            code.push_back(static_cast<char>(std::toupper(byte)));
        } else if (c != ' ') {
            return {};
        }
    }
    return code.size() == kCodeLetters ? code : std::string();
}

bool HasPorts(const PastedRows& pasted) {
    return std::find(pasted.columns.begin(), pasted.columns.end(), ColPort) != pasted.columns.end();
}

bool HasValues(const PastedRows& pasted) {
    return std::any_of(pasted.rows.begin(), pasted.rows.end(), [](const auto& row) {
        return std::any_of(row.begin(), row.end(),
                           [](const PastedCell& cell) { return !cell.value.empty(); });
    });
}

std::string PortIdOfName(const std::string& name) {
    PortCallRows port(1);
    port[0].ppn = name;
    ResolvePortIds(port);
    return port[0].ppi;
}

}  // namespace

std::string PasteRows::PortOf(const std::string& text) {
    if (text.empty()) {
        return {};
    }
    if (const std::string name = desk_.Ports().NameOf(text); !name.empty() && !PortIdOf(name).empty()) {
        return name;
    }
    const std::string code = CodeOf(text);
    if (code.empty()) {
        return {};
    }
    const std::string name = desk_.Ports().NameOf(code);
    return PortIdOf(name).empty() ? std::string() : name;
}

std::optional<int> PasteRows::FirstRow(int row, const PastedRows& pasted) const {
    const PortCallTable& table = desk_.Sheet().table;
    const int front = std::clamp(row, 0, table.RowCount() - 1);
    const int first = HasPorts(pasted) ? std::min(front, FirstBlankRow(table)) : front;
    return edits_.Opens(first, ColPort) ? std::optional(first) : std::nullopt;
}

/// The rows of a text under columns that were found or chosen.
PastedRows PasteRows::Read(const PastedText& text, PastedColumns columns) {
    PastedRows pasted = ReadPasted(text, std::move(columns), PortsOfTexts());
    LeaveOtherUnits(pasted, desk_.Sheet().state.speedUnit);
    return pasted;
}

PortOfText PasteRows::PortsOfTexts() {
    return [this](const std::string& text) { return PortOf(text); };
}

PastePlan PasteRows::Plan(const PastedRows& pasted, int first) const {
    const PortCallSheet& sheet = desk_.Sheet();
    const double hoursPerUnit = sheet.state.timeUnit == "hour" ? 1 : Util::kHoursPerDay;
    return PlanPaste(pasted, sheet.table, first, hoursPerUnit, PortIdOfName);
}

/// Shows what the paste would do; a column that the person takes for another kind changes rows and plan.
bool PasteRows::Ask(const PastedText& text, PastedRows pasted, int row, PastePlan& plan) {
    return desk_.View().AskRows(plan.preview, [&](std::size_t column, std::size_t kind) {
        PastedColumns columns{pasted.columns, pasted.heads};
        TakeColumnAs(columns.columns, column, kPastedKinds[kind]);
        pasted = Read(text, std::move(columns));
        plan = Plan(pasted, FirstRow(row, pasted).value_or(row));
        return plan.preview;
    });
}

void PasteRows::OnPaste(int row) {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    const PastedText text = ReadPastedText(desk_.View().ClipboardText());
    const PastedRows pasted = Read(text, UnderstandColumns(text.rows, PortsOfTexts()));
    const std::optional<int> first = FirstRow(row, pasted);
    if (!HasValues(pasted) || !first) {
        return TellInStatusLine(Text(first ? TextIds::IDS_VIEW_PASTENOTHING : TextIds::IDS_VIEW_PASTESAILED));
    }
    const PortCallSheet& sheet = desk_.Sheet();
    PastePlan plan = Plan(pasted, *first);
    desk_.Show();
    const PortCallTable shown = sheet.table;
    const std::string voyage = sheet.voyageId;
    if (!Ask(text, pasted, *first, plan)) {
        return;
    }
    // What was shown is what is taken, and nothing else.
    if (sheet.table != shown || sheet.voyageId != voyage) {
        return TellInStatusLine(Text(TextIds::IDS_VIEW_PASTECHANGED));
    }
    Take(plan);
}

void PasteRows::Take(const PastePlan& plan) {
    PortCallSheet& sheet = desk_.Sheet();
    const bool same = sheet.table == plan.table;
    const bool calculated = !IsBlankCell(sheet.table.Cell(sheet.table.RowCount(), ColDistance));
    sheet.table = plan.table;
    std::vector<int> refused;
    PortCallRows rows;
    const bool timed = !plan.portsChange && calculated;
    if (!same && (!timed || sheet.ReadStandard(rows) != 0 || desk_.Recompute(rows) != 0)) {
        sheet.table.ClearTotals();
        sheet.MarkChanged(desk_.Ports());
    }
    if (timed) {
        refused = PutTimes(plan.times);
    }
    desk_.History().Take(EditOfRows(TextIds::IDS_VIEW_EDITPASTE, static_cast<std::size_t>(plan.rows)));
    TellInStatusLine(RowsText(TextIds::IDS_VIEW_ROWSREFUSED, refused));
}

/// The rows that refuse a time, each once.
std::vector<int> PasteRows::PutTimes(const std::vector<PastedTime>& times) {
    std::vector<int> refused;
    for (const PastedTime& time : times) {
        // The schedule has closed blank rows above it.
        const int row = RowOfPlace(desk_.Sheet().table, time.place);
        if (desk_.Sheet().table.Cell(row, time.column) == time.text) {
            continue;
        }
        if (!edits_.Try(row, time.column, time.text) && (refused.empty() || refused.back() != row)) {
            refused.push_back(row);
        }
    }
    return refused;
}

}  // namespace Tarvik::Seaplan
