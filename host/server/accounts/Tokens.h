// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Tarvik::Server {

/// Length of a token in characters.
inline constexpr std::size_t kTokenLength = 43;

/// A new token: 32 random bytes in base64url without padding. Empty when the system gives no random bytes.
std::string MakeToken();

/// What is kept of a token: its SHA-256 in hexadecimal.
std::string HashToken(const std::string& token);

/// The token of a field "Bearer …"; empty when the field is of another form.
std::string TokenOf(const std::string& authorization);

}  // namespace Tarvik::Server
