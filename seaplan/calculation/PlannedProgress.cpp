// SPDX-License-Identifier: MIT
#include "seaplan/calculation/PlannedProgress.h"

#include <cmath>
#include <cstdint>

#include <tarvik/interface/SiblingRecords.h>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/Schedule.h"
#include "seaplan/data/Outcome.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/data/Position.h"
#include "seaplan/data/TimeText.h"

/// Dead reckoning on the plan: whole legs fall to either side of `now`; on the leg under way the rows are
/// timed one by one from the departure, with the formula of the schedule, until the first one ahead of `now`,
/// and the place on the way there is in proportion to the time. Cost: one pass over the rows.
namespace Tarvik::Seaplan {

namespace {

enum class ProgressStep { Port, Weather, NotSailed, From, To, Distance, Speed, Steam, Calendar };
using ProgressOutcome = Outcome<ProgressStep>;
/// Numbers of PlanProgress. A time out of the calendar is Steam there.
constexpr CodeTable kPlanProgressCodes{Code{ProgressStep::Port, -6},      Code{ProgressStep::Weather, -7},
                                       Code{ProgressStep::NotSailed, -8}, Code{ProgressStep::From, -9},
                                       Code{ProgressStep::To, -10},       Code{ProgressStep::Distance, -11},
                                       Code{ProgressStep::Speed, -12},    Code{ProgressStep::Steam, -13}};
/// Numbers of CorrectedProgress.
constexpr CodeTable kCorrectedProgressCodes{
    Code{ProgressStep::Port, -7},   Code{ProgressStep::Weather, -8},   Code{ProgressStep::From, -9},
    Code{ProgressStep::To, -10},    Code{ProgressStep::Distance, -11}, Code{ProgressStep::Speed, -12},
    Code{ProgressStep::Steam, -13}, Code{ProgressStep::Calendar, -14}};

void Append(const BookPoints& rows, PointTexts& list) {
    for (const PosBookPoint& row : rows) {
        list.push_back(row.position);
    }
}

/// Hours from `now` to `end`, without seconds.
double HoursLeft(const Util::_datetime_t& end, const Util::_datetime_t& now) {
    return (end.date().year_julian() - now.date().year_julian()) * 24.0 + (end.hour() - now.hour()) +
           (end.minute() - now.minute()) / 60.0;
}

/// Place after `covered` of the `distance` miles from a to b.
std::string Interpolate(const GeoPoint& a, const GeoPoint& b, double covered, double distance) {
    if (distance <= 0) {
        return PositionText(b);
    }
    const double x = (b.x - a.x) * covered / distance + a.x;
    const double y = b.y - (distance - covered) * (b.y - a.y) / distance;
    return PositionText({x, y});
}

/// How a corrected voyage reads times: to half a minute, and not before its correction.
constexpr std::int64_t kLeastAgeSeconds = 31;

bool IsOlder(const Util::_datetime_t& time, const Util::_datetime_t& than) {
    return than.to_gmt_timer() - time.to_gmt_timer() >= kLeastAgeSeconds;
}

/// Walks the leg on which the ship is. With a correction time the rows older than it are passed over.
class LegWalk {
  public:
    LegWalk(double weather, const Util::_datetime_t& departure, const Util::_datetime_t& now,
            const Util::_datetime_t* correction, PlannedProgress& out)
        : weather_(weather), reached_(departure), now_(now), correction_(correction), out_(out) {}

    ProgressOutcome Run(const BookPoints& rows) {
        if (out_.sailed.empty() && correction_ == nullptr) {
            return ProgressStep::NotSailed;
        }
        std::string previous = out_.sailed.empty() ? rows.front().position : out_.sailed.back();
        for (const PosBookPoint& row : rows) {
            if (correction_ != nullptr && IsOlder(row.etd, *correction_)) {
                reached_ = row.etd;
            } else if (const auto stepped = Step(previous, row); stepped.Failed()) {
                return stepped;
            }
            previous = row.position;
        }
        return {};
    }

  private:
    /// The way to one row of the book: nautical miles, knots through the weather, hours.
    struct Stretch {
        GeoPoint from;
        GeoPoint to;
        double distance;
        double speed;
        double steam;
    };

    ProgressOutcome Step(const std::string& previous, const PosBookPoint& row) {
        GeoPoint from;
        GeoPoint to;
        float distance = 0;
        if (!ReadPosition(previous, 0, from)) {
            return ProgressStep::From;
        }
        if (!ReadPosition(row.position, 0, to)) {
            return ProgressStep::To;
        }
        if (LegDistance(previous, row.position, row.psr, distance) < 0) {
            return ProgressStep::Distance;
        }
        if (row.psp <= kLeastRowKnots) {
            return ProgressStep::Speed;
        }
        const double speed = (1 - weather_) * row.psp;
        const double steam = distance / speed;
        if (!std::isfinite(steam)) {
            return ProgressStep::Steam;
        }
        if (AddHours(static_cast<float>(steam), reached_) < 0) {
            return correction_ == nullptr ? ProgressStep::Steam : ProgressStep::Calendar;
        }
        Place(row, {from, to, distance, speed, steam});
        return {};
    }

