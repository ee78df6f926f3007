// SPDX-License-Identifier: MIT
#include <tarvik/skin/Palette.h>

namespace Tarvik::Seaplan {

namespace {

Theme theme = Theme::Light;

SkinPalette Light() {
    SkinPalette p;
    p.window = "#EEF2F5";
    p.panel = "#FFFFFF";
    p.caption = "#89A5B9";
    p.captionText = "#17222B";
    p.list = "#C5CFD8";
    p.border = "#9AA7B1";
    p.text = "#17222B";
    p.secondary = "#51626F";
    p.disabled = "#9AA7B1";
    p.accent = "#1F6FB2";
    p.accentText = "#FFFFFF";
    p.selection = "#E9F1F9";
    p.history = "#E6EAED";
    p.highlight = "#FFF1D6";
    p.plan = "#7A8794";
    p.underway = "#1E8E5A";
    p.finished = "#2F6DB5";
    p.warning = "#B26A00";
    p.error = "#B3261E";
    return p;
}

SkinPalette Dark() {
    SkinPalette p;
    p.window = "#141D25";
    p.panel = "#1B2630";
    p.caption = "#2A4153";
    p.captionText = "#E4EBF0";
    p.list = "#24313C";
    p.border = "#3A4B59";
    p.text = "#E4EBF0";
    p.secondary = "#9FB1BF";
    p.disabled = "#5F717E";
    p.accent = "#4BA3E3";
    p.accentText = "#0E1A25";
    p.selection = "#203240";
    p.history = "#17202A";
    p.highlight = "#3D3420";
    p.plan = "#8FA0AE";
    p.underway = "#39B57A";
    p.finished = "#6CA6EA";
    p.warning = "#F0A53A";
    p.error = "#FF6B5E";
    return p;
}

/// Red on black, so that eyes keep used to the dark.
SkinPalette Night() {
    SkinPalette p;
    p.window = "#000000";
    p.panel = "#0A0000";
    p.caption = "#260505";
    p.captionText = "#E05A50";
    p.list = "#1A0404";
    p.border = "#4A1210";
    p.text = "#E05A50";
    p.secondary = "#D2574E";
    p.disabled = "#6E2A26";
    p.accent = "#E05A50";
    p.accentText = "#0A0000";
    p.selection = "#220505";
    p.history = "#140303";
    p.highlight = "#3A1208";
    p.plan = "#B8504A";
    p.underway = "#F07060";
    p.finished = "#D65C53";
    p.warning = "#F08A50";
    p.error = "#FF7A6A";
    return p;
}

const char* const kSheet = R"(
QFrame[panel="true"] { background: @border; }
#toolWindow { background: @window; border: 1px solid @border; border-radius: 6px; }
#captionBar { background: @caption; border-top-left-radius: 5px; border-top-right-radius: 5px; }
#captionBar QLabel { color: @captionText; font-size: 13px; font-weight: bold; background: transparent; }
#changedMark { color: @captionText; }
QLabel { color: @text; font-size: 13px; }
QLabel[secondary="true"] { color: @secondary; font-size: 12px; }
QToolButton { border: 1px solid transparent; border-radius: 3px; padding: 2px; color: @text; font-size: 13px;
  background: transparent; }
QToolButton:hover { background: @selection; }
QToolButton:focus { border: 1px solid @accent; }
QToolButton:disabled { color: @disabled; }
QPushButton { min-height: 24px; max-height: 24px; padding: 0 10px; border: 1px solid @border; border-radius: 4px;
  background: @panel; color: @text; font-size: 13px; }
QPushButton:hover { background: @selection; }
QPushButton:focus { border: 1px solid @accent; }
QPushButton:disabled { color: @disabled; }
QPushButton[primary="true"] { background: @accent; color: @accentText; border: 1px solid @accent; }
QPushButton[primary="true"]:focus { border: 2px solid @text; }
QPushButton[primary="true"]:disabled { background: @list; color: @secondary; border: 1px solid @border; }
QTreeView, QTableView { background: @panel; color: @text; border: 1px solid @border; font-size: 13px; outline: 0; }
QTableView { font-size: 12px; gridline-color: @list; }
QTreeView:focus, QTableView:focus { border: 1px solid @accent; }
QHeaderView { background: @list; }
QHeaderView::section { background: @list; color: @text; border: 0; border-right: 1px solid @border; font-size: 12px;
  padding: 1px 2px; }
QLineEdit { background: @panel; color: @text; border: 1px solid @accent; font-size: 12px; padding: 0 2px;
  selection-background-color: @accent; selection-color: @accentText; }
#popup { background: @panel; border: 1px solid @border; }
QListWidget { background: @list; color: @text; border: 1px solid @border; font-size: 12px; outline: 0; }
QListWidget::item { height: 23px; padding: 0 4px; }
QListWidget[dense="true"]::item { height: 18px; }
QListWidget::item:selected, QListWidget::item:hover { background: @accent; color: @accentText; }
QCheckBox, QRadioButton { color: @text; font-size: 13px; }
QCheckBox:focus, QRadioButton:focus { color: @accent; }
QToolButton[day="true"] { min-width: 26px; min-height: 22px; }
#hourShown, #minuteShown { border: 1px solid @border; padding: 2px 6px; }
QToolButton[look="outside"] { color: @disabled; }
QToolButton[look="today"] { color: @accent; font-weight: bold; }
QToolButton[day="true"]:checked { background: @accent; color: @accentText; }
QMenu { background: @panel; color: @text; border: 1px solid @border; font-size: 13px; }
QMenu::item { padding: 4px 20px; }
QMenu::item:selected { background: @accent; color: @accentText; }
QToolTip { background: @panel; color: @text; border: 1px solid @border; font-size: 12px; }
QScrollBar:vertical { background: @window; width: 10px; margin: 0; }
QScrollBar::handle:vertical { background: @disabled; border-radius: 4px; min-height: 24px; margin: 1px; }
QScrollBar::add-line, QScrollBar::sub-line { height: 0; width: 0; }
)";

}  // namespace

Theme CurrentTheme() {
    return theme;
}

Theme ThemeNamed(const QString& name) {
    if (name == QLatin1String("dark")) {
        return Theme::Dark;
    }
    return name == QLatin1String("night") ? Theme::Night : Theme::Light;
}

void SetTheme(Theme chosen) {
    theme = chosen;
}

const SkinPalette& Skin() {
    static const SkinPalette palettes[] = {Light(), Dark(), Night()};
    return palettes[static_cast<int>(theme)];
}

QString SkinStyleSheet() {
    const SkinPalette& p = Skin();
    QString sheet = QString::fromUtf8(kSheet);
    // Longer names first, as one is the beginning of another.
    const std::pair<const char*, QColor> names[] = {{"@captionText", p.captionText},
                                                    {"@caption", p.caption},
                                                    {"@accentText", p.accentText},
                                                    {"@accent", p.accent},
                                                    {"@window", p.window},
                                                    {"@panel", p.panel},
                                                    {"@list", p.list},
                                                    {"@border", p.border},
                                                    {"@text", p.text},
                                                    {"@secondary", p.secondary},
                                                    {"@disabled", p.disabled},
                                                    {"@selection", p.selection}};
    for (const auto& [name, colour] : names) {
        sheet.replace(QLatin1String(name), colour.name());
    }
    return sheet;
}

}  // namespace Tarvik::Seaplan
