// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/panels/book/BookEditing.h"

namespace Tarvik::Seaplan {

/// The buttons around the table of the book, its rows as a whole, and the keys of the table. All but Cancel
/// take what is being typed first.
class BookCommands {
  public:
    BookCommands(BookDesk& desk, BookEditing& editing) : desk_(desk), editing_(editing) {}

    /// A press on BookSheet::kExpand or kExpanded of a row; another name means nothing.
    void OnItemImage(int row, const std::string& name);
    /// The plain waypoints behind a row show or hide.
    void OnExpand(int row);
    /// A waypoint, or those of a great circle, comes before the row in front, which stays there.
    void OnInsert();
    /// The plain waypoints among the chosen rows go, as one edit; those that cannot are told in the status
    /// line.
    void OnDelete();
    /// The cell of the first chosen row comes into the others, of one row the cell above it.
    void OnFillDown(int column);
    /// The cell in front comes into the other chosen rows.
    void OnPutInChosen(int column);
    /// The first (0) or second unit of a quantity was chosen.
    void OnUnitChosen(UnitKind kind, int index);
    /// The Save button.
    void OnSave();
    /// Ctrl+S: the editor stays open.
    void OnSaveKey();
    /// All edits since the last save are taken back.
    void OnCancel();
    void OnUndo();
    void OnRedo();
    void OnClose();
    void OnHelp();
    /// A key in the table, on the cell in front; false when it means nothing there.
    bool OnTableKey(KeyPress press, int row, int column);

    /// On the chart: a waypoint is dragged, which is the same edit as typing its position, or a leg is
    /// pulled, which puts a waypoint into it.
    void OnDragged(int row, const GeoPoint& to);
    void OnPulled(const GeoPoint& from, const GeoPoint& to);

    /// Saves what is on show. False when it was not saved, which has been told; the changes stay.
    bool Save();
    /// Cuts the way to a list row into waypoints. Returns how many came.
    int RegenerateLeg(int listRow, bool addMidpoint);
    /// False, with nothing changed, for a row that cannot be deleted.
    bool DeleteRow(int listRow);
    /// Closes editors and window, and gives its owner back to the person.
    void Hide();

  private:
    bool MayMoveTo(const GeoPoint& to);
    bool OnChosenKey(KeyPress press, int column);
    void Fill(int from, const std::vector<int>& rows, int column, TextId edit);

    BookDesk& desk_;
    BookEditing& editing_;
};

}  // namespace Tarvik::Seaplan
