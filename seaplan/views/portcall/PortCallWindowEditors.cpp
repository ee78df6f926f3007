// SPDX-License-Identifier: MIT
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <algorithm>

#include "seaplan/data/Purposes.h"
#include "seaplan/panels/portcall/CPortCallPanelDlg.h"
#include "seaplan/views/portcall/MatchEvents.h"
#include "seaplan/views/portcall/PortCallWindow.h"

namespace Tarvik::Seaplan {

namespace {

constexpr int kColumns[] = {ColPort, ColSpeed, ColWeather};
constexpr int kListRow = 23;
constexpr int kMostRows = 6;

/// Whether a key starts a command of the panel: F9 calculates, Ctrl+S saves.
bool StartsCommand(const QKeyEvent& key) {
    return key.key() == Qt::Key_F9 || (key.key() == Qt::Key_S && key.modifiers() == Qt::ControlModifier);
}

/// Height of a list of names, with its frame.
int ListHeight(int rows) {
    return std::min(rows, kMostRows) * kListRow + 2;
}

}  // namespace

void PortCallWindow::OpenEditor(CellEditor editor, int row, const std::string& text, bool selectAll) {
    const int i = static_cast<int>(editor);
    QLineEdit* edit = editors_[i];
    BringRowIntoView(row);
    table_->setCurrentIndex(model_->index(row, kColumns[i]));
    edit->setGeometry(table_->EditorRect(row, kColumns[i]));
    edit->setText(QString::fromStdString(text));
    open_[i] = true;
    edit->show();
    edit->raise();
    edit->setFocus();
    if (selectAll) {
        edit->selectAll();
    } else {
        edit->end(false);
    }
}

void PortCallWindow::HideEditor(CellEditor editor) {
    const int i = static_cast<int>(editor);
    // Hiding takes the focus away, and that must not count as leaving an open editor.
    open_[i] = false;
    if (editors_[i] == nullptr || editors_[i]->isHidden()) {
        return;
    }
    const bool focused = editors_[i]->hasFocus();
    editors_[i]->hide();
    editors_[i]->clear();
    if (focused) {
        table_->setFocus();
    }
}

std::string PortCallWindow::EditorText(CellEditor editor) const {
    return editors_[static_cast<int>(editor)]->text().toStdString();
}

void PortCallWindow::ShowMatches(const std::vector<std::string>& names) {
    matches_->clear();
    for (const std::string& name : names) {
        matches_->addItem(QString::fromStdString(name));
    }
    const QLineEdit* edit = editors_[0];
    const QPoint place = edit->mapTo(this, QPoint(0, edit->height()));
    matches_->setGeometry(place.x(), place.y(), 200, ListHeight(static_cast<int>(names.size())));
    matches_->setCurrentRow(-1);
    matches_->show();
    matches_->raise();
}

void PortCallWindow::HideMatches() {
    matches_->hide();
}

void PortCallWindow::SetEditorText(CellEditor editor, const std::string& text) {
    QLineEdit* edit = editors_[IndexOf(editor)];
    edit->setText(QString::fromStdString(text));
    edit->end(false);
}

void* PortCallWindow::EditorHandle(CellEditor editor) const {
    return editors_[IndexOf(editor)];
}

void PortCallWindow::ShowMatchWindow(void* window) {
    constexpr int kBelowCellTop = 20;
    auto* shown = static_cast<QWidget*>(window);
    QLineEdit* edit = editors_[IndexOf(CellEditor::Port)];
    const QPoint place(0, kBelowCellTop);
    shown->move(shown->isWindow() ? edit->mapToGlobal(place) : edit->mapTo(shown->parentWidget(), place));
    shown->show();
    matchWindow_ = shown;
    edit->end(false);
}

void PortCallWindow::HideMatchWindow(void* window) {
    static_cast<QWidget*>(window)->hide();
    matchWindow_ = nullptr;
}

void PortCallWindow::OpenPurposes(int row) {
    if (purposes_->count() == 0) {
        for (const Purpose& purpose : kPurposes) {
            purposes_->addItem(QString::fromLatin1(purpose.text));
        }
    }
    const QRect cell = table_->EditorRect(row, ColPurpose);
    const int height = static_cast<int>(kPurposes.size()) * kListRow + 2;
    const QPoint below = table_->viewport()->mapTo(this, cell.bottomLeft() + QPoint(0, 1));
    // A list that would leave the window's bottom opens as low as it fits.
    const int top = std::max(0, std::min(below.y(), this->height() - height - 2));
    purposes_->setGeometry(below.x(), top, 160, height);
    purposes_->setCurrentRow(0);
    purposes_->show();
    purposes_->raise();
    purposes_->setFocus();
}

void PortCallWindow::HidePurposes() {
    const bool focused = purposes_->hasFocus();
    purposes_->hide();
    if (focused) {
        table_->setFocus();
    }
}

void PortCallWindow::OpenPicker(int row, int column, const Util::_datetime_t& time) {
    const QRect cell = table_->EditorRect(row, column);
    calendar_->SetValue(time);
    calendar_->adjustSize();
    calendar_->move(table_->viewport()->mapToGlobal(cell.topLeft() + QPoint(-10, 25)));
    calendar_->show();
}

void PortCallWindow::HidePicker() {
    calendar_->hide();
}

void PortCallWindow::MoveMatch(int by) {
    const int row = std::clamp(matches_->currentRow() + by, 0, matches_->count() - 1);
    matches_->setCurrentRow(row);
    panel_->OnMatchMoved(matches_->item(row)->text().toStdString(), false);
}

void PortCallWindow::TakeMatch(const QListWidgetItem* item) {
    panel_->OnMatchMoved(item->text().toStdString(), false);
    panel_->OnMatchChosen();
}

bool PortCallWindow::EditorKey(int editor, int key) {
    const auto kind = static_cast<CellEditor>(editor);
    switch (key) {
        case Qt::Key_Tab:
            panel_->OnEditorKey(kind, EditorKey::Tab);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            panel_->OnEditorKey(kind, EditorKey::Enter);
            return true;
        case Qt::Key_Down:
        case Qt::Key_Up:
            if (kind != CellEditor::Port || matches_->isHidden()) {
                return false;
            }
            MoveMatch(key == Qt::Key_Down ? 1 : -1);
            return true;
        case Qt::Key_Escape:
            panel_->OnEditorKey(kind, EditorKey::Escape);
            return true;
        case Qt::Key_Backspace:
            if (kind == CellEditor::Port) {
                panel_->OnPortBackspace();
            }
            return false;
        default:
            return false;
    }
}

bool PortCallWindow::PurposeKey(int key) {
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        panel_->OnPurposeChosen(purposes_->currentRow());
        return true;
    }
    if (key != Qt::Key_Escape) {
        return false;
    }
    HidePurposes();
    return true;
}

