// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <tarvik/bus/BusName.h>

/// What the client raises and offers to every plug-in, the way to the voyage server among it.
namespace Tarvik::Interface {

struct VoyServerRequest;  // ServerRequest.h

/// The panels that the client asks for by number.
namespace PanelCode {
inline constexpr int kVoyages = 3;     ///< the voyage panel
inline constexpr int kDistances = 21;  ///< the port distance table
inline constexpr int kFleet = 22;      ///< the user's vessels
inline constexpr int kOwnPorts = 23;   ///< the user's own ports
}  // namespace PanelCode

/// Payload of TRV_MAP_WND_SHOW.
struct PanelShow {
    int panel = 0;  ///< a PanelCode; every panel hears all of them
    int spare = 0;  ///< not read by anybody
};

namespace Bus {

/// Shows a hidden panel and hides a shown one.
inline constexpr Event<const PanelShow> ShowPanel{"TRV_MAP_WND_SHOW"};
/// The language has changed; texts are to be read anew.
inline constexpr Event<None> SwitchLanguage{"TRV_E_SWITCHLANGUAGE"};
/// The user goes; nothing of theirs is to stay on show or in memory.
inline constexpr Event<None> Logout{"TRV_E_LOGOUT"};
/// The user's zone has changed to the carried one; without a text the current one is to be asked for.
inline constexpr Event<const std::string> SwitchTimeZone{"TRV_E_SWITCHTIMEZONE"};

/// A byte that is not 0 while the client has a server. The client's, valid until the next call.
inline constexpr Service<None, const unsigned char> IsConnected{"TRV_S_ISCONNECT"};
/// Tries to connect and log in; what came of it IsConnected tells.
inline constexpr Service<None, None> Login{"TRV_S_LOGIN"};
/// Id of the user whose data is shown, null while nobody is logged in. The client's, valid until the next
/// call.
inline constexpr Service<None, const std::string> User{"TRV_S_USER"};
/// Name of the user's zone, "China Standard Time". The client's, valid until the zone changes.
inline constexpr Service<None, const std::string> CurrentTimeZone{"TRV_S_GETCURTIMEZONE"};
/// Sends a request to the voyage server and waits for the reply. The request block stays the caller's. The
/// reply is a bus block (TObject.h) that the caller frees; null when there is no server, or none that
/// answers.
inline constexpr Service<const VoyServerRequest, VoyServerRequest> ServerExchange{"TRV_S_SYNCREQBISERVER"};

}  // namespace Bus
}  // namespace Tarvik::Interface
