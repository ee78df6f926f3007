// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/data/VoyPortCall.h"
#include "seaplan/panels/editors/Keys.h"

namespace Tarvik::Seaplan {

class CellEditing;
class PortCallDesk;

/// What is done with a row of the table as a whole: moving, deleting and its remarks by the images at its
/// end, and the keys of the table.
class RowCommands {
  public:
    RowCommands(PortCallDesk& desk, CellEditing& editing) : desk_(desk), editing_(editing) {}

    /// A press on "itemMoveUp", "itemMovedown", "itemdel" or "itemRemark" of a row. 0; -1 no port there; -2
    /// no such voyage or its position; -3 no such image; -4 a blank row stands above it, where only remarks
    /// open; or what the move gives.
    int OnItemImage(int row, const std::string& name);
    /// A key in the table, on the cell in front; false when it means nothing there.
    bool OnTableKey(KeyPress press, int row, int column);

  private:
    int CommitBefore(int row);
    int Move(int row, const std::string& name);
    int OpenRemarks(int row);
    int ShowMoved(int result, const PortCallRows& rows);

    PortCallDesk& desk_;
    CellEditing& editing_;
};

}  // namespace Tarvik::Seaplan
