// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>

#include "seaplan/calculation/book/BookRecompute.h"
#include "seaplan/calculation/book/BookRows.h"
#include "seaplan/data/PosBookData.h"

/// The columns of the position book's list. A further column is one more entry and its texts.
namespace Tarvik::Seaplan {

/// Places of the columns that a rule names.
enum BookColumn : int {
    BookOrder = 0,
    BookName,
    BookLatitude,
    BookLongitude,
    BookTrack,
    BookInterval,
    BookSpeed,
    BookCourse,
    BookEta,
    BookEtd
};

/// What opens over a column's cell.
enum class BookEditor { None, Text, Track, Interval, Time };
/// Over which rows of the list it opens; never over one that the ship has passed.
enum class BookEdited { Nowhere, PlainWaypoints, AllButTheFirst, TheFirst, Ports };

/// What a cell is made of.
struct BookCell {
    const PosBookData& book;
    PosBookRowRef ref;
    int listRow = 0;                            ///< counted from 0
    BookSpeedUnit unit = BookSpeedUnit::Knots;  ///< of speeds on show
    std::string zone;                           ///< the person's
};

/// Everything about one column.
struct BookColumnEntry {
    const char* title;  ///< key of its text
    int width = 0;      ///< pixels
    BookEditor editor = BookEditor::None;
    BookEdited edited = BookEdited::Nowhere;
    std::string (*text)(const BookCell& cell) = nullptr;
};

/// The ten columns, in the order of BookColumn.
extern const std::array<BookColumnEntry, 10> kBookColumns;

/// Whether a column's editor opens over a row of the list, which the ship has not passed.
bool IsBookCellEdited(const BookColumnEntry& column, const BookCell& cell);

}  // namespace Tarvik::Seaplan
