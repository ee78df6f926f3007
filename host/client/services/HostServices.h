// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include <tarvik/bus/BindingList.h>
#include <tarvik/core/TObject.h>
#include <tarvik/interface/ServerRequest.h>

#include "host/client/services/ConnectionWatch.h"
#include "host/client/services/ServerLink.h"

namespace Tarvik::Client {

/// The services that the host offers on the bus: connection, login, user, time zone, exchange with the
/// server.
class HostServices : public Core::TObject {
  public:
    /// `link` is not owned and outlives this. `localUser` is the user of a server without logins. Failed
    /// logins, refusals and missing replies are told to `complain`, one line each.
    HostServices(ServerLink& link, std::string localUser, std::string timeZone,
                 std::function<void(const std::string&)> complain);
    HostServices(const HostServices&) = delete;
    HostServices& operator=(const HostServices&) = delete;

    /// Whose data is shown; empty while nobody is logged in.
    std::string User() const { return link_->User(localUser_); }
    const std::string& TimeZone() const { return timeZone_; }
    /// Why the last exchange did not succeed: the server's own words, or why it did not answer; else empty.
    const std::string& LastFailure() const { return lastFailure_; }

    /// Takes another zone into use and tells all plug-ins.
    void SetTimeZone(const std::string& zone);
    /// Logs all plug-ins out and ends the login at the server.
    void LogOut();
    /// Logs all plug-ins out and takes another server into use.
    void SetLink(ServerLink& link);
    /// The connection as the last request showed it; tells whoever asks for its changes.
    ConnectionWatch& Watch() { return watch_; }

  private:
    void OfferAll();
    void NoteFailure(const std::string& failure);
    const unsigned char* OnConnected();
    void OnLogin();
    const std::string* OnUser();
    const std::string* OnTimeZone() { return &timeZone_; }
    Interface::VoyServerRequest* OnExchange(const Interface::VoyServerRequest& request);

    ServerLink* link_;
    std::string localUser_;
    std::string timeZone_;
    std::function<void(const std::string&)> complain_;
    std::string lastFailure_;
    std::string user_;  ///< what the last asker of the user was given
    unsigned char connected_ = 0;
    ConnectionWatch watch_;
    Interface::BindingList bindings_;
};

}  // namespace Tarvik::Client
