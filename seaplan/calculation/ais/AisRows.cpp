// SPDX-License-Identifier: MIT
// A corrected book as rows of the port call table: leg by leg miles and hours are summed over the book's
// rows, and a row of the table ends each sum at a port or at a position of the ship; its speed is miles by
// hours. The same sums up to a moment and behind it give the real speeds around it. Cost: one pass over the
// book's rows with a distance for each.
#include "seaplan/calculation/ais/AisRows.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>
#include <optional>
#include <utility>

#include <tarvik/util/StringUtl.h>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/Schedule.h"
#include "seaplan/calculation/Units.h"
#include "seaplan/data/Outcome.h"
#include "seaplan/data/Position.h"
#include "seaplan/data/TimeText.h"

namespace Tarvik::Seaplan {

namespace {

constexpr double kLeastHours = 0.001;
constexpr double kLeastDistance = 0.001;
constexpr double kSameMoment = 0.01;  // hours

enum class AisRowsStep { Ports, Groups, Port, Position };
using AisRowsOutcome = Outcome<AisRowsStep>;
/// Numbers of BuildAisRows.
constexpr CodeTable kAisRowsCodes{Code{AisRowsStep::Ports, -1}, Code{AisRowsStep::Groups, -2},
                                  Code{AisRowsStep::Port, -3}, Code{AisRowsStep::Position, -4}};
enum class SplitRowsStep { Times, Rows, NoPosition };
/// Numbers of SplitCorrectedVoyage.
constexpr CodeTable kSplitVoyageCodes{Code{SplitRowsStep::Times, -3}, Code{SplitRowsStep::Rows, -4},
                                      Code{SplitRowsStep::NoPosition, -5}};
enum class AverageStep { Time, Groups, Position, Order };
using AverageOutcome = Outcome<AverageStep>;
/// Numbers of AverageSpeedsAround.
constexpr CodeTable kAverageSpeedsCodes{Code{AverageStep::Time, -1}, Code{AverageStep::Groups, -2},
                                        Code{AverageStep::Position, -6}, Code{AverageStep::Order, -7}};

/// Miles and hours of a stretch.
struct Stretch {
    double distance = 0;
    double hours = 0;

