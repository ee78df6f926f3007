// SPDX-License-Identifier: MIT
/// A stored schedule against the world: its ports exist, its book leads from one to the next, each way is as
/// long as the sea between them, and the times follow from miles, speeds and stays. The arithmetic is done
/// anew here and not asked of the product.
#include <cmath>
#include <cstdlib>

#include <tarvik/util/Geodesy.h>
#include <tarvik/util/StringUtl.h>

#include "seaplan/panels/tests/DeskPorts.h"
#include "tests/walk/Stored.h"
#include "tests/walk/World.h"

namespace Tarvik::Seaplan::Walk {

namespace {

using Util::StringUtl;

/// Positions are kept with three decimals of a degree.
constexpr double kMilesApart = 0.3;
constexpr double kHoursApart = 0.1;

/// A leg of the book, added up.
struct Leg {
    std::string port;  ///< where it ends
    double miles = 0;
    double hours = 0;
    bool byShip = false;  ///< the ship was seen on it
};

double Degrees(const std::string& position, bool second) {
    const std::size_t comma = position.find(',');
    return std::atof(position.c_str() + (second ? comma + 1 : 0));
}

/// The first leg is the port where the book begins.
std::vector<Leg> LegsOf(const BookPoints& points) {
    std::vector<Leg> legs;
    Leg leg;
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (i > 0) {
            const std::string& from = points[i - 1].position;
            const std::string& to = points[i].position;
            const double km =
                Util::CircleLineUtl::CalculateDistance(Degrees(from, false), Degrees(from, true),
                                                       Degrees(to, false), Degrees(to, true), points[i].psr);
            leg.miles += km / 1.852;
            leg.hours += km / 1.852 / static_cast<double>(points[i].psp);
        }
        leg.byShip = leg.byShip || points[i].pst == AisTrackPoint;
        if (points[i].pst == PortPoint) {
            leg.port = points[i].psn;
            legs.push_back(leg);
            leg = Leg();
        }
    }
    return legs;
}

bool IsLengthOf(const Leg& leg, const std::string& from) {
    const double other = OtherMilesBetween(from, leg.port);
    return std::abs(leg.miles - MilesBetween(from, leg.port)) < kMilesApart ||
           (other > 0 && std::abs(leg.miles - other) < kMilesApart);
}

std::string FaultOfBook(const StoredVoyage& voyage, bool corrected) {
    const std::vector<Leg> legs = LegsOf(voyage.book.points);
    if (legs.size() != voyage.rows.size()) {
        return StringUtl::Format("%d ports in the book of %d port calls", static_cast<int>(legs.size()),
                                 static_cast<int>(voyage.rows.size()));
    }
    for (std::size_t i = 0; i < legs.size(); ++i) {
        const VoyPortCall& row = voyage.rows[i];
        if (legs[i].port != row.ppn) {
            return "the book leads to " + legs[i].port + ", the port call is " + row.ppn;
        }
        if (i == 0 || corrected || legs[i].byShip) {
            continue;
        }
        if (!IsLengthOf(legs[i], legs[i - 1].port)) {
            return StringUtl::Format("%.2f miles from %s to %s", legs[i].miles, legs[i - 1].port.c_str(),
                                     legs[i].port.c_str());
        }
        const double knots = legs[i].miles / legs[i].hours;
        if (std::abs(knots - static_cast<double>(row.psp)) > 0.02) {
            return StringUtl::Format("the book makes %.3f knots to %s, the port call %.3f", knots,
                                     row.ppn.c_str(), static_cast<double>(row.psp));
        }
    }
    return {};
}

double HoursFrom(const Util::_datetime_t& begin, const Util::_datetime_t& end) {
    return static_cast<double>(end.total_csecs() - begin.total_csecs()) /
           static_cast<double>(Util::kCsecsPerHour);
}

std::string FaultOfTimes(const StoredVoyage& voyage) {
    const PortCallRows& rows = voyage.loaded;
    if (rows.size() != voyage.rows.size() || rows.front().eta != voyage.book.eta) {
        return "the rows that open are not those that are stored, or begin at another time";
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const VoyPortCall& row = rows[i];
        const double stay = HoursFrom(row.eta, row.etd);
        if (std::abs(stay - static_cast<double>(row.apt)) > kHoursApart) {
            return StringUtl::Format("%.2f hours in %s, told are %.2f", stay, row.ppn.c_str(),
                                     static_cast<double>(row.apt));
        }
        if (i == 0) {
            continue;
        }
        const double hours = static_cast<double>(row.distance) /
                             (static_cast<double>(row.psp) * (1 - static_cast<double>(row.pw)));
        const double told = HoursFrom(rows[i - 1].etd, row.eta);
        if (!(std::abs(hours - told) < kHoursApart)) {
            return StringUtl::Format("%.2f hours to %s by miles and speed, told are %.2f", hours,
                                     row.ppn.c_str(), told);
        }
    }
    return {};
}

}  // namespace

std::string FaultOfSchedule(const StoredVoyage& voyage, bool corrected) {
    if (voyage.loadCode != 0) {
        return "it does not open: " + std::to_string(voyage.loadCode);
    }
    for (const VoyPortCall& row : voyage.rows) {
        if (row.ppi.empty() || DeskPortId(row.ppn) != row.ppi) {
            return "the port call " + row.ppn + " has the id \"" + row.ppi + "\"";
        }
    }
    const std::string fault = FaultOfBook(voyage, corrected);
    return fault.empty() ? FaultOfTimes(voyage) : fault;
}

}  // namespace Tarvik::Seaplan::Walk
