// SPDX-License-Identifier: MIT
#include "host/server/net/http/TlsContext.h"

#include <openssl/ssl.h>

namespace Tarvik::Server {

namespace ssl = boost::asio::ssl;

std::unique_ptr<ssl::context> MakeTlsContext(const std::string& certificateFile, const std::string& keyFile,
                                             std::string& error) {
    auto context = std::make_unique<ssl::context>(ssl::context::tls_server);
    boost::system::error_code failed;
    context->set_options(ssl::context::default_workarounds | ssl::context::no_sslv2 | ssl::context::no_sslv3 |
                             ssl::context::no_tlsv1 | ssl::context::no_tlsv1_1 | SSL_OP_NO_RENEGOTIATION,
                         failed);
    if (!failed) {
        context->use_certificate_chain_file(certificateFile, failed);
    }
    if (failed) {
        error = "the certificate " + certificateFile + " cannot be used: " + failed.message();
        return nullptr;
    }
    context->use_private_key_file(keyFile, ssl::context::pem, failed);
    if (failed || SSL_CTX_check_private_key(context->native_handle()) != 1) {
        error = "the key " + keyFile + " cannot be used: " +
                (failed ? failed.message() : std::string("it does not belong to the certificate"));
        return nullptr;
    }
    return context;
}

}  // namespace Tarvik::Server
