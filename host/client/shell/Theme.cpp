// SPDX-License-Identifier: MIT
#include "host/client/shell/Theme.h"

#include <QApplication>
#include <QFont>

namespace Tarvik::Client {

namespace {

constexpr const char* kSheet = R"(
QMainWindow, QDialog { background: @window; }
QToolBar#mainToolBar { background: @window; border: 0; border-bottom: 1px solid @shellBorder; padding: 4px; spacing: 4px; }
QToolBar#mainToolBar QToolButton { color: @text; background: transparent; border: 1px solid transparent;
    border-radius: 4px; padding: 2px 6px; min-height: 20px; }
QToolBar#mainToolBar QToolButton#qt_toolbar_ext_button { padding: 2px 0; }
QToolBar#mainToolBar QToolButton:hover { background: @panel; border-color: @shellBorder; }
QToolBar#mainToolBar QToolButton:pressed { background: @list; }
QToolBar#mainToolBar QToolButton:focus { border-color: @accent; }
QToolBar#mainToolBar QToolButton:disabled { color: @disabled; }
QToolBar#mainToolBar::separator { background: @shellBorder; width: 1px; margin: 4px; }
QStatusBar#statusLine { background: @window; border-top: 1px solid @shellBorder; color: @text; }
QStatusBar#statusLine::item { border: 0; }
QStatusBar#statusLine QLabel { color: @text; padding: 0 8px; }
QStatusBar#statusLine QLabel#cursorPosition { font-family: "Noto Sans Mono", "DejaVu Sans Mono", monospace; }
QDialog QLabel#zoneNote, QDialog QLabel#serverNote { color: @shellSecondary; }
QDialog QLabel#loginFailure, QDialog QLabel#zoneFault, QDialog QLabel#serverFault, QDialog QLabel#pageFault { color: @error; }
QDialog QComboBox, QDialog QLineEdit { background: @panel; color: @text; border: 1px solid @shellBorder; border-radius: 4px;
    padding: 0 6px; min-height: 24px; }
QDialog QComboBox:focus, QDialog QLineEdit:focus { border-color: @accent; }
QDialog QComboBox QAbstractItemView { background: @panel; color: @text; border: 1px solid @shellBorder;
    selection-background-color: @accent; selection-color: @accentText; }
QDialog QPushButton { background: @panel; color: @text; border: 1px solid @shellBorder; border-radius: 4px; min-width: 76px;
    min-height: 24px; }
QDialog QPushButton:default { background: @accent; color: @accentText; border-color: @accent; }
QDialog QPushButton:focus { border: 2px solid @text; }
QDialog QListWidget#helpPages, QDialog QTextBrowser#helpText { background: @panel; color: @text; border: 1px solid @shellBorder;
    border-radius: 4px; }
QDialog QListWidget#helpPages:focus, QDialog QTextBrowser#helpText:focus { border-color: @accent; }
QDialog QListWidget#helpPages::item { padding: 4px; color: @text; }
QDialog QListWidget#helpPages::item:selected { background: @accent; color: @accentText; }
QDialog QLabel#helpFound { color: @shellSecondary; }
QFrame#firstStart { background: @panel; border: 1px solid @shellBorder; border-radius: 6px; }
QFrame#firstStart QLabel { color: @text; background: transparent; }
QFrame#firstStart QLabel#firstTitle { font-weight: bold; }
QFrame#firstStart QLabel#firstNote, QFrame#firstStart QLabel#firstHint { color: @shellSecondary; }
QFrame#firstStart QPushButton { background: @window; color: @text; border: 1px solid @shellBorder; border-radius: 4px;
    min-height: 28px; }
QFrame#firstStart QPushButton:hover { border-color: @accent; }
QFrame#firstStart QPushButton:focus { border: 2px solid @accent; }
QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
QMessageBox { background: @window; }
QMessageBox QLabel { color: @text; }
QToolTip { background: @panel; color: @text; border: 1px solid @shellBorder; padding: 4px; }
)";

}  // namespace

QPalette ClientPalette() {
    using Skin::Colour;
    using Skin::Role;
    QPalette palette;
    palette.setColor(QPalette::Window, Colour(Role::Window));
    palette.setColor(QPalette::Base, Colour(Role::Panel));
    palette.setColor(QPalette::AlternateBase, Colour(Role::List));
    palette.setColor(QPalette::Button, Colour(Role::Window));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, Colour(Role::Text));
        palette.setColor(QPalette::Disabled, role, Colour(Role::Disabled));
    }
    palette.setColor(QPalette::PlaceholderText, Colour(Role::ShellSecondary));
    palette.setColor(QPalette::ToolTipBase, Colour(Role::Panel));
    palette.setColor(QPalette::Highlight, Colour(Role::Accent));
    palette.setColor(QPalette::HighlightedText, Colour(Role::AccentText));
    palette.setColor(QPalette::Link, Colour(Role::Accent));
    return palette;
}

QString ClientStyleSheet() {
    return Skin::Coloured(QString::fromUtf8(kSheet));
}

void ApplyTheme(Skin::Theme theme) {
    QFont font("Noto Sans");
    font.setFamilies(
        {"Noto Sans", "WenQuanYi Micro Hei", "Noto Sans CJK SC", "Noto Sans CJK TC", "DejaVu Sans"});
    font.setPixelSize(Skin::kTextPixels);
    QApplication::setFont(font);
    // The theme first: plug-ins' windows take it when the change of the palette reaches them.
    Skin::ThemeWatch::Publish(theme);
    QApplication::setPalette(ClientPalette());
    qApp->setStyleSheet(ClientStyleSheet());
}

}  // namespace Tarvik::Client
