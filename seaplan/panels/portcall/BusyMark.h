// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/panels/portcall/PortCallView.h"

namespace Tarvik::Seaplan {

/// Shows that something goes on, while it lives. Not to be held over a question to the person.
class BusyMark {
  public:
    explicit BusyMark(PortCallView& view) : view_(view) { view_.SetBusy(true); }
    ~BusyMark() { view_.SetBusy(false); }
    BusyMark(const BusyMark&) = delete;
    BusyMark& operator=(const BusyMark&) = delete;

  private:
    PortCallView& view_;
};

}  // namespace Tarvik::Seaplan
