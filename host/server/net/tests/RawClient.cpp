// SPDX-License-Identifier: MIT
#include "host/server/net/tests/RawClient.h"

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <cstdlib>
#include <sys/socket.h>
#include <unistd.h>

#include <openssl/ssl.h>

namespace Tarvik::Server {

namespace {

std::string Lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](char sign) {
        return sign >= 'A' && sign <= 'Z' ? static_cast<char>(sign + ('a' - 'A')) : sign;
    });
    return text;
}

RawReply ParseHead(const std::string& head) {
    RawReply reply;
    if (head.size() > 12) {
        reply.status = std::atoi(head.substr(9, 3).c_str());
    }
    for (std::size_t at = head.find("\r\n"); at != std::string::npos;) {
        const std::size_t next = head.find("\r\n", at + 2);
        const std::string line = head.substr(at + 2, next == std::string::npos ? next : next - at - 2);
        const std::size_t colon = line.find(": ");
        if (colon != std::string::npos) {
            reply.fields[Lower(line.substr(0, colon))] = line.substr(colon + 2);
        }
        at = next;
    }
    return reply;
}

}  // namespace

/// The client's side of TLS over a connected socket.
struct RawClient::Tls {
    explicit Tls(int socket, const char* suites = nullptr)
        : context(SSL_CTX_new(TLS_client_method()), &SSL_CTX_free), session(nullptr, &SSL_free) {
        if (suites != nullptr) {
            SSL_CTX_set_max_proto_version(context.get(), TLS1_2_VERSION);
            SSL_CTX_set_cipher_list(context.get(), suites);
        }
        session.reset(SSL_new(context.get()));
        SSL_set_fd(session.get(), socket);
        open = SSL_connect(session.get()) == 1;
    }

    std::unique_ptr<SSL_CTX, decltype(&SSL_CTX_free)> context;
    std::unique_ptr<SSL, decltype(&SSL_free)> session;
    bool open = false;
};

RawClient::RawClient(std::uint16_t port, Wire wire)
    : socket_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    // A test that waits for nothing fails instead of hanging.
    const timeval limit{20, 0};
    setsockopt(socket_, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof(limit));
    setsockopt(socket_, SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof(limit));
    if (::connect(socket_, reinterpret_cast<sockaddr*>(&address), sizeof(address)) == 0) {
        if (wire == Wire::Tls) {
            tls_ = std::make_unique<Tls>(socket_);
        }
        return;
    }
    ::close(socket_);
    socket_ = -1;
}

RawClient::~RawClient() {
    if (socket_ >= 0) {
        ::close(socket_);
    }
}

bool RawClient::TakesSuites(std::uint16_t port, const char* suites) {
    const RawClient plain(port);
    return Tls(plain.socket_, suites).open;
}

std::string RawClient::Hello() {
    const std::unique_ptr<SSL_CTX, decltype(&SSL_CTX_free)> context(SSL_CTX_new(TLS_client_method()),
                                                                    &SSL_CTX_free);
    const std::unique_ptr<SSL, decltype(&SSL_free)> session(SSL_new(context.get()), &SSL_free);
    BIO* out = BIO_new(BIO_s_mem());
    SSL_set_bio(session.get(), BIO_new(BIO_s_mem()), out);
    SSL_connect(session.get());
    std::string bytes(BIO_ctrl_pending(out), '\0');
    BIO_read(out, bytes.data(), static_cast<int>(bytes.size()));
    return bytes;
}

long RawClient::Put(const char* bytes, std::size_t size) {
    if (tls_ != nullptr) {
        return tls_->open ? SSL_write(tls_->session.get(), bytes, static_cast<int>(size)) : 0;
    }
    return ::send(socket_, bytes, size, MSG_NOSIGNAL);
}

long RawClient::Take(char* bytes, std::size_t size) {
    if (tls_ != nullptr) {
        return tls_->open ? SSL_read(tls_->session.get(), bytes, static_cast<int>(size)) : 0;
    }
    return ::recv(socket_, bytes, size, 0);
}

bool RawClient::Send(const std::string& bytes) {
    std::size_t sent = 0;
    while (sent < bytes.size()) {
        const long count = Put(bytes.data() + sent, bytes.size() - sent);
        if (count <= 0) {
            return false;
        }
        sent += static_cast<std::size_t>(count);
    }
    return true;
}

bool RawClient::Fill() {
    std::array<char, 65536> bytes{};
    const long count = Take(bytes.data(), bytes.size());
    if (count <= 0) {
        return false;
    }
    received_.append(bytes.data(), static_cast<std::size_t>(count));
    return true;
}

RawReply RawClient::Read() {
    std::size_t end = 0;
    while ((end = received_.find("\r\n\r\n")) == std::string::npos) {
        if (!Fill()) {
            return {};
        }
    }
    RawReply reply = ParseHead(received_.substr(0, end));
    received_.erase(0, end + 4);
    const auto length = reply.fields.find("content-length");
    const std::size_t size =
        length == reply.fields.end() ? 0 : static_cast<std::size_t>(std::atol(length->second.c_str()));
    while (received_.size() < size) {
        if (!Fill()) {
            return {};
        }
    }
    reply.body = received_.substr(0, size);
    received_.erase(0, size);
    return reply;
}

bool RawClient::SeesEnd() {
    char byte = 0;
    return received_.empty() && Take(&byte, 1) == 0;
}

bool RawClient::SeesEndBehindWhatComes() {
    while (Fill()) {
    }
    char byte = 0;
    return Take(&byte, 1) == 0;
}

std::string RawClient::Request(const std::string& method, const std::string& path, const std::string& body,
                               const std::string& token) {
    return method + " " + path + " HTTP/1.1\r\nHost: localhost\r\n" +
           (token.empty() ? "" : "Authorization: Bearer " + token + "\r\n") +
           "Content-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
}

RawReply RawClient::Ask(const std::string& method, const std::string& path, const std::string& body,
                        const std::string& token) {
    return Send(Request(method, path, body, token)) ? Read() : RawReply{};
}

}  // namespace Tarvik::Server
