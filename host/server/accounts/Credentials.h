// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace Tarvik::Server {

inline constexpr std::size_t kLeastPasswordBytes = 8;
inline constexpr std::size_t kMostPasswordBytes = 1024;

/// Whether a text can be a user's name: 1 to 64 letters, digits, ".", "_", "@" or "-" of ASCII.
bool IsUserName(const std::string& text);

/// What one password hash costs.
struct PasswordCost {
    std::uint64_t passes = 2;
    std::size_t memoryBytes = 64U * 1024 * 1024;
};

/// Argon2id hashes of passwords. Each hash takes the memory and the passes of the cost, so callers bound how
/// many run at once. Safe to call from any thread.
class Passwords {
  public:
    explicit Passwords(PasswordCost cost = {});

    /// A hash with salt and cost in one line of text; empty when memory is short.
    std::string Hash(const std::string& password) const;
    /// Whether the password belongs to the hash.
    bool Matches(const std::string& hash, const std::string& password) const;
    /// Takes as long as Matches for a user who is not there, so that names cannot be guessed by time.
    void Pretend(const std::string& password) const;
    /// Whether the hash was made at another cost than this.
    bool IsOutdated(const std::string& hash) const;

  private:
    PasswordCost cost_;
    std::string decoy_;
};

/// Whether a login with the hash costs at most a few times what this program's hashes do. A text that is no
/// hash matches no password and costs nothing.
bool IsBearableHash(const std::string& hash);

/// Length of a token in characters.
inline constexpr std::size_t kTokenLength = 43;

/// A new token: 32 random bytes in base64url without padding. Empty when the system gives no random bytes.
std::string MakeToken();

/// What is kept of a token: its SHA-256 in hexadecimal.
std::string HashToken(const std::string& token);

/// The token of a field "Bearer …"; empty when the field is of another form.
std::string TokenOf(const std::string& authorization);

}  // namespace Tarvik::Server