bool PortCallWindow::PressedOutside(const QObject* watched) const {
    const auto* widget = qobject_cast<const QWidget*>(watched);
    if (widget == nullptr) {
        return false;
    }
    const auto within = [widget](const QWidget* parent) {
        return widget == parent || parent->isAncestorOf(widget);
    };
    return !within(table_) && !within(matches_) && !within(purposes_) && !within(calendar_) &&
           !(matchWindow_ && within(matchWindow_));
}

bool PortCallWindow::event(QEvent* event) {
    if (panel_ != nullptr && event->type() == MatchMovedEvent::kType) {
        panel_->OnMatchMoved(static_cast<MatchMovedEvent*>(event)->name.toStdString(),
                             editors_[IndexOf(CellEditor::Port)]->hasFocus());
        return true;
    }
    if (panel_ != nullptr && event->type() == MatchChosenEvent::kType) {
        panel_->OnMatchChosen();
        return true;
    }
    return Skin::ToolWindow::event(event);
}

bool PortCallWindow::eventFilter(QObject* watched, QEvent* event) {
    if (panel_ == nullptr) {
        return Skin::ToolWindow::eventFilter(watched, event);
    }
    const bool editing = open_[0] || open_[1] || open_[2] || purposes_->isVisible();
    if (editing && event->type() == QEvent::MouseButtonPress && PressedOutside(watched)) {
        panel_->OnTableLeft();
        return false;
    }
    if (watched == purposes_ && event->type() == QEvent::KeyPress &&
        PurposeKey(static_cast<QKeyEvent*>(event)->key())) {
        return true;
    }
    for (int i = 0; i < static_cast<int>(editors_.size()); ++i) {
        if (watched != editors_[i]) {
            continue;
        }
        // Only the text just typed may make the command possible, so it is taken before the shortcut is
        // looked up.
        if (event->type() == QEvent::ShortcutOverride && open_[i] &&
            StartsCommand(*static_cast<QKeyEvent*>(event))) {
            panel_->OnTableLeft();
            break;
        }
        if (event->type() == QEvent::KeyPress && EditorKey(i, static_cast<QKeyEvent*>(event)->key())) {
            return true;
        }
        if (event->type() == QEvent::FocusOut && open_[i]) {
            panel_->OnEditorFocusLost(static_cast<CellEditor>(i));
        }
        break;
    }
    return Skin::ToolWindow::eventFilter(watched, event);
}

}  // namespace Tarvik::Seaplan
