// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/CellEdits.h"

#include <tarvik/util/StringUtl.h>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/data/TimeText.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/portcall/PortCallDesk.h"
#include "seaplan/panels/texts/EditTexts.h"
#include "seaplan/panels/texts/PortCallTexts.h"
#include "seaplan/panels/window/StatusWords.h"

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

/// Whether the history of a corrected voyage holds the row, or nobody can tell.
bool CellEdits::IsSailed(int row) const {
    const int ship = desk_.Sheet().table.FindLastAisRow();
    return desk_.IsCorrected() && (ship < 0 || row <= ship);
}

bool CellEdits::Opens(int row, int column) const {
    const PortCallTable& table = desk_.Sheet().table;
    if (!table.IsNumbered(row) || column < 0 || column >= kPortCallColumnCount || IsSailed(row)) {
        return false;
    }
    const CellEditor editor = kPortCallColumns[static_cast<std::size_t>(column)].editor;
    if (editor == CellEditor::Time) {
        return !table.IsBlank(row) && !IsBlankCell(table.Cell(row, ColEta)) &&
               !IsBlankCell(table.Cell(row, ColEtd));
    }
    return editor != CellEditor::None;
}

void CellEdits::SetPort(int row, const std::string& typed) {
    if (PutPort(row, typed) == CellAnswer::Taken) {
        desk_.History().Take({TextIds::IDS_VIEW_EDITPORT, row});
    }
}

