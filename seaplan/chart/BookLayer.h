// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/data/Position.h"

namespace Tarvik::Seaplan {

/// What the chart shows of the open position book.
struct BookPicture {
    PointTexts way;   ///< all its places in order, "x,y"
    PointTexts rows;  ///< those in its list
    int front = -1;   ///< index of the row in front, -1 for none
};

/// The open position book in a layer of its own, above the voyages: its way as a line, cut at the date line,
/// and the rows of its list as points with their numbers, the one in front larger. What is there already is
/// not drawn again.
class BookLayer {
  public:
    void Draw(const BookPicture& picture);
    /// Takes all of it off.
    void Clear();

  private:
    BookPicture drawn_;
};

}  // namespace Tarvik::Seaplan
