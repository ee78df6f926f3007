// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <vector>

#include "seaplan/data/VoyPortCall.h"
#include "seaplan/data/VoyPositionBook.h"

/// What the server keeps of a category and of a voyage.
namespace Tarvik::Seaplan {

/// Id of a record that the server has not named yet.
inline constexpr const char* kDefaultId = "1000000";

/// Deletion state of a category or a voyage, as the store and the server hold it.
enum DeletionState : int { InUse = 0, InRecycleBin = 1, Destroyed = 2 };

/// One node of the tree's first level. Its deletion state lives in the store.
struct VoyCategory {
    std::string ci = kDefaultId;
    std::string cn;
    int crk = 0;  ///< 1 when the category has at least one remark
};

/// Place of each figure; dialog and wire keep this order.
enum BunkerIndex : int { Vfn = 0, Vff, Vfa, Vdn, Vda, Vwn, Vwa, BunkerFigureCount };

/// Daily consumption in kg/day: fuel oil in ballast, laden, in port; diesel oil under way, in port; fresh
/// water under way, in port.
using BunkerFigures = std::array<int, BunkerFigureCount>;

/// One voyage. Its deletion state lives in the store, per category.
struct VoyInfo {
    std::string vi = kDefaultId;
    std::string vn;
    std::string vsi;          ///< vessel id, empty when none is assigned
    std::string vsn;          ///< vessel name
    std::string lastPosText;  ///< last known position, "%.3f,%.3f" of longitude and latitude
    int vsmsi = 0;            ///< MMSI, 0 until known
    int lastPosTime = 0;      ///< GMT timer value of lastPosText, read as unsigned
    int lastAisModTime = 0;   ///< GMT timer value of the newest correction from AIS, 0 when none is known
    int va = 0;               ///< 1 when AIS tracing is on
    int vr = 0;               ///< 1 when the route is displayed on the chart
    int vrk = 0;              ///< 1 when the voyage has at least one remark
    int modais = 0;           ///< count of corrections from AIS
    BunkerFigures figures{};
    PortCallRows portCalls;                ///< filled on demand
    std::vector<std::string> aisModTimes;  ///< times of correction, filled on demand
    VoyPositionBook positionBook;          ///< filled on demand
};

/// Where a voyage stands in its life.
enum class VoyageStatus : int { Plan = -1, Underway = 0, Finished = 1 };

/// Status of a voyage with these port calls at the present time `now`, both in the plan's reading. A first
/// departure exactly at `now` counts as finished.
VoyageStatus StatusAt(const PortCallRows& portCalls, const Util::_datetime_t& now);

}  // namespace Tarvik::Seaplan
