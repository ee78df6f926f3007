// SPDX-License-Identifier: MIT
// The ship's last real position in the plan. The book is cut at its ports, and the leg under way at the time
// of the fix is built anew: rows left before the fix, the fix with the speed that was really made, the
// server's way to the next port, the port. A new plan keeps the book up to the row at the fix and puts the
// new course behind it. The rules are the plan's own, those of the required operations. Cost: one pass over
// the book's rows, and one look-up of a port for each port ahead.
#include "seaplan/calculation/ais/AisCorrection.h"

#include <map>
#include <utility>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/Schedule.h"
#include "seaplan/calculation/Units.h"
#include "seaplan/data/Outcome.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/data/TimeText.h"

namespace Tarvik::Seaplan {

namespace {

constexpr double kLeastFixSpeed = 0.1;  // knots
constexpr const char* kFixName = "AIS track point";

enum class InsertStep { Times, Groups, Port, EmptyPort, NotLeft, Hours, Position };
using InsertOutcome = Outcome<InsertStep>;
/// Numbers of InsertAisPosition.
constexpr CodeTable kInsertPositionCodes{Code{InsertStep::Times, -1},   Code{InsertStep::Groups, -2},
                                         Code{InsertStep::Port, -3},    Code{InsertStep::EmptyPort, -4},
                                         Code{InsertStep::NotLeft, -5}, Code{InsertStep::Hours, -6},
                                         Code{InsertStep::Position, -7}};

using Positions = std::vector<std::string>;
using Util::_datetime_t;

/// Builds the new rows of a book, leg by leg.
class FixInsertion {
  public:
    FixInsertion(const _datetime_t& fix, const PortCallRows& ports, const Positions& positions)
        : fix_(fix), ports_(ports), positions_(positions) {}

    InsertOutcome AddLeg(std::size_t port, const BookPoints& group) {
        if (group.back().etd < fix_) {
            AddAll(group);
            return {};
        }
        if (rows_.empty()) {
            return InsertStep::NotLeft;
        }
        if (rows_.back().etd > fix_) {
            AddAll(group);
            return {};
        }
        return AddCorrectedLeg(port, group);
    }

    BookPoints& Rows() { return rows_; }
    bool Applied() const { return applied_; }

  private:
    void AddAll(const BookPoints& group) { rows_.insert(rows_.end(), group.begin(), group.end()); }

    /// What was sailed before the fix, the fix, the server's way, and the port.
    InsertOutcome AddCorrectedLeg(std::size_t port, const BookPoints& group) {
        for (std::size_t i = 0; i < group.size() && group[i].etd < fix_; ++i) {
            rows_.push_back(group[i]);
        }
        for (std::size_t k = 0; k + 1 < positions_.size(); ++k) {
            PosBookPoint row;
            row.position = positions_[k];
            row.eta = fix_;
            row.etd = fix_;
            if (k > 0) {
                rows_.push_back(std::move(row));
            } else if (const auto added = AddFix(port, std::move(row)); added.Failed()) {
                return added;
            }
        }
        rows_.push_back(group.back());
        return {};
    }

    InsertOutcome AddFix(std::size_t port, PosBookPoint row) {
        float hours = 0;
        float distance = 0;
        const PosBookPoint& before = rows_.back();
        if (HoursBetween(fix_.fmt(kTimeFormat), before.etd.fmt(kTimeFormat), hours) != 0) {
            return InsertStep::Hours;
        }
        if (LegDistance(before.position, row.position, "GC", distance) != 0) {
            return InsertStep::Position;
        }
        const double weather = port < ports_.size() ? static_cast<double>(ports_[port].pw) : 0.0;
        const double speed =
            SpeedForSteamTime(static_cast<double>(distance), static_cast<double>(hours), weather);
        if (hours <= 0 || !(speed > kLeastFixSpeed)) {
            applied_ = false;
            return {};
        }
        row.psp = static_cast<float>(speed);
        row.psn = kFixName;
        row.pst = AisTrackPoint;
        rows_.push_back(std::move(row));
        return {};
    }

    const _datetime_t& fix_;
    const PortCallRows& ports_;
    const Positions& positions_;
    BookPoints rows_;
    bool applied_ = true;
};

InsertOutcome Insert(const _datetime_t& fix, const PortCallRows& ports, const Positions& positions,
                     VoyPositionBook& book, int& applied) {
    applied = 1;
    BookPoints timed = book.points;
    if (ComputeBookTimes(book.eta, ports, timed) != 0) {
        return InsertStep::Times;
    }
    std::map<int, BookPoints> groups;
    if (GroupBookByPort(timed, groups) != 0) {
        return InsertStep::Groups;
    }
    FixInsertion insertion(fix, ports, positions);
    for (std::size_t i = 0; i < ports.size(); ++i) {
        const auto group = groups.find(static_cast<int>(i));
        if (group == groups.end()) {
            return InsertStep::Port;
        }
        if (group->second.empty()) {
            return InsertStep::EmptyPort;
        }
        if (const auto added = insertion.AddLeg(i, group->second); added.Failed()) {
            return added;
        }
    }
    applied = insertion.Applied() ? 1 : 0;
    book.points = std::move(insertion.Rows());
    return {};
}

}  // namespace

int NextPortsAfter(const _datetime_t& fix, const PortCallRows& ports, Positions& ids) {
    ids.clear();
    if (ports.size() < 2) {
        return -1;
    }
    PortCallRows timed;
    if (RecomputeSchedule(ports, timed) != 0) {
        return -2;
    }
    for (const auto& port : timed) {
        if (port.etd > fix) {
            ids.push_back(PortIdOf(port.ppn));
        }
    }
    return 0;
}

int RestOfBookPositions(const PortCallRows& ports, const BookPoints& rows, std::size_t nextPorts,
                        Positions& positions) {
    positions.clear();
    if (nextPorts > ports.size()) {
        return -1;
    }
    std::map<int, BookPoints> groups;
    if (GroupBookByPort(rows, groups) != 0) {
        return -2;
    }
    // The index stands still, so one group comes as often as there are ports behind the next one.
    const auto index = static_cast<int>(ports.size() - nextPorts + 1);
    Positions rest;
    for (std::size_t k = 0; k + 1 < nextPorts; ++k) {
        const auto group = groups.find(index);
        if (group == groups.end()) {
            return -3;
        }
        for (const auto& row : group->second) {
            rest.push_back(row.position);
        }
    }
    positions = std::move(rest);
    return 0;
}

int InsertAisPosition(const _datetime_t& fix, const PortCallRows& ports, const Positions& positions,
                      VoyPositionBook& book, int& applied) {
    return kInsertPositionCodes.Of(Insert(fix, ports, positions, book, applied));
}

}  // namespace Tarvik::Seaplan
