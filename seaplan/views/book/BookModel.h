// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <QStringList>

#include "seaplan/panels/book/BookSheet.h"

namespace Tarvik::Seaplan {

/// A copy of the position book for its window. Texts are made for the cells in sight only.
class BookModel final : public QAbstractTableModel {
  public:
    /// Role of a line that is a row of the book.
    static constexpr int kIsRowRole = Qt::UserRole;
    /// Role of a row that the ship has passed.
    static constexpr int kPassedRole = Qt::UserRole + 1;
    /// Role of a row's BookExpander.
    static constexpr int kExpanderRole = Qt::UserRole + 2;
    /// Role of a port's row.
    static constexpr int kPortRole = Qt::UserRole + 3;
    /// Role of a plain waypoint's row.
    static constexpr int kPlainRole = Qt::UserRole + 4;

    using QAbstractTableModel::QAbstractTableModel;
    void Show(const BookSheet& sheet);
    const BookSheet& Sheet() const { return sheet_; }
    /// Titles and tips in the language in force.
    void ApplyTexts();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    QVariant RowData(int row, int role) const;
    QString Tip(int row, int column) const;

    BookSheet sheet_;
    QStringList titles_;
    QString passedTip_;
    QString expandTip_;
};

}  // namespace Tarvik::Seaplan
