// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

#include <boost/asio/ip/tcp.hpp>

namespace Tarvik::Client {

/// The addresses of a host, numeric or named. Empty, with an English text in `error`, when there are none or
/// they were not found before `deadline`; a look-up that takes longer goes on by itself and is forgotten.
std::vector<boost::asio::ip::tcp::endpoint> LookUpHost(const std::string& host, std::uint16_t port,
                                                       std::chrono::steady_clock::time_point deadline,
                                                       std::string& error);

}  // namespace Tarvik::Client
