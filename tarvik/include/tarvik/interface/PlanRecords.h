// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <tarvik/util/DateTime.h>

/// Records of the planning service: what a client asks for and what the voyage plug-in answers. Standard
/// units: knots, nautical miles, hours; times in the plan's reading, the user's zone. Texts are shown as they
/// stand.
namespace Tarvik::Interface {

/// One port of a voyage to plan.
struct PlanPort {
    std::string name;     ///< as the port dictionary has it
    std::string purpose;  ///< purpose code; empty becomes "L" on the first port and "D" elsewhere
    float speed = 10.0F;  ///< knots, above 0.01, on the leg that ends here
    float weather = 0;    ///< fraction from 0 to 0.9999999 by which the speed is reduced
    float portTime = 0;   ///< hours, 0 or more
};

/// Units of the answer's texts; its numbers stay in standard units.
struct PlanUnits {
    std::string speed = "kts";    ///< "kts", "KPH" or "MPH"
    std::string distance = "NM";  ///< "NM" or "KM"
    std::string time = "day";     ///< "hour" or "day"
};

/// Argument of the planning service.
struct PlanRequest {
    std::vector<PlanPort> ports;  ///< two or more, in the order of the voyage
    Util::_datetime_t start;      ///< arrival at the first port
    bool save = false;            ///< stores the voyage on the server
    std::string category;         ///< where it is stored; made when there is none of this name in use
    std::string voyage;  ///< its name, which must not be taken; names are kept as the tree keeps typed ones
    PlanUnits units;     ///< of the texts of the answer
};

/// Why a plan came to nothing.
enum PlanCode : int {
    PlanDone = 0,            ///< nothing went wrong
    PlanNotConnected = -1,   ///< there is no server, or nobody is logged in
    PlanNotLoaded = -2,      ///< the user's voyages could not be read
    PlanUnknownPort = -3,    ///< a name is not in the port dictionary
    PlanTooFewPorts = -4,    ///< fewer than two ports
    PlanNameMissing = -5,    ///< to be saved without a name of category or voyage
    PlanNameTaken = -6,      ///< a voyage of this name is there
    PlanNotCalculated = -7,  ///< no route, or numbers out of their ranges
    PlanNoCategory = -8,     ///< the category could not be made
    PlanNoVoyage = -9,       ///< the voyage could not be made
    PlanNotSaved = -10       ///< the schedule could not be stored
};

/// One port call of the schedule.
struct PlanRow {
    std::string portId;     ///< of the port dictionary
    std::string portName;   ///< as asked for
    std::string purpose;    ///< purpose code
    float speed = 0;        ///< knots, on the leg that ends here
    float weather = 0;      ///< fraction by which the speed is reduced
    float steamTime = 0;    ///< hours at sea on the leg that ends here
    float portTime = 0;     ///< hours
    Util::_datetime_t eta;  ///< arrival
    Util::_datetime_t etd;  ///< departure
    float distance = 0;     ///< nautical miles of the leg that ends here
};

/// What a waypoint is; as number it goes into the plan's JSON.
enum class WaypointKind : int {
    Plain = 0,              ///< a point of the line
    LongIdRoutePoint = 2,   ///< a named route point with a long id
    ShortIdRoutePoint = 3,  ///< a named route point with a short id
    AisTrack = 4,           ///< a position that the ship has reported
    Port = 5                ///< a port of call
};

/// One point of the route.
struct PlanWaypoint {
    std::string id;         ///< of a port or route point, empty for others
    std::string name;       ///< empty for others
    std::string position;   ///< "x,y", longitude first, degrees
    std::string sailing;    ///< how the leg to it is sailed: "GC" great circle, any other text rhumb line
    float speed = 0;        ///< knots, on the leg that ends here
    Util::_datetime_t eta;  ///< arrival
    Util::_datetime_t etd;  ///< departure
    WaypointKind kind = WaypointKind::Plain;  ///< what it is
};

/// Sums over the rows.
struct PlanTotals {
    float portTime = 0;     ///< hours
    float steamTime = 0;    ///< hours
    float distance = 0;     ///< nautical miles
    Util::_datetime_t eta;  ///< of the first row
    Util::_datetime_t etd;  ///< of the last row
};

/// Figures over the whole voyage, without the stay at the first port.
struct PlanSummary {
    float averageSpeed = 0;   ///< knots
    float totalTime = 0;      ///< hours
    float totalDistance = 0;  ///< nautical miles
};

/// One column of the table that the plug-in shows.
struct PlanColumn {
    std::string key;     ///< of its title in the language files
    std::string title;   ///< in the language in use; the key where the files have no text
    std::string unit;    ///< "kts", "NM", "days"; empty without one
    bool right = false;  ///< numbers stand at the right
};

/// The schedule as the plug-in's table has it: as many texts in every row as there are columns.
struct PlanTable {
    std::vector<PlanColumn> columns;             ///< from left to right
    std::vector<std::vector<std::string>> rows;  ///< one a port call
    std::vector<std::string> totals;             ///< the last line; empty texts where nothing is summed
};

/// One figure of the summary below the table.
struct PlanFigure {
    std::string title;  ///< in the language in use
    std::string text;   ///< the number
    std::string unit;   ///< of the number
};

/// Answer of the planning service; on failure only `code` and `step` say something.
struct PlanResult {
    int code = PlanDone;                               ///< a PlanCode
    std::string step;                                  ///< English words for what failed, empty on success
    std::vector<PlanRow> rows;                         ///< one a port, in the order of the voyage
    std::vector<PlanWaypoint> route;                   ///< all points from the first port to the last
    PlanTotals totals;                                 ///< over the rows
    PlanSummary summary;                               ///< over the voyage
    std::vector<std::vector<std::string>> linePieces;  ///< "x,y" of lines that do not cross the date line
    PlanTable table;                                   ///< in the units asked for
    std::vector<PlanFigure> figures;                   ///< in the units asked for
    std::string categoryId;                            ///< where it was stored, empty without saving
    std::string voyageId;                              ///< the same of the voyage
    std::vector<std::string>
        notes;  ///< what is to be known of this plan, a line each, in the language in use
};

}  // namespace Tarvik::Interface
