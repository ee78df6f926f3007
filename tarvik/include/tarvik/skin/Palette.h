// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

namespace Tarvik::Seaplan {

enum class Theme { Light, Dark, Night };

/// The colours of a theme; no colour is written anywhere else.
struct SkinPalette {
    QColor window;
    QColor panel;
    QColor caption;
    QColor captionText;
    QColor list;
    QColor border;
    QColor text;
    QColor secondary;
    QColor disabled;
    QColor accent;
    QColor accentText;
    QColor selection;  ///< ground of a selected row
    QColor history;    ///< ground of rows that cannot be edited
    QColor highlight;  ///< ground of a ship's position
    QColor plan;
    QColor underway;
    QColor finished;
    QColor warning;
    QColor error;
};

/// Colours in force.
const SkinPalette& Skin();
/// Puts a theme in force for windows made or restyled afterwards.
void SetTheme(Theme theme);
Theme CurrentTheme();
/// "light", "dark" or "night"; any other name is the light theme.
Theme ThemeNamed(const QString& name);
/// The one style sheet, in the colours in force.
QString SkinStyleSheet();

/// Measures in pixels.
inline constexpr int kGrid = 4;
inline constexpr int kCaptionHeight = 30;
inline constexpr int kControlHeight = 26;
inline constexpr int kIconSize = 16;
inline constexpr int kCornerRadius = 6;
inline constexpr int kTextPixels = 13;
inline constexpr int kTablePixels = 12;

}  // namespace Tarvik::Seaplan
