// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Tarvik::Seaplan {

/// A column whose width a person may choose.
struct KeptColumn {
    std::string key;             ///< of its title, by which the file knows it
    bool canHide = true;         ///< false for one that rows cannot do without
    std::optional<int> width{};  ///< in pixels, chosen by the person
    bool hidden = false;
};

/// How a person wants the columns of a table, kept below the host's data folder. It is a matter of sight
/// alone: columns keep their numbers, and rows are copied, pasted and saved whole.
class KeptColumns {
  public:
    static constexpr int kNarrowest = 20;
    static constexpr int kWidest = 400;

    /// Reads what is kept for a table of this name, without blanks. What the file says wrongly, or of a
    /// column that is not there, counts for nothing.
    KeptColumns(std::string table, std::vector<KeptColumn> columns);

    const std::vector<KeptColumn>& Columns() const { return columns_; }
    /// Brings the width into the limits. Nothing for another column.
    void SetWidth(std::size_t column, int width);
    /// Nothing for a column that stays in sight.
    void SetHidden(std::size_t column, bool hidden);
    /// The widths that the program gives, nothing hidden.
    void Reset();
    /// Writes what was chosen, and leaves other tables' lines as they are. False where the file cannot be
    /// written; the choice counts until the program ends.
    bool Save() const;

  private:
    std::string table_;
    std::vector<KeptColumn> columns_;
};

/// Those of the port calls: number, and what Tab leads through, stay in sight.
KeptColumns KeptPortCallColumns();
/// Those of the position book: number and name stay in sight.
KeptColumns KeptBookColumns();

}  // namespace Tarvik::Seaplan
