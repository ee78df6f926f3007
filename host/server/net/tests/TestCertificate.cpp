// SPDX-License-Identifier: MIT
#include "host/server/net/tests/TestCertificate.h"

#include <chrono>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <thread>

#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509v3.h>

namespace Tarvik::Server {

namespace {

using Key = std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)>;
using Certificate = std::unique_ptr<X509, decltype(&X509_free)>;
using File = std::unique_ptr<std::FILE, decltype(&std::fclose)>;

void Require(bool done) {
    if (!done) {
        throw std::runtime_error("the test certificate cannot be made");
    }
}

void AddExtension(X509* certificate, int kind, const char* value) {
    const std::unique_ptr<X509_EXTENSION, decltype(&X509_EXTENSION_free)> extension(
        X509V3_EXT_conf_nid(nullptr, nullptr, kind, value), &X509_EXTENSION_free);
    Require(extension && X509_add_ext(certificate, extension.get(), -1) == 1);
}

}  // namespace

void WriteTestCertificate(const std::string& certificateFile, const std::string& keyFile,
                          const CertificateKind& kind) {
    constexpr long kDay = 24L * 3600;
    const Key key(EVP_EC_gen("P-256"), &EVP_PKEY_free);
    const Certificate certificate(X509_new(), &X509_free);
    Require(key && certificate);
    X509_set_version(certificate.get(), 2);
    ASN1_INTEGER_set(X509_get_serialNumber(certificate.get()), 1);
    X509_gmtime_adj(X509_getm_notBefore(certificate.get()), kDay * kind.fromDays);
    X509_gmtime_adj(X509_getm_notAfter(certificate.get()), kDay * kind.toDays + kind.toSeconds);
    X509_set_pubkey(certificate.get(), key.get());
    X509_NAME* name = X509_get_subject_name(certificate.get());
    const auto* text = reinterpret_cast<const unsigned char*>("voyage server under test");
    Require(X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC, text, -1, -1, 0) == 1);
    X509_set_issuer_name(certificate.get(), name);
    AddExtension(certificate.get(), NID_subject_alt_name, "IP:127.0.0.1");
    AddExtension(certificate.get(), NID_basic_constraints, "critical,CA:TRUE");
    Require(X509_sign(certificate.get(), key.get(), EVP_sha256()) > 0);
    const File out(std::fopen(certificateFile.c_str(), "wb"), &std::fclose);
    const File secret(std::fopen(keyFile.c_str(), "wb"), &std::fclose);
    Require(out && PEM_write_X509(out.get(), certificate.get()) == 1);
    const EVP_CIPHER* cipher = kind.password.empty() ? nullptr : EVP_aes_256_cbc();
    const auto* password = reinterpret_cast<const unsigned char*>(kind.password.data());
    Require(secret && PEM_write_PrivateKey(secret.get(), key.get(), cipher, cipher ? password : nullptr,
                                           static_cast<int>(kind.password.size()), nullptr, nullptr) == 1);
}

void AwaitExpiry(const std::string& certificateFile) {
    using Clock = std::chrono::steady_clock;
    const File in(std::fopen(certificateFile.c_str(), "rb"), &std::fclose);
    Require(in != nullptr);
    const Certificate certificate(PEM_read_X509(in.get(), nullptr, nullptr, nullptr), &X509_free);
    Require(certificate != nullptr);
    const auto last = Clock::now() + std::chrono::seconds(10);
    while (X509_cmp_current_time(X509_get0_notAfter(certificate.get())) > 0) {
        if (Clock::now() > last) {
            throw std::runtime_error("the test certificate does not end");
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
}

}  // namespace Tarvik::Server
