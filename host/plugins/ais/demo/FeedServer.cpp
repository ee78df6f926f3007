// SPDX-License-Identifier: MIT
#include "host/plugins/ais/demo/FeedServer.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/write.hpp>

namespace Tarvik::Ais {

namespace {

namespace asio = boost::asio;
using asio::ip::tcp;
using boost::system::error_code;

class Caller : public std::enable_shared_from_this<Caller> {
  public:
    explicit Caller(tcp::socket socket) : socket_(std::move(socket)) {}

    bool IsOpen() const { return socket_.is_open(); }
    void Close() {
        error_code ignored;
        socket_.close(ignored);
    }
    void Send(const std::string& lines) {
        if (waiting_.size() + lines.size() <= FeedServer::kMostWaiting) {
            waiting_ += lines;
        }
        if (sending_.empty()) {
            Write();
        }
    }

  private:
    void Write() {
        sending_.swap(waiting_);
        if (sending_.empty()) {
            return;
        }
        asio::async_write(socket_, asio::buffer(sending_),
                          [this, keep = shared_from_this()](error_code error, std::size_t) {
                              sending_.clear();
                              error ? Close() : Write();
                          });
    }

    tcp::socket socket_;
    std::string waiting_;
    std::string sending_;
};

}  // namespace

class FeedServer::Listener : public std::enable_shared_from_this<Listener> {
  public:
    Listener(asio::io_context& io, std::uint16_t port)
        : acceptor_(io, {asio::ip::address_v4::loopback(), port}) {}

    void Accept() {
        acceptor_.async_accept([this, keep = shared_from_this()](error_code error, tcp::socket socket) {
            if (error) {
                return;
            }
            callers_.push_back(std::make_shared<Caller>(std::move(socket)));
            Accept();
        });
    }
    void Close() {
        error_code ignored;
        acceptor_.close(ignored);
        for (const auto& caller : callers_) {
            caller->Close();
        }
    }
    void Send(const std::string& lines) {
        std::erase_if(callers_, [](const auto& caller) { return !caller->IsOpen(); });
        for (const auto& caller : callers_) {
            caller->Send(lines);
        }
    }
    std::uint16_t Port() const { return acceptor_.local_endpoint().port(); }
    std::size_t Callers() const { return callers_.size(); }

  private:
    tcp::acceptor acceptor_;
    std::vector<std::shared_ptr<Caller>> callers_;
};

FeedServer::FeedServer(asio::io_context& io, std::uint16_t port)
    : listener_(std::make_shared<Listener>(io, port)) {
    listener_->Accept();
}

FeedServer::~FeedServer() {
    listener_->Close();
}

std::uint16_t FeedServer::Port() const {
    return listener_->Port();
}

std::size_t FeedServer::Callers() const {
    return listener_->Callers();
}

void FeedServer::Send(const std::string& lines) {
    listener_->Send(lines);
}

}  // namespace Tarvik::Ais
