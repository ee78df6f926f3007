// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include <tarvik/Export.h>

/// The look that client, plug-ins and chart share: one list of colours. Needs no window system.
namespace Tarvik::Skin {

/// Night is red on black, so that eyes keep used to the dark.
enum class Theme { Light, Dark, Night };

/// All themes, in the order in which a person steps through them.
inline constexpr std::array<Theme, 3> kThemes{Theme::Light, Theme::Dark, Theme::Night};

/// What a colour is for.
enum class Role {
    // Windows of every plug-in and of the client.
    Window,
    Panel,
    Caption,
    CaptionText,
    List,
    Book,  ///< ground of the position book's list
    Border,
    Text,
    Secondary,
    Disabled,
    Accent,
    AccentText,
    Selection,  ///< ground of a selected row
    History,    ///< ground of rows that cannot be edited
    Highlight,  ///< ground of a ship's position
    Plan,
    Underway,
    Finished,
    Warning,
    Error,
    // The client's bars and fields, which lie quieter around the chart.
    ShellBorder,
    ShellSecondary,
    // The chart.
    Sea,
    Land,
    Coast,
    Graticule,
    ChartText,
    ChartSecondary,
    ChartHalo,     ///< round texts and under lines, so that both stand out from the ground
    ChartAccent,   ///< focus and highlight
    ChartOutline,  ///< rim of points
    Count          ///< how many roles there are; no role itself
};

/// The colour of a role, 0x00RRGGBB.
TARVIK_API std::uint32_t ColourOf(Role role, Theme theme);
/// The role of a name as style sheets write it behind "@": "captionText"; empty for an unknown one.
TARVIK_API std::optional<Role> RoleNamed(std::string_view name);

/// How many colours a series has before they come again.
inline constexpr std::size_t kTints = 8;
/// A colour of a series, 0x00RRGGBB: it stands out from sea and land of the theme's chart, and from the
/// others by hue and brightness, by night by brightness alone.
TARVIK_API std::uint32_t TintOf(std::size_t number, Theme theme);

/// "light", "dark" or "night".
TARVIK_API std::string_view ThemeName(Theme theme);
/// The theme of a name; empty for an unknown one.
TARVIK_API std::optional<Theme> FindTheme(std::string_view name);
/// The theme of a name; the light one for an unknown name.
TARVIK_API Theme ThemeNamed(std::string_view name);
/// The theme behind `theme`; behind the last the first.
TARVIK_API Theme NextTheme(Theme theme);

}  // namespace Tarvik::Skin
