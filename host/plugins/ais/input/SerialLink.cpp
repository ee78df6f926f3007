// SPDX-License-Identifier: MIT
// A receiver on a serial line: 8 data bits, no parity, one stop bit, as NMEA 0183 has it.
#include <boost/asio/read.hpp>
#include <boost/asio/serial_port.hpp>

#include "host/plugins/ais/input/LinkSource.h"

namespace Tarvik::Ais {

namespace {

namespace asio = boost::asio;
using boost::system::error_code;

class SerialLink : public LinkSource::Link {
  public:
    SerialLink(asio::io_context& io, const InputAddress& address) : address_(address), port_(io) {}

    void Call(const std::shared_ptr<LinkSource>& source) override {
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
            Read(source);
        }
    }
    void Hang() override {
        error_code ignored;
        port_.close(ignored);
    }

  private:
    void Read(const std::shared_ptr<LinkSource>& source) {
        port_.async_read_some(asio::buffer(buffer_),
                              [this, keep = shared_from_this(), source](error_code error, std::size_t size) {
                                  if (error) {
                                      return source->Failed(*this, error.message());
                                  }
                                  if (source->Heard(*this, {buffer_.data(), size})) {
                                      Read(source);
                                  }
                              });
    }

    InputAddress address_;
    asio::serial_port port_;
    std::array<char, 4096> buffer_{};
};

}  // namespace

std::shared_ptr<LinkSource::Link> MakeSerialLink(asio::io_context& io, const InputAddress& address) {
    return std::make_shared<SerialLink>(io, address);
}

}  // namespace Tarvik::Ais
