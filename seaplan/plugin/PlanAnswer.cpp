// SPDX-License-Identifier: MIT
#include "seaplan/plugin/PlanAnswer.h"

#include <iterator>
#include <utility>

#include <tarvik/interface/LoadString.h>
#include <tarvik/util/StringUtl.h>

#include "seaplan/calculation/PortCallColumns.h"
#include "seaplan/calculation/Schedule.h"
#include "seaplan/chart/ChartLines.h"
#include "seaplan/panels/language/LoadText.h"

namespace Tarvik::Seaplan {

namespace {

using Util::StringUtl;

/// Text of a key in the language in use, the key where there is none, so that a gap is seen.
std::string TextOf(const char* key) {
    const std::u16string wide = StringUtl::TranslateString(std::string(key));
    char16_t buffer[512];
    Interface::TrvLoadString(kTextSection, kTextSection, wide.c_str(), buffer, wide.c_str(),
                             std::size(buffer));
    return StringUtl::TranslateString(std::u16string(buffer));
}

Interface::PlanRow RowOf(const VoyPortCall& row) {
    return {row.ppi,       row.ppn, row.pp,  row.psp, row.pw,
            row.steamTime, row.apt, row.eta, row.etd, row.distance};
}

Interface::PlanWaypoint WaypointOf(const PosBookPoint& point) {
    return {point.pointId, point.psn, point.position, point.psr,
            point.psp,     point.eta, point.etd,      static_cast<Interface::WaypointKind>(point.pst)};
}

PortCallRows Shown(const PortCallRows& rows, const UnitSet& units) {
    PortCallRows shown;
    return FromStandardUnits(rows, units, shown) == 0 ? shown : rows;
}

std::vector<std::string> TextsOf(const CellTexts& cells) {
    return {cells.begin(), cells.end()};
}

}  // namespace

static_assert(static_cast<int>(Interface::WaypointKind::LongIdRoutePoint) == LongIdRoutePoint);
static_assert(static_cast<int>(Interface::WaypointKind::ShortIdRoutePoint) == ShortIdRoutePoint);
static_assert(static_cast<int>(Interface::WaypointKind::AisTrack) == AisTrackPoint);
static_assert(static_cast<int>(Interface::WaypointKind::Port) == PortPoint);

void TellSchedule(const PortCallRows& rows, Interface::PlanResult& out) {
    for (const VoyPortCall& row : rows) {
        out.rows.push_back(RowOf(row));
    }
    ScheduleTotals totals;
    TotalsOf(rows, totals);
    out.totals = {totals.portTime, totals.steamTime, totals.distance, totals.eta, totals.etd};
    ScheduleSummary summary;
    SummaryOf(rows, summary);
    out.summary = {summary.averageSpeed, summary.totalTime, summary.totalDistance};
}

bool TellRoute(const BookPoints& book, Interface::PlanResult& out) {
    PointTexts positions;
    for (const PosBookPoint& point : book) {
        out.route.push_back(WaypointOf(point));
        positions.push_back(point.position);
    }
    return SplitAtDateLine(positions, out.linePieces) >= 0;
}

void TellTable(const PortCallRows& rows, const UnitSet& units, Interface::PlanResult& out) {
    for (const PortCallColumnEntry& column : kPortCallColumns) {
        out.table.columns.push_back({column.title, TextOf(column.title), UnitLabel(units, column.unit),
                                     column.kind == CellKind::Number});
    }
    const PortCallRows shown = Shown(rows, units);
    for (std::size_t i = 0; i < shown.size(); ++i) {
        out.table.rows.push_back(TextsOf(RowToCells(static_cast<int>(i), shown[i])));
    }
    CellTexts totals;
    totals[ColOrder] = kTotalsLabel;
    TotalsToCells(shown, totals);
    out.table.totals = TextsOf(totals);
    SummaryTexts figures;
    const auto& sum = out.summary;
    SummaryToTexts({sum.averageSpeed, sum.totalTime, sum.totalDistance}, units, figures);
    const auto label = [&units](UnitKind kind) { return UnitLabel(units, kind); };
    out.figures = {{TextOf("IDS_PORTCALL_AVARGERSPD"), figures.averageSpeed, label(UnitKind::Speed)},
                   {TextOf("IDS_PORTCALL_TOTLEDISTANCE"), figures.totalDistance, label(UnitKind::Distance)},
                   {TextOf("IDS_PORTCALL_TOTALTIME"), figures.totalTime, label(UnitKind::Time)}};
}

}  // namespace Tarvik::Seaplan
