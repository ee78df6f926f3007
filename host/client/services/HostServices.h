// SPDX-License-Identifier: MIT
#pragma once

#include <tarvik/core/TEvent.h>
#include <tarvik/core/TObject.h>
#include <tarvik/interface/ServerRequest.h>

#include <functional>
#include <string>

namespace Tarvik::Client {

/// A connection to the voyage server, inside this process or elsewhere.
class ServerLink {
  public:
    virtual ~ServerLink() = default;
    /// Opens the connection if it is not open. False with a line that says what to do.
    virtual bool Connect(std::string& error) = 0;
    virtual bool IsConnected() const = 0;
    /// The reply's JSON text; empty when there was none.
    virtual std::string Exchange(const std::string& user, const Interface::VoyServerRequest& request) = 0;
};

/// The services that the host offers on the bus: connection, login, user, time zone, exchange with the
/// server.
class HostServices : public Core::TObject {
  public:
    /// `link` is not owned and outlives this. Failed logins are told to `complain`.
    HostServices(ServerLink& link, std::string user, std::string timeZone,
                 std::function<void(const std::string&)> complain);
    ~HostServices() override;
    HostServices(const HostServices&) = delete;
    HostServices& operator=(const HostServices&) = delete;

    const std::string& User() const { return user_; }
    const std::string& TimeZone() const { return timeZone_; }
    /// Takes another zone into use and tells all plug-ins.
    void SetTimeZone(const std::string& zone);

  private:
    void offer(const char* name, Core::TEvent& event);
    void* onConnected(void* input);
    void* onLogin(void* input);
    void* onUser(void* input);
    void* onTimeZone(void* input);
    void* onExchange(void* input);

    ServerLink& link_;
    std::string user_;
    std::string timeZone_;
    std::function<void(const std::string&)> complain_;
    unsigned char connected_ = 0;
    Core::TEvent connectedEvent_;
    Core::TEvent loginEvent_;
    Core::TEvent userEvent_;
    Core::TEvent zoneEvent_;
    Core::TEvent exchangeEvent_;
};

}  // namespace Tarvik::Client
