// SPDX-License-Identifier: MIT
#include "seaplan/views/datetime/DayGrid.h"

#include <QButtonGroup>
#include <QLabel>
#include <algorithm>

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

void DayGrid::FocusChosen() {
    for (QToolButton* cell : cells_) {
        if (cell->isChecked()) {
            cell->setFocus(Qt::TabFocusReason);
        }
    }
}

void DayGrid::Show(const CalendarState& state) {
    const QWidget* focused = parentWidget()->focusWidget();
    const bool inDays = std::any_of(cells_.begin(), cells_.end(),
                                    [focused](const QToolButton* cell) { return cell == focused; });
    for (std::size_t i = 0; i < cells_.size(); ++i) {
        QToolButton* cell = cells_[i];
        cell->setText(QString::number(state.cells[i].day));
        const bool chosen = static_cast<int>(i) == state.selectedCell;
        cell->setChecked(chosen);
        // One stop for Tab, not 42.
        cell->setFocusPolicy(chosen ? Qt::StrongFocus : Qt::ClickFocus);
        Skin::SkinWindow(*cell, Skin::ControlClass::RadioButton, StyleOf(state.cells[i].look));
        Skin::Describe(cell, QString::fromStdString(state.cells[i].date));
    }
    if (inDays) {
        FocusChosen();
    }
}

}  // namespace Tarvik::Seaplan
