// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

namespace Tarvik::Data {

/// A comma-separated file with a head line. Fields in double quotes may hold commas and doubled quotes, no
/// line breaks.
class CsvTable {
  public:
    explicit CsvTable(const std::string& text);

    std::size_t size() const { return rows_.size(); }
    /// A field by row and column name; empty where the row is short or the column does not exist.
    std::string At(std::size_t row, const std::string& column) const;

    static std::vector<std::string> SplitLine(const std::string& line);

  private:
    std::map<std::string, std::size_t> columns_;
    std::vector<std::vector<std::string>> rows_;
};

/// Pieces of a text between separators; an empty text has none.
std::vector<std::string> SplitText(const std::string& text, char separator);

}  // namespace Tarvik::Data
