// SPDX-License-Identifier: MIT
#include <algorithm>
#include <iterator>
#include <utility>

#include <tarvik/util/PointText.h>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/Units.h"
#include "seaplan/calculation/ais/AisCorrection.h"
#include "seaplan/calculation/ais/AisRows.h"
#include "seaplan/data/Position.h"

namespace Tarvik::Seaplan {

namespace {

constexpr float kFirstSpeed = 10.0F;

/// A position in the three decimals by which the ship's own is told.
std::string ThreeDecimals(const std::string& text) {
    GeoPoint place;
    return ReadPosition(text, 0, place) ? PositionText(place) : text;
}

/// The way to the first planned port; its last point is the port.
void AddWay(const std::vector<std::string>& nearest, const VoyPortCall& port, BookPoints& rows) {
    const double speed = (1 - static_cast<double>(port.pw)) * static_cast<double>(port.psp);
    for (std::size_t i = 1; i < nearest.size(); ++i) {
        PosBookPoint row;
        row.position = nearest[i];
        row.psp = static_cast<float>(speed);
        rows.push_back(std::move(row));
    }
    rows.back().psn = port.ppn;
    rows.back().pst = PortPoint;
}

}  // namespace

int ShipPositionOf(const PortCallRows& history, std::string& position) {
    if (history.empty() || !IsAisRow(history.back())) {
        return -3;
    }
    const auto swapped = Util::SplitPoint(history.back().ppn);
    if (!swapped) {
        return -3;
    }
    position = std::string(swapped->y) + "," + std::string(swapped->x);
    return 0;
}

int ReplanBook(const BookPoints& stored, const std::string& position, NewCourse course, BookPoints& out) {
    const std::string ship = ThreeDecimals(position);
    const auto at = std::find_if(stored.begin(), stored.end(), [&](const PosBookPoint& row) {
        return ThreeDecimals(row.position) == ship;
    });
    if (at == stored.end()) {
        return -4;
    }
    if (course.nearest.size() < 2 || course.plan.empty()) {
        return -5;
    }
    BookPoints rows(stored.begin(), at + 1);
    AddWay(course.nearest, course.plan.front(), rows);
    if (BookPoints& scaled = course.ahead; !scaled.empty()) {
        scaled.front().psp = kFirstSpeed;
        RescaleBookSpeeds(course.plan, scaled);
        rows.insert(rows.end(), scaled.begin() + 1, scaled.end());
    }
    out = std::move(rows);
    return 0;
}

PortCallRows JoinHistoryAndPlan(const PortCallRows& history, const PortCallRows& plan) {
    PortCallRows rows;
    std::remove_copy_if(history.begin(), history.end(), std::back_inserter(rows), IsAisRow);
    for (const auto& row : plan) {
        rows.push_back(row);
        if (IsPurposeMissing(row.pp)) {
            rows.back().pp = kDischarge;
        }
    }
    return rows;
}

}  // namespace Tarvik::Seaplan
