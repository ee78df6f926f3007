// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "seaplan/panels/tree/RowTexts.h"
#include "seaplan/panels/tree/TreeWidget.h"

namespace Tarvik::Seaplan {

class TreeStatus;
struct VoyCategory;
struct VoyInfo;
struct TreeContext;

/// Makes the rows of the tree from the store. Results: 0 or the negative number of the failed step; rows made
/// before it stay.
class TreeBuilder {
  public:
    TreeBuilder(TreeContext& context, TreeStatus& status) : c_(context), status_(status) {}

    /// Every row anew. -1 a category of the store's voyages has no record or state; -2 the voyages of one; -3
    /// an empty category without state.
    int RebuildAll();
    /// -1 empty id or no row; -2 no voyages; -3 unknown voyage; -4 or -6 no sort state; -5 unknown sort key.
    int RebuildCategory(const std::string& ci);
    /// Appends a voyage's row. -1 empty id, -2 unknown voyage.
    int AddVoyageRow(TreeRow categoryRow, const std::string& vi);
    /// Appends a row for a category in use, with its labels.
    TreeRow AddCategoryRow(VoyCategory& category);
    TreeRow AddDeletedCategoryRow(VoyCategory& category);

  private:
    enum class DateSource { PositionBook, PortCalls };
    int MakeAll();
    void TellMade() const;
    int AddVoyages(TreeRow row, const std::string& ci, DateSource source);
    int SortVoyages(const std::string& ci, DateSource source, std::vector<std::string>& inUse,
                    std::vector<std::string>& deleted) const;
    int AddDeletedVoyages(TreeRow row, const std::vector<std::string>& deleted);
    int AddEmptyCategories(const std::vector<VoyCategory*>& deleted);
    void ShowFlags(TreeRow row, const VoyInfo& voyage);
    void ApplyTexts(TreeRow row) const;

    TreeContext& c_;
    TreeStatus& status_;
    std::optional<RowTexts> texts_;  ///< while many rows are made
};

}  // namespace Tarvik::Seaplan
