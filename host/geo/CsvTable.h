// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "host/geo/GeoPoint.h"

namespace Tarvik::Data {

using Server::GeoPoint;

/// A comma-separated text with a head line. Fields in double quotes may hold commas and doubled quotes, no
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

// These throw std::runtime_error, with what is wrong as a person can mend it.

/// The bytes of a file.
std::string ReadFile(const std::string& path);
/// A number with a point as decimal sign.
double ToNumber(const std::string& text);
///@{
/// A position of two numbers, or of a text "lon lat": degrees, rounded as the network keeps them.
GeoPoint ToPoint(const std::string& x, const std::string& y);
GeoPoint ToPoint(const std::string& text);
///@}
/// Positions parted by ";".
std::vector<GeoPoint> ToLine(const std::string& text);

}  // namespace Tarvik::Data
