// SPDX-License-Identifier: MIT
#include "seaplan/panels/book/BookHistory.h"

namespace Tarvik::Seaplan {

void BookHistory::Start(const PosBookData& book) {
    states_.assign(1, book);
    backup_ = book;
    at_ = 0;
    saved_ = 0;
}

void BookHistory::Push(const PosBookData& book) {
    states_.resize(at_ + 1);
    if (saved_ != kGone && saved_ > at_) {
        saved_ = kGone;
    }
    states_.push_back(book);
    ++at_;
    if (states_.size() > kMostStates) {
        states_.erase(states_.begin());
        --at_;
        saved_ = saved_ == kGone || saved_ == 0 ? kGone : saved_ - 1;
    }
}

const PosBookData* BookHistory::Back() {
    return CanGoBack() ? &states_[--at_] : nullptr;
}

const PosBookData* BookHistory::Forward() {
    return CanGoForward() ? &states_[++at_] : nullptr;
}

void BookHistory::MarkSaved() {
    saved_ = at_;
    backup_ = states_[at_];
}

}  // namespace Tarvik::Seaplan
