// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <tarvik/Export.h>
#include <tarvik/bus/BusName.h>

class QWidget;

/// What the chart plug-in offers and raises. Whatever is handed over is copied by the chart and stays the
/// caller's.
namespace Tarvik::Interface {

// ChartRecords.h
struct TrvMapExtent;
struct TrvMapImageParams;
struct TrvMapImageReg;
struct TrvMapLayerParams;
struct TrvMapLineParams;
struct TrvMapObjectList;
struct TrvMapObjectRef;
struct TrvMapPointParams;
struct TrvMapPort;

/// A place on the chart: longitude from -180 to 180, latitude from -90 to 90.
struct ChartPlace {
    double longitude = 0;  ///< degrees east
    double latitude = 0;   ///< degrees north
};

/// A part of the chart that people show and hide: "graticule", "names" (of waters and ports) or "daylight"
/// (the shadow of the night).
struct ChartPart {
    std::string name;    ///< as commands know it
    bool shown = false;  ///< whether it is on show
};

/// A left click on an object of the chart, named by the object's type; carries the object's id. Subscribers
/// answer null on success, else the failure as a small number in text form, which stays theirs.
using ClickEvent = Event<const std::string, const char>;

namespace Bus {

/// Adds a layer; one of this name takes the new style.
inline constexpr Service<const TrvMapLayerParams, None> MapAddLayer{"TRV_MAP_ADDLAYER"};
/// Removes the layer of this name with its objects.
inline constexpr Service<const std::string, None> MapRemoveLayer{"TRV_MAP_RMLAYER"};
/// Draws a line in place of an object of the same name; without two good points that object goes.
inline constexpr Service<const TrvMapLineParams, None> MapAddLine{"TRV_MAP_ADD_LINE"};
/// Draws a point with a text beside it; a position that cannot be read changes nothing.
inline constexpr Service<const TrvMapPointParams, None> MapAddPointLabel{"TRV_MAP_ADD_POINT_LABEL"};
/// Draws a registered image, or moves it; a position that cannot be read changes nothing.
inline constexpr Service<const TrvMapImageParams, None> MapAddImage{"TRV_MAP_ADD_IMAGE"};
/// Makes an image file known under a name.
inline constexpr Service<const TrvMapImageReg, None> MapRegisterImage{"TRV_MAP_REG_IMAGE"};
/// Deletes the listed objects of a layer, those that are there.
inline constexpr Service<const TrvMapObjectList, None> MapDeleteObjects{"TRV_MAP_DEL_OBJECTS"};
/// Deletes a layer's objects of a type; the id is not read.
inline constexpr Service<const TrvMapObjectRef, None> MapDeleteObjectsByType{"TRV_MAP_DEL_OBJECT_BY_TYPE"};
/// Lets the lines of the voyage with this id stand out from those of the same layer and type, which become
/// quiet: the lines that bear the id, or the id, "_" and a number. An empty id, or one without a line, leaves
/// all alike.
inline constexpr Service<const std::string, None> MapStandOut{"TRV_MAP_STAND_OUT"};
/// The limits on show: a bus block (TObject.h) that the caller frees.
inline constexpr Service<None, TrvMapExtent> MapGetExtent{"TRV_MAP_GET_EXTENT"};
/// The longitudes of the limits for what lies around the world, in their first and third place: they are
/// meant over the date line, from the first to the east until the second.
inline constexpr double kAroundTheWorldFrom = 126.0;
inline constexpr double kAroundTheWorldTo = -90.0;
/// Shows these limits; ones that are no numbers change nothing. Corners come in either order: the narrow way
/// between two longitudes is never over the date line, but for the pair around the world.
inline constexpr Service<const TrvMapExtent, None> MapSetExtent{"TRV_MAP_SET_EXTENT"};
/// The port with this id, null when unknown. The chart's, valid until the next call.
inline constexpr Service<const std::string, const TrvMapPort> MapGetPort{"TRV_MAP_GET_PORT"};

/// The chart's window, made at the first call; null while the process has no window system. The caller may
/// give it a parent, which then owns it; without one it goes with the chart plug-in.
inline constexpr Service<None, QWidget> ChartWindow{"TRV_S_SEAMAP_WIDGET"};
/// "zoomin", "zoomout", "fit" (all objects, the world without any), "goto" (a field for a position or a
/// port), "timeslider" (opens or closes the bar with the time of the ships of voyages), "theme light", "theme
/// dark", "theme night", "show graticule", "hide graticule", and so each ChartPart. Answers the input, which
/// stays the caller's, when it was understood, null otherwise.
inline constexpr Service<const std::string, const std::string> ChartCommand{"TRV_S_SEAMAP_COMMAND"};
/// The pointer has moved over the chart.
inline constexpr Event<const ChartPlace> ChartCursor{"TRV_E_SEAMAP_CURSOR"};
/// A person has shown or hidden a part of the chart.
inline constexpr Event<const ChartPart> ChartPartTurned{"TRV_E_SEAMAP_PART"};

// Clicks on objects of the voyage plug-in, which owns these events.
inline constexpr ClickEvent ClickVoyageType{"TRV_MAP_LCLICK_VOYAGETYPE"};  ///< route points with alternatives
inline constexpr ClickEvent ClickRoutePointType{"TRV_MAP_LCLICK_RPOINTTYPE"};  ///< alternatives
inline constexpr ClickEvent ClickAisShipType{
    "TRV_MAP_LCLICK_AISSHIPTYPE"};                                   ///< ships; the id is the voyage's
inline constexpr ClickEvent ClickRPoint{"TRV_MAP_LCLICK_RPOINT"};    ///< route points of the calculator
inline constexpr ClickEvent ClickRRPoint{"TRV_MAP_LCLICK_RRPOINT"};  ///< alternatives of the calculator

}  // namespace Bus

/// Before an object's type, the name of its click event.
inline constexpr const char* kClickEventPrefix = "TRV_MAP_LCLICK_";
/// Chart side: raises the click event of an object's type, whoever owns it.
TARVIK_API void RaiseClick(const std::string& type, const std::string& id);

}  // namespace Tarvik::Interface
