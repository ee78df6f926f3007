// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "seaplan/panels/portcall/CellEditing.h"
#include "seaplan/panels/portcall/PastePlan.h"
#include "seaplan/panels/portcall/PortCallDesk.h"

namespace Tarvik::Seaplan {

/// Rows from the clipboard into port calls or distance table: read, shown to
/// the person, and taken as one edit only on a yes.
class PasteRows {
  public:
    PasteRows(PortCallDesk& desk, CellEditing& editing) : desk_(desk), editing_(editing), edits_(desk) {}

    /// The text on the clipboard from a row on; ports begin in the first blank
    /// row where that is above it. Why nothing is pasted, and which rows refused
    /// a time, the status line says.
    void OnPaste(int row);

  private:
    std::string PortOf(const std::string& text);
    PortOfText PortsOfTexts();
    PastedRows Read(const PastedText& text, PastedColumns columns);
    PastePlan Plan(const PastedRows& pasted, int first) const;
    bool Ask(const PastedText& text, PastedRows pasted, int row, PastePlan& plan);
    /// Nothing where the row is sailed.
    std::optional<int> FirstRow(int row, const PastedRows& pasted) const;
    void Take(const PastePlan& plan);
    std::vector<int> PutTimes(const std::vector<PastedTime>& times);

    PortCallDesk& desk_;
    CellEditing& editing_;
    CellEdits edits_;
};

}  // namespace Tarvik::Seaplan
