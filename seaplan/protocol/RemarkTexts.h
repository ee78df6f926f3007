// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

/// Request texts of remarks. Values go in as they stand, nothing is escaped: a quote or backslash changes the
/// meaning, a line break goes in raw.
namespace Tarvik::Seaplan {

/// Bytes, with the terminating NUL, that a request with a subject and body may have.
inline constexpr std::size_t kRemarkTextBytes = 4098;
/// The same for a request that only names remarks.
inline constexpr std::size_t kRemarkNameBytes = 256;

std::string AddRemarkText(int type, const std::string& objectid, int seq, const std::string& subject,
                          const std::string& body);
std::string DeleteRemarkText(int type, const std::string& objectid, int seq);
std::string ChangeRemarkText(int type, const std::string& objectid, int seq, const std::string& subject,
                             const std::string& body);
std::string LoadRemarksText(int type, const std::string& objectid);

}  // namespace Tarvik::Seaplan
