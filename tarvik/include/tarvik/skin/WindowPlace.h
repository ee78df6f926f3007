// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QString>
#include <optional>

#include <tarvik/Export.h>

namespace Tarvik::Skin {

/// Where a window is tied to the main window: to one of its edges, or to all of its middle.
enum class Dock { None, Left, Right, Top, Bottom, Whole };

/// Where a person put a window, in pixels of the screen.
struct WindowPlace {
    QRect floating;          ///< while it is tied to nothing
    Dock dock = Dock::None;  ///< of the main window itself: Whole where it fills the screen
    int depth = 0;           ///< of a docked panel: how far it reaches from its edge; 0 for its own size
    bool operator==(const WindowPlace&) const = default;
};

///@{
/// Places are kept by the windows' names in one file of the host's data folder, for all plug-ins. A line that
/// cannot be read counts for nothing and is gone with the next choice.

/// Nothing for a window that no person has moved.
TARVIK_API std::optional<WindowPlace> KeptPlace(const QString& window);
/// False where the file cannot be written; the window stays where it is until the program ends.
TARVIK_API bool KeepPlace(const QString& window, const WindowPlace& place);
/// The window is placed as the program wants from now on. False as above.
TARVIK_API bool ForgetPlace(const QString& window);
///@}

/// The rectangle nearest to this one that is wholly on the screen of its middle, or of the main one. What is
/// larger than the screen keeps its left top corner in sight, and its size.
TARVIK_API QRect KeptOnScreen(const QRect& wanted);

}  // namespace Tarvik::Skin
