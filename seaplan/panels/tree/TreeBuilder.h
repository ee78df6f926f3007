// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/panels/tree/TreeContext.h"

namespace Tarvik::Seaplan {

/// Makes the rows of the tree from the store and keeps what they show. Results: 0 or the negative number of
/// the failed step; rows made before it stay.
class TreeBuilder {
  public:
    explicit TreeBuilder(TreeContext& context) : c_(context) {}

    int RebuildAll();
    /// -1 empty id or no row; -2 no voyages; -3 unknown voyage; -4 or -6 no sort state; -5 unknown sort key.
    int RebuildCategory(const std::string& ci);
    /// Appends a voyage's row. -1 empty id, -2 unknown voyage.
    int AddVoyageRow(TreeRow categoryRow, const std::string& vi);
    /// Appends a row for a category in use, with its labels.
    TreeRow AddCategoryRow(VoyCategory& category);
    TreeRow AddDeletedCategoryRow(VoyCategory& category);
    /// After RebuildAll: counts and, on the first pass, the marks of pinned voyages.
    int CountAndMark();
    /// Counts of all categories that have voyages.
    int RefreshCounts();
    int ComputeStatus(const std::string& vi);
    /// -4 when the voyage has no row.
    int ShowStatus(const std::string& vi);
    /// ShowStatus for every voyage of a category, failures ignored.
    void ShowStatuses(TreeRow categoryRow, const std::string& ci);
    /// -1 with fewer than two port calls.
    int ShowDates(TreeRow row, const VoyInfo& voyage);
    void ShowVessel(TreeRow row, const std::string& name, bool alert);
    /// Labels and tool tips of every row in the language in force.
    void ApplyLanguage();

  private:
    enum class DateSource { PositionBook, PortCalls };
    int AddVoyages(TreeRow row, const std::string& ci, DateSource source);
    int SortVoyages(const std::string& ci, DateSource source, std::vector<std::string>& inUse,
                    std::vector<std::string>& deleted) const;
    int AddDeletedVoyages(TreeRow row, const std::vector<std::string>& deleted);
    int AddEmptyCategories(const std::vector<VoyCategory*>& deleted);
    void MarkVoyage(const VoyInfo& voyage);
    int KnowStatus(const std::string& vi);
    void DrawStatus(TreeRow row, int status);
    void ApplyCategoryTexts(TreeRow row);
    void ApplyVoyageTexts(TreeRow row);
    void ApplyDeletedTexts(TreeRow row);
    void ApplyTexts(TreeRow row);

    TreeContext& c_;
};

}  // namespace Tarvik::Seaplan
