// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>

#include <tarvik/util/DateTime.h>

namespace Tarvik::Client {

/// What is known of the way to the server. Times are UTC.
struct Connection {
    bool loggedIn = false;  ///< or the server wants no login
    std::optional<Util::_datetime_t>
        silentSince;  ///< when the first of the requests was sent that got no answer
    std::optional<Util::_datetime_t> backSince;  ///< the first answer behind such requests
    std::string reason;                          ///< why the last request got no answer, empty when it did

    bool operator==(const Connection&) const = default;
};

/// Follows the connection by what becomes of the requests: the last one tells, nothing is asked for that.
class ConnectionWatch {
  public:
    explicit ConnectionWatch(bool loggedIn) { now_.loggedIn = loggedIn; }
    const Connection& Now() const { return now_; }
    /// `changed` is called after every change.
    void OnChange(std::function<void()> changed) { changed_ = std::move(changed); }

    /// A request was answered; the answer may have ended the login.
    void NoteAnswer(bool loggedIn);
    /// A request got no answer.
    void NoteSilence(const std::string& reason);
    /// A login was made or ended, or another server taken: what was known of the way is forgotten.
    void NoteLogin(bool loggedIn);

  private:
    void Take(const Connection& next);

    Connection now_;
    std::function<void()> changed_;
};

}  // namespace Tarvik::Client
