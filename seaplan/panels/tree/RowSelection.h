// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/panels/tree/TreeCodes.h"
#include "seaplan/panels/tree/TreeWidget.h"

namespace Tarvik::Seaplan {

class TreeStatus;
struct VoyCategory;
struct VoyInfo;
class VoyagesOnChart;
struct TreeContext;

/// The selected row, and the rows of the last click, on which the commands work.
class RowSelection {
  public:
    RowSelection(TreeContext& context, TreeStatus& status, VoyagesOnChart& chart)
        : c_(context), status_(status), chart_(chart) {}

    /// Selects the row of a click and makes it the current one. Fails for a row or, above a voyage's, a
    /// category's row without record or id.
    ItemOutcome Take(TreeRow row);
    /// Unfolds to a voyage's row, selects it and makes it the current one in both places.
    void TakeVoyage(TreeRow row);
    /// A left press on a row, whatever item lies under it.
    void Press(TreeRow row);
    /// Says anew what the voyage lacks whose row was pressed last; nothing for another voyage.
    void TellAgain(const std::string& vi);
    /// Expands and selects a category and shows the statuses of its voyages. False without a record.
    bool Unfold(TreeRow row);
    /// The rows are gone.
    void Forget();
    void DropCategoryRow();
    void DropVoyageRow();

    TreeRow CategoryRow() const { return categoryRow_; }
    TreeRow VoyageRow() const { return voyageRow_; }
    /// Records of the current rows; only for a command, which a click has made sure of.
    VoyCategory& Category() const;
    VoyInfo& Voyage() const;

  private:
    TreeContext& c_;
    TreeStatus& status_;
    VoyagesOnChart& chart_;
    TreeRow categoryRow_ = kNoRow;
    TreeRow voyageRow_ = kNoRow;
    std::string told_;  ///< voyage whose row was pressed last, empty behind a press on a category
};

}  // namespace Tarvik::Seaplan
