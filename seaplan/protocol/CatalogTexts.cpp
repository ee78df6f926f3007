// SPDX-License-Identifier: MIT
#include "seaplan/protocol/CatalogTexts.h"

#include <tarvik/util/StringUtl.h>

namespace Tarvik::Seaplan {

using Util::StringUtl;

std::string LoadAllText(const std::string& user) {
    return StringUtl::Format("{ui:\"%s\"}", user.c_str());
}

std::string CreateCategoryText(const std::string& name) {
    return StringUtl::Format("{ci:\"\",cn:\"%s\",type:0}", name.c_str());
}

std::string CategoryStateText(const std::string& ci, int type) {
    return StringUtl::Format("{ci:\"%s\",type:\"%d\"}", ci.c_str(), type);
}

std::string RenameCategoryText(const std::string& ci, const std::string& name) {
    return StringUtl::Format("{ci:\"%s\",cn:\"%s\",type:\"4\"}", ci.c_str(), name.c_str());
}

std::string CreateVoyageText(const std::string& ci, const std::string& name) {
    return StringUtl::Format("{ci:\"%s\",vi:\"\",vn:\"%s\",type:\"0\",vsi:\"\",vr:\"0\",va:\"0\"}",
                             ci.c_str(), name.c_str());
}

std::string RenameVoyageText(const std::string& vi, const std::string& name) {
    return StringUtl::Format("{vi:\"%s\",vn:\"%s\",type:\"1\"}", vi.c_str(), name.c_str());
}

std::string VoyageStateText(const std::string& vi, int type) {
    return StringUtl::Format("{vi:\"%s\",type:\"%d\"}", vi.c_str(), type);
}

std::string ChangeVesselText(const std::string& vi, const std::string& vsi, const std::string& vsn,
                             int vsmsi) {
    return StringUtl::Format("{vi:\"%s\",type:\"5\",vsi:\"%s\",vsn:\"%s\",vsmsi:\"%d\"}", vi.c_str(),
                             vsi.c_str(), vsn.c_str(), vsmsi);
}

std::string RouteDisplayText(const std::string& vi, bool on) {
    return StringUtl::Format("{vi:\"%s\",type:\"6\",vr:\"%d\"}", vi.c_str(), on ? 1 : 0);
}

std::string AisTracingText(const std::string& vi, bool on) {
    return StringUtl::Format("{vi:\"%s\",type:\"7\",va:\"%d\"}", vi.c_str(), on ? 1 : 0);
}

std::string AddAisModTimeText(const std::string& vi, const std::string& serverTime) {
    return StringUtl::Format("{vi:\"%s\",time:\"%s\"}", vi.c_str(), serverTime.c_str());
}

std::string VoyageIdText(const std::string& vi) {
    return StringUtl::Format("{vi:\"%s\"}", vi.c_str());
}

}  // namespace Tarvik::Seaplan
