// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "seaplan/panels/tree/TreeCodes.h"
#include "seaplan/panels/tree/TreeWidget.h"

namespace Tarvik::Seaplan {

struct TreeStep;
struct TreeParts;

/// Takes back what was done in the tree, the last change first, and says in one line what came back. What the
/// server does not take stays to be tried again.
class TreeUndo {
  public:
    struct Ways {
        std::function<int()> reload;  ///< loads all rows anew; negative on failure
        std::function<int(TreeRow, const std::string&)> click;
    };
    TreeUndo(TreeParts& parts, Ways ways) : p_(parts), ways_(std::move(ways)) {}

    /// The last change that is left. Fails by name when there is none, or the server does not take it.
    Outcome<UndoStep> Undo();

  private:
    bool TakeBack(const TreeStep& step);
    bool Rename(const TreeStep& step);
    bool BringVoyage(const TreeStep& step);
    bool BringCategory(const TreeStep& step);
    bool DeleteAgain(const TreeStep& step);
    std::string NameOf(const TreeStep& step) const;
    std::string ReportOf(const TreeStep& step, const std::string& nameBefore) const;

    TreeParts& p_;
    Ways ways_;
};

}  // namespace Tarvik::Seaplan
