// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/calculation/book/BookRows.h"
#include "seaplan/chart/BookLayer.h"

namespace Tarvik::Seaplan {

/// The open position book on the chart, as it is shaped and before it is saved.
class BookOnChart {
  public:
    /// Draws what has changed since: the way of `book`, the rows of its list by their numbers, and the one in
    /// front, -1 for none.
    void Show(const PosBookData& book, const BookRowRefs& rows, int front);
    void Hide() { layer_.Clear(); }

  private:
    BookLayer layer_;
};

}  // namespace Tarvik::Seaplan
