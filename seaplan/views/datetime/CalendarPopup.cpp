// SPDX-License-Identifier: MIT
#include "seaplan/views/datetime/CalendarPopup.h"

#include <QMouseEvent>
#include <QVBoxLayout>

#include <tarvik/interface/LoadString.h>
#include <tarvik/skin/Palette.h>
#include <tarvik/skin/SkinNames.h>
#include <tarvik/skin/ToolWindow.h>
#include <tarvik/skin/WindowPlace.h>

#include "seaplan/panels/texts/CommonTexts.h"
#include "seaplan/views/editors/QtKeys.h"
#include "seaplan/views/window/FloatingPanel.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

namespace {

enum Step : std::size_t { PreviousYear, PreviousMonth, NextMonth, NextYear };

/// Label of a button that the host's own section of the language file names.
QString HostLabel(const char16_t* key, const char16_t* fallback) {
    char16_t buffer[128] = {};
    Interface::TrvLoadString(u"TRV_Shipping", u"MainDialog", key, buffer, fallback, std::size(buffer));
    return QString::fromUtf16(buffer);
}

}  // namespace

CalendarPopup::CalendarPopup(QWidget* parent) : QFrame(parent, Qt::Popup) {
    setObjectName(QStringLiteral("calendarPopup"));
    setFrameShape(QFrame::Box);
    Skin::SkinWindow(*this, Skin::ControlClass::Dialog, "Trv_DateDlg");
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(8, 8, 8, 8);
    rows->setSpacing(4);
    rows->addLayout(MakeHead());
    MakeText(*rows);
    days_ = new DayGrid(this);
    rows->addLayout(days_);
    rows->addLayout(MakeTime());
    rows->addLayout(MakeButtons());
    ApplySkin();
    ApplyTexts();
}

QLayout* CalendarPopup::MakeHead() {
    struct Named {
        const char* name;
        const char* label;
        const char* skin;
    };
    constexpr Named kSteps[] = {{"previousYear", "<<", "Date_year_prev"},
                                {"previousMonth", "<", "Date_month_prev"},
                                {"nextMonth", ">", "Date_month_next"},
                                {"nextYear", ">>", "Date_year_next"}};
    auto* head = new QHBoxLayout();
    for (std::size_t i = 0; i < steps_.size(); ++i) {
        steps_[i] = new QToolButton(this);
        steps_[i]->setObjectName(QString::fromLatin1(kSteps[i].name));
        steps_[i]->setText(QString::fromLatin1(kSteps[i].label));
        Skin::SkinWindow(*steps_[i], Skin::ControlClass::PushButton, kSteps[i].skin);
    }
    heading_ = new QLabel(this);
    heading_->setObjectName(QStringLiteral("calendarHeading"));
    heading_->setAlignment(Qt::AlignCenter);
    Skin::SkinWindow(*heading_, Skin::ControlClass::StaticText, "trv_date_13");
    head->addWidget(steps_[PreviousYear]);
    head->addWidget(steps_[PreviousMonth]);
    head->addWidget(heading_, 1);
    head->addWidget(steps_[NextMonth]);
    head->addWidget(steps_[NextYear]);
    return head;
}

void CalendarPopup::MakeText(QVBoxLayout& rows) {
    whole_.text = new QLineEdit(this);
    whole_.text->setObjectName(QStringLiteral("dateText"));
    whole_.note = new QLabel(this);
    whole_.note->setObjectName(QStringLiteral("dateNote"));
    whole_.note->setWordWrap(true);
    whole_.note->setTextFormat(Qt::PlainText);
    whole_.note->setProperty("secondary", true);
    whole_.text->hide();
    whole_.note->hide();
    rows.addWidget(whole_.text);
    rows.addWidget(whole_.note);
}

QLayout* CalendarPopup::MakeTime() {
    auto* time = new QHBoxLayout();
    time->addStretch(1);
    time_.hour = new TimeField(this, time, "hour", TimePart::Hour);
    time_.colon = new QLabel(QStringLiteral(":"), this);
    time->addWidget(time_.colon);
    time_.minute = new TimeField(this, time, "minute", TimePart::Minute);
    time->addStretch(1);
    return time;
}

QLayout* CalendarPopup::MakeButtons() {
    auto* buttons = new QHBoxLayout();
    end_.ok = new QPushButton(this);
    end_.ok->setObjectName(QStringLiteral("calendarOk"));
    end_.ok->setProperty("primary", true);
    end_.cancel = new QPushButton(this);
    end_.cancel->setObjectName(QStringLiteral("calendarCancel"));
    for (QPushButton* button : {end_.ok, end_.cancel}) {
        Skin::SkinWindow(*button, Skin::ControlClass::PushButton, "trv.btn.default");
        // Enter on Cancel is Cancel, everywhere else it is OK.
        button->setAutoDefault(true);
    }
    buttons->addStretch(1);
    buttons->addWidget(end_.ok);
    buttons->addWidget(end_.cancel);
    return buttons;
}

