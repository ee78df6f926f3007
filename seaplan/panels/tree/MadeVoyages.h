// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

#include "seaplan/panels/tree/TreeCodes.h"

/// Voyages that are made of what stands: of another voyage (DuplicateVoyage.cpp), or of a port distance table
/// (TableVoyage.cpp).
namespace Tarvik::Seaplan {

struct TreeContext;
struct TreeParts;

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

/// The voyage that a port distance table is kept as, and its category.
struct TableVoyage {
    std::string ci;
    std::string vi;
};

/// Makes a voyage of this name with its row, and before it the category when none in use has that name. Names
/// are taken as the tree takes them (NormalizeName); one that is empty or too wide, and a voyage's that is
/// taken, are told in a notice, and `out` is empty then.
Outcome<TableVoyageStep> CreateVoyageFromTable(TreeParts& parts, const std::string& typedCategory,
                                               const std::string& typedVoyage, TableVoyage& out);

}  // namespace Tarvik::Seaplan
