// SPDX-License-Identifier: MIT
#include "seaplan/views/datetime/CalendarPopup.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <tarvik/interface/LoadString.h>
#include <tarvik/skin/Palette.h>
#include <tarvik/skin/ToolWindow.h>

#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

namespace {

constexpr const char* kWeekDays[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
constexpr int kColumns = 7;

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
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(8, 8, 8, 8);
    rows->setSpacing(4);
    rows->addLayout(MakeHead());
    rows->addLayout(MakeDays());
    rows->addLayout(MakeTime());
    rows->addLayout(MakeButtons());
    ApplySkin();
    ApplyTexts();
    SetValue(Util::_datetime_t());
}

QLayout* CalendarPopup::MakeHead() {
    auto* head = new QHBoxLayout();
    previousYear_ = Button("previousYear", QStringLiteral("<<"), [this] { model_.StepYear(-1); });
    previousMonth_ = Button("previousMonth", QStringLiteral("<"), [this] { model_.StepMonth(-1); });
    nextMonth_ = Button("nextMonth", QStringLiteral(">"), [this] { model_.StepMonth(1); });
    nextYear_ = Button("nextYear", QStringLiteral(">>"), [this] { model_.StepYear(1); });
    heading_ = new QLabel(this);
    heading_->setObjectName(QStringLiteral("calendarHeading"));
    heading_->setAlignment(Qt::AlignCenter);
    head->addWidget(previousYear_);
    head->addWidget(previousMonth_);
    head->addWidget(heading_, 1);
    head->addWidget(nextMonth_);
    head->addWidget(nextYear_);
    return head;
}

QLayout* CalendarPopup::MakeDays() {
    auto* grid = new QGridLayout();
    grid->setSpacing(1);
    for (int column = 0; column < kColumns; ++column) {
        auto* day = new QLabel(QString::fromLatin1(kWeekDays[column]), this);
        day->setAlignment(Qt::AlignCenter);
        day->setProperty("secondary", true);
        grid->addWidget(day, 0, column);
    }
    auto* group = new QButtonGroup(this);
    for (int i = 0; i < CalendarModel::kCells; ++i) {
        cells_[i] = Button("day", {}, [this, i] { model_.ClickCell(i); });
        cells_[i]->setObjectName(QStringLiteral("day%1").arg(i));
        cells_[i]->setProperty("day", true);
        cells_[i]->setCheckable(true);
        group->addButton(cells_[i]);
        grid->addWidget(cells_[i], 1 + i / kColumns, i % kColumns);
    }
    return grid;
}

QLayout* CalendarPopup::MakeTime() {
    auto* time = new QHBoxLayout();
    hour_ = MakeTimeField("hour", true);
    minute_ = MakeTimeField("minute", false);
    const auto add = [time](const TimeField& field) {
        for (QWidget* widget :
             std::initializer_list<QWidget*>{field.minus, field.shown, field.edit, field.plus}) {
            time->addWidget(widget);
        }
    };
    time->addStretch(1);
    add(hour_);
    time->addWidget(new QLabel(QStringLiteral(":"), this));
    add(minute_);
    time->addStretch(1);
    return time;
}

QLayout* CalendarPopup::MakeButtons() {
    auto* buttons = new QHBoxLayout();
    ok_ = new QPushButton(this);
    ok_->setObjectName(QStringLiteral("calendarOk"));
    ok_->setProperty("primary", true);
    cancel_ = new QPushButton(this);
    cancel_->setObjectName(QStringLiteral("calendarCancel"));
    QObject::connect(ok_, &QPushButton::clicked, this, [this] { Accept(); });
    QObject::connect(cancel_, &QPushButton::clicked, this, [this] { hide(); });
    buttons->addStretch(1);
    buttons->addWidget(ok_);
    buttons->addWidget(cancel_);
    return buttons;
}

QToolButton* CalendarPopup::Button(const char* name, const QString& label, std::function<void()> action) {
    auto* made = new QToolButton(this);
    made->setObjectName(QString::fromLatin1(name));
    made->setText(label);
    QObject::connect(made, &QToolButton::clicked, this, [this, action = std::move(action)] {
        EndTyping(hour_, true);
        EndTyping(minute_, false);
        action();
        ShowModel();
    });
    return made;
}

CalendarPopup::TimeField CalendarPopup::MakeTimeField(const char* name, bool hour) {
    TimeField field;
    const QString base = QString::fromLatin1(name);
    const auto make = [this, &base](const char* suffix, const char* label) {
        auto* made = new QToolButton(this);
        made->setObjectName(base + QString::fromLatin1(suffix));
        made->setText(QString::fromLatin1(label));
        made->setFocusPolicy(Qt::TabFocus);
        return made;
    };
    field.shown = make("Shown", "");
    field.minus = make("Minus", "-");
    field.plus = make("Plus", "+");
    field.edit = new QLineEdit(this);
    field.edit->setObjectName(base + QStringLiteral("Edit"));
    field.edit->setMaxLength(2);
    field.edit->setFixedWidth(28);
    for (QWidget* widget : std::initializer_list<QWidget*>{field.edit, field.minus, field.plus}) {
        widget->hide();
    }
    field.edit->installEventFilter(this);
    TimeField& kept = hour ? hour_ : minute_;
    QObject::connect(field.shown, &QToolButton::clicked, this, [this, &kept] { BeginTyping(kept); });
    QObject::connect(field.minus, &QToolButton::clicked, this, [this, &kept, hour] { Step(kept, hour, -1); });
    QObject::connect(field.plus, &QToolButton::clicked, this, [this, &kept, hour] { Step(kept, hour, 1); });
    return field;
}

void CalendarPopup::BeginTyping(TimeField& field) {
    field.edit->setText(field.shown->text());
    field.shown->hide();
    for (QWidget* widget : std::initializer_list<QWidget*>{field.edit, field.minus, field.plus}) {
        widget->show();
    }
    field.edit->selectAll();
    field.edit->setFocus();
}

void CalendarPopup::EndTyping(TimeField& field, bool hour) {
    if (field.edit == nullptr || field.edit->isHidden()) {
        return;
    }
    const std::string typed = field.edit->text().toStdString();
    if (hour) {
        model_.TypeHour(typed);
    } else {
        model_.TypeMinute(typed);
    }
    for (QWidget* widget : std::initializer_list<QWidget*>{field.edit, field.minus, field.plus}) {
        widget->hide();
    }
    field.shown->show();
    ShowModel();
}

void CalendarPopup::Step(TimeField& field, bool hour, int by) {
    const std::string typed = field.edit->text().toStdString();
    if (hour) {
        model_.TypeHour(typed);
        model_.StepHour(by);
    } else {
        model_.TypeMinute(typed);
        model_.StepMinute(by);
    }
    field.edit->setText(QString::fromStdString(hour ? model_.HourText() : model_.MinuteText()));
    field.edit->selectAll();
    field.edit->setFocus();
}

void CalendarPopup::mousePressEvent(QMouseEvent* event) {
    EndTyping(hour_, true);
    EndTyping(minute_, false);
    QFrame::mousePressEvent(event);
}

bool CalendarPopup::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            const bool hour = watched == hour_.edit;
            EndTyping(hour ? hour_ : minute_, hour);
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

void CalendarPopup::Accept() {
    EndTyping(hour_, true);
    EndTyping(minute_, false);
    hide();
    if (model_.Accept() && chosen_) {
        chosen_(model_.Value());
    }
}

void CalendarPopup::SetValue(const Util::_datetime_t& value) {
    model_.SetValue(value);
    for (TimeField* field : {&hour_, &minute_}) {
        for (QWidget* widget : std::initializer_list<QWidget*>{field->edit, field->minus, field->plus}) {
            widget->hide();
        }
        field->shown->show();
    }
    ShowModel();
}

void CalendarPopup::ShowModel() {
    heading_->setText(QString::fromStdString(model_.Heading()));
    for (int i = 0; i < CalendarModel::kCells; ++i) {
        cells_[i]->setText(QString::number(model_.DayOfCell(i)));
        cells_[i]->setChecked(i == model_.SelectedCell());
        const auto look = model_.LookOfCell(i);
        cells_[i]->setProperty("look", look == CalendarModel::CellLook::Today     ? "today"
                                       : look == CalendarModel::CellLook::InMonth ? "inside"
                                                                                  : "outside");
        const auto day = Util::_datetime_t::from_csecs_days(0, model_.GridStart() + i);
        Skin::Describe(cells_[i], QString::fromStdString(day.fmt("%Y-%m-%d")));
        cells_[i]->style()->unpolish(cells_[i]);
        cells_[i]->style()->polish(cells_[i]);
    }
    hour_.shown->setText(QString::fromStdString(model_.HourText()));
    minute_.shown->setText(QString::fromStdString(model_.MinuteText()));
}

void CalendarPopup::ApplyTexts() {
    ok_->setText(HostLabel(u"IDOK", u"OK"));
    cancel_->setText(HostLabel(u"IDCANCEL", u"Cancel"));
    Skin::Describe(ok_, ok_->text());
    Skin::Describe(cancel_, cancel_->text());
    Skin::Describe(previousYear_, ViewText(TextId::IDS_VIEW_PREVYEAR));
    Skin::Describe(nextYear_, ViewText(TextId::IDS_VIEW_NEXTYEAR));
    Skin::Describe(previousMonth_, ViewText(TextId::IDS_VIEW_PREVMONTH));
    Skin::Describe(nextMonth_, ViewText(TextId::IDS_VIEW_NEXTMONTH));
    Skin::Describe(hour_.shown, ViewText(TextId::IDS_VIEW_HOUR));
    Skin::Describe(hour_.edit, ViewText(TextId::IDS_VIEW_HOUR));
    Skin::Describe(hour_.minus, ViewText(TextId::IDS_VIEW_HOURUP));
    Skin::Describe(hour_.plus, ViewText(TextId::IDS_VIEW_HOURDOWN));
    Skin::Describe(minute_.shown, ViewText(TextId::IDS_VIEW_MINUTE));
    Skin::Describe(minute_.edit, ViewText(TextId::IDS_VIEW_MINUTE));
    Skin::Describe(minute_.minus, ViewText(TextId::IDS_VIEW_MINUTEUP));
    Skin::Describe(minute_.plus, ViewText(TextId::IDS_VIEW_MINUTEDOWN));
}

void CalendarPopup::ApplySkin() {
    setStyleSheet(Skin::StyleSheet() +
                  QStringLiteral("#calendarPopup { background: %1; border: 1px solid %2; }")
                      .arg(Skin::Colour(Skin::Role::Panel).name(), Skin::Colour(Skin::Role::Border).name()));
}

}  // namespace Tarvik::Seaplan
