// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/GoToBar.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include <tarvik/skin/Words.h>

#include "host/plugins/seamap/widget/PortCard.h"

namespace Tarvik::Seamap {

namespace {

constexpr int kWidth = 380;
constexpr int kInset = 24;        ///< pixels below the chart's upper edge
constexpr std::size_t kMost = 6;  ///< places on offer
constexpr int kListMargin = 4;

}  // namespace

GoToBar::GoToBar(QWidget* chart, Find find)
    : QFrame(chart), find_(std::move(find)), field_(new QLineEdit(this)), list_(new QListWidget(this)) {
    setObjectName("goToBar");
    field_->setObjectName("goToField");
    field_->setClearButtonEnabled(true);
    field_->installEventFilter(this);
    list_->setObjectName("goToList");
    list_->setFocusPolicy(Qt::NoFocus);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* column = new QVBoxLayout(this);
    column->addWidget(field_);
    column->addWidget(list_);
    connect(field_, &QLineEdit::textChanged, this, &GoToBar::TakeText);
    connect(list_, &QListWidget::itemClicked, this, [this] { Go(list_->currentRow()); });
    hide();
}

void GoToBar::Open() {
    field_->setPlaceholderText(Skin::Word("Chart", "GO_TO_HINT"));
    field_->setAccessibleName(Skin::Word("Chart", "GO_TO"));
    field_->clear();
    TakeText({});
    show();
    raise();
    field_->setFocus();
}

void GoToBar::TakeText(const QString& text) {
    found_ = find_(text.toStdString(), kMost);
    list_->clear();
    for (const Destination& place : found_) {
        list_->addItem(QString::fromStdString(place.text));
    }
    if (found_.empty() && !text.trimmed().isEmpty()) {
        list_->addItem(Skin::Word("Chart", "GO_TO_NOTHING"));
        list_->item(0)->setFlags(Qt::NoItemFlags);
    } else if (!found_.empty()) {
        list_->setCurrentRow(0);
    }
    Place();
}

void GoToBar::Place() {
    const int rows = list_->count();
    list_->setVisible(rows > 0);
    list_->setFixedHeight(rows * std::max(1, list_->sizeHintForRow(0)) + kListMargin);
    setFixedWidth(std::min(kWidth, parentWidget()->width()));
    layout()->activate();
    adjustSize();
    move((parentWidget()->width() - width()) / 2, kInset);
}

void GoToBar::Go(int row) {
    if (row < 0 || row >= static_cast<int>(found_.size())) {
        return;
    }
    const Destination place = found_[static_cast<std::size_t>(row)];
    Leave();
    emit Chosen(place);
}

void GoToBar::Leave() {
    hide();
    parentWidget()->setFocus();
}

bool GoToBar::eventFilter(QObject* watched, QEvent* event) {
    // The client's keys wait while a text is being typed.
    if (event->type() != QEvent::KeyPress) {
        return QFrame::eventFilter(watched, event);
    }
    const int rows = static_cast<int>(found_.size());
    switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Escape:
            Leave();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            Go(list_->currentRow());
            return true;
        case Qt::Key_Down:
            list_->setCurrentRow(std::min(list_->currentRow() + 1, rows - 1));
            return true;
        case Qt::Key_Up:
            list_->setCurrentRow(std::max(list_->currentRow() - 1, rows > 0 ? 0 : -1));
            return true;
        default:
            return QFrame::eventFilter(watched, event);
    }
}

void GoToBar::ApplyTheme(const ChartPalette& palette) {
    setStyleSheet(CardSheet(objectName(), palette));
}

}  // namespace Tarvik::Seamap
