// SPDX-License-Identifier: MIT
#include "host/client/places/OwnPortForm.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "host/client/places/Words.h"

namespace Tarvik::Client {

namespace {

constexpr int kWidth = 360;  ///< pixels
constexpr int kSide = 2 * Skin::kGrid;

bool IsAboutPlace(PortFault fault) {
    return fault == PortFault::PlaceMissing || fault == PortFault::PlaceUnread;
}

}  // namespace

OwnPortForm::OwnPortForm(QWidget* mainWindow, Owner owner)
    : ToolWindow(mainWindow, "ownPortForm"),
      owner_(std::move(owner)),
      understood_(new QLabel(this)),
      fault_(new QLabel(this)),
      save_(new QPushButton(this)),
      cancel_(new QPushButton(this)),
      close_(AddCaptionButton("ownPortFormClose", "close")) {
    setFixedWidth(kWidth);
    auto* column = new QVBoxLayout;
    column->setContentsMargins(kSide, kSide, kSide, 0);
    name_ = AddRow(*column, "ownPortName");
    place_ = AddRow(*column, "ownPortPlace");
    understood_->setObjectName("ownPortUnderstood");
    understood_->setProperty("secondary", true);
    understood_->setWordWrap(true);
    column->addWidget(understood_);
    fault_->setObjectName("ownPortFault");
    fault_->setWordWrap(true);
    column->addWidget(fault_);
    Body()->addLayout(column);
    AddButtons();
    connect(close_, &QToolButton::clicked, this, &OwnPortForm::CloseAsked);
    ApplySkin();
    ApplyTexts();
}

OwnPortForm::Row OwnPortForm::AddRow(QVBoxLayout& column, const char* name) {
    const Row row{new QLabel(this), new QLineEdit(this)};
    row.field->setObjectName(name);
    row.field->setProperty("field", true);
    row.field->setFixedHeight(Skin::kControlHeight);
    row.title->setBuddy(row.field);
    connect(row.field, &QLineEdit::textEdited, this, [this] {
        Tell({});
        ShowUnderstood();
    });
    column.addWidget(row.title);
    column.addWidget(row.field);
    return row;
}

void OwnPortForm::AddButtons() {
    save_->setObjectName("ownPortSave");
    save_->setProperty("primary", true);
    cancel_->setObjectName("ownPortCancel");
    connect(save_, &QPushButton::clicked, this, &OwnPortForm::Commit);
    connect(cancel_, &QPushButton::clicked, this, &QWidget::hide);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(kSide, Skin::kGrid, kSide, kSide);
    row->addStretch(1);
    row->addWidget(cancel_);
    row->addWidget(save_);
    Body()->addLayout(row);
}

void OwnPortForm::ApplyTexts() {
    SetCaption(PortWord(port_.id.empty() ? "ADD_TITLE" : "CHANGE_TITLE"));
    for (const auto& [row, key] : {std::pair(name_, "NAME"), std::pair(place_, "PLACE")}) {
        row.title->setText(PortWord(key));
        row.field->setAccessibleName(PortWord(key));
    }
    place_.field->setPlaceholderText(PortWord("PLACE_HINT"));
    understood_->setAccessibleName(PortWord("UNDERSTOOD_NAME"));
    fault_->setAccessibleName(PortWord("FAULT_NAME"));
    save_->setText(PortWord("SAVE"));
    save_->setToolTip(PortWord("SAVE_TIP"));
    cancel_->setText(PortWord("CANCEL"));
    cancel_->setToolTip(PortWord("CANCEL_TIP"));
    Skin::Describe(close_, PortWord("CLOSE"));
    ShowUnderstood();
}

void OwnPortForm::ApplySkin() {
    ToolWindow::ApplySkin();
    fault_->setStyleSheet(Skin::Coloured("color: @error;"));
}

void OwnPortForm::Open(const Ports::Place& port) {
    port_ = port;
    opened_ = OwnPortDraft::Of(port);
    name_.field->setText(QString::fromStdString(opened_.name));
    place_.field->setText(QString::fromStdString(opened_.position));
    Tell({});
    ApplyTexts();
    adjustSize();
    name_.field->setFocus();
}

OwnPortDraft OwnPortForm::Typed() const {
    return {name_.field->text().toStdString(), place_.field->text().toStdString()};
}

void OwnPortForm::ShowUnderstood() {
    const OwnPortDraft typed = Typed();
    const QString place = QString::fromStdString(typed.Understood());
    understood_->setText(place.isEmpty() ? PortWord("PLACE_FORMS") : PortWord("UNDERSTOOD").arg(place));
}

void OwnPortForm::Commit() {
    const OwnPortDraft typed = Typed();
    if (const auto fault = owner_.check(typed, port_.id)) {
        QLineEdit* field = (IsAboutPlace(*fault) ? place_ : name_).field;
        Tell(WordOf(*fault));
        field->setFocus();
        return field->selectAll();
    }
    const QString failure = owner_.save(typed.Kept(port_));
    Tell(failure);
    if (failure.isEmpty()) {
        hide();
    }
}

void OwnPortForm::Tell(const QString& fault) {
    fault_->setText(fault);
    fault_->setVisible(!fault.isEmpty());
    adjustSize();
}

void OwnPortForm::CloseAsked() {
    if (!IsTouched() || Skin::Agreed(PortWord("DROP_PORT"), this)) {
        hide();
    }
}

void OwnPortForm::hideEvent(QHideEvent* event) {
    ToolWindow::hideEvent(event);
    owner_.closed();
}

void OwnPortForm::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return Commit();
        case Qt::Key_Escape:
            return CloseAsked();
        default:
            ToolWindow::keyPressEvent(event);
    }
}

}  // namespace Tarvik::Client
