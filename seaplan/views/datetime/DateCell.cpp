// SPDX-License-Identifier: MIT
#include "seaplan/views/datetime/DateCell.h"

#include <tarvik/skin/Palette.h>
#include <tarvik/skin/SkinNames.h>
#include <tarvik/skin/ToolWindow.h>

#include "seaplan/views/window/DialogTexts.h"
#include "seaplan/views/window/FloatingPanel.h"

namespace Tarvik::Seaplan {

namespace {

/// No text has this number, so the button keeps its date over a change of language.
constexpr TextId kDateButton{18080};

const char* SkinOfStyle(int timeStyle) {
    return timeStyle == 0 ? "Date_Select_full" : "TimeSelTrace";
}

}  // namespace

DateCell::DateCell(QWidget& surface, QWidget& window)
    : surface_(surface), calendar_(new CalendarPopup(&window)) {}

void DateCell::Attach(CTrvDateTimeCtrl& date) {
    date_ = &date;
    calendar_->Attach(&date.Calendar());
}

/// Its look is chosen now and stays.
void DateCell::MakeButton() {
    button_ = new QToolButton(&surface_);
    button_->setObjectName(QStringLiteral("dateButton"));
    TieText(*button_, kDateButton);
    button_->setText(text_);
    Skin::Describe(button_, text_);
    // The keyboard stays in the table, which has keys of its own for a date.
    button_->setFocusPolicy(Qt::NoFocus);
    Skin::SkinWindow(*button_, Skin::ControlClass::PushButton, SkinOfStyle(timeStyle_));
    QObject::connect(button_, &QToolButton::clicked, calendar_, [this] { date_->OnPressed(); });
    calendar_->SetShown([button = button_](bool shown) {
        if (button != nullptr) {
            // The cell below tells the same date, which must not be seen through.
            button->setStyleSheet(QStringLiteral("background: %1; color: %2; border: 1px solid %3;")
                                      .arg(Skin::Colour(Skin::Role::Panel).name(),
                                           Skin::Colour(Skin::Role::Text).name(),
                                           Skin::Colour(Skin::Role::Accent).name()));
            button->setVisible(shown);
        }
    });
}

void DateCell::Put(const QRect& cell) {
    if (button_ == nullptr) {
        MakeButton();
    }
    button_->setGeometry(cell);
}

void DateCell::ShowText(const std::string& text) {
    text_ = QString::fromStdString(text);
    calendar_->setAccessibleName(text_);
    if (button_ != nullptr) {
        button_->setText(text_);
        Skin::Describe(button_, text_);
    }
}

Rect DateCell::PlaceOnScreen() const {
    const Rect place = OnScreen(button_ == nullptr ? surface_ : *button_);
    calendar_->SetAnchor(ToQt(place));
    return place;
}

}  // namespace Tarvik::Seaplan
