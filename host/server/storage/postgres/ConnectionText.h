// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Tarvik::Server {

/// What is wrong with the text that says where a data base is: `key=value` pairs or a `postgresql://`
/// address. Empty when nothing is. Never cites the text, since that may hold a password.
std::string ComplaintAboutConnection(const std::string& text);

/// The connection text as `key=value` pairs, with limits of time where it states none, so that a lost network
/// ends a call. Throws SqlError for a text that there is a complaint about.
std::string CompleteConnection(const std::string& text);

/// Host, port, data base and user of a connection text, as far as it names them, for people to read.
std::string DescribeConnection(const std::string& text);

/// `message` as one line in which every secret of the connection text is replaced.
std::string WithoutSecrets(std::string message, const std::string& text);

}  // namespace Tarvik::Server
