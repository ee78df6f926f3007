// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "tests/walk/Script.h"

namespace Tarvik::Seaplan::Walk {

inline constexpr std::size_t kSteps = 60;

struct WalkFault {
    std::size_t step = 0;  ///< counted from 0
    std::string what;
};

/// How often something came about: a question with its answer, a write, a step that struck a fault.
using Tally = std::map<std::string, long>;

/// Plays a script in a world of its own; nothing when every rule held after every step. What came about is
/// added to `tally`.
std::optional<WalkFault> FaultIn(const Script& script, Tally* tally = nullptr);
/// The same script without the steps that the fault can do without.
Script Shrunk(Script script);
/// Seed, step, what is wrong, and the shortest script that shows it, to be kept as a test.
std::string Report(std::uint64_t seed, const WalkFault& fault);

}  // namespace Tarvik::Seaplan::Walk
