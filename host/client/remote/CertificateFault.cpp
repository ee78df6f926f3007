// SPDX-License-Identifier: MIT
#include "host/client/remote/CertificateFault.h"

#include <openssl/x509_vfy.h>

namespace Tarvik::Client {

CertificateFault FaultOfVerification(int error) {
    switch (error) {
        case X509_V_ERR_CERT_HAS_EXPIRED:
            return CertificateFault::Expired;
        case X509_V_ERR_CERT_NOT_YET_VALID:
            return CertificateFault::NotYetValid;
        case X509_V_ERR_HOSTNAME_MISMATCH:
        case X509_V_ERR_IP_ADDRESS_MISMATCH:
            return CertificateFault::OtherHost;
        case X509_V_ERR_UNABLE_TO_GET_ISSUER_CERT:
        case X509_V_ERR_UNABLE_TO_GET_ISSUER_CERT_LOCALLY:
        case X509_V_ERR_UNABLE_TO_VERIFY_LEAF_SIGNATURE:
        case X509_V_ERR_CERT_SIGNATURE_FAILURE:
        case X509_V_ERR_DEPTH_ZERO_SELF_SIGNED_CERT:
        case X509_V_ERR_SELF_SIGNED_CERT_IN_CHAIN:
        case X509_V_ERR_CERT_UNTRUSTED:
            return CertificateFault::UnknownAuthority;
        default:
            return CertificateFault::Other;
    }
}

std::string WordsOf(CertificateFault fault, const ServerUrl& url) {
    switch (fault) {
        case CertificateFault::Expired:
            return "The certificate of " + url.host +
                   " has expired. Check the date of this computer, or have the certificate renewed.";
        case CertificateFault::NotYetValid:
            return "The certificate of " + url.host + " is not valid yet. Check the date of this computer.";
        case CertificateFault::OtherHost:
            return "The certificate is not one for " + url.host +
                   ". Write the address with the name that the server's certificate bears.";
        case CertificateFault::UnknownAuthority:
            return "The certificate of " + url.host +
                   " comes from an authority that this computer does not know. Have that authority's "
                   "certificate added to those that are trusted here, or name its file in SEAPLAN_CA_FILE.";
        case CertificateFault::None:
        case CertificateFault::Other:
            break;
    }
    return "The certificate of " + url.host + " is not one to be trusted. Ask whoever runs the server.";
}

}  // namespace Tarvik::Client
