// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <variant>
#include <vector>

#include "seaplan/panels/editors/EditWords.h"

namespace Tarvik::Seaplan {

/// The states of what is edited in a window, edit by edit: what undo goes back to and redo comes from. A save
/// marks a state and ends nothing. Beyond the most states that are kept the oldest goes. `Extra` is what else
/// is kept of an edit.
template <class State, class Extra = std::monostate>
class EditHistory {
  public:
    /// An edit with the state that it led to.
    struct Step {
        State state;
        EditName name{};
        Extra extra{};
    };

    explicit EditHistory(std::size_t most = 100) : most_(most) {}

    /// Begins anew with a state that is saved.
    void Start(const State& state) {
        steps_.assign(1, Step{state});
        backup_ = state;
        at_ = 0;
        saved_ = 0;
        known_ = true;
    }
    /// The state after an edit; states that were undone are gone.
    void Push(const State& state, const EditName& name = {}, const Extra& extra = {}) {
        steps_.resize(at_ + 1);
        if (saved_ != kGone && saved_ > at_) {
            saved_ = kGone;
        }
        steps_.push_back({state, name, extra});
        ++at_;
        if (steps_.size() > most_) {
            steps_.erase(steps_.begin());
            --at_;
            saved_ = saved_ == kGone || saved_ == 0 ? kGone : saved_ - 1;
        }
    }
    /// The state before or behind the one on show, which it becomes; null where there is none.
    const State* Back() { return CanGoBack() ? &steps_[--at_].state : nullptr; }
    const State* Forward() { return CanGoForward() ? &steps_[++at_].state : nullptr; }
    /// The state on show is what the server has.
    void MarkSaved() {
        saved_ = at_;
        backup_ = steps_[at_].state;
        known_ = true;
    }
    /// The same where it has changed since its edit in what is only a matter of the view.
    void MarkSaved(const State& shown) {
        steps_[at_].state = shown;
        MarkSaved();
    }
    /// No state is, or none is known to be, as behind a save that broke off.
    void MarkUnsaved() {
        saved_ = kGone;
        known_ = false;
    }
    bool IsSaved() const { return at_ == saved_; }
    /// Whether anything was begun.
    bool IsThere() const { return !steps_.empty(); }
    bool CanGoBack() const { return at_ > 0; }
    bool CanGoForward() const { return at_ + 1 < steps_.size(); }
    /// The last edit, with the state on show; the next one, which CanGoForward tells to be there.
    const Step& Now() const { return steps_[at_]; }
    const Step& Next() const { return steps_[at_ + 1]; }
    UndoTexts Texts() const {
        return UndoTextsOf(CanGoBack() ? &Now().name : nullptr, CanGoForward() ? &Next().name : nullptr);
    }
    /// The state as it was begun with or last saved, and whether the server still has it.
    const State& Backup() const { return backup_; }
    bool IsBackupStored() const { return known_; }

  private:
    static constexpr std::size_t kGone = static_cast<std::size_t>(-1);

    std::size_t most_;
    std::vector<Step> steps_;
    State backup_{};
    std::size_t at_ = 0;
    std::size_t saved_ = 0;
    bool known_ = true;
};

}  // namespace Tarvik::Seaplan
