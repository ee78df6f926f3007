// SPDX-License-Identifier: MIT
#include "tarvik/skin/EntryForm.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include <tarvik/skin/Words.h>

namespace Tarvik::Skin {

EntryForm::EntryForm(QWidget* parent, Plan plan, std::function<void()> closed, QWidget* below)
    : ToolWindow(parent, plan.window),
      plan_(std::move(plan)),
      closed_(std::move(closed)),
      fault_(new QLabel(this)),
      save_(new QPushButton(this)),
      cancel_(new QPushButton(this)),
      close_(AddCaptionButton(plan_.close, "close")) {
    setFixedWidth(plan_.width);
    AddFields(below);
    AddButtons();
    opened_ = Texts();
    connect(close_, &QToolButton::clicked, this, &EntryForm::CloseAsked);
}

void EntryForm::AddFields(QWidget* below) {
    auto* form = new QFormLayout;
    form->setContentsMargins(kSide, kSide, kSide, 0);
    form->setRowWrapPolicy(plan_.titlesAbove ? QFormLayout::WrapAllRows : QFormLayout::DontWrapRows);
    for (const Field& field : plan_.fields) {
        const Row row{new QLabel(this), new QLineEdit(this)};
        row.field->setObjectName(field.name);
        row.field->setProperty("field", true);
        row.field->setFixedHeight(kControlHeight);
        row.title->setBuddy(row.field);
        connect(row.field, &QLineEdit::textEdited, this, [this] {
            Tell({});
            Typed();
        });
        form->addRow(row.title, row.field);
        rows_.push_back(row);
    }
    Body()->addLayout(form);
    fault_->setObjectName(plan_.fault);
    fault_->setWordWrap(true);
    for (QWidget* line : {below, static_cast<QWidget*>(fault_)}) {
        if (line != nullptr) {
            line->setContentsMargins(kSide, 0, kSide, 0);
            Body()->addWidget(line);
        }
    }
}

void EntryForm::AddButtons() {
    save_->setObjectName(plan_.save);
    save_->setProperty("primary", true);
    cancel_->setObjectName(plan_.cancel);
    connect(save_, &QPushButton::clicked, this, [this] { Commit(); });
    connect(cancel_, &QPushButton::clicked, this, &QWidget::hide);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(kSide, kGrid, kSide, kSide);
    row->addStretch(1);
    row->addWidget(cancel_);
    row->addWidget(save_);
    Body()->addLayout(row);
}

void EntryForm::ApplyTexts() {
    SetCaption(plan_.word(isNew_ ? "ADD_TITLE" : "CHANGE_TITLE"));
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const QString title = plan_.word(plan_.fields[i].title);
        rows_[i].title->setText(title);
        rows_[i].field->setAccessibleName(title);
    }
    fault_->setAccessibleName(plan_.word("FAULT_NAME"));
    save_->setText(plan_.word("SAVE"));
    save_->setToolTip(plan_.word("SAVE_TIP"));
    cancel_->setText(plan_.word("CANCEL"));
    cancel_->setToolTip(plan_.word("CANCEL_TIP"));
    Describe(close_, plan_.word("CLOSE"));
}

void EntryForm::ApplySkin() {
    ToolWindow::ApplySkin();
    fault_->setStyleSheet(Coloured("color: @error;"));
}

void EntryForm::Fill(const std::vector<std::string>& texts, bool isNew) {
    isNew_ = isNew;
    opened_ = texts;
    opened_.resize(rows_.size());
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        rows_[i].field->setText(QString::fromStdString(opened_[i]));
    }
    Tell({});
    ApplyTexts();
    adjustSize();
    rows_.front().field->setFocus();
}

std::vector<std::string> EntryForm::Texts() const {
    std::vector<std::string> texts;
    texts.reserve(rows_.size());
    for (const Row& row : rows_) {
        texts.push_back(row.field->text().toStdString());
    }
    return texts;
}

void EntryForm::Refuse(std::size_t field, const QString& fault) {
    Tell(fault);
    rows_[field].field->setFocus();
    rows_[field].field->selectAll();
}

void EntryForm::End(const QString& failure) {
    Tell(failure);
    if (failure.isEmpty()) {
        hide();
    }
}

void EntryForm::Tell(const QString& fault) {
    fault_->setText(fault);
    fault_->setVisible(!fault.isEmpty());
    adjustSize();
}

bool EntryForm::MayGo() {
    return !isVisible() || !IsTouched() || Agreed(plan_.word(plan_.drop), this);
}

void EntryForm::CloseAsked() {
    if (MayGo()) {
        hide();
    }
}

void EntryForm::hideEvent(QHideEvent* event) {
    ToolWindow::hideEvent(event);
    closed_();
}

void EntryForm::keyPressEvent(QKeyEvent* event) {
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

}  // namespace Tarvik::Skin
