// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>
#include <QString>

#include <tarvik/skin/Palette.h>

namespace Tarvik::Client {

/// The client's own look over the colours that it shares with the plug-ins.

/// Colours of the window system's controls, in the theme in force.
QPalette ClientPalette();
/// Style sheet of the client's bars and dialogs, in the theme in force.
QString ClientStyleSheet();
/// Puts a theme in force for the whole application: tells the plug-ins' windows, then sets font, palette and
/// style sheet.
void ApplyTheme(Skin::Theme theme);

}  // namespace Tarvik::Client
