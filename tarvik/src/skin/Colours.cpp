// SPDX-License-Identifier: MIT
#include <cstddef>

#include <tarvik/skin/Colours.h>

namespace Tarvik::Skin {

namespace {

struct Row {
    Role role;
    std::string_view name;
    std::array<std::uint32_t, kThemes.size()> colours;  ///< in the order of kThemes
};

constexpr Row kRows[] = {
    {Role::Window, "window", {0xEEF2F5, 0x141D25, 0x000000}},
    {Role::Panel, "panel", {0xFFFFFF, 0x1B2630, 0x0A0000}},
    {Role::Caption, "caption", {0x89A5B9, 0x2A4153, 0x260505}},
    {Role::CaptionText, "captionText", {0x17222B, 0xE4EBF0, 0xE05A50}},
    {Role::List, "list", {0xC5CFD8, 0x24313C, 0x1A0404}},
    {Role::Book, "book", {0xA1BACE, 0x20303D, 0x140303}},
    {Role::Border, "border", {0x9AA7B1, 0x3A4B59, 0x4A1210}},
    {Role::Text, "text", {0x17222B, 0xE4EBF0, 0xE05A50}},
    {Role::Secondary, "secondary", {0x51626F, 0x9FB1BF, 0xD2574E}},
    {Role::Disabled, "disabled", {0x9AA7B1, 0x5F717E, 0x6E2A26}},
    {Role::Accent, "accent", {0x1F6FB2, 0x4BA3E3, 0xE05A50}},
    {Role::AccentText, "accentText", {0xFFFFFF, 0x0E1A25, 0x0A0000}},
    {Role::Selection, "selection", {0xE9F1F9, 0x203240, 0x220505}},
    {Role::History, "history", {0xE6EAED, 0x17202A, 0x140303}},
    {Role::Highlight, "highlight", {0xFFF1D6, 0x3D3420, 0x3A1208}},
    {Role::Plan, "plan", {0x7A8794, 0x8FA0AE, 0xB8504A}},
    {Role::Underway, "underway", {0x1E8E5A, 0x39B57A, 0xF07060}},
    {Role::Finished, "finished", {0x2F6DB5, 0x6CA6EA, 0xD65C53}},
    {Role::Warning, "warning", {0xB26A00, 0xF0A53A, 0xF08A50}},
    {Role::Error, "error", {0xB3261E, 0xFF6B5E, 0xFF7A6A}},
    {Role::ShellBorder, "shellBorder", {0xC3CDD5, 0x2F3E4A, 0x4A1210}},
    {Role::ShellSecondary, "shellSecondary", {0x51626F, 0x9FB1BF, 0xC8514A}},
    {Role::Sea, "sea", {0xCFE2F0, 0x0E1A25, 0x0A0202}},
    {Role::Land, "land", {0xF2EBD9, 0x25323B, 0x210707}},
    {Role::Coast, "coast", {0x8C8269, 0x5B6B73, 0x5A1414}},
    {Role::Graticule, "graticule", {0x9DB3C4, 0x2B3F4F, 0x330B0B}},
    {Role::ChartText, "chartText", {0x17222B, 0xE4EBF0, 0xE05A4A}},
    {Role::ChartSecondary, "chartSecondary", {0x51626F, 0x9FB1BF, 0xD2503F}},
    {Role::ChartHalo, "chartHalo", {0xFFFFFF, 0x0E1A25, 0x0A0202}},
    {Role::ChartAccent, "chartAccent", {0x1F6FB2, 0x4BA3E3, 0xE0503C}},
    {Role::ChartOutline, "chartOutline", {0xFFFFFF, 0x0E1A25, 0x0A0202}},
};

/// In the order of kThemes. Neighbours differ in blue against yellow and in brightness, which eyes that mix
/// up red and green tell apart.
constexpr std::array<std::array<std::uint32_t, kTints>, kThemes.size()> kTintRows{
    {{0x0B5CAD, 0xB23C00, 0x00694A, 0x86278A, 0x7A5200, 0x3F35A8, 0xA8004A, 0x005F73},
     {0x6CB2FF, 0xFF9A66, 0x4FD6A5, 0xE08CE6, 0xE8C04A, 0xA89DFF, 0xFF7FA8, 0x55CFE0},
     {0xFF6A50, 0xB04438, 0xFFB080, 0xC85030, 0xE88868, 0xB04A20, 0xFFD0B0, 0xD86A58}}};

constexpr std::array<std::string_view, kThemes.size()> kThemeNames{"light", "dark", "night"};

constexpr bool RowsStandInTheOrderOfTheRoles() {
    for (std::size_t i = 0; i < std::size(kRows); ++i) {
        if (kRows[i].role != static_cast<Role>(i)) {
            return false;
        }
    }
    return std::size(kRows) == static_cast<std::size_t>(Role::Count);
}
static_assert(RowsStandInTheOrderOfTheRoles());

}  // namespace

std::uint32_t ColourOf(Role role, Theme theme) {
    return kRows[static_cast<std::size_t>(role)].colours[static_cast<std::size_t>(theme)];
}

std::uint32_t TintOf(std::size_t number, Theme theme) {
    return kTintRows[static_cast<std::size_t>(theme)][number % kTints];
}

std::optional<Role> RoleNamed(std::string_view name) {
    for (const Row& row : kRows) {
        if (row.name == name) {
            return row.role;
        }
    }
    return std::nullopt;
}

std::string_view ThemeName(Theme theme) {
    return kThemeNames[static_cast<std::size_t>(theme)];
}

std::optional<Theme> FindTheme(std::string_view name) {
    for (const Theme theme : kThemes) {
        if (ThemeName(theme) == name) {
            return theme;
        }
    }
    return std::nullopt;
}

Theme ThemeNamed(std::string_view name) {
    return FindTheme(name).value_or(Theme::Light);
}

Theme NextTheme(Theme theme) {
    return kThemes[(static_cast<std::size_t>(theme) + 1) % kThemes.size()];
}

}  // namespace Tarvik::Skin
