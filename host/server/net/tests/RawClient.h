// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace Tarvik::Server {

/// A reply as it came over the wire; status 0 when the connection ended without one.
struct RawReply {
    int status = 0;
    std::map<std::string, std::string> fields;  ///< names in lower case
    std::string body;
};

/// A plain TCP connection that sends exactly the bytes it is given.
class RawClient {
  public:
    explicit RawClient(std::uint16_t port);
    ~RawClient();
    RawClient(const RawClient&) = delete;
    RawClient& operator=(const RawClient&) = delete;

    bool IsConnected() const { return socket_ >= 0; }
    bool Send(const std::string& bytes);
    RawReply Read();
    /// Whether the server ends the connection without another byte.
    bool SeesEnd();

    /// Sends a request with a Content-Length and reads the reply.
    RawReply Ask(const std::string& method, const std::string& path, const std::string& body = {},
                 const std::string& token = {});
    static std::string Request(const std::string& method, const std::string& path, const std::string& body,
                               const std::string& token);

  private:
    bool Fill();

    int socket_ = -1;
    std::string received_;
};

}  // namespace Tarvik::Server
