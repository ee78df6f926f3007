// SPDX-License-Identifier: MIT
#pragma once

#include <QStandardItemModel>

#include "seaplan/panels/tree/TreeRows.h"
#include "seaplan/views/tree/RowLayout.h"

namespace Tarvik::Seaplan {

/// The tree's model: an item a row, which carries the row's handle. What a screen reader is told is made when
/// it is asked for.
class RowModel final : public QStandardItemModel {
  public:
    /// Role of a row's handle.
    static constexpr int kRowRole = Qt::UserRole;

    RowModel(QObject* parent, const TreeRows& rows) : QStandardItemModel(parent), rows_(rows) {}

    QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::AccessibleTextRole) {
            return QStandardItemModel::data(index, role);
        }
        const TreeRowState* row = rows_.Row(QStandardItemModel::data(index, kRowRole).toInt());
        return row == nullptr ? QVariant() : QVariant(AccessibleTextOf(*row));
    }

  private:
    const TreeRows& rows_;
};

}  // namespace Tarvik::Seaplan
