// SPDX-License-Identifier: MIT
#include "seaplan/panels/book/BookPaste.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/texts/BookTexts.h"
#include "seaplan/panels/texts/EditTexts.h"
#include "seaplan/panels/window/StatusWords.h"

namespace Tarvik::Seaplan {

namespace {

using Mark = RowsPreview::Mark;

/// The same place as the book tells places.
bool StandsAt(const GeoPoint& point, const GeoPoint& place) {
    const double least = std::pow(10, -kBookDecimals) / 2;
    return std::abs(point.x - place.x) < least && std::abs(point.y - place.y) < least;
}

GeoPoint PointOf(const PosBookPlace& place) {
    return {place.x, place.y};
}

std::string TitleOf(int kind) {
    if (kind == kPositionColumn) {
        return Text(TextIds::IDS_VIEW_PASTEPLACE);
    }
    return kind == kNoColumn ? Text(TextIds::IDS_VIEW_PASTEIGNORED)
                             : TextOfKey(kBookColumns.at(static_cast<std::size_t>(kind)).title);
}

RowsPreview::Cells CellsOf(const std::vector<PastedCell>& cells, bool taken) {
    RowsPreview::Cells shown;
    shown.reserve(cells.size() + 1);
    shown.emplace_back();
    for (const PastedCell& cell : cells) {
        const Mark mark = !cell.known                    ? Mark::Unknown
                          : taken && !cell.value.empty() ? Mark::Plain
                                                         : Mark::Ignored;
        shown.push_back({mark == Mark::Plain ? cell.value : cell.text, mark});
    }
    return shown;
}

}  // namespace

PastedWaypoints BookPaste::Read(const PastedText& text, PastedColumns columns) const {
    return ReadWaypoints(text, std::move(columns), desk_.Sheet().units.speed);
}

/// Of the lines those are taken that tell a place other than the one before them; so rows that were copied
/// with the ends of their leg come in without these.
BookPaste::Plan BookPaste::PlanOf(const PastedWaypoints& pasted) const {
    const BookSheet& sheet = desk_.Sheet();
    Plan plan;
    plan.preview.command = RowsPreview::Command::Waypoints;
    plan.preview.titles.push_back(TitleOf(BookOrder));
    for (const int kind : kWaypointKinds) {
        plan.preview.kinds.push_back(TitleOf(kind));
    }
    for (const int column : pasted.columns.columns) {
        const auto* kind = std::find(std::begin(kWaypointKinds), std::end(kWaypointKinds), column);
        const bool known = kind != std::end(kWaypointKinds);
        plan.preview.taken.push_back(known ? static_cast<std::size_t>(kind - std::begin(kWaypointKinds)) : 0);
        plan.preview.titles.push_back(TitleOf(known ? column : kNoColumn));
    }
    GeoPoint before = PointOf(*PlaceBefore(sheet.data, sheet.RefOf(sheet.selected)));
    const GeoPoint front = PointOf(sheet.PlaceAt(sheet.selected));
    for (std::size_t i = 0; i < pasted.cells.size(); ++i) {
        const auto& point = pasted.points[i];
        const bool last = i + 1 == pasted.cells.size();
        const bool taken =
            point && !StandsAt(point->position, before) && !(last && StandsAt(point->position, front));
        plan.preview.rows.push_back(CellsOf(pasted.cells[i], taken));
        if (taken) {
            before = point->position;
            plan.taken.push_back(*point);
            plan.preview.rows.back().front().text = std::to_string(plan.taken.size());
        }
    }
    plan.preview.words = Text(TextIds::IDS_VIEW_PASTEWAYPOINTS,
                              {std::to_string(plan.taken.size()), std::to_string(sheet.selected + 1),
                               std::to_string(pasted.cells.size() - plan.taken.size())});
    if (pasted.cut) {
        plan.preview.words += ' ' + Text(TextIds::IDS_VIEW_PASTECUT, {std::to_string(kMostPastedRows)});
    }
    return plan;
}

/// Shows what the paste would do; a column that the person takes for another kind changes it.
bool BookPaste::Ask(const PastedText& text, PastedWaypoints pasted, Plan& plan) {
    return desk_.View().AskRows(plan.preview, [&](std::size_t column, std::size_t kind) {
        PastedColumns columns = pasted.columns;
        TakeColumnAs(columns.columns, column, kWaypointKinds[kind]);
        pasted = Read(text, std::move(columns));
        plan = PlanOf(pasted);
        return plan.preview;
    });
}

void BookPaste::OnPaste() {
    const BookDesk::Report report(desk_);
    if (!editing_.CommitEditors()) {
        return;
    }
    const BookSheet& sheet = desk_.Sheet();
    if (!sheet.CanInsert()) {
        return TellInStatusLine(Text(TextIds::IDS_VIEW_NOINSERT));
    }
    const PastedText text = ReadPastedText(desk_.View().ClipboardText());
    const PastedWaypoints pasted = Read(text, UnderstandWaypoints(text.rows));
    if (pasted.cells.empty()) {
        return TellInStatusLine(Text(TextIds::IDS_VIEW_PASTENOPLACES));
    }
    Plan plan = PlanOf(pasted);
    desk_.Show();
    const BookRowRefs shown = sheet.refs;
    const int front = sheet.selected;
    const std::string voyage = desk_.Owner().Origin().voyage;
    if (!Ask(text, pasted, plan)) {
        return;
    }
    // What was shown is what is taken, and nothing else.
    if (sheet.refs != shown || sheet.selected != front || !sheet.CanInsert() ||
        desk_.Owner().Origin().voyage != voyage) {
        return TellInStatusLine(Text(TextIds::IDS_VIEW_PASTECHANGED));
    }
    if (plan.taken.empty()) {
        return TellInStatusLine(Text(TextIds::IDS_VIEW_PASTENOPLACES));
    }
    Take(plan.taken);
}

/// The legs between the waypoints are sailed as pasted, or as the leg that they come into; none is cut, since
/// who pastes a route has its waypoints.
void BookPaste::Take(const std::vector<PastedWaypoint>& points) {
    BookSheet& sheet = desk_.Sheet();
    const PosBookRowRef front = sheet.RefOf(sheet.selected);
    desk_.UnfoldBefore(front);
    sheet.selected = sheet.RowOf(front);
    desk_.Together([&] {
        for (const PastedWaypoint& point : points) {
            const int row = sheet.selected++;
            InsertBookRow(sheet.data, sheet.refs, row, point.position);
            PosBookPlace& place = sheet.PlaceAt(row);
            place.name = point.name.empty() ? place.name : WaypointName(point.name);
            place.track = point.track.empty() ? place.track : point.track;
            place.speed = point.kmh > 0 ? point.kmh : place.speed;
        }
        desk_.TakeEdit();
        return EditOfRows(TextIds::IDS_VIEW_EDITPASTE, points.size());
    });
}

}  // namespace Tarvik::Seaplan
