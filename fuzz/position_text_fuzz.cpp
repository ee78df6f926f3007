// SPDX-License-Identifier: MIT
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "seaplan/calculation/PositionBook.h"
#include "seaplan/calculation/RouteMessages.h"
#include "seaplan/calculation/ais/AisCorrection.h"
#include "seaplan/chart/ChartLines.h"
#include "seaplan/data/Position.h"

using namespace Tarvik::Seaplan;

namespace {

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

/// Whether all positions lie between the poles; no other has distances.
bool IsOnEarth(const std::vector<std::string>& points) {
    for (const std::string& text : points) {
        GeoPoint place;
        if (ReadPosition(text, 0, place) && std::fabs(place.y) > 90) {
            return false;
        }
    }
    return true;
}

/// A position needs a comma; whatever stands beside it reads as a finite number.
void CheckPosition(const std::string& text) {
    GeoPoint place;
    const bool read = ReadPosition(text, 0, place);
    Require(read == (text.find(',') != std::string::npos));
    Require(std::isfinite(place.x) && std::isfinite(place.y));
    float miles = 0;
    const int code = LegDistance(text, "0,0", text.size() % 2 == 0 ? "GC" : "RL", miles);
    Require(code == 0 || code == -1);
    VoyPortCall row;
    row.ppn = text;
    row.pp = " ";
    std::string turned;
    Require((ShipPositionOf({row}, turned) == 0) == read);
    Require(!read || turned.size() == text.size());
}

/// The pieces of a line are its points, less the dropped ones.
void CheckLine(const std::vector<std::string>& points) {
    std::vector<PointTexts> pieces;
    Require((SplitAtDateLine(points, pieces) == 0) == (points.size() >= 2));
    std::size_t drawn = 0;
    for (const PointTexts& piece : pieces) {
        Require(piece.size() >= 2);
        drawn += piece.size();
    }
    Require(drawn <= points.size());
}

/// A book of the points, the ends as its ports.
void CheckBook(const std::vector<std::string>& points) {
    BookPoints rows;
    for (const std::string& text : points) {
        PosBookPoint row;
        row.position = text;
        rows.push_back(row);
    }
    rows.front().pst = PortPoint;
    rows.back().pst = PortPoint;
    const PortCallRows ports(2);
    Require(ComputeBookTimes(ports[0].eta, ports, rows) <= 0);
    VoyPositionBook book;
    book.points = rows;
    PortCallRows totals = ports;
    const int code = LegTotalsFromBook(book, totals);
    Require(code <= 0 && code >= -7);
    Require(code != 0 || std::isfinite(totals[1].distance));
}

}  // namespace

// Any text as a list of positions: nothing crashes, and no number that comes of it is none.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    std::vector<std::string> points;
    if (!SplitPointset(text, points)) {
        return 0;
    }
    for (const std::string& point : points) {
        Require(!point.empty());
        CheckPosition(point);
    }
    float km = 0;
    const int code = PointsetLength(text, km);
    Require(code <= 0 && code >= -3);
    Require(std::isfinite(km) || !IsOnEarth(points));
    CheckLine(points);
    if (points.size() >= 2) {
        CheckBook(points);
    }
    return 0;
}
