// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include <tarvik/Export.h>

namespace Tarvik::Util {

/// Source of present time. The system's clock by default; tests put their own in its place.
class TARVIK_API Clock {
  public:
    virtual ~Clock();
    /// Centiseconds after 1970-01-01 00:00:00 UTC.
    virtual std::int64_t NowUtcCsecs() const = 0;

    /// The clock in force.
    static const Clock& Current();
    /// Puts `clock` in force (not owned); null brings the system's clock back.
    static void Set(const Clock* clock);

    /// Zone in which "local" present time is told; empty means the machine's zone. The client sets the user's
    /// zone.
    static void SetLocalZone(const std::string& zone);
    /// That zone; empty for the machine's.
    static std::string LocalZone();
};

/// A timer on the user-interface thread; the client fills it with the window system's, tests with a manual
/// one.
class TARVIK_API TimerService {
  public:
    virtual ~TimerService();
    /// Starts a repeating timer of `periodMs` milliseconds; the id is never 0.
    virtual unsigned Start(int periodMs, std::function<void()> callback) = 0;
    /// Ends a timer, also from within its callback; an unknown id changes nothing.
    virtual void Stop(unsigned id) = 0;

    /// The service in force, null when the host has none.
    static TimerService* Current();
    /// Puts a service in force (not owned); null takes it away.
    static void Set(TimerService* service);
};

}  // namespace Tarvik::Util
