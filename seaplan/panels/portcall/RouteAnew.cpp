// SPDX-License-Identifier: MIT
#include "seaplan/calculation/PortCallColumns.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/portcall/PortCallTable.h"
#include "seaplan/panels/portcall/PortCallWords.h"
#include "seaplan/panels/portcall/RouteChoice.h"
#include "seaplan/panels/texts/PortCallTexts.h"
#include "seaplan/panels/texts/WhatIfTexts.h"

namespace Tarvik::Seaplan {

namespace {

/// Distances of the rows in the unit on show.
std::vector<double> DistancesOf(const PortCallRows& rows, const UnitSet& units) {
    PortCallRows shown;
    std::vector<double> distances;
    if (FromStandardUnits(rows, units, shown) == 0) {
        for (const VoyPortCall& row : shown) {
            distances.push_back(static_cast<double>(row.distance));
        }
    }
    return distances;
}

/// Number, port, miles now, miles anew and difference. A leg that was not calculated has no miles now.
std::vector<RowsPreview::Cell> CellsOf(const std::string& number, const std::string& name, double now,
                                       double anew) {
    const bool known = now >= kNoDistance;
    const auto mark = known && TwoDecimals(now) != TwoDecimals(anew) ? RowsPreview::Mark::Replaces
                                                                     : RowsPreview::Mark::Plain;
    return {{number},
            {name},
            {known ? TwoDecimals(now) : std::string()},
            {TwoDecimals(anew), mark},
            {known ? SignedText(anew - now, TwoDecimals) : std::string(), mark}};
}

}  // namespace

RowsPreview PreviewOfRoute(const PortCallRows& now, const PortCallRows& anew, const UnitSet& units) {
    const std::vector<double> before = DistancesOf(now, units);
    const std::vector<double> after = DistancesOf(anew, units);
    const std::string unit = UnitLabel(units, UnitKind::Distance);
    RowsPreview preview{RowsPreview::Command::RouteAnew,
                        {Text(TextIds::IDS_PORTCALL_ORDER), Text(TextIds::IDS_PORTCALL_PORT),
                         Text(TextIds::IDS_VIEW_ANEWNOW, {unit}), Text(TextIds::IDS_VIEW_ANEWNEW, {unit}),
                         Text(TextIds::IDS_VIEW_ANEWMORE, {unit})},
                        {},
                        Text(TextIds::IDS_VIEW_ANEWWORDS)};
    double sumBefore = 0;
    double sumAfter = 0;
    for (std::size_t i = 1; i < before.size() && i < after.size(); ++i) {
        preview.rows.push_back(CellsOf(std::to_string(i + 1), now[i].ppn, before[i], after[i]));
        sumBefore += before[i];
        sumAfter += after[i];
    }
    preview.rows.push_back(CellsOf(kTotalsLabel, {}, sumBefore, sumAfter));
    return preview;
}

}  // namespace Tarvik::Seaplan
