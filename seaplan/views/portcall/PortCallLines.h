// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/panels/portcall/PortCallTable.h"
#include "seaplan/views/table/TableLines.h"

namespace Tarvik::Seaplan {

struct PortCallState;

/// The column behind those of the port calls, where the images of the rows stand.
inline constexpr int kPortCallImageColumn = kPortCallColumnCount;

/// The columns in the language in force, with the units on show.
std::vector<TableColumn> PortCallColumnsOf(const PortCallState& state);

/// The rows of the port calls as the table shows them: by the class of the row, with the images behind it.
class PortCallLines final : public TableLines {
  public:
    explicit PortCallLines(const PortCallTable& table) : table_(table) {}
    int Count() const override { return static_cast<int>(table_.Rows().size()); }
    TableCell CellAt(int line, int column) const override;
    QString TipAt(int line, int column) const override;
    QString WordsAt(int line, int column) const override;
    bool IsCopied(int line) const override { return table_.IsNumbered(line) && !table_.IsBlank(line); }
    QString ImageTipAt(int line, const std::string& image) const override;

  private:
    /// Whether a cell shows a figure that belongs to other ports.
    bool IsStale(int line, int column) const;

    PortCallTable table_;
};

}  // namespace Tarvik::Seaplan
