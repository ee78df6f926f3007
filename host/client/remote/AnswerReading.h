// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>

#include <boost/asio/awaitable.hpp>
#include <boost/asio/redirect_error.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>

/// How the client takes a server's answer: in pieces, and never more than it has room for.
namespace Tarvik::Client {

/// The longest body of an answer; what an answer has beside its body has as much room again.
inline constexpr std::uint64_t kMostBodyBytes = 64U * 1024 * 1024;
/// The most that is kept of an answer before it makes sense: a head, a line of a chunk, a trailer.
inline constexpr std::size_t kMostUnreadBytes = 16U * 1024;
inline constexpr const char* kTooLong = "its answer is longer than Seaplan reads";

using AnswerParser = boost::beast::http::response_parser<boost::beast::http::string_body>;

/// Takes what has come; false when there is more to come. Throws when it cannot be the beginning of an
/// answer.
inline bool TakeArrived(boost::beast::flat_buffer& buffer, AnswerParser& parser) {
    boost::system::error_code failed;
    if (buffer.size() > 0) {
        buffer.consume(parser.put(buffer.data(), failed));
    }
    if (failed && failed != boost::beast::http::error::need_more) {
        throw boost::system::system_error(failed);
    }
    if (!parser.is_done() && buffer.size() >= kMostUnreadBytes) {
        throw std::runtime_error(kTooLong);
    }
    return parser.is_done();
}

/// Reads one answer in pieces. The library's own reading keeps a chunk's line and a trailer of any length,
/// and throws out of its operation, past the coroutine, when a field of the trailer is too long for it.
template <class Stream>
boost::asio::awaitable<void> ReadAnswer(Stream& stream, boost::beast::flat_buffer& buffer,
                                        AnswerParser& parser) {
    parser.eager(true);
    parser.body_limit(kMostBodyBytes);
    std::uint64_t received = buffer.size();
    while (!TakeArrived(buffer, parser)) {
        boost::system::error_code ended;
        const auto piece = buffer.prepare(kMostUnreadBytes - buffer.size());
        const std::size_t arrived = co_await stream.async_read_some(
            piece, boost::asio::redirect_error(boost::asio::use_awaitable, ended));
        buffer.commit(arrived);
        received += arrived;
        if (ended == boost::asio::error::eof && parser.got_some()) {
            ended = {};
            parser.put_eof(ended);
        }
        if (ended) {
            throw boost::system::system_error(ended);
        }
        if (received > 2 * kMostBodyBytes) {
            throw std::runtime_error(kTooLong);
        }
    }
}

}  // namespace Tarvik::Client
