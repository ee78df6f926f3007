// SPDX-License-Identifier: MIT
#include "seaplan/protocol/VoyCatalogModule.h"

#include <set>

#include "seaplan/protocol/CatalogReply.h"
#include "seaplan/protocol/CatalogTexts.h"
#include "seaplan/protocol/Exchange.h"
#include "seaplan/protocol/StatusReply.h"

namespace Tarvik::Seaplan {

namespace {

using Interface::VoyCommand;

/// Runs a creating command and takes the new record's id from member `key` of the status.
int Create(const std::string& text, VoyCommand command, const char* key, std::string& id) {
    Util::Jsona reply;
    if (const int failed = SendChange(text, command, -2, reply); failed < 0) {
        return failed;
    }
    const std::string made = reply.getv(key, "");
    if (made.empty()) {
        return -5;
    }
    id = made;
    return 0;
}

/// True with `on` set for the two mode words that exist.
bool ReadMode(const std::string& mode, bool& on) {
    on = mode == "open";
    return on || mode == "close";
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
    if (SendText(LoadAllText(user), VoyCommand::LoadCatalog, reply) < 0) {
        return -2;
    }
    if (reply.size() < 1) {
        return 1;
    }
    ReadCatalog(reply, *store_);
    return 0;
}

int VoyCatalogModule::CreateCategory(const std::string& name, std::string& ci) {
    return name.empty() ? -1 : Create(CreateCategoryText(name), VoyCommand::ChangeCategory, "ci", ci);
}

int VoyCatalogModule::RenameCategory(const std::string& ci, const std::string& name) {
    return ci.empty() || name.empty() ? -1
                                      : SendChange(RenameCategoryText(ci, name), VoyCommand::ChangeCategory);
}

int VoyCatalogModule::ChangeCategoryState(const std::string& ci, int type) {
    return ci.empty() ? -1 : SendChange(CategoryStateText(ci, type), VoyCommand::ChangeCategory);
}

int VoyCatalogModule::CreateVoyage(const std::string& name, const std::string& ci, std::string& vi) {
    return name.empty() ? -1 : Create(CreateVoyageText(ci, name), VoyCommand::ChangeVoyage, "vi", vi);
}

int VoyCatalogModule::RenameVoyage(const std::string& vi, const std::string& name) {
    return vi.empty() || name.empty() ? -1 : SendChange(RenameVoyageText(vi, name), VoyCommand::ChangeVoyage);
}

int VoyCatalogModule::ChangeVoyageState(const std::string& vi, int type) {
    return vi.empty() ? -1 : SendChange(VoyageStateText(vi, type), VoyCommand::ChangeVoyage);
}

int VoyCatalogModule::ChangeVessel(const std::string& vi, const std::string& vsi, const std::string& vsn,
                                   int vsmsi) {
    if (vi.empty() || (vsi.empty() && vsn.empty())) {
        return -1;
    }
    return SendChange(ChangeVesselText(vi, vsi, vsn, vsmsi), VoyCommand::ChangeVoyage);
}

int VoyCatalogModule::SetRouteDisplay(const std::string& vi, const std::string& mode) {
    bool on = false;
    if (vi.empty()) {
        return -1;
    }
    return ReadMode(mode, on) ? SendChange(RouteDisplayText(vi, on), VoyCommand::ChangeVoyage, -3) : -2;
}

int VoyCatalogModule::SetAisTracing(const std::string& vi, const std::string& mode) {
    bool on = false;
    if (vi.empty()) {
        return -1;
    }
    return ReadMode(mode, on) ? SendChange(AisTracingText(vi, on), VoyCommand::ChangeVoyage, -3) : -2;
}

int VoyCatalogModule::AddAisModTime(const std::string& vi, const std::string& time) {
    std::string serverTime;
    if (vi.empty()) {
        return -1;
    }
    if (ToServerTime(time, serverTime) < 0) {
        return -2;
    }
    return SendChange(AddAisModTimeText(vi, serverTime), VoyCommand::AddAisTime, -3);
}

int VoyCatalogModule::GetAisModTimes(const std::string& vi, std::vector<std::string>& times) {
    if (vi.empty()) {
        return -1;
    }
    times.clear();
    Util::Jsona reply;
    if (SendText(VoyageIdText(vi), VoyCommand::LoadAisTimes, reply) < 0) {
        return -2;
    }
    if (reply.size() < 1) {
        return -3;
    }
    std::set<std::string> sorted;
    const Util::Jsona list = reply.get("times");
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
