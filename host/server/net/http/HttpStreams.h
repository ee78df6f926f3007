// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <type_traits>

#include <boost/asio/redirect_error.hpp>
#include <boost/asio/ssl.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/ssl.hpp>

/// The two kinds of stream that a connection may have, with what differs between them.
namespace Tarvik::Server {

using PlainStream = boost::beast::tcp_stream;
using TlsStream = boost::beast::ssl_stream<boost::beast::tcp_stream>;

template <class Stream>
boost::asio::awaitable<void> ShakeHands(Stream& stream) {
    if constexpr (std::is_same_v<Stream, TlsStream>) {
        co_await stream.async_handshake(boost::asio::ssl::stream_base::server, boost::asio::use_awaitable);
    }
    co_return;
}

/// Tells the peer that nothing more is sent.
template <class Stream>
boost::asio::awaitable<void> SayGoodbye(Stream& stream) {
    boost::system::error_code ignored;
    if constexpr (std::is_same_v<Stream, TlsStream>) {
        co_await stream.async_shutdown(boost::asio::redirect_error(boost::asio::use_awaitable, ignored));
    }
    boost::beast::get_lowest_layer(stream).socket().shutdown(boost::asio::ip::tcp::socket::shutdown_send,
                                                             ignored);
    co_return;
}

/// Takes and drops what the peer still sends, until it ends or its time is over.
inline boost::asio::awaitable<void> DropRest(boost::beast::tcp_stream& stream) {
    constexpr std::size_t kMostDropped = 64U * 1024 * 1024;
    std::string unread(16 * 1024, '\0');
    boost::system::error_code failed;
    std::size_t total = 0;
    while (!failed && total < kMostDropped) {
        total += co_await stream.async_read_some(
            boost::asio::buffer(unread), boost::asio::redirect_error(boost::asio::use_awaitable, failed));
    }
}

}  // namespace Tarvik::Server
