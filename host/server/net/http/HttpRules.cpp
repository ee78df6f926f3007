// SPDX-License-Identifier: MIT
#include "host/server/net/http/HttpRules.h"

#include <iterator>

#include <boost/beast/core/error.hpp>
#include <boost/beast/core/string.hpp>
#include <boost/beast/http/error.hpp>

namespace Tarvik::Server {

namespace http = boost::beast::http;

HttpRequest HeadOf(const RequestParser& parser, const std::string& address) {
    const auto& head = parser.get();
    HttpRequest request;
    request.method = std::string(head.method_string());
    request.target = std::string(head.target());
    request.authorization = std::string(head[http::field::authorization]);
    request.address = address;
    return request;
}

bool HasOneFraming(const RequestParser& parser) {
    const auto [first, last] = parser.get().equal_range(http::field::transfer_encoding);
    if (first == last) {
        return true;
    }
    return std::next(first) == last && boost::beast::iequals(first->value(), "chunked");
}

int StatusOfFailure(const boost::system::error_code& failed) {
    if (failed == http::error::body_limit) {
        return 413;
    }
    if (failed == http::error::header_limit || failed == http::error::buffer_overflow) {
        return 431;
    }
    if (failed == boost::beast::error::timeout) {
        return 408;
    }
    const bool spoken = failed.category() == http::make_error_code(http::error::bad_version).category() &&
                        failed != http::error::end_of_stream && failed != http::error::partial_message;
    return spoken ? 400 : 0;
}

HttpReply PlainReply(int status) {
    const auto say = [status](const char* text) {
        return HttpReply{status, "application/json", std::string("{\"error\":\"") + text + "\"}", {}};
    };
    switch (status) {
        case 413:
            return say("the request is too large");
        case 431:
            return say("the head, an extension or the trailer is too long");
        case 503: {
            HttpReply busy = say("the server is busy");
            busy.fields.emplace_back("Retry-After", "1");
            return busy;
        }
        default:
            return say("the request is malformed");
    }
}

HttpResponse ResponseOf(const HttpRequest& request, HttpReply reply, bool stay) {
    HttpResponse response;
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
    response.keep_alive(stay);
    response.prepare_payload();
    return response;
}

}  // namespace Tarvik::Server
