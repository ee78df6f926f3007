// SPDX-License-Identifier: MIT
#include "tests/walk/World.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

#include "seaplan/panels/tests/DeskRoutes.h"

namespace Tarvik::Seaplan::Walk {

namespace {

constexpr std::array kPorts = {"ROTTERDAM", "ROUEN", "HAMBURG", "GDANSK", "EUROPOORT", "ROSTOCK"};
constexpr int kCount = static_cast<int>(kPorts.size());
constexpr const char* kRotterdam = kPorts[0];
constexpr const char* kEuropoort = kPorts[4];

/// The two ways on which a person has a choice.
constexpr std::array kChoices = {std::pair(0, 2), std::pair(2, 3)};

int PlaceOf(const std::string& name) {
    const auto found = std::find(kPorts.begin(), kPorts.end(), name);
    return found == kPorts.end() ? -1 : static_cast<int>(found - kPorts.begin());
}

/// Rows from 2024-02-29 on, so that the ship is at sea when a walk begins.
PortCallRows Calls(std::initializer_list<int> ports, float hoursInPort) {
    PortCallRows rows;
    for (const int port : ports) {
        VoyPortCall row;
        row.ppn = kPorts[static_cast<std::size_t>(port)];
        row.pp = rows.empty() ? "L" : "D";
        row.psp = rows.empty() ? 0.0F : 10.0F;
        row.apt = rows.empty() ? 0.0F : hoursInPort;
        rows.push_back(row);
    }
    rows.front().eta = Util::_datetime_t(0, 0, 20, 29, 2, 2024);
    return rows;
}

}  // namespace

const std::vector<std::string>& TypedPorts() {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> typed(kPorts.begin(), kPorts.end());
        typed.emplace_back("hamburg");
        typed.emplace_back("GDANKS");
        return typed;
    }();
    return names;
}

double MilesBetween(const std::string& from, const std::string& to) {
    constexpr double kShortest = 150;
    constexpr double kStep = 10;
    const int low = std::min(PlaceOf(from), PlaceOf(to));
    const int high = std::max(PlaceOf(from), PlaceOf(to));
    return low < 0 || low == high ? 0 : kShortest + kStep * (low * kCount + high);
}

double OtherMilesBetween(const std::string& from, const std::string& to) {
    constexpr double kLonger = 333;
    const bool choice = std::any_of(kChoices.begin(), kChoices.end(), [&](const auto& way) {
        return way == std::pair(PlaceOf(from), PlaceOf(to));
    });
    return choice ? MilesBetween(from, to) + kLonger : 0;
}

bool IsOnePlace(const std::string& one, const std::string& other) {
    return one == other || (one == kRotterdam && other == kEuropoort) ||
           (one == kEuropoort && other == kRotterdam);
}

std::vector<std::size_t> KeptPorts(const std::vector<std::string>& names) {
    std::vector<std::size_t> kept;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (i == 0 || !IsOnePlace(names[i - 1], names[i])) {
            kept.push_back(i);
        }
    }
    return kept;
}

void Arrange(PanelDesk& desk) {
    for (int from = 0; from < kCount; ++from) {
        for (int to = from + 1; to < kCount; ++to) {
            desk.routes->SetLeg(
                kPorts[static_cast<std::size_t>(from)], kPorts[static_cast<std::size_t>(to)],
                MilesBetween(kPorts[static_cast<std::size_t>(from)], kPorts[static_cast<std::size_t>(to)]));
        }
    }
    for (const auto& [from, to] : kChoices) {
        const std::string start = kPorts[static_cast<std::size_t>(from)];
        const std::string end = kPorts[static_cast<std::size_t>(to)];
        desk.routes->SetPassage(start, end, OtherMilesBetween(start, end));
    }
    constexpr float kHalfDay = 12;
    desk.AddCategory("Plans");
    desk.AddVoyage("Plans", {.name = "New"});
    desk.AddVoyage("Plans", {.name = "Saved", .calls = Calls({0, 2, 3}, kHalfDay)});
    desk.AddVoyage("Plans", {.name = "Pinned", .pinned = true, .calls = Calls({5, 1}, 0)});
    desk.AddVoyage(
        "Plans",
        {.name = "Ship", .vsi = "7", .vsn = "ANNA", .vsmsi = 55, .calls = Calls({0, 1, 2}, 2 * kHalfDay)});
}

}  // namespace Tarvik::Seaplan::Walk
