// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/panels/tree/TreeWidget.h"

namespace Tarvik::Seaplan {

struct TreeContext;

/// The mark that tells whether a category or a voyage has remarks. It keeps the id of the one whose remarks
/// are open, as rows are made anew and their handles never come back.
class RemarkMark {
  public:
    explicit RemarkMark(TreeContext& context) : c_(context) {}

    /// The row whose remarks are open; kNoRow for none.
    void Open(TreeRow row);
    /// Switches a row's mark, and its record's; kNoRow means the record whose remarks are open, which may
    /// have no row at present. Nothing happens while no remarks are open.
    void Set(TreeRow row, bool on);

  private:
    TreeRow OpenRow() const;
    void SetRecord(bool on);

    TreeContext& c_;
    std::string id_;  ///< empty while no remarks are open
    bool isCategory_ = false;
};

}  // namespace Tarvik::Seaplan
