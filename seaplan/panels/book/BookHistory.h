// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

#include "seaplan/data/PosBookData.h"

namespace Tarvik::Seaplan {

/// The states of the book on show, edit by edit: what undo goes back to and redo comes from. A save marks a
/// state and ends nothing. Beyond a hundred states the oldest goes.
class BookHistory {
  public:
    /// Begins anew with a book that is saved.
    void Start(const PosBookData& book);
    /// The book after an edit; states that were undone are gone.
    void Push(const PosBookData& book);
    /// The state before or behind the one on show, which it becomes; null where there is none.
    const PosBookData* Back();
    const PosBookData* Forward();
    /// The state on show is what the server has.
    void MarkSaved();
    bool IsSaved() const { return at_ == saved_; }
    bool CanGoBack() const { return at_ > 0; }
    bool CanGoForward() const { return at_ + 1 < states_.size(); }
    /// The book as it was opened or last saved.
    const PosBookData& Backup() const { return backup_; }

  private:
    static constexpr std::size_t kMostStates = 100;
    static constexpr std::size_t kGone = static_cast<std::size_t>(-1);

    std::vector<PosBookData> states_;
    PosBookData backup_;
    std::size_t at_ = 0;
    std::size_t saved_ = 0;
};

}  // namespace Tarvik::Seaplan
