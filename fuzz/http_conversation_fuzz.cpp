// SPDX-License-Identifier: MIT
// Whole conversations with the HTTP server over loopback: an input is what one peer sends, requests behind
// requests, chunked or not, until it has nothing more to say. Whatever that is, every reply is one, no
// request is answered that was not whole, and the server serves the next peer.
#include <arpa/inet.h>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

#include "host/server/net/http/HttpServer.h"

namespace {

using namespace Tarvik::Server;

constexpr std::uint64_t kMostBody = 256U * 1024;

[[noreturn]] void Fail(const char* what, const std::string& text) {
    std::fprintf(stderr, "%s: %s\n", what, text.c_str());
    std::abort();
}

/// Answers with the size of the body; refuses the path "/large" before its body is read.
class SizeService : public HttpService {
  public:
    std::optional<HttpReply> RefuseHead(const HttpRequest& head) const override {
        return head.target == "/none" ? std::optional(HttpReply{404, "text/plain", "", {}}) : std::nullopt;
    }
    std::uint64_t BodyLimit(const HttpRequest&) const override { return kMostBody; }
    std::optional<HttpReply> RefuseLarge(const HttpRequest& head) override {
        return head.target == "/large" ? std::optional(HttpReply{401, "text/plain", "", {}}) : std::nullopt;
    }
    Place PlaceOf(const HttpRequest& request) override {
        const bool inLine = request.target == "/line";
        return {inLine ? Lane::Route : request.target == "/pool" ? Lane::Read : Lane::Inline, request.method};
    }
    HttpReply Answer(const HttpRequest& request) override {
        if (request.body.size() > kMostBody) {
            Fail("a body beyond its limit was read", std::to_string(request.body.size()));
        }
        return {200, "text/plain", std::to_string(request.body.size()), {}};
    }
    void Refused(const HttpRequest&, int) override {}
    void ConnectionsChanged(std::size_t) override {}
    void ConnectionRefused(const std::string&) override {}
    void Failed(const std::string& detail) override { Fail("the server failed", detail); }
    void CutShort() override {}
};

class Server {
  public:
    Server() : http_(service_, Limits()) {
        std::string error;
        if (!http_.Listen("127.0.0.1", 0, {}, error)) {
            Fail("the server does not start", error);
        }
        std::thread([this] { http_.Run(); }).detach();
    }
    std::uint16_t Port() const { return http_.Port(); }

  private:
    static HttpLimits Limits() {
        HttpLimits limits;
        limits.connections = 100;
        limits.workers = 1;
        limits.queue = 100;
        limits.idle = std::chrono::seconds(2);
        limits.request = std::chrono::seconds(2);
        return limits;
    }

    SizeService service_;
    HttpServer http_;
};

/// Everything that the server says to these bytes until it ends the connection.
std::string Converse(std::uint16_t port, const unsigned char* data, std::size_t size) {
    const int peer = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::connect(peer, reinterpret_cast<sockaddr*>(&address), sizeof(address)) != 0) {
        Fail("the server takes no connection", "");
    }
    for (std::size_t sent = 0; sent < size;) {
        const ssize_t count = ::send(peer, data + sent, size - sent, MSG_NOSIGNAL);
        if (count <= 0) {
            break;
        }
        sent += static_cast<std::size_t>(count);
    }
    ::shutdown(peer, SHUT_WR);
    std::string said;
    std::array<char, 4096> room{};
    for (ssize_t count = 0; (count = ::recv(peer, room.data(), room.size(), 0)) > 0;) {
        said.append(room.data(), static_cast<std::size_t>(count));
    }
    ::close(peer);
    return said;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    // Never destroyed: the process ends with it.
    static const Server* const server = new Server;
    const std::string said = Converse(server->Port(), data, size);
    if (!said.empty() && !said.starts_with("HTTP/1.1 ")) {
        Fail("a reply is none", said);
    }
    return 0;
}
