// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cctype>
#include <string_view>

#include "host/server/graph/report/DistanceTable.h"

namespace Tarvik::Server {

namespace {

struct Wording {
    std::string_view words;  ///< lower case, single blanks
    std::string_view through;
    std::string_view without;
};

/// What the tables write for our passages. The first wording that fits a place in the text takes it.
constexpr Wording kWordings[] = {
    {"without the panama canal", "", "Panama Canal"},
    {"suez canal", "Suez Canal", ""},
    {"panama canal", "Panama Canal", ""},
    {"cape of good hope", "Cape of Good Hope", ""},
    {"strait of magellan", "Strait of Magellan", ""},
    {"corinth canal", "Corinth Canal", ""},
    {"south of greece", "Cape Matapan", "Corinth Canal"},
    {"osumi", "Osumi Strait", ""},
    {"tokara", "Tokara Strait", ""},
    {"tsugaru", "Tsugaru Strait", ""},
    {"la perouse", "La Perouse Strait", ""},
    {"shimonoseki", "Kanmon Strait (Shimonoseki)", ""},
    {"inland sea", "Kanmon Strait (Shimonoseki)", ""},
    {"cabot strait", "Cabot Strait", ""},
    {"strait of canso", "Strait of Canso", ""},
    {"windward passage", "Windward Passage", ""},
    {"crooked island", "Crooked Island Passage", ""},
    {"yucatan", "Yucatan Channel", ""},
    {"balintang", "Balintang Channel", ""},
    {"san bernardino", "San Bernardino Strait", ""},
    {"surigao", "Surigao Strait", ""},
    {"store baelt rather than the sound", "Great Belt", ""},
    {"store baelt", "Great Belt", ""},
    {"via the sound", "The Sound (Oresund)", ""},
    {"formosa strait", "Taiwan Strait", ""},
    {"east of taiwan", "East of Taiwan", ""},
    {"vitiaz", "Vitiaz Strait", ""},
    {"makassar", "Makassar Strait", ""},
    {"makasser", "Makassar Strait", ""},
    {"molucca", "Molucca Sea", ""},
    {"selat sunda", "Sunda Strait", ""},
    {"strait of malacca", "Malacca Strait (One Fathom Bank)", ""},
    {"one and half degree", "One and Half Degree Channel", ""},
    {"eight degree", "Eight Degree Channel", ""},
    {"north of iceland", "Denmark Strait", ""},
    {"south of iceland", "South of Iceland", ""},
    {"south of aleutian", "South of Aleutians", ""},
    {"south of the aleutian", "South of Aleutians", ""},
    {"north of aleutian", "Unimak Pass", ""},
    {"north of the aleutian", "Unimak Pass", ""},
    {"northeast passage", "Northern Sea Route (Vilkitsky Strait)", ""},
    {"northern sea route", "Northern Sea Route (Vilkitsky Strait)", ""},
    {"northwest passage", "Northwest Passage (Lancaster Sound)", ""},
};

std::string Plain(const std::string& text) {
    std::string plain;
    for (const char c : text) {
        const char lower = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        if (lower != ' ' || plain.empty() || plain.back() != ' ') {
            plain += lower;
        }
    }
    return plain;
}

void AddOnce(std::vector<std::string>& names, std::string_view name) {
    if (!name.empty() && std::find(names.begin(), names.end(), name) == names.end()) {
        names.emplace_back(name);
    }
}

}  // namespace

StatedPassages PassagesOf(const std::string& remark) {
    std::string rest = Plain(remark);
    StatedPassages result;
    for (const Wording& wording : kWordings) {
        const std::size_t at = rest.find(wording.words);
        if (at == std::string::npos) {
            continue;
        }
        rest.replace(at, wording.words.size(), 1, '\n');
        AddOnce(result.through, wording.through);
        AddOnce(result.without, wording.without);
    }
    return result;
}

}  // namespace Tarvik::Server
