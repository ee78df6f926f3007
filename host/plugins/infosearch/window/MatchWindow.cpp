// SPDX-License-Identifier: MIT
#include "host/plugins/infosearch/window/MatchWindow.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <algorithm>

#include <tarvik/skin/Palette.h>
#include <tarvik/skin/ToolWindow.h>
#include <tarvik/skin/WindowMessages.h>

#include "host/plugins/infosearch/window/Words.h"

namespace Tarvik::InfoSearch {

namespace {

// Pixels.
constexpr int kRow = 23;
constexpr int kWidth = 400;
constexpr int kCountryWidth = 124;
constexpr int kCodeWidth = 62;
constexpr int kFieldHeight = 20;  ///< how far below the field's top an editor puts the window

constexpr const char* kSheet = R"(
#portMatchWindow { background: @list; color: @text; border: 1px solid @border; font-size: 12px; }
#portMatchWindow::item { height: 23px; }
#portMatchWindow::item:hover { background: @selection; color: @text; }
#portMatchWindow::item:selected { background: @accent; color: @accentText; }
)";

/// The name and, behind it, by which other name it was found; in Chinese always the Chinese one.
QString TitleOf(const PortHit& hit, bool chinese) {
    const Port& port = *hit.port;
    const std::string& other = hit.by.empty() && chinese && port.nameCn != port.name ? port.nameCn : hit.by;
    const QString name = QString::fromStdString(port.name);
    return other.empty() ? name : QString("%1 (%2)").arg(name, QString::fromStdString(other));
}

}  // namespace

MatchWindow::MatchWindow(QWidget* editor) : QTreeWidget(editor) {
    hide();
    setObjectName("portMatchWindow");
    setColumnCount(3);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideRight);
    // The field keeps the keyboard until a person comes here.
    setFocusPolicy(Qt::ClickFocus);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    header()->resizeSection(1, kCountryWidth);
    header()->resizeSection(2, kCodeWidth);
    installEventFilter(this);
    connect(this, &QTreeWidget::itemClicked, this, [this] {
        TellMoved();
        Choose();
    });
}

void MatchWindow::Follow(QWidget* editor, QWidget* field) {
    if (parentWidget() != editor) {
        setParent(editor);
    }
    editor_ = editor;
    if (field_ == field) {
        return;
    }
    if (field_) {
        field_->removeEventFilter(this);
    }
    field_ = field;
    field->installEventFilter(this);
}

void MatchWindow::Fill(const std::vector<PortHit>& hits) {
    setStyleSheet(Skin::Coloured(kSheet));
    setAccessibleName(Word("MATCHES"));
    const std::string language = Word("LOCALE").toStdString();
    const bool chinese = language.starts_with("zh");
    clear();
    for (const PortHit& hit : hits) {
        const Port& port = *hit.port;
        const QString country =
            QString::fromStdString(Ports::CountryName(port.unlocode.substr(0, 2), language));
        auto* row = new QTreeWidgetItem(
            this, {TitleOf(hit, chinese), country, QString::fromStdString(port.unlocode)});
        row->setData(0, Qt::UserRole, QString::fromStdString(port.name));
        row->setData(0, Qt::AccessibleTextRole,
                     QString("%1, %2, %3").arg(row->text(0), row->text(1), row->text(2)));
        row->setToolTip(0, row->text(0));
        row->setToolTip(1, country);
    }
    setCurrentItem(nullptr);
    const int inside = parentWidget() == nullptr ? kWidth : parentWidget()->width();
    resize(std::min(kWidth, inside), static_cast<int>(hits.size()) * kRow + 2 * frameWidth());
}

bool MatchWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !isVisible()) {
        return QTreeWidget::eventFilter(watched, event);
    }
    auto& press = *static_cast<QKeyEvent*>(event);
    return watched == this ? ListKey(press) : watched == field_ && FieldKey(press.key());
}

/// Down goes in at the first port, Up at the last.
bool MatchWindow::FieldKey(int key) {
    const bool arrow = key == Qt::Key_Down || key == Qt::Key_Up;
    if (arrow && topLevelItemCount() > 0) {
        Enter(key == Qt::Key_Down ? 0 : topLevelItemCount() - 1);
    }
    return arrow;
}

bool MatchWindow::ListKey(QKeyEvent& event) {
    const int row = indexOfTopLevelItem(currentItem());
    const int last = topLevelItemCount() - 1;
    switch (event.key()) {
        case Qt::Key_Down:
            Enter(std::min(row + 1, last));
            return true;
        case Qt::Key_Up:
            row > 0 ? Enter(row - 1) : BackToField();
            return true;
        case Qt::Key_PageDown:
            Enter(last);
            return true;
        case Qt::Key_PageUp:
            Enter(0);
            return true;
        case Qt::Key_Enter:
        case Qt::Key_Return:
            Choose();
            return true;
        default:
            break;
    }
    BackToField();
    if (field_) {
        QCoreApplication::sendEvent(field_, &event);
    }
    return true;
}

/// The editor takes a name only while its own field has not the keyboard.
void MatchWindow::Enter(int row) {
    setFocus(Qt::OtherFocusReason);
    setCurrentItem(topLevelItem(row));
    TellMoved();
}

void MatchWindow::TellMoved() {
    if (editor_ && currentItem() != nullptr) {
        Skin::MatchMovedEvent moved(currentItem()->data(0, Qt::UserRole).toString());
        QCoreApplication::sendEvent(editor_, &moved);
    }
}

void MatchWindow::Choose() {
    BackToField();
    if (editor_) {
        Skin::MatchChosenEvent chosen;
        QCoreApplication::sendEvent(editor_, &chosen);
    }
}

void MatchWindow::BackToField() {
    if (field_) {
        field_->setFocus(Qt::OtherFocusReason);
    }
}

void MatchWindow::moveEvent(QMoveEvent* event) {
    QTreeWidget::moveEvent(event);
    KeepInside();
}

void MatchWindow::resizeEvent(QResizeEvent* event) {
    QTreeWidget::resizeEvent(event);
    KeepInside();
}

/// Above the field where there is no room below it.
void MatchWindow::KeepInside() {
    if (parentWidget() == nullptr) {
        return;
    }
    QPoint place = pos();
    if (place.y() + height() > parentWidget()->height()) {
        const int above = place.y() - kFieldHeight - height();
        place.setY(above >= 0 ? above : std::max(0, parentWidget()->height() - height()));
    }
    place.setX(std::max(0, std::min(place.x(), parentWidget()->width() - width())));
    if (place != pos()) {
        move(place);
    }
}

}  // namespace Tarvik::InfoSearch
