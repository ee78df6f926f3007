// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// Records of the chart services. Positions are texts "x,y", longitude first, in degrees; colours are
/// 0x00BBGGRR.
namespace Tarvik::Interface {

struct TrvMapObjectRef {
    std::string layer;
    std::string id;
    std::string type;
};

/// Argument of TRV_MAP_ADDLAYER.
struct TrvMapLayerParams {
    std::string layer;
    std::int32_t integers[3] = {1, 0, 0};
    std::string fontFace = "Arial";
    std::int32_t fontSize = 12;
    std::uint8_t reserved[16] = {};
    std::string pointShape = "circle";
    std::int32_t pointColour = 0;
    std::int32_t pointSize = 3;
    std::int32_t lineColour = 0;
    std::int32_t lineWidth = 3;
    std::string lineStyle = "solid";
    std::int32_t fillColour = 0;
    double fillOpacity = -1.0;
    std::int32_t fillBorderColour = 0;
    std::int32_t fillBorderWidth = 3;
    std::string fillBorderStyle = "solid";
};

/// Argument of TRV_MAP_ADD_LINE; style "solid" or "dashed", width in pixels.
struct TrvMapLineParams {
    TrvMapObjectRef ref;
    std::vector<std::string> points;
    std::int32_t colour = 0;
    std::int32_t width = 3;
    std::string style = "solid";
};

/// Argument of TRV_MAP_ADD_POINT_LABEL.
struct TrvMapPointParams {
    TrvMapObjectRef ref;
    std::string label;
    std::string position;
    std::int32_t integer = 0;
    std::string shape = "circle";
    std::int32_t colour = 0;
    std::int32_t size = 3;
};

/// Argument of TRV_MAP_REG_IMAGE.
struct TrvMapImageReg {
    std::string name;
    std::string path;
};

/// Argument of TRV_MAP_ADD_IMAGE.
struct TrvMapImageParams {
    TrvMapObjectRef ref;
    std::string image;
    std::string position;
};

/// Argument of TRV_MAP_DEL_OBJECTS; in the array only id and type are filled.
struct TrvMapObjectList {
    std::string layer;
    TrvMapObjectRef* objects = nullptr;
    std::int32_t count = 0;
};

/// Two corners in degrees; the chart reads them in either order. As result of TRV_MAP_GET_EXTENT a bus block.
struct TrvMapExtent {
    double first = 180.0;
    double second = 90.0;
    double third = -180.0;
    double fourth = -90.0;
};

/// Result of TRV_MAP_GET_PORT, owned by the chart and valid until the next call; argument is the id text.
struct TrvMapPort {
    std::string text;
    std::string name;
    double x = 0;
    double y = 0;
};

/// Result of TRV_S_CAL_VOYAGE: two flags, directly followed by the lines as they were drawn.
struct VoyCalResult {
    std::uint8_t valid = 0;            ///< 1 when there is a route, else the rest says nothing
    std::uint8_t crossesDateLine = 0;  ///< 1 when the second line is drawn too
    TrvMapLineParams mainLine;
    TrvMapLineParams eastLine;  ///< the part behind the date line
};

}  // namespace Tarvik::Interface
