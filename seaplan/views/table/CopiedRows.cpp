// SPDX-License-Identifier: MIT
#include <algorithm>
#include <vector>

#include "seaplan/views/table/TableModel.h"

namespace Tarvik::Seaplan {

namespace {

/// A line of cells; what parts cells and lines cannot stand inside one.
QString Line(const QStringList& cells) {
    QStringList plain;
    for (const QString& cell : cells) {
        plain.append(cell.simplified());
    }
    return plain.join(u'\t') + u'\n';
}

}  // namespace

QString RowsAsText(const TableModel& table, const std::vector<int>& chosen) {
    std::vector<int> columns;
    for (int column = 0; column < table.columnCount(); ++column) {
        if (table.Columns()[static_cast<std::size_t>(column)].cells) {
            columns.push_back(column);
        }
    }
    QString lines;
    QStringList cells;
    for (int row = 0; row < table.rowCount(); ++row) {
        const bool left = chosen.size() > 1 && std::find(chosen.begin(), chosen.end(), row) == chosen.end();
        if (left || !table.IsCopied(row)) {
            continue;
        }
        cells.clear();
        for (const int column : columns) {
            cells.append(table.index(row, column).data().toString());
        }
        lines += Line(cells);
    }
    if (lines.isEmpty()) {
        return lines;
    }
    cells.clear();
    for (const int column : columns) {
        cells.append(table.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
    }
    return Line(cells) + lines;
}

}  // namespace Tarvik::Seaplan
