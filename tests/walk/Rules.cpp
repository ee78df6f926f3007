// SPDX-License-Identifier: MIT
/// What may be stored, and when.
#include "tests/walk/Rules.h"

#include <algorithm>

namespace Tarvik::Seaplan::Walk {

namespace {

constexpr std::uint16_t kBookRows = 9;
constexpr std::uint16_t kPortCalls = 11;

/// Whether the person asked, in this step, that a voyage's schedule be stored.
bool MayStore(const Happened& step, const std::string& vi) {
    if (step.IsKept()) {
        return vi == step.after.voyage && !step.storedBefore.contains(vi);
    }
    if (vi != step.before.voyage) {
        return false;
    }
    if (step.person.Answered("IDS_PORTCALL_SAVENEXT", true)) {
        return true;
    }
    const auto stored = step.storedBefore.find(vi);
    const bool hasRows = stored != step.storedBefore.end() && !stored->second.rows.empty();
    // Calculating a voyage that has been saved saves it.
    return step.step.act == Act::Save || (step.step.act == Act::Calculate && hasRows);
}

bool NamesMayChange(const Happened& step) {
    return step.step.act == Act::Rename || step.before.nameOpen;
}

bool StatesMayChange(Act act) {
    return act == Act::AddVoyage || act == Act::DeleteVoyage || act == Act::RecoverVoyage ||
           act == Act::DestroyVoyage;
}

bool FlagsMayChange(const Happened& step) {
    const Act act = step.step.act;
    return act == Act::Pin || act == Act::Track || act == Act::Vessel || act == Act::DeleteVoyage ||
           step.before.vesselOpen;
}

}  // namespace

/// A save is whole when the book's rows came behind the port calls.
void Rules::NoteWrites(const Happened& step) {
    std::set<std::string> begun;
    for (const Write& write : step.server.Writes()) {
        const std::string vi = ScheduleWrittenBy(write, step.stored);
        if (vi.empty()) {
            treeLoose_ = treeLoose_ || !write.answered;
            continue;
        }
        if (write.taken && !write.answered) {
            uncertain_.insert(vi);
        }
        if (write.taken && write.command == kPortCalls) {
            begun.insert(vi);
            torn_.insert(vi);
        } else if (write.taken && write.command == kBookRows && begun.contains(vi)) {
            torn_.erase(vi);
            if (write.answered) {
                uncertain_.erase(vi);
            }
        }
    }
    for (const std::string& vi : begun) {
        if (torn_.contains(vi)) {
            uncertain_.insert(vi);
        }
    }
    const bool inTree = step.step.act < Act::TypePort || step.step.act == Act::KeepTable;
    treeLoose_ = treeLoose_ || (step.server.HasStruck() && inTree);
}

void Rules::NoteCorrections(const Happened& step) {
    for (const auto& [vi, voyage] : step.client.store.voyages) {
        if (voyage.modais > 0) {
            corrected_.insert(vi);
        }
    }
}

std::string Rules::FaultOfWriting(const Happened& step) const {
    for (const Write& write : step.server.Writes()) {
        const std::string vi = ScheduleWrittenBy(write, step.stored);
        if (!vi.empty() && write.taken && !MayStore(step, vi)) {
            return "voyage " + vi + " was written without a yes or a Save: " + write.text;
        }
    }
    for (const auto& [vi, voyage] : step.stored) {
        const auto before = step.storedBefore.find(vi);
        if (before != step.storedBefore.end() && before->second.schedule != voyage.schedule &&
            !MayStore(step, vi)) {
            return "the schedule of voyage " + vi + " has changed";
        }
        if (torn_.contains(vi) && before != step.storedBefore.end() &&
            before->second.schedule != voyage.schedule && !step.server.HasStruck()) {
            return "a save of voyage " + vi + " broke off by itself";
        }
    }
    return FaultOfRecords(step);
}

std::string Rules::FaultOfRecords(const Happened& step) const {
    for (const auto& [vi, before] : step.storedBefore) {
        const auto now = step.stored.find(vi);
        if (now == step.stored.end() || now->second.state != before.state) {
            if (!StatesMayChange(step.step.act)) {
                return "voyage " + vi + " went without a command";
            }
        } else if (now->second.name != before.name && !NamesMayChange(step)) {
            return "voyage " + vi + " was renamed without a command";
        } else if (now->second.flags != before.flags && !FlagsMayChange(step)) {
            return "vessel or switches of voyage " + vi + " changed without a command: " + before.flags +
                   " to " + now->second.flags;
        }
    }
    const bool more = step.stored.size() > step.storedBefore.size();
    return more && step.step.act != Act::AddVoyage && step.step.act != Act::KeepTable
               ? "a voyage was made without a command"
               : "";
}

/// What is stored opens; what was stored whole is right.
std::string Rules::FaultOfStored(const Happened& step) const {
    for (const auto& [vi, voyage] : step.stored) {
        const auto before = step.storedBefore.find(vi);
        const bool same = before != step.storedBefore.end() && before->second.schedule == voyage.schedule;
        if (same || (voyage.rows.empty() && !voyage.hasBook)) {
            continue;
        }
        if (torn_.contains(vi)) {
            if (voyage.loaded.size() != voyage.rows.size()) {
                return "voyage " + vi + ", whose save broke off, does not open with its rows";
            }
            continue;
        }
        const std::string fault = FaultOfSchedule(voyage, corrected_.contains(vi));
        if (!fault.empty()) {
            return "voyage " + vi + " is stored wrong: " + fault + "\n" + voyage.schedule;
        }
    }
    return {};
}

std::string Rules::FaultOf(const Happened& step) {
    NoteWrites(step);
    NoteCorrections(step);
    using Check = std::string (Rules::*)(const Happened&) const;
    constexpr Check kOfWriting[] = {&Rules::FaultOfWriting, &Rules::FaultOfReplacing, &Rules::FaultOfStored};
    constexpr Check kOfSight[] = {&Rules::FaultOfLoss, &Rules::FaultOfSight, &Rules::FaultOfTree};
    std::string fault;
    for (const Check check : kOfWriting) {
        if (fault.empty() && !step.server.Writes().empty()) {
            fault = (this->*check)(step);
        }
    }
    for (const Check check : kOfSight) {
        fault = fault.empty() ? (this->*check)(step) : fault;
    }
    NoteShown(step);
    return fault;
}

}  // namespace Tarvik::Seaplan::Walk
