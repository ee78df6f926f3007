// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <utility>

#include <boost/asio/associated_executor.hpp>
#include <boost/asio/async_result.hpp>
#include <boost/asio/awaitable.hpp>
#include <boost/asio/execution/outstanding_work.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/prefer.hpp>
#include <boost/asio/thread_pool.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/beast/http/message.hpp>
#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/string_body.hpp>

#include "host/server/net/http/HttpService.h"

/// What the server holds against every request, whatever it carries.
namespace Tarvik::Server {

using RequestParser = boost::beast::http::request_parser<boost::beast::http::string_body>;
using HttpResponse = boost::beast::http::response<boost::beast::http::string_body>;

/// Most bytes of a head.
inline constexpr std::size_t kMostHeadBytes = 16U * 1024;
/// Most bytes that are kept before they are understood: a head, the extension of a chunk, a trailer.
inline constexpr std::size_t kMostUnreadBytes = 32U * 1024;
/// Most bytes of a body whose sender is not known yet.
inline constexpr std::size_t kMostStrangersBytes = 64U * 1024;

/// Most bytes that a body in chunks may take on the wire: what frames the chunks is not worth more than that.
constexpr std::size_t MostChunkedBytes(std::size_t bodyLimit) {
    return bodyLimit + bodyLimit / 4 + kMostUnreadBytes;
}

/// The request as far as its head tells it.
HttpRequest HeadOf(const RequestParser& parser, const std::string& address);

/// Whether the head says in one way only where its body ends: a `Transfer-Encoding` is one "chunked".
bool HasOneFraming(const RequestParser& parser);

/// The status that a request gets which could not be read: 400, 413 or 431; 408 when it was too slow, and 0
/// when the peer is gone. The last two are not sent.
int StatusOfFailure(const boost::system::error_code& failed);

/// A reply {"error":"…"} with the words that belong to a status of StatusOfFailure, or 503.
HttpReply PlainReply(int status);

/// The reply as it goes out; without its body when the request was a HEAD.
HttpResponse ResponseOf(const HttpRequest& request, HttpReply reply, bool stay);

/// Runs the work on the threads and gives what it gives to the thread that asked, which need not wait again
/// behind what else waits for the threads.
template <class Work, class Result = std::invoke_result_t<Work&>>
boost::asio::awaitable<Result> RunOn(boost::asio::thread_pool& threads, Work work) {
    namespace net = boost::asio;
    auto begin = [&threads, work = std::move(work)](auto handler) mutable {
        // The thread that asked has something to wait for as long as the work lasts.
        auto back =
            net::prefer(net::get_associated_executor(handler), net::execution::outstanding_work.tracked);
        net::post(threads, [back, work = std::move(work), handler = std::move(handler)]() mutable {
            Result result{};
            std::exception_ptr failed;
            try {
                result = work();
            } catch (...) {
                failed = std::current_exception();
            }
            net::post(back, [failed, result = std::move(result), handler = std::move(handler)]() mutable {
                std::move(handler)(failed, std::move(result));
            });
        });
    };
    return net::async_initiate<const net::use_awaitable_t<>, void(std::exception_ptr, Result)>(
        std::move(begin), net::use_awaitable);
}

}  // namespace Tarvik::Server
