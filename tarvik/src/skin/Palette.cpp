// SPDX-License-Identifier: MIT
#include <QRegularExpression>

#include <tarvik/skin/Palette.h>

namespace Tarvik::Skin {

namespace {

Theme themeInForce = Theme::Light;

constexpr const char* kSheet = R"(
QFrame[panel="true"] { background: @border; }
#toolWindow { background: @window; border: 1px solid @border; border-radius: 6px; }
#captionBar { background: @caption; border-top-left-radius: 5px; border-top-right-radius: 5px; }
#captionBar QLabel { color: @captionText; font-size: 13px; font-weight: bold; background: transparent; }
#changedMark { color: @captionText; }
QLabel { color: @text; font-size: 13px; }
QLabel[secondary="true"] { color: @secondary; font-size: 12px; }
QLabel[warning="true"] { color: @warning; }
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
QLineEdit[field="true"], QPlainTextEdit { background: @panel; color: @text; border: 1px solid @border; font-size: 13px;
  padding: 0 4px; selection-background-color: @accent; selection-color: @accentText; }
QLineEdit[field="true"]:focus, QPlainTextEdit:focus { border: 1px solid @accent; }
QLineEdit[field="true"]:disabled, QPlainTextEdit:disabled { background: @window; color: @secondary; }
QListView[caption="true"] { background: @caption; border: 1px solid @border; outline: 0; }
QListView[caption="true"]:focus { border: 1px solid @accent; }
#popup { background: @panel; border: 1px solid @border; }
QListWidget { background: @list; color: @text; border: 1px solid @border; font-size: 12px; outline: 0; }
QListWidget::item { height: 23px; padding: 0 4px; }
QListWidget[dense="true"]::item { height: 18px; }
QListWidget::item:selected, QListWidget::item:hover { background: @accent; color: @accentText; }
QCheckBox, QRadioButton { color: @text; font-size: 13px; }
QCheckBox:focus, QRadioButton:focus { color: @accent; }
QCheckBox::indicator:unchecked, QRadioButton::indicator:unchecked { border: 1px solid @secondary; background: @panel; }
QCheckBox::indicator:unchecked { border-radius: 2px; }
QRadioButton::indicator:unchecked { border-radius: 7px; }
QCheckBox::indicator:unchecked:disabled, QRadioButton::indicator:unchecked:disabled { border-color: @disabled; }
QToolButton[day="true"] { min-width: 26px; min-height: 22px; }
#hourShown, #minuteShown { border: 1px solid @border; padding: 2px 6px; }
QToolButton[look="outside"] { color: @disabled; }
QToolButton[look="today"] { color: @accent; font-weight: bold; }
QToolButton[day="true"]:checked { background: @accent; color: @accentText; }
QMenu { background: @panel; color: @text; border: 1px solid @border; font-size: 13px; }
QMenu::item { padding: 4px 20px; }
QMenu::item:selected { background: @accent; color: @accentText; }
QMenu::item:disabled { background: @panel; color: @disabled; }
QToolTip { background: @panel; color: @text; border: 1px solid @border; font-size: 12px; }
QScrollBar:vertical { background: @window; width: 10px; margin: 0; }
QScrollBar::handle:vertical { background: @disabled; border-radius: 4px; min-height: 24px; margin: 1px; }
QScrollBar::add-line, QScrollBar::sub-line { height: 0; width: 0; }
)";

}  // namespace

Theme CurrentTheme() {
    return themeInForce;
}

void SetTheme(Theme theme) {
    themeInForce = theme;
}

QColor Colour(Role role) {
    return QColor::fromRgb(ColourOf(role, themeInForce));
}

QString Coloured(const QString& sheet) {
    static const QRegularExpression kName(QStringLiteral("@([A-Za-z]+)"));
    QString coloured;
    qsizetype copied = 0;
    for (auto names = kName.globalMatch(sheet); names.hasNext();) {
        const QRegularExpressionMatch match = names.next();
        const auto role = RoleNamed(match.captured(1).toStdString());
        coloured += sheet.mid(copied, match.capturedStart() - copied);
        coloured += role ? Colour(*role).name() : match.captured();
        copied = match.capturedEnd();
    }
    return coloured + sheet.mid(copied);
}

QString StyleSheet() {
    return Coloured(QString::fromUtf8(kSheet));
}

}  // namespace Tarvik::Skin
