// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/panels/portcall/PortCallTable.h"

#include <QAbstractTableModel>
#include <QStringList>

namespace Tarvik::Seaplan {

/// A copy of the table's cells for the window, with one more column for the row's images.
class PortCallModel final : public QAbstractTableModel {
  public:
    static constexpr int kImageColumn = PortCallColumnCount;
    /// Role of a row's RowClass.
    static constexpr int kLookRole = Qt::UserRole;
    /// Role that tells whether a row has images.
    static constexpr int kImagesRole = Qt::UserRole + 1;

    using QAbstractTableModel::QAbstractTableModel;
    void Show(const PortCallTable& table);
    void SetTitles(const QStringList& titles);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    std::vector<TableRow> rows_;
    int numbered_ = 0;
    QStringList titles_;
};

}  // namespace Tarvik::Seaplan
