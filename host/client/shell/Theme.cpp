// SPDX-License-Identifier: MIT
#include "host/client/shell/Theme.h"

#include <QApplication>
#include <QFont>
#include <QHash>

namespace Tarvik::Client {

namespace {

ThemeColors Light() {
    return {"#EEF2F5", "#FFFFFF", "#89A5B9", "#C5CFD8", "#17222B", "#51626F",
            "#9AA7B1", "#1F6FB2", "#FFFFFF", "#B26A00", "#B3261E", "#C3CDD5"};
}

ThemeColors Dark() {
    return {"#141D25", "#1B2630", "#2A4153", "#24313C", "#E4EBF0", "#9FB1BF",
            "#5F717E", "#4BA3E3", "#0E1A25", "#F0A53A", "#FF6B5E", "#2F3E4A"};
}

ThemeColors Night() {
    return {"#000000", "#0A0000", "#260505", "#1A0404", "#E05A50", "#C8514A",
            "#6E2A26", "#E05A50", "#0A0000", "#F08A50", "#FF7A6A", "#4A1210"};
}

constexpr const char* kSheet = R"(
QMainWindow, QDialog { background: @window; }
QToolBar#mainToolBar { background: @window; border: 0; border-bottom: 1px solid @border; padding: 4px; spacing: 4px; }
QToolBar#mainToolBar QToolButton { color: @text; background: transparent; border: 1px solid transparent;
    border-radius: 4px; padding: 2px 6px; min-height: 20px; }
QToolBar#mainToolBar QToolButton:hover { background: @panel; border-color: @border; }
QToolBar#mainToolBar QToolButton:pressed { background: @list; }
QToolBar#mainToolBar QToolButton:focus { border-color: @accent; }
QToolBar#mainToolBar QToolButton:disabled { color: @disabled; }
QToolBar#mainToolBar::separator { background: @border; width: 1px; margin: 4px; }
QStatusBar#statusLine { background: @window; border-top: 1px solid @border; color: @text; }
QStatusBar#statusLine::item { border: 0; }
QStatusBar#statusLine QLabel { color: @text; padding: 0 8px; }
QStatusBar#statusLine QLabel#cursorPosition { font-family: "Noto Sans Mono", "DejaVu Sans Mono", monospace; }
QDialog QLabel#zoneNote, QDialog QLabel#serverNote { color: @secondary; }
QDialog QLabel#loginFailure { color: @error; }
QDialog QComboBox, QDialog QLineEdit { background: @panel; color: @text; border: 1px solid @border; border-radius: 4px;
    padding: 0 6px; min-height: 24px; }
QDialog QComboBox:focus, QDialog QLineEdit:focus { border-color: @accent; }
QDialog QPushButton { background: @panel; color: @text; border: 1px solid @border; border-radius: 4px; min-width: 76px;
    min-height: 24px; }
QDialog QPushButton:default { background: @accent; color: @onAccent; border-color: @accent; }
QDialog QPushButton:focus { border: 2px solid @text; }
QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
QMessageBox { background: @window; }
QMessageBox QLabel { color: @text; }
QToolTip { background: @panel; color: @text; border: 1px solid @border; padding: 4px; }
)";

}  // namespace

Theme::Theme(const QString& name) : name_(name), colors_(Light()) {
    if (name == "dark") {
        colors_ = Dark();
    } else if (name == "night") {
        colors_ = Night();
    } else {
        name_ = "light";
    }
}

QString Theme::Next() const {
    return name_ == "light" ? "dark" : name_ == "dark" ? "night" : "light";
}

QPalette Theme::Palette() const {
    QPalette palette;
    palette.setColor(QPalette::Window, colors_.window);
    palette.setColor(QPalette::Base, colors_.panel);
    palette.setColor(QPalette::AlternateBase, colors_.list);
    palette.setColor(QPalette::Button, colors_.window);
    for (QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, colors_.text);
        palette.setColor(QPalette::Disabled, role, colors_.disabled);
    }
    palette.setColor(QPalette::PlaceholderText, colors_.secondary);
    palette.setColor(QPalette::ToolTipBase, colors_.panel);
    palette.setColor(QPalette::Highlight, colors_.accent);
    palette.setColor(QPalette::HighlightedText, colors_.onAccent);
    palette.setColor(QPalette::Link, colors_.accent);
    return palette;
}

QString Theme::StyleSheet() const {
    // Longer names first, so that "@onAccent" is not taken for another role's beginning.
    const std::pair<const char*, QColor> roles[] = {
        {"@secondary", colors_.secondary}, {"@onAccent", colors_.onAccent}, {"@accent", colors_.accent},
        {"@window", colors_.window},       {"@border", colors_.border},     {"@panel", colors_.panel},
        {"@text", colors_.text},           {"@list", colors_.list},         {"@error", colors_.error},
        {"@disabled", colors_.disabled}};
    QString sheet = kSheet;
    for (const auto& [role, color] : roles) {
        sheet.replace(role, color.name());
    }
    return sheet;
}

void Theme::Apply() const {
    QFont font("Noto Sans");
    font.setFamilies({"Noto Sans", "WenQuanYi Micro Hei", "Noto Sans CJK SC", "DejaVu Sans"});
    font.setPixelSize(13);
    QApplication::setFont(font);
    // The name first: plug-ins read it when the change of the palette reaches them.
    qApp->setProperty("tarvik.theme", name_);
    QApplication::setPalette(Palette());
    qApp->setStyleSheet(StyleSheet());
}

}  // namespace Tarvik::Client
