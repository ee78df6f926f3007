// SPDX-License-Identifier: MIT
#include "host/server/net/http/HttpServer.h"

#include <algorithm>
#include <csignal>

#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/signal_set.hpp>
#include <boost/asio/steady_timer.hpp>

#include "host/server/net/http/HttpConnection.h"
#include "host/server/net/http/HttpThreads.h"

namespace Tarvik::Server {

namespace net = boost::asio;
using net::ip::tcp;

namespace {

/// Before the time for what was begun is over, it is told that it will be.
constexpr std::chrono::milliseconds kLastWords{1000};

}  // namespace

/// Everything that needs the network library, kept out of the header.
class HttpServer::Core {
  public:
    Core(HttpService& service, const HttpLimits& limits)
        : acceptor_(io_),
          signals_(io_),
          grace_(io_),
          pause_(io_),
          host_(std::make_shared<HttpHost>(service, limits)),
          threads_(*host_) {}
    ~Core() { host_->Abandon(); }
    Core(const Core&) = delete;
    Core& operator=(const Core&) = delete;

    bool Listen(const std::string& address, std::uint16_t port, const TlsFiles& files, std::string& error);
    std::uint16_t Port() const { return port_; }
    void StopOnSignals() {
        signals_.add(SIGTERM);
        signals_.add(SIGINT);
        WaitForSignal();
    }
    void Run();
    void Stop() {
        net::post(io_, [this] { StopNow(); });
    }

  private:
    void WaitForSignal();
    void StopNow();
    void GiveGrace(std::chrono::milliseconds time, void (Core::*then)());
    void CutShort();
    void EndGrace();
    net::awaitable<void> Accept();
    void Open(tcp::socket socket);
    template <class Stream>
    void Serve(Stream stream, std::string address);

    net::io_context io_{1};
    tcp::acceptor acceptor_;
    net::signal_set signals_;
    net::steady_timer grace_;
    net::steady_timer pause_;
    std::unique_ptr<net::ssl::context> tls_;
    std::uint16_t port_ = 0;
    std::shared_ptr<HttpHost> host_;
    HttpThreads threads_;  ///< go first: what still lies in them holds on to sockets of io_
};

bool HttpServer::Core::Listen(const std::string& address, std::uint16_t port, const TlsFiles& files,
                              std::string& error) {
    if (!files.certificate.empty()) {
        tls_ = MakeTlsContext(files.certificate, files.key, error);
        if (tls_ == nullptr) {
            return false;
        }
    }
    boost::system::error_code failed;
    const net::ip::address where = net::ip::make_address(address, failed);
    const tcp::endpoint endpoint(where, port);
    if (!failed) {
        acceptor_.open(endpoint.protocol(), failed);
    }
    if (!failed) {
        acceptor_.set_option(net::socket_base::reuse_address(true), failed);
    }
    if (!failed) {
        acceptor_.bind(endpoint, failed);
    }
    if (!failed) {
        acceptor_.listen(net::socket_base::max_listen_connections, failed);
    }
    if (!failed) {
        port_ = acceptor_.local_endpoint(failed).port();
    }
    if (failed) {
        error = "cannot listen at " + address + " port " + std::to_string(port) + ": " + failed.message();
        acceptor_.close(failed);
        return false;
    }
    net::co_spawn(io_, Accept(), net::detached);
    return true;
}

void HttpServer::Core::Run() {
    // What a connection's bytes make a library throw ends that connection, never the server.
    for (bool served = false; !served;) {
        try {
            io_.run();
            served = true;
        } catch (const std::exception& failure) {
            host_->Service().Failed(failure.what());
        }
    }
    // A change that a thread has begun is brought to its end even when nobody waits for its reply any more.
    threads_.Stop();
    threads_.Join();
}

void HttpServer::Core::WaitForSignal() {
    signals_.async_wait([this](boost::system::error_code failed, int) {
        if (failed) {
            return;
        }
        if (host_->Stopping()) {
            CutShort();
            return EndGrace();
        }
        WaitForSignal();
        StopNow();
    });
}

void HttpServer::Core::StopNow() {
    if (host_->Stopping()) {
        return;
    }
    boost::system::error_code ignored;
    acceptor_.close(ignored);
    pause_.cancel();
    const std::chrono::milliseconds time = host_->Limits().stop;
    GiveGrace(time - std::min(time, kLastWords), &Core::CutShort);
    host_->Stop([this] {
        grace_.cancel();
        boost::system::error_code nothing;
        signals_.cancel(nothing);
    });
}

void HttpServer::Core::GiveGrace(std::chrono::milliseconds time, void (Core::*then)()) {
    grace_.expires_after(time);
    grace_.async_wait([this, then](boost::system::error_code failed) {
        if (!failed) {
            (this->*then)();
        }
    });
}

void HttpServer::Core::CutShort() {
    host_->Service().CutShort();
    GiveGrace(std::min(host_->Limits().stop, kLastWords), &Core::EndGrace);
}

void HttpServer::Core::EndGrace() {
    threads_.Stop();
    io_.stop();
}

net::awaitable<void> HttpServer::Core::Accept() {
    constexpr std::chrono::milliseconds kPause{100};
    while (!host_->Stopping()) {
        boost::system::error_code failed;
        tcp::socket socket = co_await acceptor_.async_accept(net::redirect_error(net::use_awaitable, failed));
        if (!failed) {
            try {
                Open(std::move(socket));
            } catch (const std::exception& failure) {
                host_->Service().Failed(failure.what());
            }
        } else if (!host_->Stopping()) {
            // Out of file handles, most likely: wait for connections to end instead of spinning.
            pause_.expires_after(kPause);
            co_await pause_.async_wait(net::redirect_error(net::use_awaitable, failed));
        }
    }
}

void HttpServer::Core::Open(tcp::socket socket) {
    boost::system::error_code failed;
    std::string address = socket.remote_endpoint(failed).address().to_string();
    if (failed) {
        return;
    }
    if (!host_->HasRoom(address)) {
        host_->Service().ConnectionRefused(address);
        return;
    }
    socket.set_option(tcp::no_delay(true), failed);
    if (tls_ != nullptr) {
        Serve(TlsStream(std::move(socket), *tls_), std::move(address));
    } else {
        Serve(PlainStream(std::move(socket)), std::move(address));
    }
}

template <class Stream>
void HttpServer::Core::Serve(Stream stream, std::string address) {
    auto connection = std::make_shared<HttpConnection<Stream>>(host_, std::move(stream), std::move(address));
    net::co_spawn(io_, connection->Serve(), net::detached);
}

HttpServer::HttpServer(HttpService& service, const HttpLimits& limits)
    : core_(std::make_unique<Core>(service, limits)) {}

HttpServer::~HttpServer() = default;

bool HttpServer::Listen(const std::string& address, std::uint16_t port, const TlsFiles& tls,
                        std::string& error) {
    return core_->Listen(address, port, tls, error);
}

std::uint16_t HttpServer::Port() const {
    return core_->Port();
}

void HttpServer::StopOnSignals() {
    core_->StopOnSignals();
}

void HttpServer::Run() {
    core_->Run();
}

void HttpServer::Stop() {
    core_->Stop();
}

}  // namespace Tarvik::Server
