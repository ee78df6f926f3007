// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>

#include <boost/asio/awaitable.hpp>
#include <boost/asio/co_spawn.hpp>
#include <boost/asio/redirect_error.hpp>
#include <boost/asio/ssl.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>
#include <boost/beast/ssl.hpp>

#include "host/server/net/http/HttpHost.h"

namespace Tarvik::Server {

using PlainStream = boost::beast::tcp_stream;
using TlsStream = boost::beast::ssl_stream<boost::beast::tcp_stream>;

/// One connection from its first byte to its last. Lives on the thread that reads and writes.
template <class Stream>
class HttpConnection : public OpenConnection, public std::enable_shared_from_this<HttpConnection<Stream>> {
  public:
    HttpConnection(std::shared_ptr<HttpHost> host, Stream stream, std::string address)
        : owner_(std::move(host)), host_(*owner_), stream_(std::move(stream)), address_(std::move(address)) {
        host_.Add(this);
    }
    ~HttpConnection() override { host_.Remove(this); }
    HttpConnection(const HttpConnection&) = delete;
    HttpConnection& operator=(const HttpConnection&) = delete;

    void StopIfIdle() override {
        if (idle_) {
            Tcp().cancel();
        }
    }

    boost::asio::awaitable<void> Serve() {
        const auto self = this->shared_from_this();
        try {
            co_await Handshake();
            bool open = true;
            while (open) {
                open = co_await ServeOne();
            }
            co_await Finish();
        } catch (const std::exception&) {
            // The peer is gone or too slow, or the server stops: nothing is left to be said to it.
            boost::system::error_code ignored;
            Tcp().socket().close(ignored);
        }
    }

  private:
    using Parser = boost::beast::http::request_parser<boost::beast::http::string_body>;
    static constexpr bool kTls = std::is_same_v<Stream, TlsStream>;
    static constexpr auto kAwait = boost::asio::use_awaitable;

    boost::beast::tcp_stream& Tcp() { return boost::beast::get_lowest_layer(stream_); }
    void Allow(std::chrono::milliseconds time) { Tcp().expires_after(time); }

    boost::asio::awaitable<void> Handshake() {
        if constexpr (kTls) {
            Allow(host_.Limits().request);
            co_await stream_.async_handshake(boost::asio::ssl::stream_base::server, kAwait);
        }
        co_return;
    }

    /// Reads and answers one request; false when the connection is to end.
    boost::asio::awaitable<bool> ServeOne() {
        if (!co_await WaitForRequest()) {
            co_return false;
        }
        Allow(host_.Limits().request);
        Parser parser;
        parser.header_limit(16 * 1024);
        parser.body_limit(boost::none);
        boost::system::error_code failed;
        co_await boost::beast::http::async_read_header(stream_, buffer_, parser,
                                                       boost::asio::redirect_error(kAwait, failed));
        HttpRequest request = HeadOf(parser);
        if (failed) {
            co_return co_await GiveUp(request, failed);
        }
        if (auto refusal = host_.Service().RefuseHead(request)) {
            co_return co_await Refuse(request, std::move(*refusal), parser);
        }
        const std::uint64_t limit = host_.Service().BodyLimit(request);
        parser.body_limit(limit);
        const auto announced = parser.content_length();
        if (announced && *announced > limit) {
            co_return co_await TooLarge(request);
        }
        if (parser.get()[boost::beast::http::field::expect] == "100-continue") {
            co_await SayContinue();
        }
        co_await boost::beast::http::async_read(stream_, buffer_, parser,
                                                boost::asio::redirect_error(kAwait, failed));
        if (failed) {
            co_return co_await GiveUp(request, failed);
        }
        request.body = std::move(parser.get().body());
        HttpReply reply = co_await Answer(request);
        co_return co_await Send(request, std::move(reply), parser.get().keep_alive());
    }

    /// False when the peer has closed or the server stops before a byte of a request has come.
    boost::asio::awaitable<bool> WaitForRequest() {
        if (buffer_.size() > 0) {
            co_return true;
        }
        if (host_.Stopping()) {
            co_return false;
        }
        idle_ = true;
        Allow(host_.Limits().idle);
        boost::system::error_code failed;
        const std::size_t count = co_await stream_.async_read_some(
            buffer_.prepare(4096), boost::asio::redirect_error(kAwait, failed));
        buffer_.commit(count);
        idle_ = false;
        co_return !failed;
    }

    HttpRequest HeadOf(const Parser& parser) const {
        const auto& head = parser.get();
        HttpRequest request;
        request.method = std::string(head.method_string());
        request.target = std::string(head.target());
        request.authorization = std::string(head[boost::beast::http::field::authorization]);
        request.address = address_;
        return request;
    }

    boost::asio::awaitable<void> SayContinue() {
        boost::beast::http::response<boost::beast::http::empty_body> go(boost::beast::http::status::continue_,
                                                                        11);
        co_await boost::beast::http::async_write(stream_, go, kAwait);
    }

