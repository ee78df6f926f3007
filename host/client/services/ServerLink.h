// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <tarvik/interface/ServerRequest.h>

namespace Tarvik::Client {

/// A connection to the voyage server, inside this process or elsewhere.
class ServerLink {
  public:
    virtual ~ServerLink() = default;
    /// Opens the connection if it is not open. False with a line that says what to do.
    virtual bool Connect(std::string& error) = 0;
    virtual bool IsConnected() const = 0;
    /// Ends the login where the server wants one; Connect asks for another then.
    virtual void LogOut() {}
    /// The reply's JSON text; empty when there was none.
    virtual std::string Exchange(const std::string& user, const Interface::VoyServerRequest& request) = 0;
    /// Whose data the server answers with: `local`, unless the server knows its users by their logins; then
    /// the one who logged in, empty while nobody has.
    virtual std::string User(const std::string& local) const { return local; }
    /// Why the last exchange gave no reply, one line; empty when it did or nothing is known.
    virtual std::string Failure() const { return {}; }
};

}  // namespace Tarvik::Client
