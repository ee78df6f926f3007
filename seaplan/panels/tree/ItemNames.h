// SPDX-License-Identifier: MIT
#pragma once

/// Names of the items in the tree's rows, as clicks report them, and of the values inside them.
namespace Tarvik::Seaplan::Item {

// Category rows
inline constexpr const char* kCount = "cat.statistic";
inline constexpr const char* kRenameCategory = "Voyage_parent_rename";
inline constexpr const char* kAddVoyage = "Voyage.parent.svr3";
inline constexpr const char* kAscending = "Voyage.parent.svr6";
inline constexpr const char* kDescending = "Voyage.parent.svr6.desc";
inline constexpr const char* kSort = "Voyage.parent.svr9";
inline constexpr const char* kDeleteCategory = "Voyage.parent.svr7";
inline constexpr const char* kCategoryNoRemark = "Voyage.parent.svr2.non";
inline constexpr const char* kCategoryRemark = "Voyage.parent.svr2.exist";
inline constexpr const char* kRecoverCategory = "Voyage.parent.svr.recover";
inline constexpr const char* kClearCategory = "Voyage.parent.svr.clear";

// Voyage rows
inline constexpr const char* kRenameVoyage = "Voyage_child_rename";
inline constexpr const char* kUnpinned = "Voyage.child.svr1.default";
inline constexpr const char* kPinned = "Voyage.child.svr1.auto";
inline constexpr const char* kStatus = "Voyage.child.svr2";
inline constexpr const char* kVoyageNoRemark = "Voyage.child.svr3.non";
inline constexpr const char* kVoyageRemark = "Voyage.child.svr3.exist";
inline constexpr const char* kPortCalls = "Voyage.child.svr4";
inline constexpr const char* kConsumption = "Voyage.child.svr5";
inline constexpr const char* kNoonReport = "Voyage.child.svr6";
inline constexpr const char* kAisOff = "Voyage.child.svr8";
inline constexpr const char* kAisOn = "Voyage.child.svr10";
inline constexpr const char* kDeleteVoyage = "Voyage.child.svr9";
inline constexpr const char* kModify = "Voyage_modify";
inline constexpr const char* kSetPortCall = "Voyage_setPortCall";
inline constexpr const char* kDates = "Voyage_Date";
inline constexpr const char* kAssignShip = "Voyage_AssignShip";
inline constexpr const char* kShipInfo = "Voyage_ShipInfo";
inline constexpr const char* kAlert = "Voyage_Alert";
inline constexpr const char* kReplaceShip = "Voyage_ReplaceShip";
inline constexpr const char* kRecoverVoyage = "Voyage.child.svr.recover";
inline constexpr const char* kClearVoyage = "Voyage.child.svr.clear";
/// No item of a row: a command of the row's menu and of a key.
inline constexpr const char* kDuplicate = "Voyage_duplicate";

}  // namespace Tarvik::Seaplan::Item

/// Names of the values inside event items.
namespace Tarvik::Seaplan::ItemValue {

inline constexpr const char* kStatusImage = "Voyage_Status";
inline constexpr const char* kSetPortCall = "setPortCall";
inline constexpr const char* kSailingLabel = "Sailing";
inline constexpr const char* kSailDate = "Saildate";
inline constexpr const char* kEndingLabel = "Ending";
inline constexpr const char* kEndDate = "Enddate";
inline constexpr const char* kAssignShip = "AssignShip";
inline constexpr const char* kShipLabel = "ShipInfo";
inline constexpr const char* kShipName = "ShipName";

// What a status image shows.
inline constexpr const char* kPlanImage = "#Voyage_status_plan";
inline constexpr const char* kUnderwayImage = "#Voyage_status_underway";
inline constexpr const char* kFinishImage = "#Voyage_status_finish";

}  // namespace Tarvik::Seaplan::ItemValue
