// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace boost::asio {
class io_context;
}

namespace Tarvik::Ais {

/// Hands lines to all who call on loopback. One who does not read loses lines and holds up nobody.
class FeedServer {
  public:
    /// Bytes that wait for one caller at most.
    static constexpr std::size_t kMostWaiting = 1 << 20;

    /// Listens on 127.0.0.1; port 0 takes a free one. Throws std::exception when it cannot.
    FeedServer(boost::asio::io_context& io, std::uint16_t port);
    ~FeedServer();
    FeedServer(const FeedServer&) = delete;
    FeedServer& operator=(const FeedServer&) = delete;

    std::uint16_t Port() const;
    /// Callers at present.
    std::size_t Callers() const;
    void Send(const std::string& lines);

  private:
    class Listener;
    std::shared_ptr<Listener> listener_;
};

}  // namespace Tarvik::Ais
