// SPDX-License-Identifier: MIT
#include "seaplan/panels/book/BookSheet.h"

#include <algorithm>
#include <cmath>

#include <tarvik/util/Units.h>

namespace Tarvik::Seaplan {

namespace {

/// Changes the unit on show, 0 or 1, and the total with it: the second unit counts `perFirst` of them in one
/// of the first.
template <class Unit>
bool Choose(Unit& unit, int index, double perFirst, double& total) {
    if (index < 0 || index > 1 || static_cast<int>(unit) == index) {
        return false;
    }
    unit = static_cast<Unit>(index);
    total = index == 1 ? total * perFirst : total / perFirst;
    return true;
}

int IndexOf(const BookUnits& units, UnitKind kind) {
    return kind == UnitKind::Speed      ? static_cast<int>(units.speed)
           : kind == UnitKind::Distance ? static_cast<int>(units.distance)
                                        : static_cast<int>(units.time);
}

}  // namespace

std::string BookUnitText(UnitKind kind, int index) {
    UnitSet set;
    UnitOf(set, kind) = OfferedUnits(kind)[static_cast<std::size_t>(index)];
    return UnitLabel(set, kind);
}

int BookSheet::RowOf(const PosBookRowRef& ref) const {
    const auto found = std::find(refs.begin(), refs.end(), ref);
    return found == refs.end() ? -1 : static_cast<int>(found - refs.begin());
}

BookCell BookSheet::CellAt(int row) const {
    return {data, RefOf(row), row, units.speed, zone};
}

std::string BookSheet::Cell(int line, int column) const {
    return IsRow(line) ? kBookColumns.at(static_cast<std::size_t>(column)).text(CellAt(line)) : std::string();
}

bool BookSheet::IsLocked(int row) const {
    return IsPassed(totals, RefOf(row).port, RefOf(row).sub);
}

bool BookSheet::IsEdited(int row, int column) const {
    return IsRow(row) && !IsLocked(row) &&
           IsBookCellEdited(kBookColumns.at(static_cast<std::size_t>(column)), CellAt(row));
}

bool BookSheet::IsPlain(int row) const {
    const PosBookRowRef& ref = RefOf(row);
    return ref.sub != PosBookRowRef::kPort &&
           data.ports[static_cast<std::size_t>(ref.port)].rows[static_cast<std::size_t>(ref.sub)].kind ==
               PlainPoint;
}

BookExpander BookSheet::ExpanderAt(int line) const {
    if (!IsRow(line) || IsPlain(line)) {
        return BookExpander::None;
    }
    const PosBookRowRef& ref = RefOf(line);
    if (ref.sub == PosBookRowRef::kPort && ref.port + 1 == static_cast<int>(data.ports.size())) {
        return BookExpander::None;
    }
    return PlaceAt(line).expanded ? BookExpander::Open : BookExpander::Closed;
}

std::string BookSheet::ImageAt(int line) const {
    switch (ExpanderAt(line)) {
        case BookExpander::Closed:
            return kExpand;
        case BookExpander::Open:
            return kExpanded;
        case BookExpander::None:
            break;
    }
    return {};
}

bool BookSheet::CanInsert() const {
    return IsRow(selected) && selected > 0 && !IsLocked(selected);
}

bool BookSheet::CanDelete(int row) const {
    return IsRow(row) && !IsLocked(row) && IsPlain(row) && PlaceAt(row).id.empty();
}

std::string BookSheet::Total(UnitKind kind) const {
    const double value = kind == UnitKind::Speed      ? totals.averageSpeed
                         : kind == UnitKind::Distance ? totals.totalDistance
                                                      : totals.totalTime;
    return kind == UnitKind::None || !std::isfinite(value) ? std::string() : TwoDecimals(value);
}

std::string BookSheet::UnitText(UnitKind kind) const {
    return BookUnitText(kind, IndexOf(units, kind));
}

bool BookSheet::ChooseUnit(UnitKind kind, int index) {
    switch (kind) {
        case UnitKind::Speed:
            return Choose(units.speed, index, Util::KmhFromKnots(1), totals.averageSpeed);
        case UnitKind::Distance:
            return Choose(units.distance, index, Util::KmFromNm(1), totals.totalDistance);
        case UnitKind::Time:
            return Choose(units.time, index, kHoursPerDay, totals.totalTime);
        default:
            return false;
    }
}

}  // namespace Tarvik::Seaplan
