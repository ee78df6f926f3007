// SPDX-License-Identifier: MIT
#include "seaplan/protocol/VoyCatalogModule.h"

#include <set>

#include <tarvik/util/Jsona.h>

#include "seaplan/protocol/CatalogMessages.h"
#include "seaplan/protocol/Exchange.h"

namespace Tarvik::Seaplan {

namespace {

using Interface::VoyCommand;

/// Runs a creating command and takes the new record's id from member `key` of the status.
Outcome<CommandStep> Create(const std::string& text, VoyCommand command, const char* key, std::string& id) {
    Util::Jsona reply;
    if (const auto failed = SendChange(text, command, reply); failed.Failed()) {
        return failed;
    }
    const std::string made = reply.getv(key, "");
    if (made.empty()) {
        return CommandStep::Id;
    }
    id = made;
    return {};
}

/// Sends unless something that the command needs is empty.
Outcome<CommandStep> SendUnless(bool empty, const std::string& text, VoyCommand command) {
    return empty ? CommandStep::Input : SendChange(text, command);
}

/// Switches something of a voyage by one of the two mode words that exist.
Outcome<CommandStep> Switch(const std::string& vi, const std::string& mode,
                            std::string (*text)(const std::string& vi, bool on)) {
    const bool on = mode == "open";
    if (vi.empty()) {
        return CommandStep::Input;
    }
    return on || mode == "close" ? SendChange(text(vi, on), VoyCommand::ChangeVoyage)
                                 : CommandStep::Preparation;
}

Outcome<CommandStep> AddTime(const std::string& vi, const std::string& time) {
    std::string serverTime;
    if (vi.empty()) {
        return CommandStep::Input;
    }
    if (ToServerTime(time, serverTime) < 0) {
        return CommandStep::Preparation;
    }
    return SendChange(AddAisModTimeText(vi, serverTime), VoyCommand::AddAisTime);
}

}  // namespace

int VoyCatalogModule::EnsureConnected() {
    return Seaplan::EnsureConnected();
}

int VoyCatalogModule::GetUser(std::string& user) {
    return Seaplan::GetUser(user);
}

int VoyCatalogModule::LoadAll(const std::string& user) {
    if (!store_->categories.empty()) {
        return 0;
    }
    if (user.empty()) {
        return -1;
    }
    Util::Jsona reply;
    if (!AskList(LoadAllText(user), VoyCommand::LoadCatalog, reply)) {
        return -2;
    }
    if (reply.size() < 1) {
        return 1;
    }
    ReadCatalog(reply, *store_);
    return 0;
}

int VoyCatalogModule::CreateCategory(const std::string& name, std::string& ci) {
    return kCommandCodes.Of(name.empty()
                                ? CommandStep::Input
                                : Create(CreateCategoryText(name), VoyCommand::ChangeCategory, "ci", ci));
}

int VoyCatalogModule::RenameCategory(const std::string& ci, const std::string& name) {
    return kCommandCodes.Of(
        SendUnless(ci.empty() || name.empty(), RenameCategoryText(ci, name), VoyCommand::ChangeCategory));
}

int VoyCatalogModule::ChangeCategoryState(const std::string& ci, int type) {
    return kCommandCodes.Of(SendUnless(ci.empty(), CategoryStateText(ci, type), VoyCommand::ChangeCategory));
}

int VoyCatalogModule::CreateVoyage(const std::string& name, const std::string& ci, std::string& vi) {
    return kCommandCodes.Of(name.empty()
                                ? CommandStep::Input
                                : Create(CreateVoyageText(ci, name), VoyCommand::ChangeVoyage, "vi", vi));
}

int VoyCatalogModule::RenameVoyage(const std::string& vi, const std::string& name) {
    return kCommandCodes.Of(
        SendUnless(vi.empty() || name.empty(), RenameVoyageText(vi, name), VoyCommand::ChangeVoyage));
}

int VoyCatalogModule::ChangeVoyageState(const std::string& vi, int type) {
    return kCommandCodes.Of(SendUnless(vi.empty(), VoyageStateText(vi, type), VoyCommand::ChangeVoyage));
}

int VoyCatalogModule::ChangeVessel(const std::string& vi, const std::string& vsi, const std::string& vsn,
                                   int vsmsi) {
    return kCommandCodes.Of(SendUnless(vi.empty() || (vsi.empty() && vsn.empty()),
                                       ChangeVesselText(vi, vsi, vsn, vsmsi), VoyCommand::ChangeVoyage));
}

int VoyCatalogModule::SetRouteDisplay(const std::string& vi, const std::string& mode) {
    return kPreparedCommandCodes.Of(Switch(vi, mode, RouteDisplayText));
}

int VoyCatalogModule::SetAisTracing(const std::string& vi, const std::string& mode) {
    return kPreparedCommandCodes.Of(Switch(vi, mode, AisTracingText));
}

int VoyCatalogModule::AddAisModTime(const std::string& vi, const std::string& time) {
    return kPreparedCommandCodes.Of(AddTime(vi, time));
}

int VoyCatalogModule::GetAisModTimes(const std::string& vi, std::vector<std::string>& times) {
    times.clear();
    if (vi.empty()) {
        return -1;
    }
    Util::Jsona reply;
    if (SendText(VoyageIdText(vi), VoyCommand::LoadAisTimes, reply) < 0 || reply.getv("eid", 0) != 0) {
        return -2;
    }
    if (reply.size() < 1) {
        return -3;
    }
    const Util::Jsona list = reply.get("times");
    if (list.kind() != Util::Jsona::Kind::Array) {
        return -2;
    }
    std::set<std::string> sorted;
    for (int i = 0; i < list.size(); ++i) {
        std::string local;
        const std::string text = list.getv(i, "");
        if (!text.empty() && FromServerTime(text, local) == 0) {
            sorted.insert(local);
        }
    }
    times.assign(sorted.begin(), sorted.end());
    return 0;
}

}  // namespace Tarvik::Seaplan
