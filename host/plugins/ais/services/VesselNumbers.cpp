// SPDX-License-Identifier: MIT
#include "host/plugins/ais/services/VesselNumbers.h"

#include <algorithm>
#include <vector>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/SiblingContract.h>
#include <tarvik/interface/SiblingRecords.h>
#include <tarvik/util/StringUtl.h>

namespace Tarvik::Ais {

namespace {

std::uint32_t AskFleet(const std::string& id) {
    const auto* fleet = Interface::Call(Interface::Bus::AllVessels);
    if (fleet == nullptr || id.empty()) {
        return 0;
    }
    const auto found =
        std::find_if(fleet->begin(), fleet->end(), [&id](const auto& entry) { return entry.id == id; });
    return found == fleet->end() || found->number < 1 ? 0 : static_cast<std::uint32_t>(found->number);
}

}  // namespace

std::uint32_t VesselNumbers::Of(const std::string& id, std::int32_t given) {
    if (given >= 1) {
        learnt_[id] = static_cast<std::uint32_t>(given);
        return static_cast<std::uint32_t>(given);
    }
    const auto found = learnt_.find(id);
    return found != learnt_.end() ? found->second : AskFleet(id);
}

std::uint32_t VesselNumbers::OfText(const std::string& text, std::string& id) {
    const std::size_t bar = text.rfind('|');
    id = text.substr(0, bar);
    const long given = bar == std::string::npos ? 0 : Util::StringUtl::ToLong(text.substr(bar + 1));
    return Of(id, static_cast<std::int32_t>(given));
}

}  // namespace Tarvik::Ais
