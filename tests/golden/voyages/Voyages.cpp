// SPDX-License-Identifier: MIT
#include "tests/golden/voyages/Voyages.h"

namespace Tarvik::Golden {

namespace {

Util::_datetime_t At(int day, int month, int hour) {
    return {0, 0, hour, day, month, 2026};
}

/// Round the world westward from China and home over the Pacific.
std::vector<Call> ThirtyCalls() {
    return {{"Shanghai", 14, 0, 18},        {"Ningbo", 12, 0, 12},
            {"Xiamen", 15, 0.02F, 10},      {"Hong Kong", 15, 0.02F, 16},
            {"Singapore", 18, 0, 24, 1454}, {"Port Klang", 14, 0, 14},
            {"Colombo", 17, 0.05F, 20},     {"Mumbai", 16, 0, 18, 889},
            {"Jebel Ali", 16, 0, 22},       {"Jeddah", 17, 0.03F, 16},
            {"Port Said", 14, 0, 8},        {"Piraeus", 15, 0, 20, 592},
            {"Genoa", 15, 0, 16},           {"Marseille", 12, 0, 12, 202},
            {"Barcelona", 13, 0, 12, 185},  {"Valencia", 13, 0, 12, 163},
            {"Algeciras", 15, 0, 18},       {"Lisbon", 14, 0.05F, 10},
            {"Le Havre", 14, 0.08F, 12},    {"Antwerp", 13, 0, 24},
            {"Rotterdam", 10, 0, 30},       {"Hamburg", 12, 0, 26, 305},
            {"New York", 17, 0.1F, 24},     {"Norfolk", 14, 0, 14, 287},
            {"Savannah", 15, 0, 16},        {"Kingston", 16, 0, 12},
            {"Cristobal", 15, 0, 10, 551},  {"Los Angeles", 17, 0.02F, 30, 2956},
            {"Oakland", 13, 0, 20, 373},    {"Busan", 18, 0.08F, 16}};
}

std::vector<Voyage> MakeVoyages() {
    return {
        {"pacific-eastward",
         {{"Yokohama", 14, 0, 20}, {"Los Angeles", 18, 0.05F, 0, 4839}},
         At(10, 1, 6),
         At(16, 1, 0),
         {}},
        {"pacific-westward",
         {{"San Francisco", 14, 0, 12}, {"Yokohama", 16.5F, 0.08F, 24, 4536}, {"Shanghai", 15, 0, 0, 1048}},
         At(3, 2, 18),
         At(12, 2, 12),
         {}},
        {"round-the-cape",
         {{"Rotterdam", 14, 0, 30}, {"Cape Town", 15, 0.05F, 18, 6220}, {"Singapore", 15, 0.05F, 0, 5590}},
         At(1, 6, 8),
         At(25, 6, 0),
         {}},
        {"two-canals",
         {{"Guayaquil", 14, 0, 24}, {"Jeddah", 16, 0.03F, 20, 7827}, {"Mumbai", 16, 0, 0, 2337}},
         At(5, 3, 5),
         At(16, 3, 5),
         {}},
        {"port-twice",
         {{"Singapore", 14, 0, 10},
          {"Jakarta", 13, 0, 30},
          {"Singapore", 13, 0, 18},
          {"Hong Kong", 15, 0.04F, 0, 1454}},
         At(20, 4, 9),
         At(22, 4, 20),
         {}},
        {"thirty-ports", ThirtyCalls(), At(1, 1, 0), At(20, 5, 0), {}},
        {"cape-instead-of-suez",
         {{"Rotterdam", 14, 0, 30}, {"Singapore", 16, 0, 0, 11740}},
         At(1, 9, 8),
         At(20, 9, 0),
         {{"101", "107"}}},
    };
}

}  // namespace

void PrintTo(const Voyage& voyage, std::ostream* out) {
    *out << voyage.name;
}

const std::vector<Voyage>& AllVoyages() {
    static const std::vector<Voyage> voyages = MakeVoyages();
    return voyages;
}

}  // namespace Tarvik::Golden
