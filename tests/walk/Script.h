// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// What a person and the world do, as a list that a seed makes and that can be read and written.
namespace Tarvik::Seaplan::Walk {

enum class Act {
    // The voyage tree
    Open,
    OpenByKey,
    Press,
    RightPress,
    AddVoyage,
    Rename,
    DeleteVoyage,
    RecoverVoyage,
    DestroyVoyage,
    Pin,
    Track,
    Vessel,
    Correct,
    Toggle,
    // The port call table
    TypePort,
    TypeOver,
    LeaveTyping,
    Speed,
    Weather,
    Purpose,
    FirstArrival,
    Arrival,
    Departure,
    MoveUp,
    MoveDown,
    Delete,
    Undo,
    Redo,
    Calculate,
    Save,
    Clear,
    Close,
    // The chart and the world around
    Alternative,
    OpenTable,
    ChartPort,
    KeepTable,
    Timer,
    Ship,
    Refuse,
    Cut,
    LoseAnswer,
    Heal,
    Relogin,
    Restart,
    Crash
};

/// One step. The two numbers are taken modulo what there is to choose from when the step is done, so that a
/// script still means something when a step is taken out of it.
struct Step {
    Act act = Act::Open;
    int which = 0;     ///< a voyage or a row
    int what = 0;      ///< a port, a figure, a request's place
    bool yes = false;  ///< answer to every question that the step brings up

    bool operator==(const Step&) const = default;
};

/// Whether the act shows a voyage's table.
constexpr bool IsOpening(Act act) {
    return act == Act::Open || act == Act::OpenByKey || act == Act::RightPress;
}

using Script = std::vector<Step>;

/// A script of `steps` steps; the same seed gives the same one everywhere.
Script RandomScript(std::uint64_t seed, std::size_t steps);
/// A line a step: "typeover 2 3 no".
std::string TextOf(const Script& script);
std::string TextOf(const Step& step);
/// Nothing for a text that is no script. Blank lines and what stands behind "#" count for nothing.
std::optional<Script> ReadScript(const std::string& text);

}  // namespace Tarvik::Seaplan::Walk
