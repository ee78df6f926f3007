// SPDX-License-Identifier: MIT
// Links over the network and a serial line. A chain of operations holds its link and its source until the
// last one has ended.
#include <boost/asio/connect.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/ip/udp.hpp>
#include <boost/asio/serial_port.hpp>
#include <boost/asio/write.hpp>

#include "host/plugins/ais/input/LinkSource.h"

namespace Tarvik::Ais {

namespace {

namespace asio = boost::asio;
using boost::system::error_code;
using SourcePointer = std::shared_ptr<LinkSource>;

/// What a gpsd is asked for: sentences of its receivers as they came.
constexpr std::string_view kGpsdQuestion = "?WATCH={\"enable\":true,\"raw\":1};\n";

/// Hears a stream until it fails or the source has another link. `end` is what its end is called; empty for
/// the system's own words.
template <class LinkType, class Stream, class Buffer>
void ReadOn(const SourcePointer& source, LinkType& link, Stream& stream, Buffer& buffer,
            std::string_view end) {
    stream.async_read_some(asio::buffer(buffer),
                           [&link, &stream, &buffer, end, keep = link.shared_from_this(), source](
                               error_code error, std::size_t size) {
                               if (error) {
                                   const bool ended = error == asio::error::eof && !end.empty();
                                   return source->Failed(link, ended ? std::string(end) : error.message());
                               }
                               if (source->Heard(link, {buffer.data(), size})) {
                                   ReadOn(source, link, stream, buffer, end);
                               }
                           });
}

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
        ReadOn(source, *this, socket_, buffer_, "closed by the other side");
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

/// A receiver on a serial line: 8 data bits, no parity, one stop bit, as NMEA 0183 has it.
class SerialLink : public LinkSource::Link {
  public:
    SerialLink(asio::io_context& io, const InputAddress& address) : address_(address), port_(io) {}

    void Call(const SourcePointer& source) override {
        error_code error;
        port_.open(address_.place, error);
        if (!error) {
            using Port = asio::serial_port_base;
            port_.set_option(Port::baud_rate(address_.baud), error);
            error_code ignored;  // a line that is none, as a pipe of a simulator, has no such settings
            port_.set_option(Port::character_size(8), ignored);
            port_.set_option(Port::parity(Port::parity::none), ignored);
            port_.set_option(Port::stop_bits(Port::stop_bits::one), ignored);
            port_.set_option(Port::flow_control(Port::flow_control::none), ignored);
        }
        if (error) {
            return source->Failed(*this, error.message());
        }
        if (source->Opened(*this)) {
            ReadOn(source, *this, port_, buffer_, {});
        }
    }
    void Hang() override {
        error_code ignored;
        port_.close(ignored);
    }

  private:
    InputAddress address_;
    asio::serial_port port_;
    std::array<char, 4096> buffer_{};
};

}  // namespace

std::shared_ptr<LinkSource::Link> MakeTcpLink(asio::io_context& io, const InputAddress& address) {
    return std::make_shared<TcpLink>(io, address);
}

std::shared_ptr<LinkSource::Link> MakeUdpLink(asio::io_context& io, const InputAddress& address) {
    return std::make_shared<UdpLink>(io, address);
}

std::shared_ptr<LinkSource::Link> MakeSerialLink(asio::io_context& io, const InputAddress& address) {
    return std::make_shared<SerialLink>(io, address);
}

}  // namespace Tarvik::Ais
