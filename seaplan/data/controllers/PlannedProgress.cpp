// SPDX-License-Identifier: MIT
#include "seaplan/data/controllers/PlannedProgress.h"

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/Schedule.h"

#include <tarvik/util/StringUtl.h>

namespace Tarvik::Seaplan {

namespace {

using Util::StringUtl;

constexpr double kLeastSpeed = 0.0001;

struct Place {
    double x = 0;
    double y = 0;
};

bool readPlace(const std::string& text, Place& out) {
    const std::size_t comma = text.find(',');
    if (comma == std::string::npos) {
        return false;
    }
    out.x = StringUtl::ToDouble(text.substr(0, comma));
    out.y = StringUtl::ToDouble(text.substr(comma + 1));
    return true;
}

void append(const BookPoints& rows, PointTexts& list) {
    for (const PosBookPoint& row : rows) {
        list.push_back(row.position);
    }
}

/// Hours from `now` to `end`, without seconds.
double hoursLeft(const Util::_datetime_t& end, const Util::_datetime_t& now) {
    return (end.date().year_julian() - now.date().year_julian()) * 24.0 + (end.hour() - now.hour()) +
           (end.minute() - now.minute()) / 60.0;
}

/// Place after `covered` of the `distance` miles from a to b.
std::string interpolate(const Place& a, const Place& b, double covered, double distance) {
    if (distance <= 0) {
        return StringUtl::Format("%.3f,%.3f", b.x, b.y);
    }
    const double x = (b.x - a.x) * covered / distance + a.x;
    const double y = b.y - (distance - covered) * (b.y - a.y) / distance;
    return StringUtl::Format("%.3f,%.3f", x, y);
}

/// Walks the leg on which the ship is.
class LegWalk {
  public:
    LegWalk(double weather, const Util::_datetime_t& departure, const Util::_datetime_t& now,
            PlannedProgress& out)
        : weather_(weather), reached_(departure), now_(now), out_(out) {}

    int Run(const BookPoints& rows) {
        if (out_.sailed.empty()) {
            return -8;
        }
        std::string previous = out_.sailed.back();
        for (const PosBookPoint& row : rows) {
            if (const int failed = step(previous, row); failed < 0) {
                return failed;
            }
            previous = row.position;
        }
        return 0;
    }

  private:
    int step(const std::string& previous, const PosBookPoint& row) {
        Place from;
        Place to;
        float distance = 0;
        if (!readPlace(previous, from)) {
            return -9;
        }
        if (!readPlace(row.position, to)) {
            return -10;
        }
        if (LegDistance(previous, row.position, row.psr, distance) < 0) {
            return -11;
        }
        if (row.psp <= kLeastSpeed) {
            return -12;
        }
        const double speed = (1 - weather_) * row.psp;
        const double steam = distance / speed;
        if (AddHours(static_cast<float>(steam), reached_) < 0) {
            return -13;
        }
        place(row, from, to, distance, speed, steam);
        return 0;
    }

    void place(const PosBookPoint& row, const Place& from, const Place& to, double distance, double speed,
               double steam) {
        if (now_ >= reached_) {
            out_.current = row.position;
            out_.sailed.push_back(row.position);
            return;
        }
        if (!crossed_) {
            crossed_ = true;
            const double covered = speed * (steam - hoursLeft(reached_, now_));
            out_.current = interpolate(from, to, covered, distance);
            out_.sailed.push_back(out_.current);
            out_.remaining.push_back(out_.current);
        }
        out_.remaining.push_back(row.position);
    }

    double weather_;
    Util::_datetime_t reached_;
    const Util::_datetime_t& now_;
    PlannedProgress& out_;
    bool crossed_ = false;
};

void startAt(const VoyPortCall& port, const PosBookPoint& row, const Util::_datetime_t& now,
             PlannedProgress& out) {
    out.current = row.position;
    out.sailed.push_back(row.position);
    if (now < port.etd) {
        out.remaining.push_back(row.position);
    }
}

}  // namespace

int PlanProgress(const PortCallRows& ports, const std::map<int, BookPoints>& groups,
                 const Util::_datetime_t& now, PlannedProgress& out) {
    out = {};
    for (std::size_t i = 0; i < ports.size(); ++i) {
        const auto group = groups.find(static_cast<int>(i));
        if (group == groups.end() || group->second.empty()) {
            return -6;
        }
        const BookPoints& rows = group->second;
        const double weather = ports[i].pw;
        if (weather > 1.0) {
            return -7;
        }
        if (i == 0) {
            startAt(ports[i], rows.front(), now, out);
        } else if (now >= ports[i].eta) {
            append(rows, out.sailed);
            out.current = rows.back().position;
        } else if (now < ports[i - 1].etd) {
            append(rows, out.remaining);
        } else {
            const int failed = LegWalk(weather, ports[i - 1].etd, now, out).Run(rows);
            if (failed < 0) {
                return failed;
            }
        }
    }
    return 0;
}

}  // namespace Tarvik::Seaplan
