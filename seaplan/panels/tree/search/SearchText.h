// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <tarvik/util/DateTime.h>

#include "seaplan/data/VoyInfo.h"

/// What a search compares: texts of voyages without their case, and the ready questions about a voyage.
namespace Tarvik::Seaplan {

/// A text as it is compared: Latin letters (ASCII and Latin-1) small, all else as it stands, UTF-8.
std::string FoldSearch(const std::string& text);
/// The words of a typed text, folded; none in a blank one.
std::vector<std::string> SearchWords(const std::string& typed);
/// Whether a folded text holds every word, in any order. No word is held by every text.
bool HoldsAll(const std::string& folded, const std::vector<std::string>& words);
/// What a voyage is found by, folded: name, vessel, ports, days ("2024-03-05") of its first departure and its
/// last arrival, as far as the record holds them.
std::string SearchTextOf(const VoyInfo& voyage);

/// The ready questions.
enum class VoyageFilter { All, UnderWay, ArrivingSoon, WithoutRoute };

/// Days until which an arrival is soon.
inline constexpr int kSoonDays = 7;

/// Whether a voyage answers the question at the present time `now`, both in the plan's reading. ArrivingSoon:
/// the last port is reached between now and kSoonDays later, both included.
bool Passes(const VoyInfo& voyage, VoyageFilter filter, const Util::_datetime_t& now);

}  // namespace Tarvik::Seaplan
