// SPDX-License-Identifier: MIT
#pragma once

#include <QStandardItemModel>

#include "seaplan/panels/tree/TreeRows.h"

namespace Tarvik::Seaplan {

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

}  // namespace Tarvik::Seaplan
