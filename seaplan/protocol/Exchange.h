// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include <tarvik/core/TObject.h>
#include <tarvik/interface/ServerRequest.h>
#include <tarvik/util/AutoBuffer.h>
#include <tarvik/util/Jsona.h>
#include <tarvik/util/Units.h>

#include "seaplan/data/Outcome.h"

/// The request envelope on its two paths, the answers to it, and how times and speeds are written on the
/// wire.
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

/// Puts `text` into an envelope as it stands and exchanges it. Results of SendRequest.
int SendText(const std::string& text, Interface::VoyCommand command, Util::Jsona& reply);
/// Asks for a list. False without an exchange, and for a reply that is no array: a server that refuses
/// answers with an object, and what it refused to tell is not empty.
bool AskList(const std::string& text, Interface::VoyCommand command, Util::Jsona& list);
/// Whether a status reply says success; one without `eid` does not.
bool IsSuccess(const Util::Jsona& reply);

/// What fails in a changing command; the steps before `Send` are the operation's own.
enum class CommandStep { Input, Preparation, Send, Empty, Refused, Id };
/// The usual ladder of a changing command.
inline constexpr CodeTable kCommandCodes{
    Code{CommandStep::Input, -1},    // an empty id or name; nothing is sent
    Code{CommandStep::Send, -2},     // no exchange
    Code{CommandStep::Empty, -3},    // an empty reply
    Code{CommandStep::Refused, -4},  // the server refused, or did not say that it agreed
    Code{CommandStep::Id, -5},       // it agreed, but told no id of what it made
};
/// The ladder of a command with a step before it is sent.
inline constexpr CodeTable kPreparedCommandCodes{
    Code{CommandStep::Input, -1},        // as above
    Code{CommandStep::Preparation, -2},  // a mode word that is none, or a time that is none; nothing is sent
    Code{CommandStep::Send, -3},        Code{CommandStep::Empty, -4}, Code{CommandStep::Refused, -5},
};
/// Runs a changing command; `reply` is its status.
Outcome<CommandStep> SendChange(const std::string& text, Interface::VoyCommand command, Util::Jsona& reply);
/// The same for callers that read nothing but whether it was done.
Outcome<CommandStep> SendChange(const std::string& text, Interface::VoyCommand command);

struct ServerBlockFree {
    void operator()(Interface::VoyServerRequest* block) const { Core::FreeBusBlock(block); }
};
/// A request or reply block, freed with its owner.
using ServerBlock = std::unique_ptr<Interface::VoyServerRequest, ServerBlockFree>;

/// Builds the request of the remark path around `text`: module word 0x1002, length with the terminating NUL.
/// A NUL within the text ends it.
void SendRemark(const std::string& text, ServerBlock& request);
/// One exchange on the remark path; `reply` takes the reply block. False without a reply, or when the reply
/// parses and holds an `eid` that is not 0. A reply that does not parse, or has no `eid`, counts as success.
bool SyncServer(const ServerBlock& request, ServerBlock& reply);

/// Knots of a speed in km/h, rounded once to the record's 32 bits.
inline float KnotsFromWire(double kmPerHour) {
    return static_cast<float>(Util::KnotsFromKmh(kmPerHour));
}

/// km/h of a speed in knots, unrounded: the printed text rounds.
inline double WireFromKnots(float knots) {
    return Util::KmhFromKnots(static_cast<double>(knots));
}

}  // namespace Tarvik::Seaplan
