// SPDX-License-Identifier: MIT
#include "host/client/remote/HttpClient.h"

#include <charconv>
#include <exception>
#include <optional>
#include <stdexcept>
#include <utility>

#include <boost/asio/awaitable.hpp>
#include <boost/asio/co_spawn.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ssl.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>
#include <boost/beast/ssl.hpp>

#include "host/client/remote/AnswerReading.h"
#include "host/client/remote/HostLookup.h"

namespace Tarvik::Client {

namespace {

namespace net = boost::asio;
namespace beast = boost::beast;
namespace http = boost::beast::http;

using Deadline = std::chrono::steady_clock::time_point;
using Request = http::request<http::string_body>;

/// What a person is told of a failed step.
std::string WordsOf(const boost::system::error_code& failed) {
    if (failed == beast::error::timeout) {
        return "the time limit is over";
    }
    return failed == http::error::body_limit || failed == http::error::header_limit ? kTooLong
                                                                                    : failed.message();
}

}  // namespace

/// Everything that needs the network library, kept out of the header.
class HttpClient::Core {
  public:
    Core(const ServerUrl& url, std::chrono::milliseconds limit, std::string caFile)
        : url_(url), limit_(limit), caFile_(std::move(caFile)) {}

    HttpAnswer Send(const Request& request);
    const ServerUrl& Url() const { return url_; }

  private:
    using Plain = beast::tcp_stream;
    using Tls = beast::ssl_stream<beast::tcp_stream>;

    void PrepareTls();
    bool Verify(bool good, net::ssl::verify_context& shown);
    bool IsUsable();
    void Close();
    net::awaitable<void> Talk(const Request& request, AnswerParser& parser, Deadline deadline);
    net::awaitable<void> Connect(Deadline deadline);
    beast::tcp_stream& Tcp() { return plain_ ? *plain_ : beast::get_lowest_layer(*tls_); }

    ServerUrl url_;
    std::chrono::milliseconds limit_;
    std::string caFile_;
    CertificateFault certificate_ = CertificateFault::None;  ///< of the connection that is made
    net::io_context io_{1};
    std::optional<net::ssl::context> context_;
    std::optional<Plain> plain_;
    std::optional<Tls> tls_;
    beast::flat_buffer buffer_;
};

/// Made at the first use, since reading the system's certificates takes time.
void HttpClient::Core::PrepareTls() {
    if (context_) {
        return;
    }
    net::ssl::context context(net::ssl::context::tls_client);
    boost::system::error_code failed;
    context.set_verify_mode(net::ssl::verify_peer);
    context.set_verify_callback(
        [this](bool good, net::ssl::verify_context& shown) { return Verify(good, shown); });
    if (caFile_.empty()) {
        context.set_default_verify_paths(failed);
    } else {
        context.load_verify_file(caFile_, failed);
    }
    if (failed) {
        throw std::runtime_error("the trusted certificates " + caFile_ + " cannot be read");
    }
    context_.emplace(std::move(context));
}

/// Whether a certificate of the chain is taken: the library's judgement, and the host's name at the end of
/// it. Keeps the first fault.
bool HttpClient::Core::Verify(bool good, net::ssl::verify_context& shown) {
    const int error = X509_STORE_CTX_get_error(shown.native_handle());
    CertificateFault fault = CertificateFault::None;
    if (!good) {
        fault = FaultOfVerification(error);
    } else if (!net::ssl::host_name_verification(url_.host)(good, shown)) {
        fault = CertificateFault::OtherHost;
    }
    if (certificate_ == CertificateFault::None) {
        certificate_ = fault;
    }
    return fault == CertificateFault::None;
}

/// Between two requests a server has nothing to say: anything to be read is the end of the connection.
bool HttpClient::Core::IsUsable() {
    if (!plain_ && !tls_) {
        return false;
    }
    if (!Tcp().socket().is_open() || buffer_.size() > 0) {
        return false;
    }
    char byte = 0;
    boost::system::error_code state;
    Tcp().socket().non_blocking(true, state);
    Tcp().socket().receive(net::buffer(&byte, 1), net::socket_base::message_peek, state);
    return state == net::error::would_block;
}

void HttpClient::Core::Close() {
    plain_.reset();
    tls_.reset();
    buffer_.clear();
}

net::awaitable<void> HttpClient::Core::Connect(Deadline deadline) {
    std::string error;
    const auto endpoints = LookUpHost(url_.host, url_.port, deadline, error);
    if (endpoints.empty()) {
        throw std::runtime_error(error);
    }
    if (url_.tls) {
        certificate_ = CertificateFault::None;
        PrepareTls();
        tls_.emplace(io_, *context_);
        boost::system::error_code named;
        net::ip::make_address(url_.host, named);
        if (named) {
            SSL_set_tlsext_host_name(tls_->native_handle(), url_.host.c_str());
        }
    } else {
        plain_.emplace(io_);
    }
    Tcp().expires_at(deadline);
    co_await Tcp().async_connect(endpoints, net::use_awaitable);
    Tcp().socket().set_option(net::ip::tcp::no_delay(true));
    if (tls_) {
        co_await tls_->async_handshake(net::ssl::stream_base::client, net::use_awaitable);
    }
}

net::awaitable<void> HttpClient::Core::Talk(const Request& request, AnswerParser& parser, Deadline deadline) {
    if (!IsUsable()) {
        Close();
        co_await Connect(deadline);
    }
    Tcp().expires_at(deadline);
    if (tls_) {
        co_await http::async_write(*tls_, request, net::use_awaitable);
        co_await ReadAnswer(*tls_, buffer_, parser);
    } else {
        co_await http::async_write(*plain_, request, net::use_awaitable);
        co_await ReadAnswer(*plain_, buffer_, parser);
    }
    Tcp().expires_never();
    if (!parser.get().keep_alive()) {
        Close();
    }
}

/// Never throws for what the server or the network does.
HttpAnswer HttpClient::Core::Send(const Request& request) {
    const Deadline deadline = std::chrono::steady_clock::now() + limit_;
    HttpAnswer answer;
    AnswerParser parser;
    std::exception_ptr failed;
    try {
        io_.restart();
        net::co_spawn(io_, Talk(request, parser, deadline),
                      [&failed](std::exception_ptr thrown) { failed = std::move(thrown); });
        io_.run();
        if (failed) {
            std::rethrow_exception(failed);
        }
        answer.status = static_cast<int>(parser.get().result_int());
        const auto wait = parser.get()[http::field::retry_after];
        std::from_chars(wait.data(), wait.data() + wait.size(), answer.retryAfterSeconds);
        answer.body = std::move(parser.get().body());
    } catch (const boost::system::system_error& error) {
        answer.failure = WordsOf(error.code());
        answer.certificate = certificate_;
        Close();
    } catch (const std::exception& error) {
        answer.failure = error.what();
        Close();
    }
    return answer;
}

HttpClient::HttpClient(const ServerUrl& url, std::chrono::milliseconds limit, std::string caFile)
    : core_(std::make_unique<Core>(url, limit, std::move(caFile))) {}

HttpClient::~HttpClient() = default;

HttpAnswer HttpClient::Post(const std::string& path, const std::string& contentType, const std::string& body,
                            const std::string& token) {
    Request request(http::verb::post, path, 11);
    request.set(http::field::host, core_->Url().HostField());
    request.set(http::field::content_type, contentType);
    if (!token.empty()) {
        request.set(http::field::authorization, "Bearer " + token);
    }
    request.body() = body;
    request.prepare_payload();
    return core_->Send(request);
}

}  // namespace Tarvik::Client
