// SPDX-License-Identifier: MIT
#include <cmath>

#include <tarvik/util/Geodesy.h>
#include <tarvik/util/Units.h>

#include "seaplan/calculation/LegCacheText.h"
#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/Schedule.h"
#include "seaplan/data/Outcome.h"
#include "seaplan/data/Position.h"

/// Figures of the book's legs. A leg's length and time are sums over its pairs of rows, so its speed is the
/// length over the time, and scaling every row by one factor scales the leg's speed by the same. Kept legs
/// are found by the names that the books give their ports, in an ordered map. Cost: one pass over the rows,
/// and one look-up a leg.
namespace Tarvik::Seaplan {

namespace {

constexpr double kLeastLegTime = 0.0001;
constexpr double kSameSpeed = 0.00001;

enum class TotalsStep { Ports, Book, LegPoints, Position, Speed, Time, Schedule };
using TotalsOutcome = Outcome<TotalsStep>;
/// Numbers of LegTotalsFromBook.
constexpr CodeTable kLegTotalsCodes{Code{TotalsStep::Ports, -1},     Code{TotalsStep::Book, -2},
                                    Code{TotalsStep::LegPoints, -3}, Code{TotalsStep::Position, -4},
                                    Code{TotalsStep::Speed, -5},     Code{TotalsStep::Time, -6},
                                    Code{TotalsStep::Schedule, -7}};
enum class RescaleStep { Rows, Legs, Averages, Schedule };
using RescaleOutcome = Outcome<RescaleStep>;
/// Numbers of RescaleBookSpeeds.
constexpr CodeTable kRescaleCodes{Code{RescaleStep::Rows, -1}, Code{RescaleStep::Legs, -2},
                                  Code{RescaleStep::Averages, -3}, Code{RescaleStep::Schedule, -4}};

/// Length in nautical miles and time in hours of a leg.
struct LegSums {
    double distance = 0;
    double time = 0;
};

/// Sums over the pairs of a leg; weather plays no part, a row's speed is its real one.
TotalsOutcome SumLeg(const BookPoints& rows, const BookLeg& leg, LegSums& sums) {
    if (leg.last <= leg.first) {
        return TotalsStep::LegPoints;
    }
    for (std::size_t i = leg.first + 1; i <= leg.last; ++i) {
        GeoPoint from;
        GeoPoint to;
        if (!ReadPosition(rows[i - 1].position, 0, from) || !ReadPosition(rows[i].position, 0, to)) {
            return TotalsStep::Position;
        }
        const auto speed = static_cast<double>(rows[i].psp);
        if (speed < kLeastRowKnots) {
            return TotalsStep::Speed;
        }
        const double step =
            Util::NmFromKm(Util::CircleLineUtl::CalculateDistance(from.x, from.y, to.x, to.y, rows[i].psr));
        sums.distance += step;
        sums.time += step / speed;
    }
    return sums.time < kLeastLegTime ? TotalsStep::Time : TotalsOutcome();
}

void AppendRows(const BookPoints& from, std::size_t first, std::size_t last, BookPoints& out) {
    for (std::size_t i = first; i <= last; ++i) {
        out.push_back(from[i]);
    }
}

/// A leg of the stored book that can be taken over.
struct StoredLeg {
    BookLeg leg;
    bool used = false;
};

using StoredLegs = std::map<std::string, std::vector<StoredLeg>>;

/// Names of a book's ports, one for each leg: its own, or that of the port call where it has none. A book
/// with another number of ports than there are calls, left by a save that broke off, gets none from them.
std::vector<std::string> PortNamesOf(const BookPoints& rows, const std::vector<BookLeg>& legs,
                                     const PortCallRows& calls) {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < legs.size(); ++i) {
        const std::string& own = rows[legs[i].last].psn;
        names.push_back(own.empty() && legs.size() == calls.size() ? calls[i].ppn : own);
    }
    return names;
}

/// The stored legs under the names of their ports; a leg of a nameless port is nobody's.
StoredLegs StoreLegs(const std::vector<std::string>& names, const std::vector<BookLeg>& legs) {
    StoredLegs stored;
    for (std::size_t i = 1; i < legs.size(); ++i) {
        if (!names[i - 1].empty() && !names[i].empty()) {
            stored[LegCacheKey(names[i - 1], names[i])].push_back({legs[i], false});
        }
    }
    return stored;
}

/// The first leg of the key that is not taken yet, the last one when all are; null for an unknown key.
const BookLeg* TakeLeg(StoredLegs& stored, const std::string& key) {
    const auto found = stored.find(key);
    if (found == stored.end()) {
        return nullptr;
    }
    for (auto& candidate : found->second) {
        if (!candidate.used) {
            candidate.used = true;
            return &candidate.leg;
        }
    }
    return &found->second.back().leg;
}

TotalsOutcome Totals(const VoyPositionBook& book, PortCallRows& ports) {
    if (ports.size() < 2) {
        return TotalsStep::Ports;
    }
    const auto legs = LegsOf(book.points);
    if (legs.size() < ports.size()) {
        return TotalsStep::Book;
    }
    PortCallRows totals = ports;
    for (std::size_t i = 1; i < totals.size(); ++i) {
        LegSums sums;
        if (const auto summed = SumLeg(book.points, legs[i], sums); summed.Failed()) {
            return summed;
        }
        totals[i].distance = static_cast<float>(sums.distance);
        totals[i].psp = static_cast<float>(sums.distance / sums.time);
    }
    totals.front().eta = book.eta;
    PortCallRows timed;
    if (RecomputeSchedule(totals, timed) != 0) {
        return TotalsStep::Schedule;
    }
    ports = std::move(timed);
    return {};
}

RescaleOutcome Rescale(const PortCallRows& ports, BookPoints& rows) {
    if (ports.size() < 2 || rows.size() < 2) {
        return RescaleStep::Rows;
    }
    const auto legs = LegsOf(rows);
    if (legs.size() != ports.size()) {
        return RescaleStep::Legs;
    }
    PortCallRows averages = ports;
    VoyPositionBook book;
    book.eta = ports.front().eta;
    book.points = rows;
    if (const auto formed = Totals(book, averages); formed.Failed()) {
        return formed.At() == TotalsStep::Schedule ? RescaleStep::Schedule : RescaleStep::Averages;
    }
    for (std::size_t i = 1; i < ports.size(); ++i) {
        const auto entered = static_cast<double>(ports[i].psp);
        const auto average = static_cast<double>(averages[i].psp);
        if (std::fabs(entered - average) < kSameSpeed) {
            continue;
        }
        for (std::size_t r = legs[i].first + 1; r <= legs[i].last; ++r) {
            rows[r].psp = static_cast<float>(static_cast<double>(rows[r].psp) * entered / average);
        }
    }
    return {};
}

}  // namespace

