// SPDX-License-Identifier: MIT
#include "bench/server/LoadClient.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <memory>
#include <stdexcept>
#include <string_view>
#include <utility>

#include <boost/asio/buffer.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/ssl.hpp>
#include <boost/asio/write.hpp>

namespace Bench {

namespace {

namespace net = boost::asio;
using net::ip::tcp;
using Clock = std::chrono::steady_clock;

/// What all connections share.
struct Load {
    const std::vector<std::string>& requests;
    Clock::time_point counted;
    Clock::time_point end;
    std::vector<float> times;  ///< in milliseconds
    std::size_t bytes = 0;
    std::size_t answered = 0;
};

void Connect(tcp::socket& socket, std::uint16_t port) {
    socket.connect({net::ip::address_v4::loopback(), port});
    socket.set_option(tcp::no_delay(true));
}

void Connect(net::ssl::stream<tcp::socket>& stream, std::uint16_t port) {
    Connect(stream.next_layer(), port);
    stream.handshake(net::ssl::stream_base::client);
}

/// One connection. Reads heads by hand: a client that parses more would take the server's processor.
template <class Stream>
class Connection {
  public:
    template <class... Args>
    Connection(std::uint16_t port, Load& load, std::size_t first, Args&&... args)
        : socket_(std::forward<Args>(args)...), load_(load), next_(first) {
        Connect(socket_, port);
        Send();
    }

  private:
    void Send() {
        begun_ = Clock::now();
        if (begun_ >= load_.end) {
            return;
        }
        have_ = 0;
        const std::string& request = load_.requests[next_++ % load_.requests.size()];
        net::async_write(socket_, net::buffer(request),
                         [this](boost::system::error_code failed, std::size_t) {
                             if (failed) {
                                 throw boost::system::system_error(failed);
                             }
                             Read();
                         });
    }
    void Read() {
        socket_.async_read_some(net::buffer(buffer_.data() + have_, buffer_.size() - have_),
                                [this](boost::system::error_code failed, std::size_t count) {
                                    if (failed) {
                                        throw boost::system::system_error(failed);
                                    }
                                    have_ += count;
                                    Take();
                                });
    }
    void Take() {
        const std::string_view text(buffer_.data(), have_);
        const std::size_t head = text.find("\r\n\r\n");
        if (head == std::string_view::npos) {
            return Read();
        }
        if (!text.starts_with("HTTP/1.1 200")) {
            throw std::runtime_error(std::string(text.substr(0, head)));
        }
        constexpr std::string_view kLength = "Content-Length: ";
        const std::size_t place = text.find(kLength);
        std::size_t length = 0;
        std::from_chars(text.data() + place + kLength.size(), text.data() + head, length);
        if (have_ < head + 4 + length) {
            return Read();
        }
        constexpr std::string_view kRefusal = "{\"eid\":";
        const std::size_t refusal = text.find(kRefusal, head);
        if (refusal != std::string_view::npos && text[refusal + kRefusal.size()] != '0') {
            throw std::runtime_error(std::string(text.substr(refusal)));
        }
        const Clock::time_point now = Clock::now();
        ++load_.answered;
        if (now >= load_.counted) {
            load_.times.push_back(std::chrono::duration<float, std::milli>(now - begun_).count());
            load_.bytes += length;
        }
        Send();
    }

    Stream socket_;
    Load& load_;
    std::size_t next_;
    std::size_t have_ = 0;
    Clock::time_point begun_;
    std::array<char, 65536> buffer_{};
};

}  // namespace

LoadResult RunLoad(std::uint16_t port, const std::vector<std::string>& requests, int connections,
                   std::chrono::milliseconds time, Speech speech) {
    net::io_context io(1);
    net::ssl::context tls(net::ssl::context::tls_client);
    std::vector<std::unique_ptr<Connection<tcp::socket>>> plain;
    std::vector<std::unique_ptr<Connection<net::ssl::stream<tcp::socket>>>> secret;
    const Clock::time_point begin = Clock::now();
    Load load{requests, begin + time / 4, begin + time, {}, 0, 0};
    load.times.reserve(4'000'000);
    for (int i = 0; i < connections; ++i) {
        const auto first = static_cast<std::size_t>(i);
        if (speech == Speech::Plain) {
            plain.push_back(std::make_unique<Connection<tcp::socket>>(port, load, first, io));
        } else {
            secret.push_back(
                std::make_unique<Connection<net::ssl::stream<tcp::socket>>>(port, load, first, io, tls));
        }
    }
    io.run();
    if (load.times.empty()) {
        throw std::runtime_error("no reply in time");
    }
    std::sort(load.times.begin(), load.times.end());
    const auto at = [&](double part) {
        return static_cast<double>(
            load.times[static_cast<std::size_t>(part * static_cast<double>(load.times.size() - 1))]);
    };
    const double seconds = std::chrono::duration<double>(load.end - load.counted).count();
    return {load.answered, static_cast<double>(load.times.size()) / seconds, at(0.5), at(0.99),
            load.bytes / load.times.size()};
}

}  // namespace Bench
