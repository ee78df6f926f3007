// SPDX-License-Identifier: MIT
/// What a person sees: nothing marked goes without a question, and what is not marked is what is stored.
#include <algorithm>
#include <cmath>
#include <cstdlib>

#include <tarvik/util/StringUtl.h>

#include "tests/walk/Rules.h"
#include "tests/walk/World.h"

namespace Tarvik::Seaplan::Walk {

namespace {

using Util::StringUtl;

constexpr double kKnotsApart = 0.02;
constexpr double kWeatherApart = 0.006;
constexpr double kHoursApart = 0.2;  ///< the table tells days with two decimals
constexpr double kMilesApart = 0.1;

std::string Joined(const std::vector<std::string>& texts) {
    std::string joined;
    for (const std::string& text : texts) {
        joined += joined.empty() ? text : ", " + text;
    }
    return "[" + joined + "]";
}

std::vector<std::string> PortsOf(const PortCallRows& rows) {
    std::vector<std::string> ports;
    ports.reserve(rows.size());
    for (const VoyPortCall& row : rows) {
        ports.push_back(row.ppn);
    }
    return ports;
}

/// Rows of the ship have its place in the place of a port.
bool IsPosition(const std::string& port) {
    return port.find(',') != std::string::npos;
}

bool IsEdit(Act act) {
    return (act >= Act::TypePort && act <= Act::Redo) || act == Act::Alternative || act == Act::ChartPort;
}

bool GaveUp(const Happened& step) {
    return step.person.Answered("IDS_PORTCALL_SAVENEXT", false) ||
           step.person.Answered("IDS_PORTCALL_CLOSESAVE", true) ||
           step.person.Answered("IDS_PORTCALL_CLEARFORBLANK", true) || step.step.act == Act::Crash;
}

/// Where entered rows and stored ones differ, empty for nowhere. Neighbours at one place are one row.
std::string DifferenceOf(const Sight& sight, const StoredVoyage& stored) {
    const std::vector<std::size_t> kept = KeptPorts(sight.Ports());
    if (kept.size() != stored.rows.size()) {
        return Joined(sight.Ports()) + " and " + Joined(PortsOf(stored.rows));
    }
    for (std::size_t i = 0; i < kept.size(); ++i) {
        const EnteredRow& row = sight.rows[kept[i]];
        const VoyPortCall& call = stored.rows[i];
        // A calculation makes the first row a port of loading that nothing leads to.
        const bool leg = i == 0 || (row.purpose == call.pp &&
                                    std::abs(row.knots - static_cast<double>(call.psp)) < kKnotsApart &&
                                    std::abs(row.weather - static_cast<double>(call.pw)) < kWeatherApart);
        const bool same = leg && row.port == call.ppn &&
                          std::abs(row.hoursInPort - static_cast<double>(call.apt)) < kHoursApart;
        if (!same) {
            return StringUtl::Format("row %d: %s %s %.2f %.2f %.2f and %s %s %.2f %.2f %.2f",
                                     static_cast<int>(i), row.port.c_str(), row.purpose.c_str(), row.knots,
                                     row.weather, row.hoursInPort, call.ppn.c_str(), call.pp.c_str(),
                                     static_cast<double>(call.psp), static_cast<double>(call.pw),
                                     static_cast<double>(call.apt));
        }
    }
    const std::string start = stored.book.eta.fmt("%Y-%m-%d %H:%M:%S");
    return sight.start == " " || sight.start == start ? "" : "start " + sight.start + " and " + start;
}

/// Whether port calls of the voyage that was on show went to the server.
bool WasWritten(const Happened& step, bool answered = false) {
    constexpr std::uint16_t kPortCalls = 11;
    return std::any_of(step.server.Writes().begin(), step.server.Writes().end(), [&](const Write& write) {
        return write.command == kPortCalls && (answered ? write.answered : write.taken) &&
               FieldOf(write.text, "vi") == step.before.voyage;
    });
}

bool WasSaved(const Happened& step) {
    return WasWritten(step, true);
}

}  // namespace

/// What an opening brought to sight; a table that stayed, since its changes could not be saved, is no
/// opening.
void Rules::NoteShown(const Happened& step) {
    const bool another = step.after.voyage != step.before.voyage;
    const bool stayed = !another && step.before.marked && step.after.marked && !GaveUp(step);
    if (another || (IsOpening(step.step.act) && step.client.window.visible && !stayed)) {
        seen_ = !step.after.rows.empty();
    }
    // A correction brings its own table, also over one that could not be read.
    const std::vector<std::string> ports = step.after.Ports();
    const bool corrected =
        step.step.act == Act::Correct && std::any_of(ports.begin(), ports.end(), IsPosition);
    const auto stored = step.stored.find(step.after.voyage);
    const bool same = stored != step.stored.end() && DifferenceOf(step.after, stored->second).empty();
    seen_ = seen_ || corrected || same || WasWritten(step);
}

/// Port calls that the server has are replaced only by a person who knows of them.
std::string Rules::FaultOfReplacing(const Happened& step) const {
    const auto stored = step.storedBefore.find(step.before.voyage);
    const bool replaced =
        WasWritten(step) && stored != step.storedBefore.end() && !stored->second.rows.empty();
    return replaced && !seen_ ? "port calls were replaced that nobody has seen" : "";
}

/// A table that was marked is still there, was saved, or was given up by an answer.
std::string Rules::FaultOfLoss(const Happened& step) const {
    if (step.IsKept()) {
        return FaultOfKept(step);
    }
    const bool another = step.after.voyage != step.before.voyage || !step.after.visible;
    if (step.before.IsTyping() && !step.before.marked && another && !GaveUp(step) && !WasSaved(step)) {
        const bool places = KeptPorts(step.before.PortsTaken()).size() > 1;
        return places ? "a port that was being typed is lost without a question" : "";
    }
    if (!step.before.marked || GaveUp(step)) {
        return {};
    }
    const bool same = step.before.IsTyping() || IsEdit(step.step.act) ||
                      KeptPorts(step.before.Ports()).size() == step.after.rows.size() ||
                      step.before.rows.size() == step.after.rows.size();
    const bool stayed = step.after.marked && !another;
    if (stayed && same) {
        return {};
    }
    // An edit that is taken back may bring what is stored, which FaultOfSight looks at.
    if ((step.step.act == Act::Undo || step.step.act == Act::Redo) && !another) {
        return {};
    }
    if (WasSaved(step)) {
        return FaultOfSaved(step);
    }
    return "the marked rows " + Joined(step.before.Ports()) + " of voyage " + step.before.voyage +
           (stayed ? " became " + Joined(step.after.Ports()) + " by themselves"
                   : " are lost without a question");
}

/// A distance table that became a voyage is stored, or still there to be saved.
std::string Rules::FaultOfKept(const Happened& step) const {
    const auto stored = step.stored.find(step.after.voyage);
    if (stored == step.stored.end() || !step.after.visible) {
        return "the table became a voyage that nobody has";
    }
    if (step.before.IsTyping() || torn_.contains(step.after.voyage)) {
        return {};
    }
    const auto kept = [](const Sight& sight) { return KeptPorts(sight.Ports()).size(); };
    if (step.after.marked) {
        return kept(step.before) == kept(step.after) ? "" : "rows of a table that became a voyage are lost";
    }
    const std::string difference = DifferenceOf(step.before, stored->second);
    return difference.empty() ? "" : "what was kept is not what was in the table: " + difference;
}

std::string Rules::FaultOfSaved(const Happened& step) const {
    const std::string& vi = step.before.voyage;
    if (step.before.IsTyping() || corrected_.contains(vi) || !step.stored.contains(vi)) {
        return {};
    }
    const std::string difference = DifferenceOf(step.before, step.stored.at(vi));
    return difference.empty() ? "" : "what was saved is not what was in the table: " + difference;
}

/// A table without the mark shows what is stored, with its miles.
std::string Rules::FaultOfSight(const Happened& step) const {
    const Sight& after = step.after;
    const auto stored = step.stored.find(after.voyage);
    if (!after.visible || after.marked || after.IsTyping() || stored == step.stored.end() ||
        torn_.contains(after.voyage) || uncertain_.contains(after.voyage) ||
        corrected_.contains(after.voyage)) {
        return {};
    }
    if (after.rows.empty() || after.unread) {
        const bool lost = IsOpening(step.step.act) && step.client.window.visible &&
                          !step.server.HasStruck() && !stored->second.rows.empty();
        return lost ? "voyage " + after.voyage + " opens without its rows" : "";
    }
    if (KeptPorts(after.Ports()).size() < 2) {
        return {};  // too few places to be marked
    }
    const std::string difference = DifferenceOf(after, stored->second);
    if (!difference.empty()) {
        return "the table is not marked and shows what is not stored: " + difference;
    }
    for (std::size_t i = 1; i < after.rows.size(); ++i) {
        const double miles = static_cast<double>(stored->second.loaded[i].distance);
        if (std::abs(std::atof(after.miles[i].c_str()) - miles) > kMilesApart) {
            return StringUtl::Format("the table is not marked and shows %s miles to %s, stored are %.2f",
                                     after.miles[i].c_str(), after.rows[i].port.c_str(), miles);
        }
    }
    return {};
}

/// Each voyage in use has its row, with its name, and none else has.
std::string Rules::FaultOfTree(const Happened& step) const {
    const Client& client = step.client;
    if (treeLoose_ || !client.window.visible) {
        return {};
    }
    std::map<std::string, std::string> rows;
    for (const TreeRow row : client.VoyageRows(InUse)) {
        const auto* voyage = static_cast<const VoyInfo*>(client.tree.GetItemData(row));
        rows[voyage->vi] = client.tree.GetItemText(row);
    }
    std::map<std::string, std::string> kept;
    for (const auto& [vi, voyage] : step.stored) {
        if (voyage.state == InUse) {
            kept[vi] = voyage.name;
        }
    }
    if (rows == kept) {
        return {};
    }
    std::string text = "the tree shows";
    for (const auto& [vi, name] : rows) {
        text += " " + vi + " " + name + ",";
    }
    text += " the server has";
    for (const auto& [vi, name] : kept) {
        text += " " + vi + " " + name + ",";
    }
    return text;
}

}  // namespace Tarvik::Seaplan::Walk
