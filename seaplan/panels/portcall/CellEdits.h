// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Tarvik::Seaplan {

class PortCallDesk;

/// What an edit of a cell starts. A text that a cell refuses leaves it as it was, silently but for the two
/// times that are too early. A row outside the numbered ones takes nothing.
class CellEdits {
  public:
    explicit CellEdits(PortCallDesk& desk) : desk_(desk) {}

    /// A port's name or local name. Its id is found here, once, and stays with the row.
    void SetPort(int row, const std::string& typed);
    /// Knots or the unit on show; what is no speed leaves the old one, and 10.0 in a blank cell.
    void SetSpeed(int row, const std::string& typed);
    /// Percent with or without the sign; what is out of range leaves the old factor, and 0% in a blank cell.
    void SetWeather(int row, const std::string& typed);
    /// A purpose code.
    void SetPurpose(int row, const std::string& code);
    /// ETA or ETD, 19 characters `kTimeFormat`.
    void SetTime(int row, int column, const std::string& text);

  private:
    bool Takes(int row) const;
    void SetFigure(int row, int column, const std::string& text);
    void SetFirstEta(const std::string& text);
    void SetEta(int row, const std::string& text);
    void SetEtd(int row, const std::string& text);

    PortCallDesk& desk_;
};

}  // namespace Tarvik::Seaplan
