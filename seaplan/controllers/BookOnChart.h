// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <utility>

#include <tarvik/bus/BindingList.h>
#include <tarvik/bus/DragContract.h>

#include "seaplan/calculation/book/BookRows.h"
#include "seaplan/chart/BookLayer.h"

namespace Tarvik::Seaplan {

/// The open position book on the chart, as it is shaped and before it is saved, and what a person does with
/// it there.
class BookOnChart {
  public:
    /// What the person does; rows are those of the list, counted from 0.
    struct Reports {
        std::function<void(int row)> pressed;
        std::function<void(int row, const GeoPoint& to)> dragged;
        std::function<void(const GeoPoint& from, const GeoPoint& to)> pulled;  ///< a leg
    };
    void SetReports(Reports reports) { reports_ = std::move(reports); }

    /// Draws what has changed since: the way of `book`, the rows of its list by their numbers, and the one in
    /// front, -1 for none.
    void Show(const PosBookData& book, const BookRowRefs& rows, int front);
    /// Takes it off; nothing is reported any more.
    void Hide();

  private:
    void Listen();
    void OnDragged(const Interface::ChartDrag& drag) const;

    BookLayer layer_;
    Reports reports_;
    Interface::BindingList bindings_;  ///< none while the book is hidden
    bool listens_ = false;
};

}  // namespace Tarvik::Seaplan
