// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/panels/tree/RowTexts.h"
#include "seaplan/panels/tree/TreeCodes.h"
#include "seaplan/panels/tree/TreeWidget.h"

namespace Tarvik::Seaplan {

class TreeStatus;
struct VoyCategory;
struct VoyInfo;
struct TreeContext;

/// Makes the rows of the tree from the store. Rows that were made before a failed step stay.
class TreeBuilder {
  public:
    TreeBuilder(TreeContext& context, TreeStatus& status) : c_(context), status_(status) {}

    /// Every row anew.
    Outcome<RowsStep> RebuildAll();
    /// The rows of a category's voyages anew, in its order.
    Outcome<RowsStep> RebuildCategory(const std::string& ci);
    /// Appends a voyage's row.
    Outcome<RowsStep> AddVoyageRow(TreeRow categoryRow, const std::string& vi);
    /// Appends a row for a category in use, with its labels.
    TreeRow AddCategoryRow(VoyCategory& category);
    TreeRow AddDeletedCategoryRow(VoyCategory& category);

  private:
    enum class DateSource { PositionBook, PortCalls };
    Outcome<RowsStep> MakeAll();
    void TellMade() const;
    Outcome<RowsStep> AddVoyages(TreeRow row, const std::string& ci, DateSource source);
    Outcome<RowsStep> SortVoyages(const std::string& ci, DateSource source, std::vector<std::string>& inUse,
                                  std::vector<std::string>& deleted) const;
    Outcome<RowsStep> AddDeletedVoyages(TreeRow row, const std::vector<std::string>& deleted);
    Outcome<RowsStep> AddEmptyCategories(const std::vector<VoyCategory*>& deleted);
    void ShowFlags(TreeRow row, const VoyInfo& voyage);
    /// Labels and tips of the language in force for the rows that are made next.
    void ReadTexts() const;
    TreeRow MakeRow(const std::string& text, const char* style, TreeRow parent, void* record);
    TreeRow MakeCategoryRow(VoyCategory& category);
    Outcome<RowsStep> MakeVoyageRow(TreeRow categoryRow, const std::string& vi);

    TreeContext& c_;
    TreeStatus& status_;
};

}  // namespace Tarvik::Seaplan
