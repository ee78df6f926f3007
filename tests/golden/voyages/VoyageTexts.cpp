// SPDX-License-Identifier: MIT
#include <algorithm>

#include <fmt/format.h>

#include <tarvik/interface/ValueDictionary.h>

#include "seaplan/calculation/PortCallColumns.h"
#include "seaplan/calculation/Schedule.h"
#include "seaplan/data/TimeText.h"
#include "tests/golden/voyages/GoldenFile.h"

namespace Tarvik::Golden {

namespace {

using namespace Seaplan;

std::string PortName(const std::string& id) {
    return Interface::GetValueByName("/points", id, 1033);
}

std::string SegmentText(const RouteSegment& segment) {
    std::string points = segment.pointset;
    std::replace(points.begin(), points.end(), '|', '\n');
    std::string indented = "    ";
    for (const char c : points) {
        indented += c == '\n' ? std::string("\n    ") : std::string(1, c);
    }
    return fmt::format("  segment {} {}-{} {} NM\n{}\n", segment.route, segment.from_cd, segment.end_cd,
                       TwoDecimals(static_cast<double>(segment.distance)), indented);
}

std::string GroupText(const RoutePointGroup& group) {
    std::string text = fmt::format("  group leg={} {} within {}:", group.leg, group.rp_id, group.range);
    for (const std::string& alternative : group.alternatives) {
        text += " " + alternative;
    }
    return text + "\n";
}

std::string RowText(int index, const VoyPortCall& row) {
    const CellTexts cells = RowToCells(index, row);
    std::string text;
    for (const std::string& cell : cells) {
        text += (text.empty() ? "" : " | ") + cell;
    }
    return text + "\n";
}

}  // namespace

std::string RouteText(const RouteStops& stops) {
    std::string text;
    for (const RouteStop& stop : stops) {
        text += fmt::format("stop {} {} {} NM passing {}\n", stop.point_cd, PortName(stop.point_cd),
                            TwoDecimals(static_cast<double>(stop.distance)), stop.rp_id_str);
        for (const RouteSegment& segment : stop.routes) {
            text += SegmentText(segment);
        }
        for (const RoutePointGroup& group : stop.rp_groups) {
            text += GroupText(group);
        }
        for (const RoutePointLock& lock : stop.locks) {
            text += "  lock " + lock.item + "\n";
        }
    }
    return text;
}

std::string BookText(const BookPoints& rows) {
    std::string text = "id | name | kind | position | leg | degrees | knots | ETA | ETD\n";
    for (const PosBookPoint& row : rows) {
        text += fmt::format("{} | {} | {} | {} | {} | {} | {} | {} | {}\n", row.pointId, row.psn, row.pst,
                            row.position, row.psr, row.pli, SpeedText(static_cast<double>(row.psp)),
                            row.eta.fmt(kTimeFormat), row.etd.fmt(kTimeFormat));
    }
    return text;
}

std::string ScheduleText(const PortCallRows& rows) {
    std::string text = "no | port | purpose | knots | weather | steam h | port h | ETA | ETD | distance NM\n";
    for (std::size_t i = 0; i < rows.size(); ++i) {
        text += RowText(static_cast<int>(i), rows[i]);
    }
    ScheduleTotals totals;
    ScheduleSummary summary;
    if (TotalsOf(rows, totals)) {
        text += fmt::format("totals: steam {} h, port {} h, {} NM, {} to {}\n",
                            TwoDecimals(static_cast<double>(totals.steamTime)),
                            OneDecimal(static_cast<double>(totals.portTime)),
                            TwoDecimals(static_cast<double>(totals.distance)), totals.eta.fmt(kTimeFormat),
                            totals.etd.fmt(kTimeFormat));
    }
    if (SummaryOf(rows, summary)) {
        text += fmt::format("summary: {} knots, {} h, {} NM\n",
                            TwoDecimals(static_cast<double>(summary.averageSpeed)),
                            TwoDecimals(static_cast<double>(summary.totalTime)),
                            TwoDecimals(static_cast<double>(summary.totalDistance)));
    }
    return text;
}

}  // namespace Tarvik::Golden
