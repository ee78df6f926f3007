// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cctype>

#include <tarvik/util/StringUtl.h>

#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/controllers/VoyageChanges.h"
#include "seaplan/panels/tree/MadeVoyages.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "seaplan/panels/tree/TreeRules.h"
#include "seaplan/protocol/PortCallCommands.h"

namespace Tarvik::Seaplan {

namespace {

using Util::StringUtl;

/// A name without the " (2)" that a copy has behind it.
std::string Stem(const std::string& name) {
    const auto open = name.rfind(" (");
    if (open == std::string::npos || open == 0 || name.back() != ')' || open + 3 >= name.size()) {
        return name;
    }
    const bool number = std::all_of(name.begin() + static_cast<std::ptrdiff_t>(open) + 2, name.end() - 1,
                                    [](unsigned char c) { return std::isdigit(c) != 0; });
    return number ? name.substr(0, open) : name;
}

/// The beginning of a text that is at most `width` wide, in whole characters.
std::string CutToWidth(const std::string& text, int width) {
    std::u16string wide = StringUtl::TranslateString(text);
    while (!wide.empty() && StringUtl::Width(wide) > width) {
        wide.pop_back();
        // Half of a pair is no character.
        if (!wide.empty() && wide.back() >= 0xD800 && wide.back() < 0xDC00) {
            wide.pop_back();
        }
    }
    return StringUtl::TranslateString(wide);
}

/// The saved schedule and book of a voyage; a voyage without port calls has neither.
bool ReadPlan(const TreeContext& c, const std::string& vi, PortCallRows& rows, BookPoints& points) {
    if (c.voyages.LoadSchedule(vi, rows, kWithoutDrawing) == 0) {
        points = c.store.voyages.at(vi).positionBook.points;
        return true;
    }
    rows.clear();
    PortCallRows stored;
    return c.voyages.Module().LoadPortCalls(vi, stored) == kNoPortCalls;
}

/// Everything of the voyage but its name into the copy, on the server and in its record.
bool Fill(TreeContext& c, const VoyInfo& from, const PortCallRows& rows, BookPoints points,
          const std::string& vi) {
    if (!rows.empty()) {
        for (PosBookPoint& point : points) {
            point.pst = point.pst == AisTrackPoint ? static_cast<int>(PlainPoint) : point.pst;
        }
        VoyInfo& copy = c.store.voyages.at(vi);
        copy.positionBook.points = std::move(points);
        if (c.voyages.SaveSchedule(vi, rows, kWithoutDrawing) != 0) {
            return false;
        }
    }
    // A vessel that was saved is one, also where its position could not be asked for.
    const bool named = from.vsi.empty() && from.vsn.empty();
    if (!named && !IsVesselChanged(c.catalog.ChangeVessel(vi, from.vsi, from.vsn, from.vsmsi))) {
        return false;
    }
    return from.figures == BunkerFigures{} || c.voyages.SaveFigures(vi, from.figures) == 0;
}

}  // namespace

std::string NameOfCopy(const std::string& name, const std::map<std::string, int>& names) {
    const std::string stem = Stem(name);
    for (int number = 2;; ++number) {
        const std::string end = StringUtl::Format(" (%d)", number);
        std::string copy = CutToWidth(stem, kVoyageNameWidth - StringUtl::Width(end)) + end;
        const auto known = names.find(copy);
        if (known == names.end() || known->second == Destroyed) {
            return copy;
        }
    }
}

CopyFault DuplicateVoyage(TreeContext& c, const std::string& ci, const std::string& vi, std::string& out) {
    PortCallRows rows;
    BookPoints points;
    if (!ReadPlan(c, vi, rows, points)) {
        return CopyFault::NotRead;
    }
    const VoyInfo from = *c.store.FindVoyage(vi);
    const std::string name = NameOfCopy(from.vn, c.voyageNames);
    if (c.catalog.AddVoyage(name, ci, out) != 0) {
        return CopyFault::NotSaved;
    }
    if (!Fill(c, from, rows, std::move(points), out)) {
        // Only what lies in the recycle bin can be destroyed.
        c.catalog.DeleteVoyage(ci, out);
        c.catalog.DestroyVoyage(ci, out);
        return CopyFault::NotSaved;
    }
    c.voyageNames[name] = InUse;
    return CopyFault::None;
}

}  // namespace Tarvik::Seaplan
