// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

/// Records of the services of sibling plug-ins.
namespace Tarvik::Interface {

/// One vessel's last position.
struct VesselPosition {
    std::string vesselId;      ///< of the fleet
    std::int32_t vsmsi = 0;    ///< MMSI, 0 when unknown
    std::int32_t integer = 0;  ///< not read
    std::int32_t time = 0;     ///< GMT timer value, seconds, read as unsigned
    double x = 0;              ///< longitude in degrees
    double y = 0;              ///< latitude in degrees
};

/// Argument of TRV_S_VOYAGE_TRACE.
struct VesselTraceRequest {
    std::string vsi;         ///< id of the vessel
    std::int32_t vsmsi = 0;  ///< its MMSI, 0 when unknown
    std::int32_t begin = 0;  ///< GMT timer value, seconds
    std::int32_t end = 0;    ///< the same
};

/// The vessel block of a card.
struct VesselBlock {
    std::string name;                   ///< left empty
    double x = 361.0;                   ///< longitude in degrees; 361 when not known
    double y = 361.0;                   ///< latitude in degrees; 361 when not known
    std::int32_t time = 0;              ///< GMT timer value of the position, seconds
    std::string text;                   ///< left empty
    std::int32_t integers[2] = {0, 0};  ///< left zero
    std::string lastPortName;           ///< last port of the voyage
    std::string lastPortId;             ///< its id
    std::string firstPortName;          ///< first port of the voyage
    std::string firstPortId;            ///< its id
    std::string furtherTexts[2];        ///< left empty
    std::int32_t zero = 0;              ///< left zero
};

/// Argument of TRV_S_VOYAGE_SHOWVSL.
struct VesselCard {
    std::string vi;              ///< id of the voyage
    std::string vsi;             ///< id of the vessel
    std::string vsn;             ///< its name
    VesselBlock vessel;          ///< what the voyage knows of it
    std::int32_t cursorX = 400;  ///< pixels of the screen
    std::int32_t cursorY = 200;  ///< pixels of the screen
};

/// One vessel of the user's fleet.
struct FleetEntry {
    std::string id;           ///< empty for one that is typed by hand
    std::string name;         ///< as people call it
    std::int32_t number = 0;  ///< MMSI, 0 when unknown
};

/// All that the fleet keeps of a vessel. What is not known is empty or 0.
struct FleetVessel {
    std::string id;           ///< of the fleet
    std::string name;         ///< as people call it
    std::int32_t mmsi = 0;    ///< nine digits
    std::int32_t imo = 0;     ///< seven digits
    std::string callSign;     ///< of its radio
    std::string type;         ///< kind of ship, in the person's words
    double length = 0;        ///< over all, metres
    double serviceSpeed = 0;  ///< knots

    friend bool operator==(const FleetVessel&, const FleetVessel&) = default;
};

/// Argument of TRV_S_INFOSEARCH_SHOWMATCHPORTDLG.
struct MatchPortQuery {
    void* edit = nullptr;      ///< opaque handle of the field that is typed in
    void* editor = nullptr;    ///< opaque handle of the window that is told what is chosen
    std::string text;          ///< what is typed
    bool textRemains = false;  ///< Backspace was pressed with text in the field
};

}  // namespace Tarvik::Interface
