// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include <tarvik/util/AutoBuffer.h>
#include <tarvik/util/Jsona.h>

/// The request envelope and what every command needs of the host.
namespace Tarvik::Seaplan {

/// One synchronous exchange on the voyage path (module word 5). 0; -1 no reply; -2 the reply does not parse.
int SendRequest(const Util::CAutoBuffer& text, std::uint16_t command, Util::Jsona& reply);
/// 0 when the client is connected; otherwise opens the host's login and gives -1 without waiting for it.
int EnsureConnected();
/// The logged-in user's id. 0, or -1 (user empty) when nobody is logged in.
int GetUser(std::string& user);
/// Plan time text to the wire. 0, or -1 when a text from "2011-10-02 08:00:00" on does not parse.
int ToServerTime(const std::string& local, std::string& out);
/// Wire time text to the user's zone. 0; -1 a text from "2011-10-02 00:00:00" on does not parse; -2 no zone
/// known.
int FromServerTime(const std::string& server, std::string& out);

}  // namespace Tarvik::Seaplan
