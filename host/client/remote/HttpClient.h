// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "host/client/remote/CertificateFault.h"
#include "host/client/services/ServerUrl.h"

namespace Tarvik::Client {

/// What came of one request.
struct HttpAnswer {
    int status = 0;       ///< 0 when there was no answer
    std::string body;     ///< of an answer
    std::string failure;  ///< without an answer: why, in English, without a full stop
    CertificateFault certificate = CertificateFault::None;  ///< without one: what was wrong with the server's
    int retryAfterSeconds = 0;                              ///< what the server asks to wait, 0 for nothing
};

/// One kept connection to a server. A request opens it when it is not open or the server has closed it since;
/// a request that failed is not sent again. For one thread.
class HttpClient {
  public:
    /// `limit` bounds one request from looking up the name to the last byte of the answer. `caFile` names PEM
    /// certificates to trust for TLS, empty for the system's.
    HttpClient(const ServerUrl& url, std::chrono::milliseconds limit, std::string caFile);
    ~HttpClient();
    HttpClient(const HttpClient&) = delete;
    HttpClient& operator=(const HttpClient&) = delete;

    /// Sends a POST; `token` goes into an Authorization field unless it is empty. An answer with a body over
    /// 64 MiB, or with a head, a chunk's line or a trailer over some KiB, is none.
    HttpAnswer Post(const std::string& path, const std::string& contentType, const std::string& body,
                    const std::string& token);

  private:
    class Core;
    std::unique_ptr<Core> core_;
};

}  // namespace Tarvik::Client
