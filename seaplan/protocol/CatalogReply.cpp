// SPDX-License-Identifier: MIT
#include "seaplan/protocol/CatalogReply.h"

#include <tarvik/util/StringUtl.h>

#include <utility>

namespace Tarvik::Seaplan {

namespace {

/// Numbers of this reply are quoted; one beyond 32 bits is clamped.
int numberOf(const Util::Jsona& element, const char* key) {
    return Util::StringUtl::ToInt(element.getv(key, "0"));
}

void readFigures(const Util::Jsona& element, BunkerFigures& figures) {
    figures[Vfn] = numberOf(element, "vfn");
    figures[Vff] = numberOf(element, "vff");
    // The server's `vfa` has always been read into the place of `vwa`, which then follows; clients rely on
    // `vfa` being 0.
    figures[Vwa] = numberOf(element, "vfa");
    figures[Vdn] = numberOf(element, "vdn");
    figures[Vda] = numberOf(element, "vda");
    figures[Vwn] = numberOf(element, "vwn");
    figures[Vwa] = numberOf(element, "vwa");
}

void readVoyages(const Util::Jsona& list, const std::string& ci, VoyageStore& store) {
    for (int i = 0; i < list.size(); ++i) {
        const Util::Jsona element = list.get(i);
        VoyInfo voyage = ReadVoyage(element);
        if (voyage.vi.empty()) {
            continue;
        }
        store.categoryVoyages[ci][voyage.vi] = numberOf(element, "vd");
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
    voyage.vsmsi = numberOf(element, "vsmsi");
    voyage.vr = numberOf(element, "vr");
    voyage.va = numberOf(element, "va");
    readFigures(element, voyage.figures);
    voyage.vrk = numberOf(element, "vrk");
    voyage.modais = numberOf(element, "modais");
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
        category.crk = numberOf(element, "crk");
        store.categories[category.ci] = category;
        store.categoryStates[category.ci] = numberOf(element, "cd");
        readVoyages(element.get("voys"), category.ci, store);
    }
}

}  // namespace Tarvik::Seaplan
