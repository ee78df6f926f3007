// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QString>
#include <functional>
#include <string>
#include <vector>

#include "seaplan/panels/tree/TreeRows.h"

namespace Tarvik::Seaplan {

enum class SubItemKind { Name, Count, Icon, Text, Link };

/// One named part of a row.
struct SubItem {
    std::string name;  ///< item name, or "fold" and "name" for the row itself
    SubItemKind kind = SubItemKind::Text;
    QRect rect;
    QString text;
    std::string icon;
    QString toolTip;
    bool clickable = false;
    bool enabled = true;  ///< false for an item without a command
};

/// Width of a text of a kind in pixels.
using TextWidth = std::function<int(const QString&, SubItemKind)>;

/// Whether an item's name has a command behind it.
using ItemCommand = std::function<bool(const std::string&)>;

/// Height of a row in pixels by its style and selection.
int RowHeight(const TreeRowState& row, bool selected);
/// All parts of a row in reading order; hidden items give none. Feeds drawing, clicks, tool tips and keys
/// alike.
std::vector<SubItem> LayoutRow(const TreeRowState& row, const QRect& rect, bool selected,
                               const TextWidth& width, const ItemCommand& hasCommand);
/// What a screen reader tells of a row: its name and every text and state that it shows when it is open.
QString AccessibleTextOf(const TreeRowState& row);
/// The clickable part at a point, null when there is none.
const SubItem* SubItemAt(const std::vector<SubItem>& parts, const QPoint& point);

}  // namespace Tarvik::Seaplan
