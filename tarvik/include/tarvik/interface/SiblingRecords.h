// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

/// Records of the services of sibling plug-ins.
namespace Tarvik::Interface {

/// One vessel's last position; time is a GMT timer value, read as unsigned.
struct VesselPosition {
    std::string vesselId;
    std::int32_t vsmsi = 0;
    std::int32_t integer = 0;
    std::int32_t time = 0;
    double x = 0;
    double y = 0;
};

/// Argument of TRV_S_VOYAGE_TRACE; begin and end are GMT timer values.
struct VesselTraceRequest {
    std::string vsi;
    std::int32_t vsmsi = 0;
    std::int32_t begin = 0;
    std::int32_t end = 0;
};

/// The vessel block of a card; 361 degrees means not known.
struct VesselBlock {
    std::string name;
    double x = 361.0;
    double y = 361.0;
    std::int32_t time = 0;
    std::string text;
    std::int32_t integers[2] = {0, 0};
    std::string lastPortName;
    std::string lastPortId;
    std::string firstPortName;
    std::string firstPortId;
    std::string furtherTexts[2];
    std::int32_t zero = 0;
};

/// Argument of TRV_S_VOYAGE_SHOWVSL; the cursor is in screen pixels.
struct VesselCard {
    std::string vi;
    std::string vsi;
    std::string vsn;
    VesselBlock vessel;
    std::int32_t cursorX = 400;
    std::int32_t cursorY = 200;
};

/// One vessel of the user's fleet.
struct FleetEntry {
    std::string id;
    std::string name;
    std::int32_t number = 0;
};

/// Argument of TRV_S_INFOSEARCH_SHOWMATCHPORTDLG; handles are opaque. Answers an opaque window handle or
/// null.
struct MatchPortQuery {
    void* edit = nullptr;
    void* editor = nullptr;
    std::string text;
    bool textRemains = false;
};

}  // namespace Tarvik::Interface
