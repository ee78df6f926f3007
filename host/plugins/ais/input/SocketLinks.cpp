// SPDX-License-Identifier: MIT
// Links over the network. A chain of operations holds its link and its source until the last one has ended.
#include <boost/asio/connect.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/ip/udp.hpp>
#include <boost/asio/write.hpp>

#include "host/plugins/ais/input/LinkSource.h"

namespace Tarvik::Ais {

namespace {

namespace asio = boost::asio;
using boost::system::error_code;
using SourcePointer = std::shared_ptr<LinkSource>;

/// What a gpsd is asked for: sentences of its receivers as they came.
constexpr std::string_view kGpsdQuestion = "?WATCH={\"enable\":true,\"raw\":1};\n";

class TcpLink : public LinkSource::Link {
  public:
    TcpLink(asio::io_context& io, const InputAddress& address)
        : address_(address), resolver_(io), socket_(io) {}

    void Call(const SourcePointer& source) override {
        resolver_.async_resolve(
            address_.place, std::to_string(address_.port),
            [this, keep = shared_from_this(), source](error_code error, const auto& places) {
                if (error) {
                    return source->Failed(*this, error.message());
                }
                asio::async_connect(socket_, places, [this, keep, source](error_code refused, const auto&) {
                    refused ? source->Failed(*this, refused.message()) : Begin(source);
                });
            });
    }
    void Hang() override {
        error_code ignored;
        resolver_.cancel();
        socket_.close(ignored);
    }

  private:
    void Begin(const SourcePointer& source) {
        if (!source->Opened(*this)) {
            return;
        }
        if (address_.kind == InputKind::Gpsd) {
            asio::async_write(socket_, asio::buffer(kGpsdQuestion),
                              [keep = shared_from_this()](error_code, std::size_t) {});
        }
        Read(source);
    }
    void Read(const SourcePointer& source) {
        socket_.async_read_some(asio::buffer(buffer_), [this, keep = shared_from_this(), source](
                                                           error_code error, std::size_t size) {
            if (error) {
                return source->Failed(
                    *this, error == asio::error::eof ? "closed by the other side" : error.message());
            }
            if (source->Heard(*this, {buffer_.data(), size})) {
                Read(source);
            }
        });
    }

    InputAddress address_;
    asio::ip::tcp::resolver resolver_;
    asio::ip::tcp::socket socket_;
    std::array<char, kReadSize> buffer_{};
};

/// Datagrams hold whole sentences, with or without a line end.
class UdpLink : public LinkSource::Link {
  public:
    UdpLink(asio::io_context& io, const InputAddress& address) : address_(address), socket_(io) {}

    void Call(const SourcePointer& source) override {
        error_code error;
        auto place = asio::ip::address(asio::ip::address_v4::any());
        if (!address_.place.empty()) {
            place = asio::ip::make_address(address_.place, error);
        }
        const asio::ip::udp::endpoint here(place, address_.port);
        if (!error) {
            socket_.open(here.protocol(), error);
        }
        if (!error) {
            socket_.set_option(asio::socket_base::reuse_address(true), error);
            socket_.bind(here, error);
        }
        if (error) {
            return source->Failed(*this, error.message());
        }
        if (source->Opened(*this)) {
            Read(source);
        }
    }
    void Hang() override {
        error_code ignored;
        socket_.close(ignored);
    }

  private:
    void Read(const SourcePointer& source) {
        socket_.async_receive_from(
            asio::buffer(buffer_.data(), buffer_.size() - 1), from_,
            [this, keep = shared_from_this(), source](error_code error, std::size_t size) {
                if (error) {
                    return source->Failed(*this, error.message());
                }
                if (size > 0 && buffer_[size - 1] != '\n') {
                    buffer_[size++] = '\n';
                }
                if (source->Heard(*this, {buffer_.data(), size})) {
                    Read(source);
                }
            });
    }

    InputAddress address_;
    asio::ip::udp::socket socket_;
    asio::ip::udp::endpoint from_;
    std::array<char, kReadSize + 1> buffer_{};
};

}  // namespace

std::shared_ptr<LinkSource::Link> MakeTcpLink(asio::io_context& io, const InputAddress& address) {
    return std::make_shared<TcpLink>(io, address);
}

std::shared_ptr<LinkSource::Link> MakeUdpLink(asio::io_context& io, const InputAddress& address) {
    return std::make_shared<UdpLink>(io, address);
}

}  // namespace Tarvik::Ais
