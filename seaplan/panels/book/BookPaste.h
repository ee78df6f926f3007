// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "seaplan/panels/book/BookEditing.h"
#include "seaplan/panels/book/PastedWaypoints.h"
#include "seaplan/panels/paste/RowsPreview.h"

namespace Tarvik::Seaplan {

/// Waypoints from the clipboard into the leg before the row in front: read, shown to the person, and taken as
/// one edit only on a yes.
class BookPaste {
  public:
    BookPaste(BookDesk& desk, BookEditing& editing) : desk_(desk), editing_(editing) {}

    /// Why nothing is pasted, the status line says.
    void OnPaste();

  private:
    struct Plan {
        RowsPreview preview;
        std::vector<PastedWaypoint> taken;
    };

    PastedWaypoints Read(const PastedText& text, PastedColumns columns) const;
    Plan PlanOf(const PastedWaypoints& pasted) const;
    bool Ask(const PastedText& text, PastedWaypoints pasted, Plan& plan);
    void Take(const std::vector<PastedWaypoint>& points);

    BookDesk& desk_;
    BookEditing& editing_;
};

}  // namespace Tarvik::Seaplan
