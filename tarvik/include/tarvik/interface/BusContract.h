// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <type_traits>
#include <vector>

#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/ChartRecords.h>
#include <tarvik/interface/ServerRequest.h>
#include <tarvik/interface/SiblingRecords.h>

/// Every service and event name of the bus, tied once to its payload types. `void` stands for no payload.
namespace Tarvik::Interface {

/// A service `Name` that takes an `In*` and answers an `Out*`.
template <class In, class Out>
struct Service {
    const char* name;
};

/// An event that carries an `In*`.
template <class In>
struct Event {
    const char* name;
};

/// Payload of TRV_MAP_WND_SHOW: the panel code (3 voyage panel, 21 port distance table) and a spare integer.
struct PanelShow {
    int panel = 0;
    int spare = 0;
};

namespace Bus {
// Owned by the voyage plug-in.
inline constexpr Service<const std::string, const char> AddVessel{"TRV_S_VOY_ADDVSL"};
inline constexpr Service<const std::string, void> AddPortName{"TRV_S_VOY_ADDPORTNAME"};
inline constexpr Service<const std::string, void> CalculateVoyage{"TRV_S_CAL_VOYAGE"};
inline constexpr Event<const std::string> ClickVoyageType{"TRV_MAP_LCLICK_VOYAGETYPE"};
inline constexpr Event<const std::string> ClickRoutePointType{"TRV_MAP_LCLICK_RPOINTTYPE"};
inline constexpr Event<const std::string> ClickAisShipType{"TRV_MAP_LCLICK_AISSHIPTYPE"};
inline constexpr Event<const std::string> ClickRPoint{"TRV_MAP_LCLICK_RPOINT"};
inline constexpr Event<const std::string> ClickRRPoint{"TRV_MAP_LCLICK_RRPOINT"};

// Raised by the host.
inline constexpr Event<const PanelShow> ShowPanel{"TRV_MAP_WND_SHOW"};
inline constexpr Event<void> SwitchLanguage{"TRV_E_SWITCHLANGUAGE"};
inline constexpr Event<void> Logout{"TRV_E_LOGOUT"};
inline constexpr Event<const std::string> SwitchTimeZone{"TRV_E_SWITCHTIMEZONE"};

// Offered by the host. Texts answered stay the host's and are valid until the next call of the same service.
inline constexpr Service<const VoyServerRequest, VoyServerRequest> ServerExchange{"TRV_S_SYNCREQBISERVER"};
inline constexpr Service<void, const unsigned char> IsConnected{"TRV_S_ISCONNECT"};
inline constexpr Service<void, void> Login{"TRV_S_LOGIN"};
inline constexpr Service<void, const std::string> User{"TRV_S_USER"};
inline constexpr Service<void, const std::string> CurrentTimeZone{"TRV_S_GETCURTIMEZONE"};

// Offered by sibling plug-ins.
inline constexpr Service<const std::vector<std::string>, const std::vector<VesselPosition>> VesselPositions{
    "TRV_S_VOYAGE_VSLPOS"};
inline constexpr Service<const VesselTraceRequest, const std::string> VesselTrace{"TRV_S_VOYAGE_TRACE"};
inline constexpr Service<const std::string, void> HideAisTrack{"TRV_S_VOYAGE_HIDEAISTRACK"};
inline constexpr Service<const VesselCard, void> ShowVesselCard{"TRV_S_VOYAGE_SHOWVSL"};
inline constexpr Service<void, const std::vector<FleetEntry>> AllVessels{"TRV_S_SHIPROLL_GETALL"};
inline constexpr Service<const FleetEntry, void*> ShowAddVessel{"TRV_S_SHIPPROLL_SHOWADDVSLDLG"};
inline constexpr Service<const std::string, void> ShowVesselInfo{"TRV_S_INFOSEARCHSHOWVSL"};
inline constexpr Service<const MatchPortQuery, void> MatchPorts{"TRV_S_INFOSEARCH_SHOWMATCHPORTDLG"};

// Offered by the chart.
inline constexpr Service<const TrvMapLayerParams, void> MapAddLayer{"TRV_MAP_ADDLAYER"};
inline constexpr Service<const std::string, void> MapRemoveLayer{"TRV_MAP_RMLAYER"};
inline constexpr Service<const TrvMapLineParams, void> MapAddLine{"TRV_MAP_ADD_LINE"};
inline constexpr Service<const TrvMapPointParams, void> MapAddPointLabel{"TRV_MAP_ADD_POINT_LABEL"};
inline constexpr Service<const TrvMapImageParams, void> MapAddImage{"TRV_MAP_ADD_IMAGE"};
inline constexpr Service<const TrvMapImageReg, void> MapRegisterImage{"TRV_MAP_REG_IMAGE"};
inline constexpr Service<const TrvMapObjectList, void> MapDeleteObjects{"TRV_MAP_DEL_OBJECTS"};
inline constexpr Service<const TrvMapObjectRef, void> MapDeleteObjectsByType{"TRV_MAP_DEL_OBJECT_BY_TYPE"};
inline constexpr Service<void, TrvMapExtent> MapGetExtent{"TRV_MAP_GET_EXTENT"};
inline constexpr Service<const TrvMapExtent, void> MapSetExtent{"TRV_MAP_SET_EXTENT"};
inline constexpr Service<const std::string, const TrvMapPort> MapGetPort{"TRV_MAP_GET_PORT"};
}  // namespace Bus

/// Calls a service; null when nobody offers it. The one place where a payload is cast.
template <class In, class Out>
Out* Call(const Service<In, Out>& service, std::type_identity_t<In>* input) {
    void* result = nullptr;
    Core::TrvKernel::Instance()->CallTrvService(service.name,
                                                const_cast<void*>(static_cast<const void*>(input)), result);
    return static_cast<Out*>(result);
}

/// Host side: raises an event for all its subscribers.
template <class In>
std::vector<void*> Raise(const Event<In>& event, std::type_identity_t<In>* input) {
    return Core::TrvKernel::Instance()->RaiseTrvEvent(event.name,
                                                      const_cast<void*>(static_cast<const void*>(input)));
}

}  // namespace Tarvik::Interface
