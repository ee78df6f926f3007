// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <string>

#include "seaplan/panels/tree/NoteCommands.h"
#include "seaplan/panels/tree/TreeCollaborators.h"

namespace Tarvik::Seaplan {

/// The commands behind the items of the rows, by the item's name. Those of remarks and consumption come and
/// go with their panels.
class ItemCommands {
  public:
    /// `ofVoyage` are tables without a name in common.
    ItemCommands(TreeCommands ofCategory, std::initializer_list<TreeCommands> ofVoyage,
                 const NoteCommands& notes);

    /// The command behind an item of a category's row or a voyage's, null when it has none.
    const TreeCommand* Find(bool isCategory, const std::string& item) const;
    /// Whether any row has one.
    bool Has(const std::string& item) const {
        return Find(true, item) != nullptr || Find(false, item) != nullptr;
    }

  private:
    TreeCommands ofCategory_;
    TreeCommands ofVoyage_;
    const NoteCommands& notes_;
};

}  // namespace Tarvik::Seaplan
