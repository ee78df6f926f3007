// SPDX-License-Identifier: MIT
#include "seaplan/protocol/CatalogMessages.h"

#include <utility>

#include <tarvik/util/StringUtl.h>

namespace Tarvik::Seaplan {

namespace {

/// Numbers of this reply are quoted; one beyond 32 bits is clamped.
int NumberOf(const Util::Jsona& element, const char* key) {
    return Util::StringUtl::ToInt(element.getv(key, "0"));
}

void ReadFigures(const Util::Jsona& element, BunkerFigures& figures) {
    figures[Vfn] = NumberOf(element, "vfn");
    figures[Vff] = NumberOf(element, "vff");
    // The server's `vfa` has always been read into the place of `vwa`, which then follows; clients rely on
    // `vfa` being 0.
    figures[Vwa] = NumberOf(element, "vfa");
    figures[Vdn] = NumberOf(element, "vdn");
    figures[Vda] = NumberOf(element, "vda");
    figures[Vwn] = NumberOf(element, "vwn");
    figures[Vwa] = NumberOf(element, "vwa");
}

void ReadVoyages(const Util::Jsona& list, const std::string& ci, VoyageStore& store) {
    for (int i = 0; i < list.size(); ++i) {
        const Util::Jsona element = list.get(i);
        VoyInfo voyage = ReadVoyage(element);
        if (voyage.vi.empty()) {
            continue;
        }
        store.categoryVoyages[ci][voyage.vi] = NumberOf(element, "vd");
        std::string key = voyage.vi;
        store.voyages[std::move(key)] = std::move(voyage);
    }
}

}  // namespace

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

VoyInfo ReadVoyage(const Util::Jsona& element) {
    VoyInfo voyage;
    voyage.vi = element.getv("vi", "");
    voyage.vn = element.getv("vn", "");
    voyage.vsi = element.getv("vsi", "");
    voyage.vsn = element.getv("vsn", "");
    voyage.vsmsi = NumberOf(element, "vsmsi");
    voyage.vr = NumberOf(element, "vr");
    voyage.va = NumberOf(element, "va");
    ReadFigures(element, voyage.figures);
    voyage.vrk = NumberOf(element, "vrk");
    voyage.modais = NumberOf(element, "modais");
    return voyage;
}

void ReadCatalog(const Util::Jsona& reply, VoyageStore& store) {
    for (int i = 0; i < reply.size(); ++i) {
        const Util::Jsona element = reply.get(i);
        VoyCategory category;
        category.ci = element.getv("ci", "");
        if (category.ci.empty()) {
            continue;
        }
        category.cn = element.getv("cn", "");
        category.crk = NumberOf(element, "crk");
        store.categories[category.ci] = category;
        store.categoryStates[category.ci] = NumberOf(element, "cd");
        ReadVoyages(element.get("voys"), category.ci, store);
    }
}

}  // namespace Tarvik::Seaplan
