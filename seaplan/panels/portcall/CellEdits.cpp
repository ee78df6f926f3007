// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/CellEdits.h"

#include <tarvik/util/StringUtl.h>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/panels/portcall/PortCallDesk.h"
#include "seaplan/panels/texts/EditTexts.h"
#include "seaplan/panels/texts/PortCallTexts.h"

namespace Tarvik::Seaplan {

namespace {

constexpr double kLeastSpeed = 0.00001;
constexpr double kLeastWeatherPercent = 0.00001;
constexpr double kMostWeatherPercent = 99.9999;
constexpr double kNoHeadway = 100;
constexpr double kLeastLegHours = 0.00001;
constexpr double kEarliestDeparture = -0.0001;
constexpr double kLeastLegSpeed = 0.0001;

}  // namespace

/// Whether the row is numbered and has a port.
bool CellEdits::Takes(int row) const {
    const PortCallTable& table = desk_.Sheet().table;
    return table.IsNumbered(row) && !table.IsBlank(row);
}

void CellEdits::SetPort(int row, const std::string& typed) {
    PortCallTable& table = desk_.Sheet().table;
    if (typed.empty() || !table.IsNumbered(row)) {
        return;
    }
    PortCallRows port(1);
    port[0].ppn = desk_.Ports().NameOf(typed);
    if (port[0].ppn.empty()) {
        return;
    }
    desk_.Voyages().ResolvePortIds(port);
    table.SetPort(row, port[0].ppn, port[0].ppi);
    if (row == 0) {
        table.SetCell(row, ColSpeed, "0.00");
        table.SetCell(row, ColWeather, "0%");
        table.SetCell(row, ColPortTime, "0.00");
    }
    table.ClearTotals();
    desk_.Sheet().MarkChanged(desk_.Ports());
    desk_.History().Take({TextIds::IDS_VIEW_EDITPORT, row});
}

void CellEdits::SetSpeed(int row, const std::string& typed) {
    if (!Takes(row)) {
        return;
    }
    const std::string& old = desk_.Sheet().table.Cell(row, ColSpeed);
    std::string text = IsBlankCell(old) ? "10.0" : old;
    const double speed = Util::StringUtl::ToDouble(typed);
    if (speed >= kLeastSpeed) {
        text = SpeedText(speed);
    }
    SetFigure(row, ColSpeed, text);
    desk_.History().Take({TextIds::IDS_VIEW_EDITSPEED, row});
}

void CellEdits::SetWeather(int row, const std::string& typed) {
    if (!Takes(row)) {
        return;
    }
    const std::string& old = desk_.Sheet().table.Cell(row, ColWeather);
    std::string text = IsBlankCell(old) ? "0%" : old;
    const double percent = Util::StringUtl::ToDouble(typed);
    if (typed == "0" || typed == "0.0") {
        text = "0%";
    } else if (percent >= kLeastWeatherPercent && percent <= kMostWeatherPercent &&
               PercentText(percent) != PercentText(kNoHeadway)) {
        // The cell is what counts from here on, and a factor that it tells as whole leaves no speed.
        text = PercentText(percent);
    }
    SetFigure(row, ColWeather, text);
    desk_.History().Take({TextIds::IDS_VIEW_EDITWEATHER, row});
}

void CellEdits::SetFigure(int row, int column, const std::string& text) {
    desk_.Sheet().table.SetCell(row, column, text);
    PortCallRows rows;
    if (desk_.Sheet().ReadStandard(rows) == 0) {
        desk_.Recompute(rows);
    }
}

void CellEdits::SetPurpose(int row, const std::string& code) {
    if (!Takes(row)) {
        return;
    }
    desk_.Sheet().table.SetCell(row, ColPurpose, code);
    desk_.Sheet().MarkChanged(desk_.Ports());
    desk_.History().Take({TextIds::IDS_VIEW_EDITPURPOSE, row});
}

void CellEdits::SetTime(int row, int column, const std::string& text) {
    if (text.size() != kTimeTextLength || !desk_.Sheet().table.IsNumbered(row)) {
        return;
    }
    if (column == ColEtd) {
        SetEtd(row, text);
    } else if (row == 0) {
        SetFirstEta(text);
    } else {
        SetEta(row, text);
    }
    desk_.History().Take({column == ColEtd ? TextIds::IDS_VIEW_EDITETD : TextIds::IDS_VIEW_EDITETA, row});
}

void CellEdits::SetFirstEta(const std::string& text) {
    PortCallTable& table = desk_.Sheet().table;
    table.SetCell(0, ColEta, text);
    table.SetCell(0, ColEtd, text);
    PortCallRows rows;
    if (desk_.Sheet().ReadStandard(rows) != 0) {
        return;
    }
    // A new time of departure wipes the stay at the first port.
    rows.front().apt = 0;
    desk_.Recompute(rows);
}

void CellEdits::SetEta(int row, const std::string& text) {
    PortCallTable& table = desk_.Sheet().table;
    float hours = 0;
    if (HoursBetween(text, table.Cell(row - 1, ColEtd), hours) != 0) {
        return;
    }
    if (static_cast<double>(hours) < kLeastLegHours) {
        return desk_.ToPerson().Notice(TextIds::IDS_PORTCALL_ERRETA);
    }
    table.SetCell(row, ColEta, text);
    PortCallRows rows;
    if (desk_.Sheet().ReadStandard(rows) != 0) {
        return;
    }
    VoyPortCall& call = rows[table.CompactIndex(row)];
    // Distance and weather stay, so the speed gives way.
    const double speed = SpeedForSteamTime(static_cast<double>(call.distance), static_cast<double>(hours),
                                           static_cast<double>(call.pw));
    if (!(speed >= kLeastLegSpeed)) {
        return;
    }
    call.psp = static_cast<float>(speed);
    desk_.Recompute(rows);
}

void CellEdits::SetEtd(int row, const std::string& text) {
    PortCallTable& table = desk_.Sheet().table;
    float hours = 0;
    if (HoursBetween(text, table.Cell(row, ColEta), hours) != 0) {
        return;
    }
    if (static_cast<double>(hours) < kEarliestDeparture) {
        return desk_.ToPerson().Notice(TextIds::IDS_PORTCALL_ERRETD);
    }
    table.SetCell(row, ColEtd, text);
    PortCallRows rows;
    if (desk_.Sheet().ReadStandard(rows) != 0) {
        return;
    }
    rows[table.CompactIndex(row)].apt = hours;
    desk_.Recompute(rows);
}

}  // namespace Tarvik::Seaplan
