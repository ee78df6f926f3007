// SPDX-License-Identifier: MIT
#include "seaplan/views/datetime/TimeField.h"

#include <tarvik/skin/SkinNames.h>
#include <tarvik/skin/ToolWindow.h>

#include "seaplan/views/editors/QtKeys.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

TimeField::TimeField(QWidget* calendar, QBoxLayout* row, const char* name, TimePart part)
    : QObject(calendar), part_(part) {
    const QString base = QString::fromLatin1(name);
    shown_ = MakeButton(calendar, base + QStringLiteral("Shown"), "");
    minus_ = MakeButton(calendar, base + QStringLiteral("Minus"), "up");
    plus_ = MakeButton(calendar, base + QStringLiteral("Plus"), "down");
    edit_ = new QLineEdit(calendar);
    edit_->setObjectName(base + QStringLiteral("Edit"));
    edit_->setMaxLength(2);
    edit_->setFixedWidth(28);
    edit_->installEventFilter(this);
    shown_->installEventFilter(this);
    Skin::SkinWindow(*edit_, Skin::ControlClass::EditField,
                     part == TimePart::Hour ? "trv_pagenum_edit" : "Date_time_edit");
    Skin::SkinWindow(*shown_, Skin::ControlClass::StaticText, "trv_date_12");
    Skin::SkinWindow(*minus_, Skin::ControlClass::PushButton, "Date_time_prev");
    Skin::SkinWindow(*plus_, Skin::ControlClass::PushButton, "Date_time_next");
    for (QWidget* widget : std::initializer_list<QWidget*>{minus_, shown_, edit_, plus_}) {
        row->addWidget(widget);
    }
    Show({}, true, false);
    connect(shown_, &QToolButton::clicked, this, [this] { panel_->OnTimePressed(part_); });
    connect(minus_, &QToolButton::clicked, this, [this] { panel_->OnStep(-1); });
    connect(plus_, &QToolButton::clicked, this, [this] { panel_->OnStep(1); });
    connect(edit_, &QLineEdit::textEdited, this,
            [this](const QString& text) { panel_->OnTyped(text.toStdString()); });
}

QToolButton* TimeField::MakeButton(QWidget* calendar, const QString& name, const char* label) {
    auto* button = new QToolButton(calendar);
    button->setObjectName(name);
    button->setText(QString::fromLatin1(label));
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

void TimeField::Show(const std::string& text, bool offered, bool typing) {
    shown_->setText(QString::fromStdString(text));
    shown_->setVisible(offered && !typing);
    for (QWidget* widget : std::initializer_list<QWidget*>{minus_, edit_, plus_}) {
        widget->setVisible(offered && typing);
    }
}

void TimeField::FillEdit(const std::string& text) {
    edit_->setText(QString::fromStdString(text));
    edit_->selectAll();
    edit_->setFocus();
}

void TimeField::ApplyTexts(TextId part, TextId minus, TextId plus) {
    Skin::Describe(shown_, ViewText(part));
    Skin::Describe(edit_, ViewText(part));
    Skin::Describe(minus_, ViewText(minus));
    Skin::Describe(plus_, ViewText(plus));
}

bool TimeField::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (watched == edit_) {
        return panel_->OnKey(PressOf(key).key);
    }
    const QString digit = TextOf(key);
    if (digit.isEmpty() || !digit.front().isDigit()) {
        return false;
    }
    panel_->OnTimePressed(part_);
    edit_->insert(digit);
    panel_->OnTyped(edit_->text().toStdString());
    return true;
}

}  // namespace Tarvik::Seaplan
