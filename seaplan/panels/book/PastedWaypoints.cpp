// SPDX-License-Identifier: MIT
/// Without heads each column goes to the kind that most of its cells can be read as, a whole position first,
/// then a coordinate by its letter, and plain degrees in the order in which positions are told. Own method;
/// one reading of each cell a kind.
#include "seaplan/panels/book/PastedWaypoints.h"

#include <algorithm>
#include <array>

#include "seaplan/calculation/Units.h"
#include "seaplan/calculation/book/BookChecks.h"
#include "seaplan/panels/language/LoadText.h"

namespace Tarvik::Seaplan {

namespace {

constexpr HeadTitle kEnglishHeads[] = {
    {"name", BookName},     {"waypoint", BookName}, {"wp", BookName},         {"lat", BookLatitude},
    {"lon", BookLongitude}, {"lng", BookLongitude}, {"pos", kPositionColumn}, {"coord", kPositionColumn},
    {"leg", BookTrack},     {"sail", BookTrack},    {"track", BookTrack},     {"geometry", BookTrack},
    {"speed", BookSpeed},   {"no.", BookOrder},     {"wp no", BookOrder},     {"waypoint no", BookOrder}};

int ColumnOfHead(const std::string& head) {
    std::vector<std::string> titles;
    titles.reserve(kBookColumns.size());
    for (const BookColumnEntry& column : kBookColumns) {
        titles.push_back(TextOfKey(column.title));
    }
    return KindOfHead(head, titles, kEnglishHeads);
}

std::optional<double> Coordinate(const std::string& text, Axis axis) {
    const auto degrees = Util::ReadTypedDegrees(text, axis);
    return degrees && CheckDegrees(*degrees, axis) == BookRefusal::None ? degrees : std::nullopt;
}

std::optional<GeoPoint> Position(const std::string& text) {
    const auto typed = Util::ReadTypedPosition(text);
    if (!typed || CheckDegrees(typed->y, Axis::Latitude) != BookRefusal::None ||
        CheckDegrees(typed->x, Axis::Longitude) != BookRefusal::None) {
        return std::nullopt;
    }
    return GeoPoint{typed->x, typed->y};
}

std::string Track(const std::string& text) {
    const std::string small = SmallLetters(text);
    const bool great = small == "gc" || small.starts_with("great") || small.starts_with("ortho");
    const bool rhumb = small == "rl" || small.starts_with("rhumb") || small.starts_with("loxo");
    return great ? "GC" : rhumb ? "RL" : "";
}

bool HasLetter(const std::string& text, const char* letters) {
    return text.find_first_of(letters) != std::string::npos;
}

/// Whether a cell looks as one of a column does, where no head says so.
bool LooksLike(int column, const std::string& text) {
    switch (column) {
        case kPositionColumn:
            return !Util::ReadTypedDegrees(text, Axis::Latitude) &&
                   !Util::ReadTypedDegrees(text, Axis::Longitude) && Position(text);
        case BookLatitude:
            return HasLetter(text, "NnSs") && Coordinate(text, Axis::Latitude);
        case BookLongitude:
            return HasLetter(text, "EeWw") && Coordinate(text, Axis::Longitude);
        case BookTrack:
            return !Track(text).empty();
        default:
            return Coordinate(text, Axis::Longitude).has_value();
    }
}

bool MostLookLike(int column, const PastedLines& lines, std::size_t at) {
    std::size_t alike = 0;
    std::size_t filled = 0;
    for (const auto& line : lines) {
        filled += line[at].empty() ? 0 : 1;
        alike += !line[at].empty() && LooksLike(column, line[at]) ? 1 : 0;
    }
    return alike > 0 && 2 * alike >= filled;
}

int GuessColumn(const PastedLines& lines, std::size_t at, const std::vector<int>& taken) {
    constexpr int kPlainDegrees = -2;
    const auto isTaken = [&taken](int column) {
        return std::find(taken.begin(), taken.end(), column) != taken.end();
    };
    for (const int column : {kPositionColumn, int{BookLatitude}, int{BookLongitude}, int{BookTrack}}) {
        if (!isTaken(column) && MostLookLike(column, lines, at)) {
            return column;
        }
    }
    if (CountsOn(lines, at)) {
        return BookOrder;
    }
    if (!MostLookLike(kPlainDegrees, lines, at)) {
        return isTaken(BookName) ? kNoColumn : int{BookName};
    }
    const bool whole = isTaken(kPositionColumn) || isTaken(BookLongitude);
    return whole ? kNoColumn : isTaken(BookLatitude) ? int{BookLongitude} : int{BookLatitude};
}

/// Whether the first line names columns, and tells no place itself.
bool HasHeads(const std::vector<std::string>& line) {
    int named = 0;
    for (const std::string& cell : line) {
        if (Coordinate(cell, Axis::Longitude) || Position(cell)) {
            return false;
        }
        named += ColumnOfHead(cell) != kNoColumn ? 1 : 0;
    }
    return named > 1 || (named == 1 && line.size() == 1);
}

/// One cell, and what it adds to its line's waypoint.
class LineReader {
  public:
    LineReader(const PastedColumns& columns, BookSpeedUnit unit) : columns_(columns), unit_(unit) {}