    void Place(const PosBookPoint& row, const Stretch& stretch) {
        if (correction_ == nullptr ? now_ >= reached_ : IsOlder(reached_, now_)) {
            out_.current = row.position;
            out_.sailed.push_back(row.position);
            return;
        }
        if (!crossed_) {
            crossed_ = true;
            const double covered = stretch.speed * (stretch.steam - HoursLeft(reached_, now_));
            out_.current = Interpolate(stretch.from, stretch.to, covered, stretch.distance);
            out_.sailed.push_back(out_.current);
            out_.remaining.push_back(out_.current);
        }
        out_.remaining.push_back(row.position);
    }

    double weather_;
    Util::_datetime_t reached_;
    const Util::_datetime_t& now_;
    const Util::_datetime_t* correction_;
    PlannedProgress& out_;
    bool crossed_ = false;
};

void StartAt(const VoyPortCall& port, const PosBookPoint& row, const Util::_datetime_t& now,
             PlannedProgress& out) {
    out.current = row.position;
    out.sailed.push_back(row.position);
    if (now < port.etd) {
        out.remaining.push_back(row.position);
    }
}

/// A port that is reached: its rows are sailed, of a corrected voyage what the real track does not cover.
void Sail(const BookPoints& rows, const Util::_datetime_t* correction, PlannedProgress& out) {
    for (const PosBookPoint& row : rows) {
        if (correction == nullptr || !IsOlder(row.etd, *correction)) {
            out.sailed.push_back(row.position);
            out.current = row.position;
        }
    }
}

/// Along the ports in their order. A corrected voyage has no first port to lie in: its track begins there.
ProgressOutcome Follow(const PortCallRows& ports, const std::map<int, BookPoints>& groups,
                       const Util::_datetime_t* correction, const Util::_datetime_t& now,
                       PlannedProgress& out) {
    out = {};
    for (std::size_t i = correction == nullptr ? 0 : 1; i < ports.size(); ++i) {
        const auto group = groups.find(static_cast<int>(i));
        if (group == groups.end() || group->second.empty()) {
            return ProgressStep::Port;
        }
        const BookPoints& rows = group->second;
        const double weather = ports[i].pw;
        if (weather > 1.0) {
            return ProgressStep::Weather;
        }
        if (i == 0) {
            StartAt(ports[i], rows.front(), now, out);
        } else if (now >= ports[i].eta) {
            Sail(rows, correction, out);
        } else if (now < ports[i - 1].etd) {
            Append(rows, out.remaining);
        } else {
            const auto walked = LegWalk(weather, ports[i - 1].etd, now, correction, out).Run(rows);
            if (walked.Failed()) {
                return walked;
            }
        }
    }
    return {};
}

}  // namespace

int PlanProgress(const PortCallRows& ports, const std::map<int, BookPoints>& groups,
                 const Util::_datetime_t& now, PlannedProgress& out) {
    return kPlanProgressCodes.Of(Follow(ports, groups, nullptr, now, out));
}

int CorrectedProgress(const PortCallRows& ports, const std::map<int, BookPoints>& groups,
                      const Util::_datetime_t& correction, const Util::_datetime_t& now,
                      PlannedProgress& out) {
    return kCorrectedProgressCodes.Of(Follow(ports, groups, &correction, now, out));
}

Interface::VesselCard VesselCardOf(const VoyInfo& voyage, const std::string& position,
                                   const Util::_datetime_t& now) {
    Interface::VesselCard card;
    card.vi = voyage.vi;
    card.vsi = voyage.vsi;
    card.vsn = voyage.vsn;
    if (GeoPoint place; ReadPosition(position, 0, place)) {
        card.vessel.x = place.x;
        card.vessel.y = place.y;
    }
    card.vessel.time = GmtTimerOfPlanTime(now);
    if (!voyage.portCalls.empty()) {
        // Rows of a schedule have no port ids, the dictionary has.
        card.vessel.firstPortName = voyage.portCalls.front().ppn;
        card.vessel.firstPortId = PortIdOf(voyage.portCalls.front().ppn);
        card.vessel.lastPortName = voyage.portCalls.back().ppn;
        card.vessel.lastPortId = PortIdOf(voyage.portCalls.back().ppn);
    }
    return card;
}

}  // namespace Tarvik::Seaplan
