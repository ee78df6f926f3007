// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/panels/book/BookSheet.h"
#include "seaplan/views/table/TableLines.h"

namespace Tarvik::Seaplan {

/// The columns in the language in force, with the unit on show.
std::vector<TableColumn> BookColumnsOf(const BookSheet& sheet);

/// The position book as its table shows it: passed rows dim, ports bold, waypoints set in behind the image
/// that shows and hides them.
class BookLines final : public TableLines {
  public:
    explicit BookLines(const BookSheet& sheet) : sheet_(sheet) {}
    const BookSheet& Sheet() const { return sheet_; }
    int Count() const override { return sheet_.LineCount(); }
    TableCell CellAt(int line, int column) const override;
    QString TipAt(int line, int column) const override;
    bool IsCopied(int line) const override { return sheet_.IsRow(line); }

  private:
    BookSheet sheet_;
};

}  // namespace Tarvik::Seaplan
