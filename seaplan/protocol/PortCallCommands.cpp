// SPDX-License-Identifier: MIT
#include "seaplan/protocol/PortCallCommands.h"

#include <map>
#include <utility>

#include <tarvik/util/Jsona.h>
#include <tarvik/util/StringUtl.h>

#include "seaplan/data/PortDirectory.h"
#include "seaplan/protocol/CatalogMessages.h"
#include "seaplan/protocol/Exchange.h"

namespace Tarvik::Seaplan {

namespace {

using Util::StringUtl;

using Interface::VoyCommand;

VoyPortCall ReadPortCall(const Util::Jsona& element) {
    VoyPortCall row;
    row.ppi = element.getv("ppi", "");
    row.ppn = element.getv("ppn", "");
    row.pp = element.getv("pp", "");
    row.psp = KnotsFromWire(StringUtl::ToDouble(element.getv("psp", "0")));
    row.pw = static_cast<float>(StringUtl::ToDouble(element.getv("pw", "0")));
    row.apt = static_cast<float>(StringUtl::ToDouble(element.getv("apt", "0")));
    return row;
}

}  // namespace

int ReadPortCalls(const Util::Jsona& reply, PortCallRows& rows) {
    rows.clear();
    std::map<int, VoyPortCall> sorted;
    for (int i = 0; i < reply.size(); ++i) {
        const Util::Jsona element = reply.get(i);
        const std::string number = element.getv("lon", "");
        if (number.empty()) {
            return -4;
        }
        sorted[StringUtl::ToInt(number)] = ReadPortCall(element);
    }
    for (auto& [number, row] : sorted) {
        rows.push_back(std::move(row));
    }
    return 0;
}

std::string PortCallsText(const std::string& vi, const PortCallRows& rows) {
    std::string text = "[\"" + vi + "\",";
    int index = 0;
    for (const VoyPortCall& row : rows) {
        text += StringUtl::Format("\"%d|%s|%s|%s|%.3f|%.3f|%.1f\",", index++, row.ppi.c_str(),
                                  row.ppn.c_str(), row.pp.c_str(), WireFromKnots(row.psp),
                                  static_cast<double>(row.pw), static_cast<double>(row.apt));
    }
    text.pop_back();
    return text + "]";
}

std::string FiguresText(const std::string& vi, const BunkerFigures& figures) {
    return StringUtl::Format(
        "{vi:\"%s\",vfn:\"%d\",vff:\"%d\",vfa:\"%d\",vdn:\"%d\",vda:\"%d\",vwn:\"%d\",vwa:\"%d\"}",
        vi.c_str(), figures[Vfn], figures[Vff], figures[Vfa], figures[Vdn], figures[Vda], figures[Vwn],
        figures[Vwa]);
}

int LoadPortCalls(const std::string& vi, PortCallRows& rows) {
    rows.clear();
    if (vi.empty()) {
        return -1;
    }
    Util::Jsona reply;
    if (!AskList(VoyageIdText(vi), VoyCommand::LoadPortCalls, reply)) {
        return -2;
    }
    return reply.size() < 1 ? -3 : ReadPortCalls(reply, rows);
}

int SavePortCalls(const std::string& vi, PortCallRows& rows) {
    if (vi.empty() || rows.size() < 2) {
        return -1;
    }
    ResolvePortIds(rows);
    Util::Jsona reply;
    if (SendText(PortCallsText(vi, rows), VoyCommand::SavePortCalls, reply) < 0) {
        return -2;
    }
    return IsSuccess(reply) ? 0 : -3;
}

int SaveFigures(const std::string& vi, const BunkerFigures& figures) {
    if (vi.empty()) {
        return -1;
    }
    Util::Jsona reply;
    if (SendText(FiguresText(vi, figures), VoyCommand::SaveFigures, reply) < 0) {
        return -2;
    }
    return IsSuccess(reply) ? 0 : -3;
}

}  // namespace Tarvik::Seaplan
