// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "seaplan/panels/window/Rect.h"

namespace Tarvik::Seaplan {

/// Sizes of the drop list in pixels.
struct VesselListSize {
    int width = 0;
    int height = 0;
    int columnWidth = 0;
    bool operator==(const VesselListSize&) const = default;
};

/// The box over a voyage's row in which a vessel is typed, and the list of vessels that drops from it. What
/// is open and what stands in it the panel class knows; the view reports what is typed, keys and presses.
class VesselView {
  public:
    virtual ~VesselView() = default;
    /// Shows the box at a place of the tree's window with the keyboard in it, nothing selected. At most
    /// `limit` UTF-16 units can be typed; a longer text is shown whole.
    virtual void ShowBox(const Rect& inTree, const std::string& text, std::size_t limit) = 0;
    virtual void HideBox() = 0;
    /// Shows the list 22 pixels below the box's top, row 0 selected; the keyboard stays in the box.
    virtual void ShowList(const std::vector<std::string>& names, const VesselListSize& size) = 0;
    /// Another row selected, which is then in sight.
    virtual void SelectRow(int row) = 0;
    virtual void HideList() = 0;
    /// Acts once the press that is under way has been delivered to where it fell.
    virtual void Later(std::function<void()> act) = 0;
};

}  // namespace Tarvik::Seaplan
