// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include <boost/asio/ssl/context.hpp>

namespace Tarvik::Server {

/// The server's side of TLS 1.2 and later with a certificate chain and its key, both PEM files. Null, with an
/// English text in `error`, when a file cannot be read or the two do not belong together.
std::unique_ptr<boost::asio::ssl::context> MakeTlsContext(const std::string& certificateFile,
                                                          const std::string& keyFile, std::string& error);

}  // namespace Tarvik::Server
