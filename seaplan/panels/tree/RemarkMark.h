// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/panels/tree/TreeContext.h"

namespace Tarvik::Seaplan {

/// The mark that tells whether a category or a voyage has remarks.
class RemarkMark {
  public:
    explicit RemarkMark(TreeContext& context) : c_(context) {}

    /// The row whose remarks are open; kNoRow for none.
    void Open(TreeRow row) { row_ = row; }
    /// Switches a row's mark, and its record's; kNoRow means the row whose remarks are open. Nothing happens
    /// while no remarks are open.
    void Set(TreeRow row, bool on);

  private:
    TreeContext& c_;
    TreeRow row_ = kNoRow;
};

}  // namespace Tarvik::Seaplan
