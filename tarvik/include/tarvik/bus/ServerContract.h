// SPDX-License-Identifier: MIT
#pragma once

#include <tarvik/bus/BusName.h>

/// The way to the voyage server, offered by the client.
namespace Tarvik::Interface {

struct VoyServerRequest;  // ServerRequest.h

namespace Bus {

/// Sends a request and waits for the reply. The request block stays the caller's. The reply is a bus block
/// (BusBlock.h) that the caller frees; null when there is no server, or none that answers.
inline constexpr Service<const VoyServerRequest, VoyServerRequest> ServerExchange{"TRV_S_SYNCREQBISERVER"};

}  // namespace Bus
}  // namespace Tarvik::Interface
