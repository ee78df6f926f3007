// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

/// The named items of the tree's rows. Thousands of rows show the same tips, labels and images, so a row
/// holds only the items in which it differs from its style.
namespace Tarvik::Seaplan {

/// One named item of a row.
struct TreeItem {
    bool visible = true;
    std::string text;                           ///< value of a plain item
    std::map<std::string, std::string> values;  ///< named values inside an event item
    std::string toolTip;
};

/// What the rows of a style begin with.
using StyleItems = std::map<std::string, TreeItem>;

/// The items of one row: those of its style, and of its own those that it changed. An item that was changed
/// keeps what its style said then; later texts of the style do not reach it.
class TreeItems {
  public:
    TreeItems() = default;
    /// `style` outlives the row.
    explicit TreeItems(const StyleItems& style) : style_(&style) {}
    /// Null for an item that the row does not have.
    const TreeItem* Find(const std::string& item) const;
    /// Throws std::out_of_range for an item that the row does not have.
    const TreeItem& At(const std::string& item) const;

    // Whether it changed anything; an item that the row does not have is made.
    bool SetVisible(const std::string& item, bool visible);
    bool SetText(const std::string& item, const std::string& text);
    bool SetValue(const std::string& item, const std::string& value, const std::string& text);
    bool SetToolTip(const std::string& item, const std::string& text);

  private:
    TreeItem& Own(const std::string& item);

    const StyleItems* style_ = nullptr;
    std::map<std::string, TreeItem> own_;
};

}  // namespace Tarvik::Seaplan
