// SPDX-License-Identifier: MIT
#include "seaplan/views/book/BookLines.h"

#include <tarvik/util/TypedPosition.h>

#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/texts/BookTexts.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

namespace {

using Skin::Role;

constexpr int kExpanderEdge = 12;
constexpr int kExpanderStep = 10;
constexpr int kNameIndent = 16;
constexpr int kWaypointIndent = 24;

Qt::Alignment AlignmentOf(int column) {
    const bool text = column == BookName || column == BookEta || column == BookEtd;
    const bool centred = column == BookTrack || column == BookInterval;
    return text ? Qt::AlignLeft : centred ? Qt::AlignHCenter : Qt::AlignRight;
}

QString UnitOf(const BookSheet& sheet, int column) {
    if (column == BookSpeed) {
        return QString::fromStdString(sheet.UnitText(UnitKind::Speed));
    }
    const bool degrees =
        column == BookLatitude || column == BookLongitude || column == BookCourse || column == BookInterval;
    return degrees ? QStringLiteral("°") : QString();
}

TableImages ImageOf(const BookSheet& sheet, int line) {
    const BookExpander expander = sheet.ExpanderAt(line);
    if (expander == BookExpander::None) {
        return {};
    }
    return {{{sheet.ImageAt(line), expander == BookExpander::Open ? "chevron-down" : "chevron-right"}},
            kExpanderEdge,
            kExpanderStep};
}

}  // namespace

std::vector<TableColumn> BookColumnsOf(const BookSheet& sheet) {
    std::vector<TableColumn> columns;
    columns.reserve(kBookColumns.size());
    for (std::size_t i = 0; i < kBookColumns.size(); ++i) {
        const int column = static_cast<int>(i);
        columns.push_back({QString::fromStdString(TextOfKey(kBookColumns[i].title)), UnitOf(sheet, column),
                           kBookColumns[i].width, AlignmentOf(column)});
    }
    return columns;
}

TableCell BookLines::CellAt(int line, int column) const {
    TableCell cell;
    cell.text = QString::fromStdString(sheet_.Cell(line, column));
    if (!sheet_.IsRow(line)) {
        cell.ground = Role::Book;
        cell.canBeFront = false;
        return cell;
    }
    // The number is the list's own, which no ship passes.
    if (sheet_.IsLocked(line) && column != BookOrder) {
        cell.ground = Role::History;
        cell.ink = Role::Secondary;
    }
    if (column == BookName) {
        cell.bold = sheet_.RefOf(line).sub == PosBookRowRef::kPort;
        cell.left = sheet_.IsPlain(line) ? kWaypointIndent : kNameIndent;
        cell.images = ImageOf(sheet_, line);
        return cell;
    }
    // A time and a course of three digits fill their columns.
    cell.left = 1;
    cell.right = column < BookSpeed ? 3 : 1;
    return cell;
}

/// A position is told as people read it from a chart too.
QString BookLines::TipAt(int line, int column) const {
    if (!sheet_.IsRow(line)) {
        return {};
    }
    QString tip = QString::fromStdString(sheet_.Cell(line, column));
    const PosBookPlace& place = sheet_.PlaceAt(line);
    if (column == BookLatitude) {
        tip = QString::fromStdString(Util::DegreesText(place.y, Util::Axis::Latitude));
    } else if (column == BookLongitude) {
        tip = QString::fromStdString(Util::DegreesText(place.x, Util::Axis::Longitude));
    } else if (column == BookName && sheet_.ExpanderAt(line) != BookExpander::None) {
        tip += u'\n' + ViewText(TextIds::IDS_VIEW_BOOKEXPAND);
    }
    return sheet_.IsLocked(line) ? tip + u'\n' + ViewText(TextIds::IDS_VIEW_PASSED) : tip;
}

}  // namespace Tarvik::Seaplan
