// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QObject>
#include <QString>
#include <functional>

#include <tarvik/Export.h>
#include <tarvik/skin/Colours.h>

namespace Tarvik::Skin {

/// The theme in force, one for the whole process; the light one at first.
TARVIK_API Theme CurrentTheme();
/// Puts a theme in force for windows made or restyled afterwards.
TARVIK_API void SetTheme(Theme theme);
/// The colour of a role in the theme in force.
TARVIK_API QColor Colour(Role role);
/// A style sheet with every "@role" replaced by the role's colour in force; unknown names stay.
TARVIK_API QString Coloured(const QString& sheet);
/// The style sheet of panels and their controls, in the colours in force.
TARVIK_API QString StyleSheet();

/// Tells a window when the theme changes. ToolWindow has one; a window of another kind keeps its own.
///
/// The client leaves the theme's name in the application's property "tarvik.theme" and then changes the
/// application's palette, whose event the watch sees.
class TARVIK_API ThemeWatch : public QObject {
  public:
    /// Takes the client's theme at once; `changed` is called when another has been put in force.
    explicit ThemeWatch(std::function<void()> changed);

    /// Client: puts a theme in force and leaves its name; to be followed by a change of the palette.
    static void Publish(Theme theme);

  protected:
    /// Sees the application's palette change.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    std::function<void()> changed_;
};

// Measures in pixels.
inline constexpr int kGrid = 4;            ///< gaps and margins are multiples of it
inline constexpr int kCaptionHeight = 30;  ///< of a floating window's caption
inline constexpr int kControlHeight = 26;  ///< of buttons and fields
inline constexpr int kIconSize = 16;       ///< edge of an icon
inline constexpr int kCornerRadius = 6;    ///< of windows
inline constexpr int kTextPixels = 13;     ///< height of texts
inline constexpr int kTablePixels = 12;    ///< height of texts in tables

}  // namespace Tarvik::Skin