void CalendarPopup::Attach(CTrvCalDlg* panel) {
    panel_ = panel;
    time_.hour->Attach(panel);
    time_.minute->Attach(panel);
    days_->SetReport([panel](int cell) { panel->OnDay(cell); });
    connect(steps_[PreviousYear], &QToolButton::clicked, this, [panel] { panel->OnYear(-1); });
    connect(steps_[PreviousMonth], &QToolButton::clicked, this, [panel] { panel->OnMonth(-1); });
    connect(steps_[NextMonth], &QToolButton::clicked, this, [panel] { panel->OnMonth(1); });
    connect(steps_[NextYear], &QToolButton::clicked, this, [panel] { panel->OnYear(1); });
    connect(whole_.text, &QLineEdit::textEdited, this,
            [panel](const QString& text) { panel->OnTextTyped(text.toStdString()); });
    connect(end_.ok, &QPushButton::clicked, this, [panel] { panel->OnOk(); });
    connect(end_.cancel, &QPushButton::clicked, this, [panel] { panel->Hide(); });
}

void CalendarPopup::mousePressEvent(QMouseEvent* event) {
    if (panel_ != nullptr) {
        panel_->OnTypingDone();
    }
    setAttribute(Qt::WA_NoMouseReplay, anchor_.contains(event->globalPosition().toPoint()));
    QFrame::mousePressEvent(event);
}

void CalendarPopup::keyPressEvent(QKeyEvent* event) {
    if (panel_ == nullptr || panel_->OnWindowKey(PressOf(*event).key)) {
        return;
    }
    if (const QString text = TextOf(*event).trimmed(); !text.isEmpty() && whole_.text->isHidden()) {
        return panel_->OnTextTyped(text.toStdString());
    }
    QFrame::keyPressEvent(event);
}

void CalendarPopup::hideEvent(QHideEvent* event) {
    QFrame::hideEvent(event);
    if (panel_ != nullptr) {
        panel_->OnClosed();
    }
    if (shown_) {
        shown_(false);
    }
}

/// A date that is typed whole stands in a field of its own, with the keyboard in it from its first letter on.
void CalendarPopup::ShowText(const CalendarState& state) {
    const bool typed = state.text.has_value();
    const bool begins = typed && whole_.text->isHidden();
    const bool ends = !typed && !whole_.text->isHidden();
    if (typed && whole_.text->text() != QString::fromStdString(*state.text)) {
        whole_.text->setText(QString::fromStdString(*state.text));
    }
    whole_.text->setVisible(typed);
    whole_.note->setText(QString::fromStdString(state.note));
    whole_.note->setVisible(typed);
    if (begins) {
        whole_.text->setFocus();
        whole_.text->end(false);
    } else if (ends) {
        days_->FocusChosen();
    }
    if (begins || ends) {
        // The field makes it higher, at the screen's edge as well.
        adjustSize();
        setGeometry(Skin::KeptOnScreen(geometry()));
    }
}

void CalendarPopup::ShowState(const CalendarState& state) {
    heading_->setText(QString::fromStdString(state.heading));
    days_->Show(state);
    const bool timed = !state.dateOnly;
    typingHour_ = state.typing == TimePart::Hour;
    time_.hour->Show(state.hour, timed, typingHour_);
    time_.minute->Show(state.minute, timed, state.typing == TimePart::Minute);
    for (QWidget* widget : std::initializer_list<QWidget*>{time_.colon, end_.ok, end_.cancel}) {
        widget->setVisible(timed);
    }
    ShowText(state);
}

void CalendarPopup::FillEdit(const std::string& text) {
    (typingHour_ ? time_.hour : time_.minute)->FillEdit(text);
}

void CalendarPopup::Open(Point corner) {
    adjustSize();
    setGeometry(Skin::KeptOnScreen({QPoint(corner.x, corner.y), size()}));
    if (shown_) {
        shown_(true);
    }
    show();
    days_->FocusChosen();
}

void CalendarPopup::ApplyTexts() {
    end_.ok->setText(HostLabel(u"IDOK", u"OK"));
    end_.cancel->setText(HostLabel(u"IDCANCEL", u"Cancel"));
    Skin::Describe(end_.ok, end_.ok->text());
    Skin::Describe(end_.cancel, end_.cancel->text());
    whole_.text->setAccessibleName(ViewText(TextIds::IDS_VIEW_DATETEXT));
    Skin::Describe(steps_[PreviousYear], ViewText(TextIds::IDS_VIEW_PREVYEAR));
    Skin::Describe(steps_[NextYear], ViewText(TextIds::IDS_VIEW_NEXTYEAR));
    Skin::Describe(steps_[PreviousMonth], ViewText(TextIds::IDS_VIEW_PREVMONTH));
    Skin::Describe(steps_[NextMonth], ViewText(TextIds::IDS_VIEW_NEXTMONTH));
    time_.hour->ApplyTexts(TextIds::IDS_VIEW_HOUR, TextIds::IDS_VIEW_HOURUP, TextIds::IDS_VIEW_HOURDOWN);
    time_.minute->ApplyTexts(TextIds::IDS_VIEW_MINUTE, TextIds::IDS_VIEW_MINUTEUP,
                             TextIds::IDS_VIEW_MINUTEDOWN);
}

void CalendarPopup::ApplySkin() {
    setStyleSheet(Skin::StyleSheet() +
                  QStringLiteral("#calendarPopup { background: %1; border: 1px solid %2; }")
                      .arg(Skin::Colour(Skin::Role::Panel).name(), Skin::Colour(Skin::Role::Border).name()));
}

}  // namespace Tarvik::Seaplan
