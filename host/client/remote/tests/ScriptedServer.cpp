// SPDX-License-Identifier: MIT
#include "host/client/remote/tests/ScriptedServer.h"

#include <csignal>
#include <poll.h>
#include <utility>

#include <gtest/gtest.h>

namespace Tarvik::Client {

bool Peer::operator()(const std::string& text) const {
    std::size_t sent = 0;
    while (sent < text.size()) {
        const std::size_t left = text.size() - sent;
        const long done = session_ != nullptr
                              ? ::SSL_write(session_, text.data() + sent, static_cast<int>(left))
                              : ::send(connection_, text.data() + sent, left, MSG_NOSIGNAL);
        if (done <= 0) {
            return false;
        }
        sent += static_cast<std::size_t>(done);
    }
    return true;
}

bool Peer::IsGoneWithin(int milliseconds) const {
    // A client that waits for its answer says nothing: whatever is to be read is its end.
    pollfd end{connection_, POLLIN, 0};
    return ::poll(&end, 1, milliseconds) > 0;
}

void Peer::Cut() const {
    if (session_ != nullptr) {
        SSL_set_quiet_shutdown(session_, 1);
    }
    ::shutdown(connection_, SHUT_WR);
}

ScriptedServer::ScriptedServer(Script script, const ShownCertificate& shown)
    : context_(nullptr, &SSL_CTX_free), listener_(std::make_unique<Server::SilentListener>()) {
    if (!shown.certificate.empty()) {
        // The library writes to a connection whose other end may have gone.
        std::signal(SIGPIPE, SIG_IGN);
        context_.reset(SSL_CTX_new(TLS_server_method()));
        EXPECT_EQ(SSL_CTX_use_certificate_file(context_.get(), shown.certificate.c_str(), SSL_FILETYPE_PEM),
                  1);
        EXPECT_EQ(SSL_CTX_use_PrivateKey_file(context_.get(), shown.key.c_str(), SSL_FILETYPE_PEM), 1);
    }
    thread_ = std::thread([this, script = std::move(script)] { Serve(script); });
}

ScriptedServer::~ScriptedServer() {
    listener_->Shut();
    thread_.join();
}

std::string ScriptedServer::Url() const {
    return (context_ ? "https://127.0.0.1:" : "http://127.0.0.1:") + std::to_string(listener_->Port());
}

void ScriptedServer::Serve(const Script& script) const {
    const int connection = listener_->Accept();
    if (connection < 0) {
        return;
    }
    Talk(script, connection);
    ::shutdown(connection, SHUT_WR);
    char rest[4096];
    while (::recv(connection, rest, sizeof(rest), 0) > 0) {
    }
    ::close(connection);
}

void ScriptedServer::Talk(const Script& script, int connection) const {
    char first[4096];
    if (!context_) {
        if (::recv(connection, first, sizeof(first), 0) > 0) {
            script(Peer(connection, nullptr));
        }
        return;
    }
    const std::unique_ptr<SSL, decltype(&SSL_free)> session(SSL_new(context_.get()), &SSL_free);
    SSL_set_fd(session.get(), connection);
    if (SSL_accept(session.get()) == 1 && SSL_read(session.get(), first, sizeof(first)) > 0) {
        script(Peer(connection, session.get()));
        SSL_shutdown(session.get());
    }
}

}  // namespace Tarvik::Client
