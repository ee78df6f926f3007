// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "host/client/remote/HttpClient.h"
#include "host/client/services/HostServices.h"

namespace Tarvik::Client {

/// Where the voyage server is and who logs in there.
struct RemoteSettings {
    std::string url;  ///< "https://host:port" or "http://host:port"
    std::string user;
    std::string password;
    std::string caFile;  ///< PEM certificates to trust, empty for the system's
    /// For one call: looking up, connecting, sending and receiving together.
    std::chrono::milliseconds limit{15000};
};

/// A voyage server on another machine, over one kept connection. A call that fails is not repeated; the next
/// one connects again by itself. For one thread.
class RemoteLink : public ServerLink {
  public:
    explicit RemoteLink(RemoteSettings settings);
    ~RemoteLink() override;

    /// Logs in if there is no login.
    bool Connect(std::string& error) override;
    /// Whether there is a login; a lost connection alone does not end it.
    bool IsConnected() const override { return !token_.empty(); }
    /// Sends the request for the user who logged in. Empty when there is no login, no answer within the
    /// limit, or the answer is none of the voyage service; a login that the server no longer knows ends with
    /// that.
    std::string Exchange(const std::string& user, const Interface::VoyServerRequest& request) override;
    /// Ends the login at the server; here it ends whatever the server says.
    void Disconnect();
    /// Why the last call failed, one line; empty when it did not.
    const std::string& LastFailure() const { return failure_; }

  private:
    std::string LoginFailure(const HttpAnswer& answer) const;
    std::string CertificateFailure(const HttpAnswer& answer) const;
    std::string ReadReply(const HttpAnswer& answer);

    RemoteSettings settings_;
    std::unique_ptr<HttpClient> http_;  ///< null when the address is of no known form
    std::string token_;
    std::string failure_;
};

}  // namespace Tarvik::Client
