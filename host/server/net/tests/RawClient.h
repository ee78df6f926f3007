// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>

namespace Tarvik::Server {

/// A reply as it came over the wire; status 0 when the connection ended without one.
struct RawReply {
    int status = 0;
    std::map<std::string, std::string> fields;  ///< names in lower case
    std::string body;
};

/// What a connection goes through.
enum class Wire { Plain, Tls };

/// A connection that sends exactly the bytes it is given. Of a certificate it takes any.
class RawClient {
  public:
    explicit RawClient(std::uint16_t port, Wire wire = Wire::Plain);
    ~RawClient();
    RawClient(const RawClient&) = delete;
    RawClient& operator=(const RawClient&) = delete;

    bool IsConnected() const { return socket_ >= 0; }
    bool Send(const std::string& bytes);
    RawReply Read();
    /// The least that tells whether a server speaks TLS 1.2 with these suites (of OpenSSL's names).
    static bool TakesSuites(std::uint16_t port, const char* suites);
    /// What a client of TLS says first, to be sent over a plain connection.
    static std::string Hello();
    /// Whether the server ends the connection without another byte.
    bool SeesEnd();
    /// Whether it ends the connection, whatever it says before.
    bool SeesEndBehindWhatComes();

    /// Sends a request with a Content-Length and reads the reply.
    RawReply Ask(const std::string& method, const std::string& path, const std::string& body = {},
                 const std::string& token = {});
    static std::string Request(const std::string& method, const std::string& path, const std::string& body,
                               const std::string& token);

  private:
    struct Tls;

    bool Fill();
    /// Bytes that went through; 0 or less when the connection has ended.
    long Put(const char* bytes, std::size_t size);
    long Take(char* bytes, std::size_t size);

    int socket_ = -1;
    std::unique_ptr<Tls> tls_;  ///< null on a plain one
    std::string received_;
};

}  // namespace Tarvik::Server
