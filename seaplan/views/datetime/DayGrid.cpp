// SPDX-License-Identifier: MIT
#include "seaplan/views/datetime/DayGrid.h"

#include <QButtonGroup>
#include <QLabel>

#include <tarvik/skin/SkinNames.h>
#include <tarvik/skin/ToolWindow.h>

namespace Tarvik::Seaplan {

namespace {

constexpr const char* kWeekDays[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
constexpr int kColumns = 7;

const char* StyleOf(CalendarModel::CellLook look) {
    switch (look) {
        case CalendarModel::CellLook::Today:
            return "DateToday";
        case CalendarModel::CellLook::InMonth:
            return "DateInMonth";
        case CalendarModel::CellLook::OutsideMonth:
            break;
    }
    return "DateOutMonth";
}

}  // namespace

DayGrid::DayGrid(QWidget* calendar) {
    setSpacing(1);
    for (int column = 0; column < kColumns; ++column) {
        auto* day = new QLabel(QString::fromLatin1(kWeekDays[column]), calendar);
        day->setAlignment(Qt::AlignCenter);
        Skin::SkinWindow(*day, Skin::ControlClass::StaticText, "trv_date_10");
        addWidget(day, 0, column);
    }
    auto* group = new QButtonGroup(calendar);
    for (int i = 0; i < CalendarModel::kCells; ++i) {
        auto* cell = new QToolButton(calendar);
        cell->setObjectName(QStringLiteral("day%1").arg(i));
        cell->setProperty("day", true);
        cell->setCheckable(true);
        group->addButton(cell);
        addWidget(cell, 1 + i / kColumns, i % kColumns);
        QObject::connect(cell, &QToolButton::clicked, this, [this, i] { pressed_(i); });
        cells_[static_cast<std::size_t>(i)] = cell;
    }
}

void DayGrid::Show(const CalendarState& state) {
    for (std::size_t i = 0; i < cells_.size(); ++i) {
        QToolButton* cell = cells_[i];
        cell->setText(QString::number(state.cells[i].day));
        cell->setChecked(static_cast<int>(i) == state.selectedCell);
        Skin::SkinWindow(*cell, Skin::ControlClass::RadioButton, StyleOf(state.cells[i].look));
        Skin::Describe(cell, QString::fromStdString(state.cells[i].date));
    }
}

}  // namespace Tarvik::Seaplan
