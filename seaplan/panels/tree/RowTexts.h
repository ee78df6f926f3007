// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "seaplan/panels/tree/TreeCodes.h"
#include "seaplan/panels/tree/TreeWidget.h"

/// What rows show beside their records: labels and tool tips in the language in force, and how many voyages a
/// category has.
namespace Tarvik::Seaplan {

struct TreeContext;
struct VoyInfo;

/// Labels and tips of rows in the language in force when this is made. They are given to the styles before
/// rows are made: asking for each row costs more than the row itself.
class RowTexts {
  public:
    struct Tip {
        const char* item;
        std::string text;
    };
    struct Label {
        const char* item;
        const char* value;
        std::string text;
    };

    RowTexts();
    /// Gives the texts to all rows that are made from now on.
    void ApplyToStyles(TreeWidget& tree) const;
    /// Gives a row the texts of its style.
    void Apply(TreeWidget& tree, TreeRow row) const;

  private:
    std::map<std::string, std::vector<Tip>> tips_;  ///< by the row's style
    std::vector<Label> labels_;                     ///< of voyages in use
};

/// The texts of every row.
void ApplyAllRowTexts(TreeWidget& tree);

/// Text of a count, with two leading blanks.
std::string CountText(int count);
/// After all rows were made: counts, and on the first pass, while there are no marks, the marks of the
/// voyages, with the pinned ones drawn. False for a row without a record.
bool CountAndMark(TreeContext& c);
/// Counts of all categories that have voyages. False for a row without a record.
bool RefreshCounts(TreeContext& c);

/// Shows the dates of a voyage on its row in place of the link to its port calls: the first departure and the
/// last arrival. Apart from TreeStatus, which asks the server, for who asks nothing. Fails with fewer than
/// two port calls, and nothing changes.
Outcome<DatesStep> ShowRowDates(TreeWidget& tree, TreeRow row, const VoyInfo& voyage);

}  // namespace Tarvik::Seaplan
