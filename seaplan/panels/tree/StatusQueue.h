// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <functional>
#include <set>
#include <string>
#include <utility>

#include "seaplan/panels/tree/TreeWidget.h"

namespace Tarvik::Seaplan {

/// Voyages whose statuses are to be found out, each of which may have to be asked of the server: the first at
/// once, the rest in pieces between events, with the tree's busy sign while it lasts.
class StatusQueue {
  public:
    /// Finds out the status of one voyage and draws it in its row, which may be gone by then.
    using Work = std::function<void(const std::string& vi, TreeRow row)>;

    StatusQueue(BusySign& sign, Work work) : sign_(sign), work_(std::move(work)) {}
    /// The sign is left alone: its window may be gone.
    ~StatusQueue() { StopTimer(); }
    StatusQueue(const StatusQueue&) = delete;
    StatusQueue& operator=(const StatusQueue&) = delete;

    /// One more voyage; one that waits already is not added.
    void Add(const std::string& vi, TreeRow row);
    /// Works for a moment; what is left then goes on by itself. Without a timer all is done here.
    void Run();

  private:
    void DoFor(int milliseconds);
    void Tick();
    void Stop();
    void StopTimer();

    BusySign& sign_;
    Work work_;
    std::deque<std::pair<std::string, TreeRow>> waiting_;
    std::set<std::string> known_;  ///< ids of those that wait
    unsigned timer_ = 0;
};

}  // namespace Tarvik::Seaplan