std::vector<BookLeg> LegsOf(const BookPoints& rows) {
    std::vector<BookLeg> legs;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].pst == PortPoint) {
            legs.push_back({legs.empty() ? 0 : legs.back().last, i});
        }
    }
    return legs;
}

int LegTotalsFromBook(const VoyPositionBook& book, PortCallRows& ports) {
    return kLegTotalsCodes.Of(Totals(book, ports));
}

int RescaleBookSpeeds(const PortCallRows& ports, BookPoints& rows) {
    return kRescaleCodes.Of(Rescale(ports, rows));
}

int JoinKeepingLegs(const PortCallRows& oldPorts, const BookPoints& stored, const PortCallRows& newPorts,
                    const BookPoints& fresh, BookPoints& out) {
    const auto newLegs = LegsOf(fresh);
    if (oldPorts.size() < 2 || newPorts.size() < 2 || newLegs.size() != newPorts.size()) {
        return -1;
    }
    const auto oldLegs = LegsOf(stored);
    auto keptLegs = StoreLegs(PortNamesOf(stored, oldLegs, oldPorts), oldLegs);
    const auto names = PortNamesOf(fresh, newLegs, newPorts);
    BookPoints joined;
    AppendRows(fresh, newLegs.front().first, newLegs.front().last, joined);
    for (std::size_t i = 1; i < newLegs.size(); ++i) {
        const BookLeg* kept = TakeLeg(keptLegs, LegCacheKey(names[i - 1], names[i]));
        const BookPoints& source = kept != nullptr ? stored : fresh;
        const BookLeg& leg = kept != nullptr ? *kept : newLegs[i];
        AppendRows(source, leg.first + 1, leg.last, joined);
    }
    out = std::move(joined);
    return 0;
}

}  // namespace Tarvik::Seaplan
