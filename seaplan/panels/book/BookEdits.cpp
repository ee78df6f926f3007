// SPDX-License-Identifier: MIT
#include "seaplan/panels/book/BookEdits.h"

#include <algorithm>
#include <optional>

#include <tarvik/util/DateTimeUtl.h>
#include <tarvik/util/StringUtl.h>
#include <tarvik/util/Units.h>

#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/texts/BookTexts.h"
#include "seaplan/panels/texts/CommonTexts.h"
#include "seaplan/panels/texts/EditTexts.h"
#include "seaplan/panels/tree/TreeRules.h"

namespace Tarvik::Seaplan {

namespace {

constexpr const char* kGreatCircle = "GC";

}  // namespace

std::string WaypointName(const std::string& typed) {
    std::u16string name = Util::StringUtl::TranslateString(NormalizeName(typed));
    name.resize(std::min(name.size(), kMostTypedUnits));
    for (char16_t& unit : name) {
        unit = unit == u'|' ? u'\uFF5C' : unit;
    }
    return Util::StringUtl::TranslateString(name);
}

std::string BookEdits::TextToEdit(int row, int column) const {
    const BookSheet& sheet = desk_.Sheet();
    if (column != BookSpeed) {
        return sheet.Cell(row, column);
    }
    // The cell of an AIS point tells the speed that the ship had; what can be changed is the plan's.
    const double kmh = sheet.PlaceAt(row).speed;
    return TwoDecimals(sheet.units.speed == BookSpeedUnit::Knots ? Util::KnotsFromKmh(kmh) : kmh);
}

BookRefusal BookEdits::TakeText(int row, int column, const std::string& typed) {
    switch (column) {
        case BookName:
            SetName(row, typed);
            return BookRefusal::None;
        case BookLatitude:
            return SetPosition(row, Axis::Latitude, typed);
        case BookLongitude:
            return SetPosition(row, Axis::Longitude, typed);
        case BookSpeed:
            return SetSpeed(row, typed);
        default:
            return BookRefusal::None;
    }
}

std::string BookEdits::EchoOf(int row, int column, const std::string& typed) const {
    if ((column != BookLatitude && column != BookLongitude) || typed.empty()) {
        return {};
    }
    const Axis axis = column == BookLatitude ? Axis::Latitude : Axis::Longitude;
    const PosBookPlace& place = desk_.Sheet().PlaceAt(row);
    GeoPoint position{place.x, place.y};
    const BookRefusal refusal = CheckPosition(typed, axis, position);
    if (refusal == BookRefusal::NotANumber) {
        return Text(TextIds::IDS_VIEW_NOTREAD);
    }
    if (refusal != BookRefusal::None) {
        return Text(TextOf(refusal));
    }
    const bool pair = axis == Axis::Latitude ? position.x != place.x : position.y != place.y;
    std::string told = Text(TextIds::IDS_VIEW_READAS);
    if (pair || axis == Axis::Latitude) {
        told += ' ' + DegreesText(position.y, Axis::Latitude);
    }
    if (pair || axis == Axis::Longitude) {
        told += ' ' + DegreesText(position.x, Axis::Longitude);
    }
    return told;
}

void BookEdits::SetName(int row, const std::string& typed) {
    std::string& name = desk_.Sheet().PlaceAt(row).name;
    if (std::string kept = WaypointName(typed); kept != name) {
        name = std::move(kept);
        desk_.TakeEdit({TextIds::IDS_VIEW_EDITNAME, row});
    }
}

BookRefusal BookEdits::SetPosition(int row, Axis axis, const std::string& typed) {
    const PosBookPlace& place = desk_.Sheet().PlaceAt(row);
    GeoPoint position{place.x, place.y};
    const BookRefusal refusal = CheckPosition(typed, axis, position);
    if (refusal == BookRefusal::None) {
        MoveTo(row, position);
    }
    return refusal;
}

void BookEdits::CutGreatCircle(int row) {
    if (desk_.Sheet().IsRow(row) && desk_.Sheet().PlaceAt(row).track == kGreatCircle) {
        desk_.Regenerate(row, false);
    }
}

/// Another longitude cuts the great circles on both sides anew, and waypoints of an earlier cut stay; a
/// latitude alone cuts none.
void BookEdits::MoveTo(int row, const GeoPoint& position) {
    BookSheet& sheet = desk_.Sheet();
    PosBookPlace& place = sheet.PlaceAt(row);
    const bool sameX = place.x == position.x;
    if (sameX && place.y == position.y) {
        return;
    }
    place.x = position.x;
    place.y = position.y;
    if (!sameX) {
        CutBothSides(row);
    }
    desk_.TakeEdit({TextIds::IDS_VIEW_EDITPLACE, row});
}

void BookEdits::CutBothSides(int row) {
    const int before = desk_.Sheet().RowCount();
    CutGreatCircle(row);
    // The rows that came into the list stand before this one.
    CutGreatCircle(row + desk_.Sheet().RowCount() - before + 1);
}

bool BookEdits::PullLeg(const GeoPoint& from, const GeoPoint& to) {
    BookSheet& sheet = desk_.Sheet();
    const std::optional<PosBookRowRef> end = LegAt(sheet.data, from);
    if (!end || IsPassed(sheet.totals, end->port, end->sub)) {
        return false;
    }
    desk_.UnfoldBefore(*end);
    const int row = sheet.RowOf(*end);
    if (!InsertBookRow(sheet.data, sheet.refs, row, to)) {
        return false;
    }
    sheet.selected = row;
    CutBothSides(row);
    desk_.TakeEdit({TextIds::IDS_VIEW_EDITINSERT, sheet.selected});
    return true;
}

BookRefusal BookEdits::SetSpeed(int row, const std::string& typed) {
    double& speed = desk_.Sheet().PlaceAt(row).speed;
    double kmh = speed;
    const BookRefusal refusal = CheckSpeed(typed, desk_.Sheet().units.speed, kmh);
    if (refusal == BookRefusal::None && kmh != speed) {
        speed = kmh;
        desk_.TakeEdit({TextIds::IDS_VIEW_EDITSPEED, row});
    }
    return refusal;
}

void BookEdits::SetTrack(int row, const std::string& track) {
    // What is stored may be neither of the two texts; it counts as the one that is shown.
    if (track == desk_.Sheet().Cell(row, BookTrack)) {
        return;
    }
    desk_.Sheet().PlaceAt(row).track = track;
    CutGreatCircle(row);
    desk_.TakeEdit({TextIds::IDS_VIEW_EDITTRACK, row});
}

void BookEdits::SetInterval(int row, int interval) {
    int& kept = desk_.Sheet().PlaceAt(row).interval;
    if (interval == kept) {
        return;
    }
    kept = interval;
    CutGreatCircle(row);
    desk_.TakeEdit({TextIds::IDS_VIEW_EDITINTERVAL, row});
}

BookRefusal BookEdits::SetTime(int row, const Util::_datetime_t& local) {
    BookSheet& sheet = desk_.Sheet();
    PosBookPortRow& port = sheet.data.ports[static_cast<std::size_t>(sheet.RefOf(row).port)];
    const double before = port.portTime;
    const BookRefusal refusal = ChangeDeparture(Util::DateTimeUtl::ConvertToUTC(local, sheet.zone), port);
    if (refusal == BookRefusal::None && port.portTime != before) {
        desk_.TakeEdit({TextIds::IDS_VIEW_EDITETD, row});
    }
    return refusal;
}

}  // namespace Tarvik::Seaplan
