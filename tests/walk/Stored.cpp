// SPDX-License-Identifier: MIT
#include "tests/walk/Stored.h"

#include <set>

#include <tarvik/util/StringUtl.h>

#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/protocol/VoyCatalogModule.h"

namespace Tarvik::Seaplan::Walk {

namespace {

using Util::StringUtl;

std::string FlagsOf(const VoyInfo& voyage) {
    return voyage.vsi + "|" + voyage.vsn + "|" + std::to_string(voyage.vsmsi) + "|" +
           std::to_string(voyage.vr) + std::to_string(voyage.va);
}

std::string ScheduleTextOf(const StoredVoyage& voyage) {
    std::string text;
    for (const VoyPortCall& row : voyage.rows) {
        text += StringUtl::Format("%s|%s|%s|%.4f|%.4f|%.4f\n", row.ppi.c_str(), row.ppn.c_str(),
                                  row.pp.c_str(), static_cast<double>(row.psp), static_cast<double>(row.pw),
                                  static_cast<double>(row.apt));
    }
    text += voyage.hasBook ? voyage.book.pbi + " " + voyage.book.eta.fmt("%Y-%m-%d %H:%M:%S") + "\n"
                           : "no book\n";
    for (const PosBookPoint& point : voyage.book.points) {
        text += StringUtl::Format("%s|%s|%s|%d|%.4f|%d\n", point.psn.c_str(), point.position.c_str(),
                                  point.psr.c_str(), point.pli, static_cast<double>(point.psp), point.pst);
    }
    for (const std::string& time : voyage.corrections) {
        text += time + "\n";
    }
    return text;
}

void ReadSchedule(PanelDesk& desk, const std::string& vi, StoredVoyage& voyage) {
    desk.portCallModule.LoadPortCalls(vi, voyage.rows);
    voyage.hasBook = desk.portCallModule.LoadPositionBook(vi, voyage.book) == 0;
    desk.catalogModule.GetAisModTimes(vi, voyage.corrections);
    voyage.loadCode = desk.voyages.LoadSchedule(vi, voyage.loaded, -1);
    voyage.schedule = ScheduleTextOf(voyage);
}

/// In the place of a voyage: a book that was made in the step itself.
constexpr const char* kAnyVoyage = "any";

/// Voyages whose schedules the step wrote.
std::set<std::string> WrittenIn(const FaultyServer& server, const Stored& known) {
    std::set<std::string> written;
    for (const Write& write : server.Writes()) {
        const std::string vi = ScheduleWrittenBy(write, known);
        written.insert(vi.empty() || known.contains(vi) ? vi : kAnyVoyage);
    }
    return written;
}

}  // namespace

Stored ReadStored(PanelDesk& desk, FaultyServer& server, const std::string& user, const Stored& known) {
    const FaultyServer::Aside aside(server, user);
    const std::set<std::string> written = WrittenIn(server, known);
    desk.store.Clear();
    VoyCatalogModule(&desk.store).LoadAll(user);
    Stored all;
    for (const auto& [ci, voyages] : desk.store.categoryVoyages) {
        for (const auto& [vi, state] : voyages) {
            if (state == Destroyed || desk.store.FindVoyage(vi) == nullptr) {
                continue;
            }
            const VoyInfo& record = *desk.store.FindVoyage(vi);
            const auto before = known.find(vi);
            StoredVoyage& voyage = all[vi];
            if (before != known.end() && !written.contains(vi) && !written.contains(kAnyVoyage)) {
                voyage = before->second;
            } else {
                ReadSchedule(desk, vi, voyage);
            }
            voyage.name = record.vn;
            voyage.state = state;
            voyage.flags = FlagsOf(record);
        }
    }
    return all;
}

std::string FieldOf(const std::string& text, const std::string& key) {
    // A list begins with the id; an object names it.
    const std::string before = text.rfind('[', 0) == 0 ? "[\"" : key + ":\"";
    const std::size_t begin = text.find(before);
    if (begin == std::string::npos) {
        return {};
    }
    const std::size_t from = begin + before.size();
    return text.substr(from, text.find('"', from) - from);
}

std::string ScheduleWrittenBy(const Write& write, const Stored& stored) {
    constexpr std::uint16_t kCreateBook = 8;
    constexpr std::uint16_t kBookRows = 9;
    constexpr std::uint16_t kPortCalls = 11;
    constexpr std::uint16_t kCorrection = 13;
    constexpr std::uint16_t kBookDate = 14;
    switch (write.command) {
        case kCreateBook:
        case kPortCalls:
        case kCorrection:
            return FieldOf(write.text, "vi");
        case kBookRows:
        case kBookDate:
            break;
        default:
            return {};
    }
    const std::string book = FieldOf(write.text, "psb");
    for (const auto& [vi, voyage] : stored) {
        if (voyage.hasBook && voyage.book.pbi == book) {
            return vi;
        }
    }
    return "book " + book;
}

}  // namespace Tarvik::Seaplan::Walk
