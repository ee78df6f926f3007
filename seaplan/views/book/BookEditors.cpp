// SPDX-License-Identifier: MIT
#include "seaplan/views/book/BookEditors.h"

#include <QKeyEvent>
#include <algorithm>

#include <tarvik/skin/Palette.h>
#include <tarvik/skin/ToolWindow.h>

#include "seaplan/panels/book/BookEditing.h"
#include "seaplan/panels/texts/BookTexts.h"
#include "seaplan/views/editors/QtKeys.h"
#include "seaplan/views/editors/RowField.h"
#include "seaplan/views/table/PanelTable.h"
#include "seaplan/views/window/FloatingPanel.h"

namespace Tarvik::Seaplan {

BookEditors::BookEditors(QWidget& window, PanelTable& table)
    : QObject(&window),
      window_(window),
      table_(table),
      field_(new RowField(table.viewport())),
      echo_(new QLabel(&window)),
      choices_(new DroppedList(window, table, "bookChoices")),
      date_(*table.viewport(), window) {
    field_->setObjectName(QStringLiteral("bookEditor"));
    echo_->setObjectName(QStringLiteral("bookEcho"));
    choices_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    choices_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    echo_->setFocusPolicy(Qt::NoFocus);
    for (QWidget* part :
         {static_cast<QWidget*>(field_), static_cast<QWidget*>(echo_), static_cast<QWidget*>(choices_)}) {
        part->hide();
        part->installEventFilter(this);
    }
    ApplySkin();
}

void BookEditors::Attach(BookEditing* panel) {
    panel_ = panel;
    QObject::connect(field_, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (!setting_) {
            panel_->OnTyped(text.toStdString());
        }
    });
    QObject::connect(choices_, &QListWidget::itemClicked, this,
                     [this](QListWidgetItem* item) { panel_->OnChosen(choices_->row(item)); });
    date_.Attach(panel_->Picker());
}

void BookEditors::ApplyTexts() {
    Skin::Describe(field_, ViewText(TextIds::IDS_VIEW_BOOKTEXT));
    Skin::Describe(choices_, ViewText(TextIds::IDS_VIEW_BOOKCHOICES));
    date_.Popup().ApplyTexts();
}

void BookEditors::ApplySkin() {
    echo_->setStyleSheet(QStringLiteral("#bookEcho { background: %1; color: %2; border: 1px solid %3; "
                                        "padding: 2px 6px; font-size: 12px; }")
                             .arg(Skin::Colour(Skin::Role::Panel).name(),
                                  Skin::Colour(Skin::Role::Text).name(),
                                  Skin::Colour(Skin::Role::Border).name()));
    date_.Popup().ApplySkin();
}

bool BookEditors::Holds(const QWidget& widget) const {
    const QWidget* const parts[] = {&table_, choices_, &date_.Popup()};
    return std::any_of(std::begin(parts), std::end(parts),
                       [&widget](const QWidget* part) { return BelongsTo(*part, widget); });
}

void BookEditors::Show(const Rect& place, const std::string& text, std::size_t limit) {
    const QRect screen = ToQt(place);
    field_->setGeometry({table_.viewport()->mapFromGlobal(screen.topLeft()), screen.size()});
    setting_ = true;
    PutWhole(*field_, text, limit);
    setting_ = false;
    field_->show();
    field_->raise();
    field_->setFocus();
    field_->selectAll();
}

void BookEditors::PutTyped(const std::string& text) {
    setting_ = true;
    field_->setText(QString::fromStdString(text));
    setting_ = false;
}

void BookEditors::Hide() {
    if (field_->isHidden()) {
        return;
    }
    const bool focused = field_->hasFocus();
    field_->hide();
    if (focused) {
        table_.setFocus();
    }
}

void BookEditors::ShowEcho(const std::string& text) {
    if (text.empty()) {
        return echo_->hide();
    }
    echo_->setText(QString::fromStdString(text));
    echo_->setAccessibleName(echo_->text());
    echo_->adjustSize();
    const QPoint below = field_->mapTo(&window_, QPoint(0, field_->height()));
    echo_->move(std::min(below.x(), std::max(0, window_.width() - echo_->width() - 4)), below.y());
    echo_->show();
    echo_->raise();
}

void BookEditors::PutPicker(const BookCellPlace& cell) {
    table_.PutFront(cell.row, BookName);
    date_.Put(table_.EditorRect(cell.row, cell.column));
}

bool BookEditors::FieldEvent(QEvent& event) {
    switch (event.type()) {
        case QEvent::KeyPress:
            return panel_->OnTextKey(PressOf(static_cast<QKeyEvent&>(event)));
        case QEvent::FocusOut:
            if (LeftForItsMenu(*field_, static_cast<QFocusEvent&>(event))) {
                return false;
            }
            // A refusal puts a box up, which must not come up inside the change of the focus.
            QMetaObject::invokeMethod(
                this,
                [this] {
                    if (!field_->hasFocus()) {
                        panel_->OnTextFocusLost();
                    }
                },
                Qt::QueuedConnection);
            return false;
        default:
            return false;
    }
}

bool BookEditors::eventFilter(QObject* watched, QEvent* event) {
    if (panel_ == nullptr) {
        return false;
    }
    if (watched == field_) {
        return FieldEvent(*event);
    }
    return watched == choices_ && event->type() == QEvent::KeyPress &&
           panel_->OnChoiceKey(PressOf(*static_cast<QKeyEvent*>(event)), choices_->currentRow());
}

}  // namespace Tarvik::Seaplan
