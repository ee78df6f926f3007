// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <QStringList>

#include "seaplan/panels/portcall/PortCallView.h"

namespace Tarvik::Seaplan {

/// A copy of the table's cells for the window, with one more column for the row's images.
class PortCallModel final : public QAbstractTableModel {
  public:
    static constexpr int kImageColumn = kPortCallColumnCount;
    /// Role of a row's RowClass.
    static constexpr int kLookRole = Qt::UserRole;
    /// Role that tells whether a row has images.
    static constexpr int kImagesRole = Qt::UserRole + 1;
    /// Role of the totals row.
    static constexpr int kTotalsRole = Qt::UserRole + 2;
    /// Role of a cell whose port nobody knows.
    static constexpr int kUnknownRole = Qt::UserRole + 3;

    using QAbstractTableModel::QAbstractTableModel;
    void Show(const PortCallTable& table);
    /// Column titles in the language in force, with the units on show.
    void ShowTitles(const PortCallState& state);
    void SetUnknownPortTip(const QString& tip) { unknownTip_ = tip; }
    RowActions ActionsAt(int row) const { return ActionsOf(table_, row); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    QString TextOf(int row, int column) const;

    PortCallTable table_;
    QString unknownTip_;
    QStringList titles_;
};

}  // namespace Tarvik::Seaplan
