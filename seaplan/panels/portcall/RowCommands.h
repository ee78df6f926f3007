// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "seaplan/data/VoyPortCall.h"
#include "seaplan/panels/editors/Keys.h"
#include "seaplan/panels/portcall/CellEdits.h"

namespace Tarvik::Seaplan {

class CellEditing;
class PasteRows;
class PortCallDesk;

/// What is done with a row of the table as a whole: moving, deleting and its remarks by the images at its
/// end, and the keys of the table.
class RowCommands {
  public:
    RowCommands(PortCallDesk& desk, CellEditing& editing);
    ~RowCommands();
    RowCommands(const RowCommands&) = delete;
    RowCommands& operator=(const RowCommands&) = delete;

    /// A press on "itemMoveUp", "itemMovedown", "itemdel" or "itemRemark" of a row. 0; -1 no port there; -2
    /// no such voyage or its position; -3 no such image; -4 a blank row stands above it, where only remarks
    /// open; or what the move gives.
    int OnItemImage(int row, const std::string& name);
    /// A key in the table, on the cell in front; false when it means nothing there.
    bool OnTableKey(KeyPress press, int row, int column);
    /// Deletes the chosen rows that have a port, as one edit. Rows below a blank one stay, which the status
    /// line says.
    void DeleteChosen(int row);
    /// Fills the column in front down: from the first chosen row into the others, or from the row above into
    /// a single one.
    void FillDown(int row, int column);
    /// Rows of the clipboard, from this one on: PasteRows::OnPaste.
    void Paste(int row);
    /// Puts the cell in front into the same column of all chosen rows.
    void PutInChosen(int row, int column);

  private:
    bool OnChosenKey(KeyPress press, int row, int column);
    void Fill(int from, const std::vector<int>& rows, int column, TextId edit);
    int CommitBefore(int row);
    int Move(int row, const std::string& name);
    int OpenRemarks(int row);
    int ShowMoved(int result, const PortCallRows& rows);

    PortCallDesk& desk_;
    CellEditing& editing_;
    CellEdits edits_;
    std::unique_ptr<PasteRows> paste_;
};

}  // namespace Tarvik::Seaplan