    std::vector<PastedCell> Read(const std::vector<std::string>& line, std::optional<PastedWaypoint>& point) {
        std::vector<PastedCell> cells;
        cells.reserve(line.size());
        read_ = {};
        latitude_.reset();
        longitude_.reset();
        for (std::size_t at = 0; at < line.size(); ++at) {
            cells.push_back({line[at]});
            cells.back().value = line[at].empty() ? std::string() : ValueOf(at, line[at]);
            cells.back().known =
                line[at].empty() || !IsRead(columns_.columns[at]) || !cells.back().value.empty();
        }
        if (latitude_ && longitude_) {
            read_.position = {*longitude_, *latitude_};
            point = read_;
        }
        return cells;
    }

  private:
    static bool IsRead(int column) {
        return column != kNoColumn && std::find(std::begin(kWaypointKinds), std::end(kWaypointKinds),
                                                column) != std::end(kWaypointKinds);
    }
    std::string ValueOf(std::size_t at, const std::string& text) {
        switch (columns_.columns[at]) {
            case BookName:
                return read_.name = text;
            case BookLatitude:
                return Keep(Coordinate(text, Axis::Latitude), Axis::Latitude);
            case BookLongitude:
                return Keep(Coordinate(text, Axis::Longitude), Axis::Longitude);
            case kPositionColumn:
                if (const auto position = Position(text)) {
                    return Keep(position->y, Axis::Latitude) + ' ' + Keep(position->x, Axis::Longitude);
                }
                return {};
            case BookTrack:
                return read_.track = Track(text);
            case BookSpeed:
                return Speed(at, text);
            default:
                return {};
        }
    }
    std::string Keep(const std::optional<double>& degrees, Axis axis) {
        (axis == Axis::Latitude ? latitude_ : longitude_) = degrees;
        return degrees ? Util::DegreesText(*degrees, axis) : std::string();
    }
    std::string Speed(std::size_t at, const std::string& text) {
        const char* unit = OfferedUnits(UnitKind::Speed)[unit_ == BookSpeedUnit::Knots ? 0 : 1];
        const bool other = TellsOtherSpeedUnit(text, unit) ||
                           (!columns_.heads.empty() && TellsOtherSpeedUnit(columns_.heads[at], unit));
        const auto speed = other ? std::nullopt : PastedSpeed(text);
        const std::string shown = speed ? TwoDecimals(*speed) : std::string();
        return !shown.empty() && CheckSpeed(shown, unit_, read_.kmh) == BookRefusal::None ? shown
                                                                                          : std::string();
    }

    const PastedColumns& columns_;
    BookSpeedUnit unit_;
    PastedWaypoint read_;
    std::optional<double> latitude_;
    std::optional<double> longitude_;
};

}  // namespace

PastedColumns UnderstandWaypoints(const PastedLines& lines) {
    PastedColumns found;
    if (lines.empty()) {
        return found;
    }
    found.columns.reserve(lines.front().size());
    if (HasHeads(lines.front())) {
        found.heads = lines.front();
        for (const std::string& head : found.heads) {
            const int column = ColumnOfHead(head);
            const bool twice =
                std::find(found.columns.begin(), found.columns.end(), column) != found.columns.end();
            found.columns.push_back(twice ? kNoColumn : column);
        }
        return found;
    }
    for (std::size_t at = 0; at < lines.front().size(); ++at) {
        found.columns.push_back(GuessColumn(lines, at, found.columns));
    }
    return found;
}

PastedWaypoints ReadWaypoints(const PastedText& text, PastedColumns columns, BookSpeedUnit unit) {
    PastedWaypoints pasted;
    pasted.columns = std::move(columns);
    const std::size_t first = pasted.columns.heads.empty() ? 0 : 1;
    const std::size_t last = std::min(text.rows.size(), first + kMostPastedRows);
    pasted.cut = text.cut || last < text.rows.size();
    LineReader reader(pasted.columns, unit);
    for (std::size_t i = first; i < last; ++i) {
        std::optional<PastedWaypoint>& point = pasted.points.emplace_back();
        pasted.cells.push_back(reader.Read(text.rows[i], point));
    }
    return pasted;
}

}  // namespace Tarvik::Seaplan
