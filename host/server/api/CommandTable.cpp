// SPDX-License-Identifier: MIT
#include "host/server/api/CommandTable.h"

#include <algorithm>
#include <array>

#include "host/server/api/CommandHandlers.h"

namespace Tarvik::Server {

namespace {

using Interface::kRemarkModuleWord;
using Interface::kVoyageModuleWord;
using Interface::VoyCommand;

constexpr std::array kCommands = {
    CommandEntry{kVoyageModuleWord, VoyCommand::SearchRoute, "finds a route",
                 R"({"rp_id":"","orig_rp_id":"","leg":-1,"rp_group":"","pointList":"40389#40208"})", "1",
                 CommandKind::Route, &PlanRoute},
    CommandEntry{kVoyageModuleWord, VoyCommand::NearestRoute, "finds the nearest route point",
                 R"({"nr_point":[4.05,51.98],"dest_port":40208})", "2", CommandKind::Route, &FindNearest},
    CommandEntry{kVoyageModuleWord, VoyCommand::LoadCatalog, "loads a user's categories and voyages",
                 R"({ui:"anna"})", "3", CommandKind::Read, &LoadCatalog},
    CommandEntry{kVoyageModuleWord, VoyCommand::ChangeCategory, "changes a category",
                 R"({ci:"",cn:"2026",type:0})", "4", CommandKind::Change, &ChangeCategory},
    CommandEntry{kVoyageModuleWord, VoyCommand::ChangeVoyage, "changes a voyage",
                 R"({ci:"7",vi:"",vn:"North",type:"0",vsi:"",vr:"0",va:"0"})", "5", CommandKind::Change,
                 &ChangeVoyage},
    CommandEntry{kVoyageModuleWord, VoyCommand::SaveFigures, "stores the seven consumption figures",
                 R"({vi:"9",vfn:"30",vff:"28",vfa:"5",vdn:"2",vda:"2",vwn:"10",vwa:"10"})", "6",
                 CommandKind::Change, &StoreFigures},
    CommandEntry{kVoyageModuleWord, VoyCommand::LoadBook, "reads the position book", R"({vi:"9"})", "7",
                 CommandKind::Read, &LoadBook},
    CommandEntry{kVoyageModuleWord, VoyCommand::CreateBook, "creates a position book",
                 R"({vi:"9",dt:"2026-12-01 08:00:00"})", "8", CommandKind::Change, &CreateBook},
    CommandEntry{kVoyageModuleWord, VoyCommand::SaveBookRows, "writes position book rows",
                 R"(["12","0","0|Rotterdam|4.050|51.980|GC|2|25.928|1",…])", "9", CommandKind::Change,
                 &WriteBookRows},
    CommandEntry{kVoyageModuleWord, VoyCommand::LoadPortCalls, "reads the port calls", R"({vi:"9"})", "10",
                 CommandKind::Read, &LoadPortCalls},
    CommandEntry{kVoyageModuleWord, VoyCommand::SavePortCalls, "writes the port calls",
                 R"(["9","0|40389|Rotterdam|L|25.928|0.050|12.0",…])", "11", CommandKind::Change,
                 &ReplacePortCalls},
    CommandEntry{kVoyageModuleWord, VoyCommand::LoadAisTimes, "reads the AIS correction times", R"({vi:"9"})",
                 "12", CommandKind::Read, &LoadAisTimes},
    CommandEntry{kVoyageModuleWord, VoyCommand::AddAisTime, "adds an AIS correction time",
                 R"({vi:"9",time:"2026-12-03 14:00:00"})", "13", CommandKind::Change, &AddAisTime},
    CommandEntry{kVoyageModuleWord, VoyCommand::SetBookDate, "changes the date of a position book",
                 R"({psb:"12",dt:"2026-12-01 08:00:00"})", "14", CommandKind::Change, &SetBookDate},
    CommandEntry{kVoyageModuleWord, VoyCommand::LoadFleet, "loads a user's fleet", R"({ui:"anna"})", "15",
                 CommandKind::Read, &LoadFleet},
    CommandEntry{
        kVoyageModuleWord, VoyCommand::ChangeFleet, "changes a vessel of the fleet",
        R"({vsi:"",type:"0",vsn:"Meridian",vsmsi:"477123456",vsimo:"9134270",vscs:"VRAB2",vst:"Tanker",vsl:"229.0",vsp:"25.928"})",
        "16", CommandKind::Change, &ChangeFleet},
    CommandEntry{kVoyageModuleWord, VoyCommand::LoadPlaces, "loads a user's own ports", R"({ui:"anna"})",
                 "17", CommandKind::Read, &LoadPlaces},
    CommandEntry{kVoyageModuleWord, VoyCommand::ChangePlace, "changes an own port",
                 R"({ppi:"",type:"0",ppn:"Berth 7",xc:"4.050",yc:"51.980"})", "18", CommandKind::Change,
                 &ChangePlace},
    CommandEntry{kRemarkModuleWord, VoyCommand::Remarks, "keeps remarks",
                 R"({optype:"4",type:"3",objectid:"9"})", "remark", CommandKind::Change, &KeepRemarks},
};

}  // namespace

std::span<const CommandEntry> CommandTable() {
    return kCommands;
}

const CommandEntry* FindCommand(std::uint16_t moduleWord, std::uint16_t number) {
    const auto* entry = std::find_if(kCommands.begin(), kCommands.end(), [=](const CommandEntry& candidate) {
        return candidate.moduleWord == moduleWord && candidate.Number() == number;
    });
    return entry == kCommands.end() ? nullptr : entry;
}

std::string_view CommandLabel(std::uint16_t moduleWord, std::uint16_t number) {
    const CommandEntry* entry = FindCommand(moduleWord, number);
    return entry == nullptr ? "unknown" : entry->label;
}

}  // namespace Tarvik::Server
