// SPDX-License-Identifier: MIT
#pragma once

#include <QStandardItemModel>
#include <QStyledItemDelegate>

#include "seaplan/panels/tree/TreeRows.h"
#include "seaplan/views/rows/RowParts.h"

/// The rows of the tree: where their items stand, what is told of them, and how they are drawn.

namespace Tarvik::Seaplan {

/// Whether an item's name has a command behind it.
using ItemCommand = std::function<bool(const std::string&)>;

/// All parts of a row in reading order; hidden items give none. Feeds drawing, clicks, tool tips and keys
/// alike.
std::vector<SubItem> LayoutRow(const TreeRowState& row, const QRect& rect, bool selected,
                               const TextWidth& width, const ItemCommand& hasCommand);

/// The tree's model: an item a row, which carries the row's handle. What a screen reader tells of a row, its
/// name and every text and state that it shows when it is open, is made when it is asked for.
class RowModel final : public QStandardItemModel {
  public:
    /// Role of a row's handle.
    static constexpr int kRowRole = Qt::UserRole;

    RowModel(QObject* parent, const TreeRows& rows) : QStandardItemModel(parent), rows_(rows) {}
    /// kNoRow for an index that is none.
    static TreeRow RowOf(const QModelIndex& index) {
        return index.isValid() ? index.data(kRowRole).toInt() : kNoRow;
    }

    QVariant data(const QModelIndex& index, int role) const override;

  private:
    const TreeRows& rows_;
};

class VoyageTreeView;

/// Draws the parts of a row in the colours in force, in the row's height.
class RowDelegate final : public QStyledItemDelegate {
  public:
    explicit RowDelegate(VoyageTreeView* view);
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  private:
    VoyageTreeView* view_;
};

}  // namespace Tarvik::Seaplan