    void Add(const Stretch& other) {
        distance += other.distance;
        hours += other.hours;
    }
    double Speed() const { return hours < kLeastHours ? 0.0 : distance / hours; }
};

std::string TimeText(const PosBookPoint& row) {
    return row.etd.fmt(kTimeFormat);
}

bool StretchBetween(const PosBookPoint& from, const PosBookPoint& to, Stretch& out) {
    float distance = 0;
    float hours = 0;
    if (LegDistance(from.position, to.position, to.psr, distance) != 0 ||
        HoursBetween(TimeText(to), TimeText(from), hours) != 0) {
        return false;
    }
    out = {static_cast<double>(distance), static_cast<double>(hours)};
    return true;
}

void TakeStretch(const Stretch& stretch, VoyPortCall& row) {
    row.distance = static_cast<float>(stretch.distance);
    row.steamTime = static_cast<float>(stretch.hours);
    row.psp = static_cast<float>(stretch.Speed());
}

VoyPortCall AisRow(const PosBookPoint& point, const Stretch& stretch) {
    GeoPoint place;
    ReadPosition(point.position, 0, place);
    VoyPortCall row;
    row.ppn = PositionText({place.y, place.x});
    row.pp = kAisPurpose;
    row.eta = point.etd;
    row.etd = point.etd;
    TakeStretch(stretch, row);
    return row;
}

/// Adds the rows of one leg; `last` is the place before it and becomes its port. False for a position without
/// comma.
bool AddLeg(const VoyPortCall& port, const BookPoints& group, PosBookPoint& last, PortCallRows& out) {
    Stretch sums;
    for (const auto& row : group) {
        Stretch step;
        if (!StretchBetween(last, row, step)) {
            return false;
        }
        // A position right behind another row of the table has only its own step.
        const bool ownStepOnly = row.pst == AisTrackPoint && sums.distance < kLeastDistance;
        if (ownStepOnly) {
            sums = step;
        } else {
            sums.Add(step);
        }
        if (row.pst == PortPoint || row.pst == AisTrackPoint) {
            if (row.pst == PortPoint) {
                out.push_back(port);
                TakeStretch(sums, out.back());
            } else {
                out.push_back(AisRow(row, sums));
            }
            sums = {};
        }
        last = row;
    }
    return true;
}

/// The first row left at about this time.
std::optional<std::size_t> RowLeftAt(const std::string& time, const BookPoints& rows) {
    for (std::size_t i = 0; i < rows.size(); ++i) {
        float hours = 0;
        if (HoursBetween(TimeText(rows[i]), time, hours) == 0 &&
            std::fabs(static_cast<double>(hours)) <= kSameMoment) {
            return i;
        }
    }
    return std::nullopt;
}

AverageOutcome SumAround(const BookPoints& group, std::size_t found, Stretch& before, Stretch& after) {
    for (std::size_t i = 1; i < group.size(); ++i) {
        Stretch step;
        if (!StretchBetween(group[i - 1], group[i], step)) {
            return AverageStep::Position;
        }
        if (step.hours < 0) {
            return AverageStep::Order;
        }
        (i <= found ? before : after).Add(step);
    }
    return {};
}

AisRowsOutcome Build(const PortCallRows& ports, const BookPoints& rows, PortCallRows& out) {
    out.clear();
    if (ports.empty()) {
        return AisRowsStep::Ports;
    }
    std::map<int, BookPoints> groups;
    if (GroupBookByPort(rows, groups) != 0) {
        return AisRowsStep::Groups;
    }
    PortCallRows result{ports.front()};
    PosBookPoint last = groups.at(0).back();
    for (std::size_t i = 1; i < ports.size(); ++i) {
        const auto group = groups.find(static_cast<int>(i));
        if (group == groups.end()) {
            return AisRowsStep::Port;
        }
        if (!AddLeg(ports[i], group->second, last, result)) {
            return AisRowsStep::Position;
        }
    }
    out = std::move(result);
    return {};
}

Outcome<SplitRowsStep> Split(const VoyPositionBook& book, const PortCallRows& ports, PortCallRows& before,
                             PortCallRows& after) {
    BookPoints timed = book.points;
    if (ComputeBookTimes(book.eta, ports, timed) != 0) {
        return SplitRowsStep::Times;
    }
    PortCallRows rows;
    if (Build(ports, timed, rows).Failed()) {
        return SplitRowsStep::Rows;
    }
    const auto last = std::find_if(rows.rbegin(), rows.rend(), IsAisRow);
    const auto behind = last.base();  // the row behind the last position
    if (std::distance(rows.begin(), behind) <= 1) {
        return SplitRowsStep::NoPosition;
    }
    before.assign(rows.begin(), behind);
    after.assign(behind, rows.end());
    return {};
}

AverageOutcome Average(const std::string& time, const BookPoints& rows, SpeedsAround& speeds) {
    float ignored = 0;
    if (HoursBetween(time, time, ignored) != 0) {
        return AverageStep::Time;
    }
    std::map<int, BookPoints> groups;
    if (GroupBookByPort(rows, groups) != 0) {
        return AverageStep::Groups;
    }
    Stretch before;
    Stretch after;
    for (const auto& [index, group] : groups) {
        const auto found = RowLeftAt(time, group);
        if (!found || group.size() < 2) {
            continue;
        }
        if (const auto summed = SumAround(group, *found, before, after); summed.Failed()) {
            return summed;
        }
    }
    if (before.hours > kLeastHours) {
        speeds.before = static_cast<float>(before.distance / before.hours);
    }
    if (after.hours > kLeastHours) {
        speeds.after = static_cast<float>(after.distance / after.hours);
    }
    return {};
}

}  // namespace

bool IsAisRow(const VoyPortCall& row) {
    return row.pp == kAisPurpose;
}

int BuildAisRows(const PortCallRows& ports, const BookPoints& rows, PortCallRows& out) {
    return kAisRowsCodes.Of(Build(ports, rows, out));
}

int SplitCorrectedVoyage(const VoyPositionBook& book, const PortCallRows& ports, PortCallRows& before,
                         PortCallRows& after) {
    return kSplitVoyageCodes.Of(Split(book, ports, before, after));
}

int AverageSpeedsAround(const std::string& time, const BookPoints& rows, SpeedsAround& speeds) {
    return kAverageSpeedsCodes.Of(Average(time, rows, speeds));
}

}  // namespace Tarvik::Seaplan