CellAnswer CellEdits::PutPort(int row, const std::string& typed) {
    PortCallTable& table = desk_.Sheet().table;
    if (typed.empty() || !table.IsNumbered(row)) {
        return CellAnswer::Refused;
    }
    PortCallRows port(1);
    port[0].ppn = desk_.Ports().NameOf(typed);
    if (port[0].ppn.empty()) {
        return CellAnswer::Refused;
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
    return CellAnswer::Taken;
}

void CellEdits::SetSpeed(int row, const std::string& typed) {
    PutSpeed(row, typed);
    desk_.History().Take({TextIds::IDS_VIEW_EDITSPEED, row});
}

CellAnswer CellEdits::PutSpeed(int row, const std::string& typed) {
    if (!Takes(row)) {
        return CellAnswer::Refused;
    }
    const std::string& old = desk_.Sheet().table.Cell(row, ColSpeed);
    std::string text = IsBlankCell(old) ? "10.0" : old;
    const double speed = Util::StringUtl::ToDouble(typed);
    const bool isSpeed = speed >= kLeastSpeed;
    if (isSpeed) {
        text = SpeedText(speed);
    }
    SetFigure(row, ColSpeed, text);
    return isSpeed ? CellAnswer::Taken : CellAnswer::Refused;
}

void CellEdits::SetWeather(int row, const std::string& typed) {
    PutWeather(row, typed);
    desk_.History().Take({TextIds::IDS_VIEW_EDITWEATHER, row});
}

CellAnswer CellEdits::PutWeather(int row, const std::string& typed) {
    if (!Takes(row)) {
        return CellAnswer::Refused;
    }
    const std::string& old = desk_.Sheet().table.Cell(row, ColWeather);
    std::string text = IsBlankCell(old) ? "0%" : old;
    const double percent = Util::StringUtl::ToDouble(typed);
    CellAnswer answer = CellAnswer::Taken;
    if (typed == "0" || typed == "0.0") {
        text = "0%";
    } else if (percent >= kLeastWeatherPercent && percent <= kMostWeatherPercent &&
               PercentText(percent) != PercentText(kNoHeadway)) {
        // The cell is what counts from here on, and a factor that it tells as whole leaves no speed.
        text = PercentText(percent);
    } else {
        answer = CellAnswer::Refused;
    }
    SetFigure(row, ColWeather, text);
    return answer;
}

void CellEdits::SetFigure(int row, int column, const std::string& text) {
    desk_.Sheet().table.SetCell(row, column, text);
    PortCallRows rows;
    if (desk_.Sheet().ReadStandard(rows) == 0) {
        desk_.Recompute(rows);
    }
}

void CellEdits::SetPurpose(int row, const std::string& code) {
    PutPurpose(row, code);
    desk_.History().Take({TextIds::IDS_VIEW_EDITPURPOSE, row});
}

CellAnswer CellEdits::PutPurpose(int row, const std::string& code) {
    if (!Takes(row)) {
        return CellAnswer::Refused;
    }
    desk_.Sheet().table.SetCell(row, ColPurpose, code);
    desk_.Sheet().MarkChanged(desk_.Ports());
    return CellAnswer::Taken;
}

void CellEdits::SetTime(int row, int column, const std::string& text) {
    const CellAnswer answer = PutTime(row, column, text);
    if (answer == CellAnswer::EtaTooEarly) {
        desk_.ToPerson().Notice(TextIds::IDS_PORTCALL_ERRETA);
    } else if (answer == CellAnswer::EtdTooEarly) {
        desk_.ToPerson().Notice(TextIds::IDS_PORTCALL_ERRETD);
    } else if (answer == CellAnswer::NoDistance) {
        TellInStatusLine(Text(TextIds::IDS_VIEW_ETANODISTANCE, {std::to_string(row + 1)}));
    }
    desk_.History().Take({column == ColEtd ? TextIds::IDS_VIEW_EDITETD : TextIds::IDS_VIEW_EDITETA, row});
}

CellAnswer CellEdits::PutTime(int row, int column, const std::string& text) {
    if (text.size() != kTimeTextLength || !desk_.Sheet().table.IsNumbered(row)) {
        return CellAnswer::Refused;
    }
    return column == ColEtd ? SetEtd(row, text) : row == 0 ? SetFirstEta(text) : SetEta(row, text);
}

CellAnswer CellEdits::SetFirstEta(const std::string& text) {
    PortCallTable& table = desk_.Sheet().table;
    table.SetCell(0, ColEta, text);
    table.SetCell(0, ColEtd, text);
    PortCallRows rows;
    if (desk_.Sheet().ReadStandard(rows) != 0) {
        return CellAnswer::Refused;
    }
    // A new time of departure wipes the stay at the first port.
    rows.front().apt = 0;
    return desk_.Recompute(rows) == 0 ? CellAnswer::Taken : CellAnswer::Refused;
}

CellAnswer CellEdits::SetEta(int row, const std::string& text) {
    PortCallTable& table = desk_.Sheet().table;
    float hours = 0;
    if (HoursBetween(text, table.Cell(row - 1, ColEtd), hours) != 0) {
        return CellAnswer::Refused;
    }
    if (static_cast<double>(hours) < kLeastLegHours) {
        return CellAnswer::EtaTooEarly;
    }
    table.SetCell(row, ColEta, text);
    PortCallRows rows;
    if (desk_.Sheet().ReadStandard(rows) != 0) {
        return CellAnswer::Refused;
    }
    VoyPortCall& call = rows[table.CompactIndex(row)];
    // Distance and weather stay, so the speed gives way.
    const double speed = SpeedForSteamTime(static_cast<double>(call.distance), static_cast<double>(hours),
                                           static_cast<double>(call.pw));
    if (!(speed >= kLeastLegSpeed)) {
        return CellAnswer::NoDistance;
    }
    call.psp = static_cast<float>(speed);
    return desk_.Recompute(rows) == 0 ? CellAnswer::Taken : CellAnswer::Refused;
}

CellAnswer CellEdits::SetEtd(int row, const std::string& text) {
    PortCallTable& table = desk_.Sheet().table;
    float hours = 0;
    if (HoursBetween(text, table.Cell(row, ColEta), hours) != 0) {
        return CellAnswer::Refused;
    }
    if (static_cast<double>(hours) < kEarliestDeparture) {
        return CellAnswer::EtdTooEarly;
    }
    table.SetCell(row, ColEtd, text);
    PortCallRows rows;
    if (desk_.Sheet().ReadStandard(rows) != 0) {
        return CellAnswer::Refused;
    }
    rows[table.CompactIndex(row)].apt = hours;
    return desk_.Recompute(rows) == 0 ? CellAnswer::Taken : CellAnswer::Refused;
}

}  // namespace Tarvik::Seaplan
