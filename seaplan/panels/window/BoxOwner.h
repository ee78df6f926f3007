// SPDX-License-Identifier: MIT
#pragma once

/// What a panel at work asks of its window.
namespace Tarvik::Seaplan {

/// The window behind a box.
class BoxOwner {
  public:
    virtual ~BoxOwner() = default;
    virtual void SetEnabled(bool enabled) = 0;
    /// Opaque handle of the window.
    virtual void* Handle() const = 0;
};

/// Where a person sees that something goes on which takes a while.
class BusySign {
  public:
    virtual ~BusySign() = default;
    virtual void SetBusy(bool busy) = 0;
};

}  // namespace Tarvik::Seaplan
