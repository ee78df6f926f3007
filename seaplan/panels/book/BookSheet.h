// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/calculation/Units.h"
#include "seaplan/calculation/book/BookColumns.h"
#include "seaplan/calculation/book/BookRecompute.h"
#include "seaplan/calculation/book/BookRows.h"
#include "seaplan/panels/editors/EditWords.h"

namespace Tarvik::Seaplan {

/// What a line's expand image shows.
enum class BookExpander { None, Closed, Open };

/// What stands around the table.
struct BookState {
    bool changed = false;  ///< there is something to save
    UndoTexts edits;
    int selected = -1;      ///< row in front, -1 for none
    std::string zone;       ///< the person's
    std::string tableZone;  ///< of the times in the port call table
};

/// All that the position book shows, as one value: the book with what is shown of it, the totals in the units
/// on show, and what can be done. Cells are made when they are asked for, so that a long book costs no more
/// than what is in sight.
class BookSheet : public BookState {
  public:
    /// The table never has fewer lines; those behind the rows are blank.
    static constexpr int kLeastLines = 13;
    /// Names of the two images of a row: its waypoints can be shown, or hidden.
    static constexpr const char* kExpand = "VoExpand";
    static constexpr const char* kExpanded = "VoExpandChecked";

    PosBookData data;
    BookRowRefs refs;
    BookTotals totals;  ///< in the units on show
    BookUnits units;

    int RowCount() const { return static_cast<int>(refs.size()); }
    int LineCount() const { return RowCount() < kLeastLines ? kLeastLines : RowCount(); }
    bool IsRow(int line) const { return line >= 0 && line < RowCount(); }
    const PosBookRowRef& RefOf(int row) const { return refs[static_cast<std::size_t>(row)]; }
    const PosBookPlace& PlaceAt(int row) const { return PlaceOf(data, RefOf(row)); }
    PosBookPlace& PlaceAt(int row) { return PlaceOf(data, RefOf(row)); }
    /// The list's row of a place, -1 where it is not shown.
    int RowOf(const PosBookRowRef& ref) const;

    /// Text of a cell, empty in a blank line.
    std::string Cell(int line, int column) const;
    /// The ship has passed the row, so that nothing of it can be edited.
    bool IsLocked(int row) const;
    /// Whether an editor opens over a cell.
    bool IsEdited(int row, int column) const;
    /// Whether a row is a waypoint without a name of its own in the data.
    bool IsPlain(int row) const;
    BookExpander ExpanderAt(int line) const;
    /// Name of the image that a line shows, empty for none.
    std::string ImageAt(int line) const;
    bool CanInsert() const;
    bool CanDelete() const { return CanDelete(selected); }
    bool CanDelete(int row) const;

    /// Text of a total with two decimals, empty where the book takes no time; of None empty too.
    std::string Total(UnitKind kind) const;
    /// The unit on show as its button tells it.
    std::string UnitText(UnitKind kind) const;
    /// Shows the first (0) or second unit of a quantity; the total follows, what is stored stays. False, with
    /// nothing changed, for the unit on show.
    bool ChooseUnit(UnitKind kind, int index);

  private:
    BookCell CellAt(int row) const;
};

/// What stands beside a figure in its first (0) or second unit, which its menu offers in this order.
std::string BookUnitText(UnitKind kind, int index);

}  // namespace Tarvik::Seaplan
