// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/panels/editors/DropList.h"
#include "seaplan/panels/window/PanelWindow.h"

namespace Tarvik::Seaplan {

/// The small window in which a port distance table gets a category and a voyage name. It shows what it is
/// given and reports what the person does.
class KeepTableView : public PanelWindow {
  public:
    /// Sets the text of the category field; with `selected` all of it is selected, caret at its end.
    virtual void SetCategory(const std::string& text, bool selected) = 0;
    virtual void SetVoyageName(const std::string& text) = 0;
    /// Where the category field stands on the screen.
    virtual Rect CategoryPlace() const = 0;
    /// The list that drops from the category field.
    virtual DropList& Names() = 0;
    /// A line about what was not done, empty for none.
    virtual void ShowNote(const std::string& text) = 0;
};

}  // namespace Tarvik::Seaplan
