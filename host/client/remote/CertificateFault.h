// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "host/client/services/ServerUrl.h"

namespace Tarvik::Client {

/// Why the certificate that a server shows is not taken.
enum class CertificateFault { None, Expired, NotYetValid, OtherHost, UnknownAuthority, Other };

/// The fault that an error of the TLS library's verification stands for; `error` is not its "all is well".
CertificateFault FaultOfVerification(int error);

/// What a person is told of it: the reason, with the host's name, and what to do next. English, whole
/// sentences.
std::string WordsOf(CertificateFault fault, const ServerUrl& url);

}  // namespace Tarvik::Client
