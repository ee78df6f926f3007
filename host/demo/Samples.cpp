// SPDX-License-Identifier: MIT
#include "host/demo/Samples.h"

namespace Tarvik::Demo {

namespace {

constexpr SampleVessel kVessels[] = {
    {"Amber Tide", 636091201, 9074729, "D5AT1", "Crude tanker", 274, 13},
    {"Blue Heron", 477123456, 9134270, "VRBH2", "Product tanker", 183, 13.5},
    {"Cape Merit", 538004417, 8814275, "V7CM3", "Bulk carrier", 292, 12.5},
    {"Delta Crest", 563017820, 9319466, "9VDC4", "Bulk carrier", 229, 12},
    {"Eastern Loom", 352001975, 9811000, "3EEL5", "Container ship", 366, 18},
    {"Fair Hollow", 219021340, 9321483, "OXFH6", "Container ship", 294, 17},
};

constexpr SampleVoyage kVoyages[] = {
    {"Tankers", "Crude to Yokohama", {"AEFJR", "JPYOK"}, 13, -120, "Amber Tide", true, false},
    {"Tankers", "Naphtha to Singapore", {"NLRTM", "SGSIN"}, 13.5, -240, "Blue Heron", true, false},
    {"Tankers", "Spring cargo", {"USHOU", "NLRTM"}, 13, 240, "", false, false},
    {"Bulk", "Ore to Qingdao", {"AUPHE", "CNTAO"}, 12.5, -100, "Cape Merit", true, false},
    {"Bulk", "Coal to Oita", {"ZARCB", "JPOIT"}, 12, -1400, "Delta Crest", false, false},
    {"Bulk", "Grain, cancelled", {"USMSY", "EGALY"}, 12, 100, "", false, true},
    {"Container", "Pacific loop", {"CNSHA", "USLGB"}, 18, -150, "Eastern Loom", true, false},
    {"Container", "Asia to Europe", {"SGSIN", "EGPSD", "NLRTM"}, 17, 72, "Fair Hollow", false, false},
};

}  // namespace

std::span<const SampleVessel> Vessels() {
    return kVessels;
}

std::span<const SampleVoyage> Voyages() {
    return kVoyages;
}

}  // namespace Tarvik::Demo
