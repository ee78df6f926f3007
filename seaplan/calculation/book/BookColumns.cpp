// SPDX-License-Identifier: MIT
#include "seaplan/calculation/book/BookColumns.h"

#include <tarvik/util/DateTimeUtl.h>
#include <tarvik/util/StringUtl.h>
#include <tarvik/util/Units.h>

#include "seaplan/data/TimeText.h"

namespace Tarvik::Seaplan {

namespace {

const PosBookPlace& Place(const BookCell& cell) {
    return PlaceOf(cell.book, cell.ref);
}

/// The waypoint of a row; null for a port.
const PosBookRow* Waypoint(const BookCell& cell) {
    const auto port = static_cast<std::size_t>(cell.ref.port);
    return cell.ref.sub == PosBookRowRef::kPort
               ? nullptr
               : &cell.book.ports[port].rows[static_cast<std::size_t>(cell.ref.sub)];
}

std::string Digits(double value, int digits) {
    return Util::StringUtl::NumericalFormat(value, ",", ".", digits);
}

std::string TimeOf(const Util::_datetime_t& utc, const std::string& zone) {
    return Util::DateTimeUtl::ConvertFromUTC(utc, zone).fmt(kTimeFormat);
}

/// A point of the AIS track tells the speed that the ship had.
std::string SpeedOf(const BookCell& cell) {
    const PosBookRow* waypoint = Waypoint(cell);
    const bool fix = waypoint != nullptr && waypoint->kind == AisTrackPoint;
    const double kmh = fix ? waypoint->aisSpeed : Place(cell).speed;
    return Digits(cell.unit == BookSpeedUnit::Knots ? Util::KnotsFromKmh(kmh) : kmh, 2);
}

}  // namespace

const std::array<BookColumnEntry, 10> kBookColumns = {{
    {.title = "IDS_WP_COL_SEQ",
     .width = 36,
     .text = [](const BookCell& cell) { return std::to_string(cell.listRow + 1); }},
    {.title = "IDS_WP_COL_NAME",
     .width = 110,
     .editor = BookEditor::Text,
     .edited = BookEdited::PlainWaypoints,
     .text = [](const BookCell& cell) { return Place(cell).name; }},
    {.title = "IDS_WP_COL_LAT",
     .width = 85,
     .editor = BookEditor::Text,
     .edited = BookEdited::PlainWaypoints,
     .text = [](const BookCell& cell) { return Digits(Place(cell).y, kBookDecimals); }},
    {.title = "IDS_WP_COL_LON",
     .width = 85,
     .editor = BookEditor::Text,
     .edited = BookEdited::PlainWaypoints,
     .text = [](const BookCell& cell) { return Digits(Place(cell).x, kBookDecimals); }},
    {.title = "IDS_WP_COL_TRACK",
     .width = 40,
     .editor = BookEditor::Track,
     .edited = BookEdited::AllButTheFirst,
     // Whatever is no great circle is sailed as a rhumb line.
     .text = [](const BookCell& cell) { return std::string(Place(cell).track == "GC" ? "GC" : "RL"); }},
    {.title = "IDS_WP_COL_INTERVAL",
     .width = 64,
     .editor = BookEditor::Interval,
     .edited = BookEdited::AllButTheFirst,
     .text = [](const BookCell& cell) { return std::to_string(Place(cell).interval); }},
    {.title = "IDS_WP_COL_SPD",
     .width = 41,
     .editor = BookEditor::Text,
     .edited = BookEdited::AllButTheFirst,
     .text = SpeedOf},
    {.title = "IDS_WP_COL_COURSE",
     .width = 41,
     .text = [](const BookCell& cell) { return Digits(Place(cell).course, 2); }},
    {.title = "IDS_WP_COL_ETA",
     .width = 117,
     .editor = BookEditor::Time,
     .edited = BookEdited::TheFirst,
     .text = [](const BookCell& cell) { return TimeOf(Place(cell).eta, cell.zone); }},
    {.title = "IDS_WP_COL_ETD",
     .width = 117,
     .editor = BookEditor::Time,
     .edited = BookEdited::Ports,
     .text = [](const BookCell& cell) { return TimeOf(Place(cell).etd, cell.zone); }},
}};

bool IsBookCellEdited(const BookColumnEntry& column, const BookCell& cell) {
    const PosBookRow* waypoint = Waypoint(cell);
    switch (column.edited) {
        case BookEdited::PlainWaypoints:
            return cell.listRow > 0 && waypoint != nullptr && waypoint->kind == PlainPoint;
        case BookEdited::AllButTheFirst:
            return cell.listRow > 0;
        case BookEdited::TheFirst:
            return cell.listRow == 0;
        case BookEdited::Ports:
            return waypoint == nullptr;
        case BookEdited::Nowhere:
            break;
    }
    return false;
}

}  // namespace Tarvik::Seaplan
