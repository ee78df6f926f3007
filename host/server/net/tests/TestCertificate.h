// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Tarvik::Server {

/// Writes a self-signed certificate for 127.0.0.1 and its new key as PEM files. Throws when that fails.
void WriteTestCertificate(const std::string& certificateFile, const std::string& keyFile);

}  // namespace Tarvik::Server
