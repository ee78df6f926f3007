// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>

#include "seaplan/panels/editors/Keys.h"
#include "seaplan/panels/editors/TextField.h"
#include "seaplan/panels/tree/TreeCodes.h"
#include "seaplan/panels/tree/TreeWidget.h"

namespace Tarvik::Seaplan {

class TextBox;
struct TreeContext;

/// Renaming a row in place.
class TreeRename {
  public:
    /// `unfold` expands and selects a category and shows the statuses of its voyages, false on failure;
    /// `press` does what a press on a row does.
    TreeRename(TreeContext& context, TextBox& box, std::function<bool(TreeRow)> unfold,
               std::function<void(TreeRow)> press)
        : c_(context), box_(box), unfold_(std::move(unfold)), press_(std::move(press)) {}

    /// Opens the box over a row, after the name in an open one was taken. A row below the part of the tree
    /// where the box fits keeps its present name.
    void Begin(TreeRow row, bool isVoyage);
    /// The box's text is this now.
    void OnTyped(const std::string& text) { field_.SetText(text); }
    /// A key in the box: Enter takes the name, and the keyboard goes back to the rows; a voyage that has just
    /// been added is selected then. False when the box itself is to act on it.
    bool OnKey(Key key);
    /// Takes the typed name and closes the box: kRenameCodes; 0 also without an open box.
    int Commit() { return kRenameCodes.Of(Take()); }
    /// Closes the box without a change and forgets the row.
    void Abandon();

  private:
    Outcome<RenameStep> Take();
    Outcome<RenameStep> CommitCategory(TreeRow row, const std::string& name);
    Outcome<RenameStep> CommitVoyage(TreeRow row, const std::string& name);
    bool Taken(const std::map<std::string, int>& names, const std::string& name, const std::string& present);

    TreeContext& c_;
    TextBox& box_;
    std::function<bool(TreeRow)> unfold_;
    std::function<void(TreeRow)> press_;
    TextField field_{0};
    bool isVoyage_ = false;
};

/// Whether a name is no wider than a limit; a wider one is told.
bool IsWidthAccepted(TreeContext& c, const std::string& name, int limit);

}  // namespace Tarvik::Seaplan
