// SPDX-License-Identifier: MIT
#include <openssl/ssl.h>

#include "host/server/net/http/HttpHost.h"

namespace Tarvik::Server {

namespace ssl = boost::asio::ssl;

namespace {

/// What TLS 1.2 may use: keys of a connection of its own, and encryption that notices changes. All of TLS 1.3
/// is so.
constexpr const char* kSuites = "ECDHE+AESGCM:ECDHE+CHACHA20";

/// Told of an encrypted key, which a service has nobody to ask for.
int NotePassword(char* /*room*/, int /*size*/, int /*writing*/, void* asked) {
    *static_cast<bool*>(asked) = true;
    return 0;
}

/// What is wrong with the time of the certificate; empty when nothing is.
std::string ComplaintAboutTime(SSL_CTX* context) {
    const X509* certificate = SSL_CTX_get0_certificate(context);
    if (certificate == nullptr) {
        return "there is none in it";
    }
    if (X509_cmp_current_time(X509_get0_notAfter(certificate)) < 0) {
        return "it has expired";
    }
    if (X509_cmp_current_time(X509_get0_notBefore(certificate)) > 0) {
        return "it is not valid yet";
    }
    return {};
}

std::string ComplaintAboutCertificate(ssl::context& context, const std::string& file) {
    boost::system::error_code failed;
    context.use_certificate_chain_file(file, failed);
    return failed ? failed.message() : ComplaintAboutTime(context.native_handle());
}

std::string ComplaintAboutKey(ssl::context& context, const std::string& file) {
    bool encrypted = false;
    SSL_CTX_set_default_passwd_cb(context.native_handle(), &NotePassword);
    SSL_CTX_set_default_passwd_cb_userdata(context.native_handle(), &encrypted);
    boost::system::error_code failed;
    context.use_private_key_file(file, ssl::context::pem, failed);
    SSL_CTX_set_default_passwd_cb(context.native_handle(), nullptr);
    SSL_CTX_set_default_passwd_cb_userdata(context.native_handle(), nullptr);
    if (encrypted) {
        return "it is encrypted; the server needs one without a passphrase";
    }
    if (failed) {
        return failed.message();
    }
    const bool fits = SSL_CTX_check_private_key(context.native_handle()) == 1;
    return fits ? std::string() : "it does not belong to the certificate";
}

}  // namespace

std::unique_ptr<ssl::context> MakeTlsContext(const std::string& certificateFile, const std::string& keyFile,
                                             std::string& error) {
    auto context = std::make_unique<ssl::context>(ssl::context::tls_server);
    boost::system::error_code failed;
    context->set_options(ssl::context::default_workarounds | ssl::context::no_sslv2 | ssl::context::no_sslv3 |
                             ssl::context::no_tlsv1 | ssl::context::no_tlsv1_1 | SSL_OP_NO_RENEGOTIATION,
                         failed);
    if (failed || SSL_CTX_set_cipher_list(context->native_handle(), kSuites) != 1) {
        error = "TLS cannot be used: this machine has no suitable encryption";
        return nullptr;
    }
    std::string complaint = ComplaintAboutCertificate(*context, certificateFile);
    if (!complaint.empty()) {
        error = "the certificate " + certificateFile + " cannot be used: " + complaint;
        return nullptr;
    }
    complaint = ComplaintAboutKey(*context, keyFile);
    if (!complaint.empty()) {
        error = "the key " + keyFile + " cannot be used: " + complaint;
        return nullptr;
    }
    return context;
}

}  // namespace Tarvik::Server
