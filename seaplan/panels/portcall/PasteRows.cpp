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

void PasteRows::OnPaste(int row) {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    PastedRows pasted = UnderstandPasted(ReadPastedText(desk_.View().ClipboardText()),
                                         [this](const std::string& text) { return PortOf(text); });
    LeaveOtherUnits(pasted, desk_.Sheet().state.speedUnit);
    const std::optional<int> first = FirstRow(row, pasted);
    if (!HasValues(pasted) || !first) {
        return TellInStatusLine(Text(first ? TextIds::IDS_VIEW_PASTENOTHING : TextIds::IDS_VIEW_PASTESAILED));
    }
    PortCallSheet& sheet = desk_.Sheet();
    const double hoursPerUnit = sheet.state.timeUnit == "hour" ? 1 : Util::kHoursPerDay;
    const PastePlan plan = PlanPaste(pasted, sheet.table, *first, hoursPerUnit, PortIdOfName);
    desk_.Show();
    const PortCallTable shown = sheet.table;
    const std::string voyage = sheet.voyageId;
    if (!desk_.View().AskRows(plan.preview)) {
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
