// SPDX-License-Identifier: MIT
#include "seaplan/calculation/book/BookRecompute.h"

#include <tarvik/util/DateTimeUtl.h>
#include <tarvik/util/Geodesy.h>
#include <tarvik/util/Units.h>

namespace Tarvik::Seaplan {

namespace {

using Util::CircleLineUtl;
using Util::DateTimeUtl;

/// Walks the book with the ship, place by place.
class BookWalk {
  public:
    BookWalk(const PosBookPortRow& start, const Util::_datetime_t& now)
        : x_(start.x), y_(start.y), time_(start.etd), now_(now) {}

    void Sail(PosBookRow& row, int sub) {
        row.course = CourseTo(row);
        const double distance = MoveTo(row);
        const double hours = HoursFor(distance, row);
        totals_.totalDistance += distance;
        totals_.totalTime += hours;
        Arrive(row, hours);
        if (now_ >= time_) {
            totals_.passedSub = sub;
        }
    }

    /// A place where the ship was seen; it is no part of the plan.
    void SailToSighting(PosBookRow& row) { Arrive(row, HoursFor(MoveTo(row), row)); }

    void Leave(PosBookPortRow& port) {
        x_ = port.x;
        y_ = port.y;
        time_ = port.etd;
        port.speed = 0;
        port.course = 0;
        if (now_ >= time_) {
            totals_.passedPort = 0;
        }
    }

    void Call(PosBookPortRow& port, int index) {
        port.course = CourseTo(port);
        const double distance = MoveTo(port);
        const double hours = HoursFor(distance, port);
        totals_.totalDistance += distance;
        totals_.totalTime += hours + port.portTime;
        port.eta = DateTimeUtl::AddHour(time_, hours);
        port.etd = DateTimeUtl::AddHour(port.eta, port.portTime);
        time_ = port.etd;
        if (now_ >= port.eta) {
            totals_.passedPort = index;
        }
    }

    const BookTotals& Totals() const { return totals_; }

  private:
    double CourseTo(const PosBookPlace& place) const {
        return Util::CCourse::CalCourse(x_, y_, place.x, place.y);
    }
    double MoveTo(const PosBookPlace& place) {
        const double km = CircleLineUtl::CalculateDistance(x_, y_, place.x, place.y, place.track);
        x_ = place.x;
        y_ = place.y;
        return km;
    }
    static double HoursFor(double km, const PosBookPlace& place) {
        return km / ((1 - place.weather) * place.speed);
    }
    void Arrive(PosBookRow& row, double hours) {
        row.eta = DateTimeUtl::AddHour(time_, hours);
        row.etd = row.eta;
        time_ = row.etd;
    }

    double x_;
    double y_;
    Util::_datetime_t time_;
    const Util::_datetime_t& now_;
    BookTotals totals_;
};

void SailLeg(std::vector<PosBookRow>& rows, BookWalk& walk) {
    for (std::size_t s = 0; s < rows.size(); ++s) {
        if (s >= 1 && rows[s].kind == AisTrackPoint && rows[s - 1].kind == PlainPoint) {
            walk.SailToSighting(rows[s]);
        } else {
            walk.Sail(rows[s], static_cast<int>(s));
        }
    }
}

void ShowIn(const BookUnits& units, BookTotals& totals) {
    totals.averageSpeed = totals.totalDistance / totals.totalTime;
    if (units.speed == BookSpeedUnit::Knots) {
        totals.averageSpeed = Util::KnotsFromKmh(totals.averageSpeed);
    }
    if (units.distance == BookDistanceUnit::NauticalMiles) {
        totals.totalDistance = Util::NmFromKm(totals.totalDistance);
    }
    if (units.time == BookTimeUnit::Days) {
        totals.totalTime /= kHoursPerDay;
    }
}

}  // namespace

BookTotals RecomputeBook(PosBookData& book, const BookUnits& units, const Util::_datetime_t& now) {
    BookTotals totals;
    if (!book.ports.empty()) {
        BookWalk walk(book.ports.front(), now);
        for (std::size_t p = 0; p < book.ports.size(); ++p) {
            SailLeg(book.ports[p].rows, walk);
            if (p == 0) {
                walk.Leave(book.ports[p]);
            } else {
                walk.Call(book.ports[p], static_cast<int>(p));
            }
        }
        totals = walk.Totals();
    }
    ShowIn(units, totals);
    return totals;
}

bool IsPassed(const BookTotals& totals, int port, int sub) {
    return port <= totals.passedPort ||
           (port == totals.passedPort + 1 && sub >= 0 && sub <= totals.passedSub);
}

}  // namespace Tarvik::Seaplan
