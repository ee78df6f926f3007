// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>

#include <boost/asio/redirect_error.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>

#include "host/server/net/http/HttpHost.h"
#include "host/server/net/http/HttpRules.h"
#include "host/server/net/http/HttpStreams.h"

namespace Tarvik::Server {

/// One connection from its first byte to its last. Lives on the thread that reads and writes. What it keeps
/// of a peer who is not known is bounded: a buffer, a head, and kMostStrangersBytes of a body.
template <class Stream>
class HttpConnection : public OpenConnection, public std::enable_shared_from_this<HttpConnection<Stream>> {
  public:
    HttpConnection(std::shared_ptr<HttpHost> host, Stream stream, std::string address)
        : owner_(std::move(host)), host_(*owner_), stream_(std::move(stream)), address_(std::move(address)) {
        host_.Add(this, address_);
    }
    ~HttpConnection() override { host_.Remove(this, address_); }
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
            Allow(host_.Limits().request);
            co_await ShakeHands(stream_);
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
    static constexpr auto kAwait = boost::asio::use_awaitable;

    boost::beast::tcp_stream& Tcp() { return boost::beast::get_lowest_layer(stream_); }
    void Allow(std::chrono::milliseconds time) { Tcp().expires_after(time); }

    /// Reads and answers one request; false when the connection is to end.
    boost::asio::awaitable<bool> ServeOne() {
        if (!co_await WaitForRequest()) {
            co_return false;
        }
        Allow(host_.Limits().request);
        RequestParser parser;
        parser.header_limit(kMostHeadBytes);
        parser.body_limit(boost::none);
        boost::system::error_code failed;
        co_await boost::beast::http::async_read_header(stream_, buffer_, parser,
                                                       boost::asio::redirect_error(kAwait, failed));
        HttpRequest request = HeadOf(parser, address_);
        if (failed) {
            co_return co_await GiveUp(request, StatusOfFailure(failed), failed);
        }
        if (auto refusal = co_await RefusalOf(request, parser)) {
            co_return co_await Refuse(request, std::move(*refusal), parser);
        }
        if (parser.get()[boost::beast::http::field::expect] == "100-continue") {
            co_await SayContinue();
        }
        co_await ReadBody(parser, host_.Service().BodyLimit(request), failed);
        if (failed) {
            co_return co_await GiveUp(request, StatusOfFailure(failed), failed);
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

    /// What speaks against reading the body: the head, the announced size, or a sender whom nobody knows.
    boost::asio::awaitable<std::optional<HttpReply>> RefusalOf(const HttpRequest& request,
                                                               RequestParser& parser) {
        if (!HasOneFraming(parser)) {
            co_return PlainReply(400);
        }
        if (auto refusal = host_.Service().RefuseHead(request)) {
            co_return refusal;
        }
        const std::uint64_t limit = host_.Service().BodyLimit(request);
        parser.body_limit(limit);
        const std::uint64_t size = parser.chunked() ? limit : parser.content_length().value_or(0);
        if (size > limit) {
            co_return PlainReply(413);
        }
        if (size <= kMostStrangersBytes) {
            co_return std::nullopt;
        }
        // By name: the compiler would copy a list in the call bit by bit.
        Place place{Lane::Read, {}};
        auto known = co_await InLane(std::move(place),
                                     [this, &request] { return host_.Service().RefuseLarge(request); });
        Allow(host_.Limits().request);
        co_return known ? std::move(*known) : PlainReply(503);
    }

    boost::asio::awaitable<void> SayContinue() {
        boost::beast::http::response<boost::beast::http::empty_body> go(boost::beast::http::status::continue_,
                                                                        11);
        co_await boost::beast::http::async_write(stream_, go, kAwait);
    }

    boost::asio::awaitable<void> ReadBody(RequestParser& parser, std::uint64_t limit,
                                          boost::system::error_code& failed) {
        if (!parser.chunked()) {
            co_await boost::beast::http::async_read(stream_, buffer_, parser,
                                                    boost::asio::redirect_error(kAwait, failed));
            co_return;
        }
        const std::size_t most = MostChunkedBytes(limit);
        std::size_t total = 0;
        while (!failed && !parser.is_done()) {
            total += co_await boost::beast::http::async_read_some(
                stream_, buffer_, parser, boost::asio::redirect_error(kAwait, failed));
            if (!failed && total > most) {
                failed = boost::beast::http::error::body_limit;
            }
        }
    }

    boost::asio::awaitable<HttpReply> Answer(const HttpRequest& request) {
        Place place = host_.Service().PlaceOf(request);
        if (place.lane == Lane::Inline) {
            co_return host_.Service().Answer(request);
        }
        auto reply =
            co_await InLane(std::move(place), [this, &request] { return host_.Service().Answer(request); });
        if (!reply) {
            host_.Service().Refused(request, 503);
            co_return PlainReply(503);
        }
        co_return std::move(*reply);
    }

    /// What the work gives, done by the threads of the place's lane; nothing when too much waits there.
    template <class Work, class Result = std::invoke_result_t<Work&>>
    boost::asio::awaitable<std::optional<Result>> InLane(Place place, Work work) {
        HttpLane& lane = host_.LaneOf(place.lane);
        if (host_.Pending() >= host_.Limits().queue) {
            co_return std::nullopt;
        }
        // The time for reading is over; nothing is read or written while the threads work.
        Tcp().expires_never();
        LaneStay stay(lane, host_.Pending());
        if (lane.line) {
            stay.hasTurn = co_await lane.line->Enter(std::move(place.turn));
            if (!stay.hasTurn) {
                co_return std::nullopt;
            }
        }
        co_return co_await RunOn(*lane.threads, std::move(work));
    }

    /// A head that is refused: the connection can stay only when no body follows.
    boost::asio::awaitable<bool> Refuse(const HttpRequest& request, HttpReply reply,
                                        const RequestParser& parser) {
        host_.Service().Refused(request, reply.status);
        const bool bare =
            HasOneFraming(parser) && !parser.chunked() && parser.content_length().value_or(0) == 0;
        co_return co_await Send(request, std::move(reply), bare && parser.get().keep_alive());
    }

    /// A request that could not be read. What does not speak HTTP is told so; who is gone or too slow is not.
    boost::asio::awaitable<bool> GiveUp(const HttpRequest& request, int status,
                                        boost::system::error_code failed) {
        if (status != 0) {
            host_.Service().Refused(request, status);
        }
        if (status == 0 || status == 408) {
            throw boost::system::system_error(failed);
        }
        co_return co_await Send(request, PlainReply(status), false);
    }

    boost::asio::awaitable<bool> Send(const HttpRequest& request, HttpReply reply, bool keep) {
        const bool stay = keep && !host_.Stopping();
        const HttpResponse response = ResponseOf(request, std::move(reply), stay);
        Allow(host_.Limits().request);
        co_await boost::beast::http::async_write(stream_, response, kAwait);
        co_return stay;
    }

    /// Says goodbye and takes what the peer still sends, so that it sees the reply and no reset.
    boost::asio::awaitable<void> Finish() {
        Allow(host_.Limits().request);
        co_await SayGoodbye(stream_);
        idle_ = true;
        if (!host_.Stopping()) {
            co_await DropRest(Tcp());
        }
    }

    std::shared_ptr<HttpHost> owner_;
    HttpHost& host_;
    Stream stream_;
    std::string address_;
    boost::beast::flat_buffer buffer_{kMostUnreadBytes};
    bool idle_ = false;
};

}  // namespace Tarvik::Server
