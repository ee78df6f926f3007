// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/panels/texts/TextId.h"

namespace Tarvik::Seaplan {

class PortCallDesk;
/// What became of a text that was put into a cell.
enum class CellAnswer { Taken, Refused, EtaTooEarly, EtdTooEarly, NoDistance };

/// What an edit of a cell starts. A text that a cell refuses leaves it as it was, silently but for the two
/// times that are too early; an ETA of a leg without distance stands, and the status line says that it
/// changes nothing. A row outside the numbered ones takes nothing.
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
    /// The text of a cell of one column into the same column of several rows, in order, as if each had been
    /// typed, as one edit of that name. A row that refuses it stays as it was, and the status line says which
    /// ones did.
    void SetInRows(const std::vector<int>& rows, int column, const std::string& text, TextId edit);
    /// A text into a cell as if it were typed, as part of an edit that the caller names. False where it is
    /// refused, which leaves all as it was.
    bool Try(int row, int column, const std::string& text);
    /// Whether a cell can be edited at all. What a corrected voyage has sailed cannot, and a time not before
    /// the row has both.
    bool Opens(int row, int column) const;

  private:
    bool Takes(int row) const;
    bool IsSailed(int row) const;
    CellAnswer Put(int row, int column, const std::string& text);
    CellAnswer PutPort(int row, const std::string& typed);
    CellAnswer PutSpeed(int row, const std::string& typed);
    CellAnswer PutWeather(int row, const std::string& typed);
    CellAnswer PutPurpose(int row, const std::string& code);
    CellAnswer PutTime(int row, int column, const std::string& text);
    void SetFigure(int row, int column, const std::string& text);
    CellAnswer SetFirstEta(const std::string& text);
    CellAnswer SetEta(int row, const std::string& text);
    CellAnswer SetEtd(int row, const std::string& text);

    PortCallDesk& desk_;
};

}  // namespace Tarvik::Seaplan
