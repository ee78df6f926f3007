// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "seaplan/data/Outcome.h"

namespace Tarvik::Seaplan {

class VoyPortCallModule;
struct VoyInfo;

/// How a schedule that was loaded or saved goes onto the chart, with its number in the required operations.
enum class DrawMode : int {
    Nothing = -1,
    BookLine = 0,  ///< the book as one line, without a ship
    Progress = 1,  ///< lines sailed and remaining with the ship; remembers the voyage
};
/// The mode of the required number; nothing for another one.
std::optional<DrawMode> DrawModeOf(int number);
/// The other way round.
constexpr int NumberOf(DrawMode mode) {
    return static_cast<int>(mode);
}

enum class DrawStep { Progress, BookLine };

/// Puts voyages onto the chart and takes them off it.
class VoyageChart {
  public:
    /// Draws on the layer of `module`, which outlives it.
    explicit VoyageChart(VoyPortCallModule* module) : module_(module) {}

    /// Draws in `mode`; a voyage drawn with its ship counts as the one last drawn.
    Outcome<DrawStep> Draw(const VoyInfo& voyage, DrawMode mode);
    /// Takes a voyage's lines and ship off. 0; -1 empty id.
    int Remove(const std::string& vi);
    /// Takes off all that the plug-in drew. 0 or -1.
    int Clear();

  private:
    VoyPortCallModule* module_;
};

}  // namespace Tarvik::Seaplan