    boost::asio::awaitable<HttpReply> Answer(const HttpRequest& request) {
        const Lane lane = host_.Service().LaneOf(request);
        if (lane == Lane::Inline) {
            co_return host_.Service().Answer(request);
        }
        HttpPool& pool = host_.Pool(lane);
        if (pool.pending >= host_.Limits().queue) {
            host_.Service().Refused(request, 503);
            co_return Plain(503, "the server is busy", {{"Retry-After", "1"}});
        }
        ++pool.pending;
        // The time for reading is over; nothing is read or written while the pool works.
        Tcp().expires_never();
        auto work = [this, &request]() -> boost::asio::awaitable<HttpReply> {
            co_return host_.Service().Answer(request);
        };
        std::exception_ptr failed;
        HttpReply reply;
        try {
            reply = co_await boost::asio::co_spawn(pool.threads, std::move(work), kAwait);
        } catch (...) {
            failed = std::current_exception();
        }
        --pool.pending;
        if (failed) {
            std::rethrow_exception(failed);
        }
        co_return reply;
    }

    static HttpReply Plain(int status, const std::string& reason,
                           std::vector<std::pair<std::string, std::string>> fields = {}) {
        return {status, "application/json", "{\"error\":\"" + reason + "\"}", std::move(fields)};
    }

    /// A head that the service refuses: the connection can stay only when no body follows.
    boost::asio::awaitable<bool> Refuse(const HttpRequest& request, HttpReply reply, const Parser& parser) {
        host_.Service().Refused(request, reply.status);
        const bool bare = !parser.chunked() && parser.content_length().value_or(0) == 0;
        co_return co_await Send(request, std::move(reply), bare && parser.get().keep_alive());
    }

    boost::asio::awaitable<bool> TooLarge(const HttpRequest& request) {
        host_.Service().Refused(request, 413);
        co_return co_await Send(request, Plain(413, "the request is too large"), false);
    }

    /// A request that could not be read. What does not speak HTTP is told so; who is gone or too slow is not.
    boost::asio::awaitable<bool> GiveUp(const HttpRequest& request, boost::system::error_code failed) {
        namespace http = boost::beast::http;
        if (failed == http::error::body_limit) {
            co_return co_await TooLarge(request);
        }
        if (failed == boost::beast::error::timeout) {
            host_.Service().Refused(request, 408);
        }
        const bool spoken = failed.category() == http::make_error_code(http::error::bad_version).category() &&
                            failed != http::error::end_of_stream && failed != http::error::partial_message;
        if (!spoken) {
            throw boost::system::system_error(failed);
        }
        const bool longHead = failed == http::error::header_limit;
        const int status = longHead ? 431 : 400;
        host_.Service().Refused(request, status);
        co_return co_await Send(
            request, Plain(status, longHead ? "the head is too long" : "the request is malformed"), false);
    }

    boost::asio::awaitable<bool> Send(const HttpRequest& request, HttpReply reply, bool keep) {
        namespace http = boost::beast::http;
        http::response<http::string_body> response;
        response.version(11);
        response.result(static_cast<unsigned>(reply.status));
        response.set(http::field::content_type, reply.contentType);
        response.set(http::field::cache_control, "no-store");
        for (const auto& [name, value] : reply.fields) {
            response.set(name, value);
        }
        if (request.method != "HEAD") {
            response.body() = std::move(reply.body);
        }
        const bool stay = keep && !host_.Stopping();
        response.keep_alive(stay);
        response.prepare_payload();
        Allow(host_.Limits().request);
        co_await http::async_write(stream_, response, kAwait);
        co_return stay;
    }

    /// Says goodbye and takes what the peer still sends, so that it sees the reply and no reset.
    boost::asio::awaitable<void> Finish() {
        constexpr std::size_t kMostUnread = 64U * 1024 * 1024;
        boost::system::error_code failed;
        Allow(host_.Limits().request);
        if constexpr (kTls) {
            co_await stream_.async_shutdown(boost::asio::redirect_error(kAwait, failed));
        }
        Tcp().socket().shutdown(boost::asio::ip::tcp::socket::shutdown_send, failed);
        idle_ = true;
        if (host_.Stopping()) {
            co_return;
        }
        std::string unread(16 * 1024, '\0');
        std::size_t total = 0;
        while (!failed && total < kMostUnread) {
            total += co_await Tcp().async_read_some(boost::asio::buffer(unread),
                                                    boost::asio::redirect_error(kAwait, failed));
        }
    }

    std::shared_ptr<HttpHost> owner_;
    HttpHost& host_;
    Stream stream_;
    std::string address_;
    boost::beast::flat_buffer buffer_;
    bool idle_ = false;
};

}  // namespace Tarvik::Server
