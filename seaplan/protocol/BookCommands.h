// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/data/VoyPositionBook.h"

namespace Tarvik::Util {
class Jsona;
}

/// Commands of the position book. Speeds are km/h on the wire and knots in memory; dates pass the time
/// conversions.
namespace Tarvik::Seaplan {

/// Rows that one request may carry; a list of this many and more goes out in blocks with coarser speeds.
inline constexpr int kBookBlockRows = 100;

/// Reads one book and appends its rows, in order of their sequence number. 0; -4 the date is not converted;
/// -5 it does not parse.
int ReadPositionBook(const Util::Jsona& element, VoyPositionBook& book);
/// A row's "x,y" from the two numbers, which may be written with or without fraction.
std::string PositionText(const Util::Jsona& row);
/// Rows of a book that one request carries, counted from 0.
struct BookBlock {
    int first;
    int end;              ///< behind the last
    bool append = false;  ///< "1" adds to what is stored; otherwise "0" replaces it
};
/// The rows of a block behind the book's id. False for a position without comma.
bool BookRowsText(const std::string& id, const BookPoints& rows, const BookBlock& block, std::string& text);
std::string CreateBookText(const std::string& vi, const std::string& serverTime);
std::string BookDateText(const std::string& id, const std::string& serverTime);

/// What LoadPositionBook gives where the server has no book of the voyage.
inline constexpr int kNoBook = -3;
/// Command 7. 0; -1 empty id; -2 no exchange, or no list; -3 no book; -4, -5 as ReadPositionBook.
int LoadPositionBook(const std::string& vi, VoyPositionBook& book);
/// Commands 7 and, when there is no book yet, 8. 0; -1 empty voyage id; -2 as LoadPositionBook; -3 the date
/// is not converted; -4 no exchange; -5 refused; -6 no id came back.
int EnsurePositionBook(const std::string& vi, const std::string& date, std::string& id);
/// Command 14. 0; -1 empty id; -2 the date is not converted; -3 no exchange; -4 refused.
int SetPositionBookDate(const std::string& id, const std::string& date);
/// Command 9, in one request below 100 rows and in blocks of 100 otherwise; blocks sent before a failure stay
/// on the server. 0; -1 empty id; one request: -2 position, -3 exchange, -4 refused; blocks: -5, -6, -7.
int SavePositionBookRows(const std::string& id, const BookPoints& rows);

}  // namespace Tarvik::Seaplan
