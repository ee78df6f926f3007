// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QString>
#include <string>
#include <vector>

#include "seaplan/views/tree/VoyageTreeView.h"

namespace Tarvik::Seaplan {

/// The voyage tree for those who reach it without mouse or keys: its rows and items by name, and what can be
/// done with them.
class TreeReach {
  public:
    explicit TreeReach(VoyageTreeView& view) : view_(view) {}

    /// Rows in the order on the screen, without those that are folded away or put aside.
    const std::vector<TreeRow>& Rows() const;
    /// The row at a point of the screen, kNoRow for none.
    TreeRow At(const QPoint& screen) const;
    /// The row that has the keyboard, kNoRow for none.
    TreeRow Focused() const;
    /// What of a row can be clicked, also while the row is not open and does not draw it.
    std::vector<SubItem> Items(TreeRow row) const;
    /// All that a row shows when it is open.
    QString Name(TreeRow row) const;
    /// What a press beside the row's items does.
    void Press(TreeRow row);
    /// What a click on an item does. Nothing happens for an item that the row does not have.
    void Click(TreeRow row, const std::string& item);
    /// Puts the keyboard on a row, and on an item of it when the row is the selected one.
    void Focus(TreeRow row, const std::string& item);

  private:
    bool Has(TreeRow row, const std::string& item) const;

    VoyageTreeView& view_;
};

/// Tells a screen reader where the keyboard is. Costs nothing while nobody listens.
void TellFocus(VoyageTreeView& view);
/// Tells a screen reader that a category was folded or unfolded.
void TellFolding(VoyageTreeView& view, TreeRow row);

}  // namespace Tarvik::Seaplan
