// SPDX-License-Identifier: MIT
#include "tests/walk/Script.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <random>
#include <sstream>

namespace Tarvik::Seaplan::Walk {

namespace {

struct ActEntry {
    Act act;
    const char* name;
    int weight;  ///< how often it comes, beside the others
};

constexpr auto kActs = std::to_array<ActEntry>({{Act::Open, "open", 7},
                                                {Act::OpenByKey, "openbykey", 2},
                                                {Act::Press, "press", 4},
                                                {Act::RightPress, "rightpress", 3},
                                                {Act::AddVoyage, "addvoyage", 1},
                                                {Act::Rename, "rename", 1},
                                                {Act::DeleteVoyage, "deletevoyage", 1},
                                                {Act::RecoverVoyage, "recovervoyage", 1},
                                                {Act::DestroyVoyage, "destroyvoyage", 1},
                                                {Act::Pin, "pin", 2},
                                                {Act::Track, "track", 1},
                                                {Act::Vessel, "vessel", 1},
                                                {Act::Correct, "correct", 6},
                                                {Act::Toggle, "toggle", 1},
                                                {Act::TypePort, "typeport", 11},
                                                {Act::TypeOver, "typeover", 6},
                                                {Act::LeaveTyping, "leavetyping", 3},
                                                {Act::Speed, "speed", 5},
                                                {Act::Weather, "weather", 2},
                                                {Act::Purpose, "purpose", 2},
                                                {Act::FirstArrival, "firstarrival", 2},
                                                {Act::Arrival, "arrival", 2},
                                                {Act::Departure, "departure", 3},
                                                {Act::MoveUp, "moveup", 4},
                                                {Act::MoveDown, "movedown", 3},
                                                {Act::Delete, "delete", 3},
                                                {Act::Undo, "undo", 5},
                                                {Act::Redo, "redo", 3},
                                                {Act::Calculate, "calculate", 10},
                                                {Act::Save, "save", 10},
                                                {Act::Clear, "clear", 2},
                                                {Act::Close, "close", 2},
                                                {Act::Alternative, "alternative", 4},
                                                {Act::OpenTable, "opentable", 2},
                                                {Act::ChartPort, "chartport", 5},
                                                {Act::KeepTable, "keeptable", 3},
                                                {Act::Timer, "timer", 5},
                                                {Act::Ship, "ship", 6},
                                                {Act::Refuse, "refuse", 4},
                                                {Act::Cut, "cut", 2},
                                                {Act::LoseAnswer, "loseanswer", 2},
                                                {Act::Heal, "heal", 4},
                                                {Act::Relogin, "relogin", 1},
                                                {Act::Restart, "restart", 1},
                                                {Act::Crash, "crash", 1}});

const ActEntry& EntryOf(Act act) {
    return *std::find_if(kActs.begin(), kActs.end(), [&](const ActEntry& entry) { return entry.act == act; });
}

Act ActAt(int place) {
    for (const ActEntry& entry : kActs) {
        if (place < entry.weight) {
            return entry.act;
        }
        place -= entry.weight;
    }
    return Act::Open;
}

std::optional<Step> ReadStep(const std::string& line) {
    std::istringstream words(line);
    std::string name;
    std::string answer;
    Step step;
    if (!(words >> name >> step.which >> step.what >> answer) || (answer != "yes" && answer != "no")) {
        return std::nullopt;
    }
    const auto entry =
        std::find_if(kActs.begin(), kActs.end(), [&](const ActEntry& known) { return name == known.name; });
    if (entry == kActs.end() || step.which < 0 || step.what < 0) {
        return std::nullopt;
    }
    step.act = entry->act;
    step.yes = answer == "yes";
    return step;
}

}  // namespace

Script RandomScript(std::uint64_t seed, std::size_t steps) {
    constexpr int kMostWhich = 60;
    constexpr int kMostWhat = 840;
    // The library's distributions differ from one standard library to the next.
    std::mt19937_64 numbers(seed);
    const auto below = [&](int limit) { return static_cast<int>(numbers() % static_cast<unsigned>(limit)); };
    const int total = std::accumulate(kActs.begin(), kActs.end(), 0,
                                      [](int sum, const ActEntry& entry) { return sum + entry.weight; });
    Script script(steps);
    for (Step& step : script) {
        step.act = ActAt(below(total));
        step.which = below(kMostWhich);
        step.what = below(kMostWhat);
        step.yes = below(2) == 1;
    }
    return script;
}

std::string TextOf(const Step& step) {
    return std::string(EntryOf(step.act).name) + " " + std::to_string(step.which) + " " +
           std::to_string(step.what) + (step.yes ? " yes" : " no");
}

std::string TextOf(const Script& script) {
    std::string text;
    for (const Step& step : script) {
        text += TextOf(step) + "\n";
    }
    return text;
}

std::optional<Script> ReadScript(const std::string& text) {
    Script script;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        line = line.substr(0, line.find('#'));
        if (line.find_first_not_of(" \t\r") == std::string::npos) {
            continue;
        }
        const auto step = ReadStep(line);
        if (!step) {
            return std::nullopt;
        }
        script.push_back(*step);
    }
    return script;
}

}  // namespace Tarvik::Seaplan::Walk
