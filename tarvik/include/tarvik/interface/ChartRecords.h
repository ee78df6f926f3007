// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <tarvik/util/GeoPoint.h>

/// Records of the chart services. Positions are texts "x,y", longitude first, in degrees; colours are
/// 0x00BBGGRR.
namespace Tarvik::Interface {

/// Layer, id and type together name one object of the chart; drawing it again replaces it.
struct TrvMapObjectRef {
    std::string layer;  ///< as TRV_MAP_ADDLAYER has made it
    std::string id;     ///< given by who draws it, and told by a click on it
    std::string type;   ///< behind "TRV_MAP_LCLICK_" it names the event of a click
};

/// Argument of TRV_MAP_ADDLAYER: a layer with a style. Objects bring their own, so this client's chart keeps
/// the style and draws nothing by it.
struct TrvMapLayerParams {
    std::string layer;                      ///< its name
    std::int32_t integers[3] = {1, 0, 0};   ///< kept as hosts know them
    std::string fontFace = "Arial";         ///< of labels
    std::int32_t fontSize = 12;             ///< of labels, in points
    std::uint8_t reserved[16] = {};         ///< zero
    std::string pointShape = "circle";      ///< as in TrvMapPointParams
    std::int32_t pointColour = 0;           ///< 0x00BBGGRR
    std::int32_t pointSize = 3;             ///< pixels
    std::int32_t lineColour = 0;            ///< 0x00BBGGRR
    std::int32_t lineWidth = 3;             ///< pixels
    std::string lineStyle = "solid";        ///< as in TrvMapLineParams
    std::int32_t fillColour = 0;            ///< 0x00BBGGRR
    double fillOpacity = -1.0;              ///< from 0 to 1; below 0 nothing is filled
    std::int32_t fillBorderColour = 0;      ///< 0x00BBGGRR
    std::int32_t fillBorderWidth = 3;       ///< pixels
    std::string fillBorderStyle = "solid";  ///< as in TrvMapLineParams
};

/// Argument of TRV_MAP_ADD_LINE.
struct TrvMapLineParams {
    TrvMapObjectRef ref;              ///< what it is called
    std::vector<std::string> points;  ///< "x,y" in their order
    std::int32_t colour = 0;          ///< 0x00BBGGRR
    std::int32_t width = 3;           ///< pixels
    std::string style = "solid";      ///< or "dashed"
};

/// Argument of TRV_MAP_ADD_POINT_LABEL.
struct TrvMapPointParams {
    TrvMapObjectRef ref;           ///< what it is called
    std::string label;             ///< text beside the point
    std::string position;          ///< "x,y"
    std::int32_t integer = 0;      ///< kept as hosts know it
    std::string shape = "circle";  ///< the one that charts know
    std::int32_t colour = 0;       ///< 0x00BBGGRR
    std::int32_t size = 3;         ///< pixels
};

/// Argument of TRV_MAP_REG_IMAGE.
struct TrvMapImageReg {
    std::string name;  ///< by which TrvMapImageParams names it
    std::string path;  ///< of the file
};

/// Argument of TRV_MAP_ADD_IMAGE.
struct TrvMapImageParams {
    TrvMapObjectRef ref;   ///< what it is called
    std::string image;     ///< name under which the file was registered
    std::string position;  ///< "x,y" of the picture's middle
};

/// Argument of TRV_MAP_DEL_OBJECTS.
struct TrvMapObjectList {
    std::string layer;                   ///< of all of them
    TrvMapObjectRef* objects = nullptr;  ///< the caller's array; only id and type are filled
    std::int32_t count = 0;              ///< how many
};

/// Two corners in degrees; the chart reads them in either order. As result of TRV_MAP_GET_EXTENT a bus block.
struct TrvMapExtent {
    double first = Util::kMostLongitude;   ///< longitude of one corner
    double second = Util::kMostLatitude;   ///< latitude of that corner
    double third = -Util::kMostLongitude;  ///< longitude of the other corner
    double fourth = -Util::kMostLatitude;  ///< latitude of the other corner
};

/// Result of TRV_MAP_GET_PORT.
struct TrvMapPort {
    std::string text;  ///< the id asked for
    std::string name;  ///< English name
    double x = 0;      ///< longitude in degrees
    double y = 0;      ///< latitude in degrees
};

/// Result of TRV_S_CAL_VOYAGE: two flags, directly followed by the lines as they were drawn.
struct VoyCalResult {
    std::uint8_t valid = 0;            ///< 1 when there is a route, else the rest says nothing
    std::uint8_t crossesDateLine = 0;  ///< 1 when the second line is drawn too
    TrvMapLineParams mainLine;         ///< up to the date line, or the whole
    TrvMapLineParams eastLine;         ///< the part behind the date line
};

}  // namespace Tarvik::Interface
