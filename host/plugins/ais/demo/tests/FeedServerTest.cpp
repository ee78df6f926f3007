// SPDX-License-Identifier: MIT
#include <chrono>
#include <functional>
#include <string>

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <gtest/gtest.h>

#include "host/plugins/ais/demo/FeedServer.h"

namespace Tarvik::Ais {

namespace {

namespace asio = boost::asio;
using asio::ip::tcp;

class FeedServerTest : public testing::Test {
  protected:
    tcp::socket Called() {
        tcp::socket socket(io);
        socket.connect({asio::ip::address_v4::loopback(), server.Port()});
        const std::size_t before = server.Callers();
        Until([&] { return server.Callers() > before; });
        return socket;
    }
    void Until(const std::function<bool()>& holds) {
        const auto bound = std::chrono::steady_clock::now() + std::chrono::seconds(30);
        while (!holds() && std::chrono::steady_clock::now() < bound) {
            io.restart();
            io.run_one_for(std::chrono::milliseconds(50));
        }
        EXPECT_TRUE(holds());
    }
    asio::io_context io;
    FeedServer server{io, 0};
};

TEST_F(FeedServerTest, AllCallersHearTheLines) {
    tcp::socket one = Called(), two = Called();
    server.Send("line\r\n");
    for (tcp::socket* socket : {&one, &two}) {
        Until([socket] { return socket->available() >= 6; });
    }
}

TEST_F(FeedServerTest, CallerWhoDoesNotReadHoldsUpNobody) {
    tcp::socket deaf = Called(), hears = Called();
    std::size_t heard = 0, sent = 0;
    const std::string block(100'000, 'x');
    std::string buffer(1 << 20, ' ');
    for (int i = 0; i < 200; ++i) {
        server.Send(block);
        sent += block.size();
        Until([&] {
            if (hears.available() > 0) {
                heard += hears.read_some(asio::buffer(buffer));
            }
            return heard == sent;
        });
    }
    EXPECT_EQ(server.Callers(), 2U);
}

TEST_F(FeedServerTest, CallerWhoGoesIsForgotten) {
    { const tcp::socket gone = Called(); }
    Until([this] {
        server.Send("line\r\n");
        return server.Callers() == 0;
    });
}

}  // namespace
}  // namespace Tarvik::Ais
