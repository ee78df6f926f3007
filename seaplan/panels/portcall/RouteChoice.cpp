// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/RouteChoice.h"

#include <utility>

#include "seaplan/calculation/PortCallColumns.h"
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/RouteFinder.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/data/TimeText.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/portcall/PortCallDesk.h"
#include "seaplan/panels/portcall/PortCallWords.h"
#include "seaplan/panels/texts/PortCallTexts.h"
#include "seaplan/panels/texts/WhatIfTexts.h"

namespace Tarvik::Seaplan {

namespace {

/// A length in the unit on show.
double ShownDistance(double miles, const UnitSet& units) {
    PortCallRows standard(1);
    standard.front().distance = static_cast<float>(miles);
    PortCallRows shown;
    return FromStandardUnits(standard, units, shown) == 0 ? static_cast<double>(shown.front().distance)
                                                          : miles;
}

}  // namespace

/// Measured as the table would be if the way were taken.
std::optional<RouteChoice::Cost> RouteChoice::CostOf(const RouteStops& stops,
                                                     const PortCallRows& rows) const {
    PendingRoute& pending = desk_.Voyages().Module().Pending();
    const PendingRoute::Rollback before(pending);
    pending.Change(stops);
    PortCallRows then;
    if (desk_.Voyages().ScheduleCurrentRoute(rows, then) != 0) {
        return std::nullopt;
    }
    Cost cost;
    for (const VoyPortCall& row : then) {
        cost.miles += static_cast<double>(row.distance);
        cost.hours += static_cast<double>(row.steamTime);
    }
    cost.arrival = then.back().eta;
    return cost;
}

/// Number of the route point's place in the list, what is passed, by what, and what it costs; without a way
/// the route as it is.
RowsPreview::Cells RouteChoice::CellsOf(const RouteWay* way, const Cost& now, const Cost& then) const {
    const double miles = ShownDistance(then.miles - now.miles, desk_.Sheet().Units());
    const auto mark = way == nullptr ? RowsPreview::Mark::Plain : RowsPreview::Mark::Replaces;
    return {{way == nullptr ? std::string()
                            : RoutePointName(desk_.Voyages().Module().Routes().Ports(), way->past)},
            {way == nullptr ? Text(TextIds::IDS_VIEW_WAYSNOW)
                            : RoutePointName(desk_.Voyages().Module().Routes().Ports(), way->by)},
            {SignedText(miles, TwoDecimals), mark},
            {SignedText(then.hours - now.hours, OneDecimal), mark},
            {then.arrival.fmt(kTimeFormat), mark}};
}

Outcome<WaysStep> RouteChoice::Choose() {
    VoyController& voyages = desk_.Voyages();
    PendingRoute& pending = voyages.Module().Pending();
    PortCallRows rows;
    if (!pending.IsFor(desk_.Sheet().voyageId) || desk_.Sheet().ReadStandard(rows) != 0) {
        return WaysStep::Rows;
    }
    const auto now = CostOf(pending.Stops(), rows);
    if (!now) {
        return WaysStep::Rows;
    }
    std::vector<RouteWay> ways;
    const bool answered = [&] {
        const PortCallDesk::Busy busy(desk_);
        return AskOtherWays(pending.Stops(), ways);
    }();
    if (!answered) {
        return WaysStep::Server;
    }
    RowsPreview preview{
        RowsPreview::Command::Ways,
        {Text(TextIds::IDS_VIEW_WAYSPAST), Text(TextIds::IDS_VIEW_WAYSBY),
         Text(TextIds::IDS_VIEW_ANEWMORE, {UnitLabel(desk_.Sheet().Units(), UnitKind::Distance)}),
         Text(TextIds::IDS_VIEW_ANEWMORE, {Text(TextIds::IDS_VIEW_WAYSHOURS)}),
         Text(TextIds::IDS_PORTCALL_ETA)},
        {CellsOf(nullptr, *now, *now)},
        Text(TextIds::IDS_VIEW_WAYSWORDS)};
    std::erase_if(ways, [&](const RouteWay& way) {
        const auto then = CostOf(way.stops, rows);
        if (then) {
            preview.rows.push_back(CellsOf(&way, *now, *then));
        }
        return !then;
    });
    if (ways.empty()) {
        return WaysStep::None;
    }
    const std::string voyage = desk_.Sheet().voyageId;
    desk_.Show();
    const std::optional<int> row = desk_.View().ChooseRow(preview);
    const auto chosen = static_cast<std::size_t>(row.value_or(0));
    // Meanwhile the table may have gone to another voyage, or the route to another save.
    if (chosen == 0 || chosen > ways.size() || desk_.Sheet().voyageId != voyage || !pending.IsFor(voyage)) {
        return WaysStep::Left;
    }
    pending.Change(std::move(ways[chosen - 1].stops));
    voyages.Module().DrawCurrentRoute();
    return {};
}

}  // namespace Tarvik::Seaplan
