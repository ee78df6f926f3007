// SPDX-License-Identifier: MIT
#include "seaplan/protocol/CatalogReply.h"

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
