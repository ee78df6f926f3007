// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Tarvik::Server {

/// What a certificate is like.
struct CertificateKind {
    int fromDays = -3650;  ///< from now, where it begins and
    int toDays = 3650;     ///< where it ends
    std::string password;  ///< that its key is encrypted with; empty for none
    int toSeconds = 0;     ///< more than the days
};

/// Writes a self-signed certificate for 127.0.0.1 and its new key as PEM files. Throws when that fails.
void WriteTestCertificate(const std::string& certificateFile, const std::string& keyFile,
                          const CertificateKind& kind = {});

/// Returns when the certificate's time has ended. Throws when it does not end within ten seconds.
void AwaitExpiry(const std::string& certificateFile);

}  // namespace Tarvik::Server
