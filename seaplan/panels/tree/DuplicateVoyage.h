// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

namespace Tarvik::Seaplan {

struct TreeContext;

/// Why a voyage was not duplicated.
enum class CopyFault { None, NotRead, NotSaved };

/// `name` with the first number from 2 on, in parentheses, that makes a name not in use or in the recycle
/// bin; a number that the name ends in is counted on. What is too wide for a voyage's name is cut before the
/// number.
std::string NameOfCopy(const std::string& name, const std::map<std::string, int>& names);

/// Makes a voyage of the same port calls, route, vessel and consumption in the category `ci`; `out` becomes
/// its id. It is a plan: corrections from AIS, remarks and the places on the chart stay with voyage `vi`,
/// and where the ship was becomes a plain point of the route. After a failure nothing new is left behind.
CopyFault DuplicateVoyage(TreeContext& c, const std::string& ci, const std::string& vi, std::string& out);

}  // namespace Tarvik::Seaplan
