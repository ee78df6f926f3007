// SPDX-License-Identifier: MIT
#include "seaplan/views/portcall/PortCallButtons.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QToolButton>

#include <tarvik/skin/Icons.h>
#include <tarvik/skin/Palette.h>
#include <tarvik/skin/SkinNames.h>
#include <tarvik/skin/ToolWindow.h>

#include "seaplan/panels/portcall/PortCallState.h"
#include "seaplan/panels/texts/CommonTexts.h"
#include "seaplan/panels/texts/PortCallTexts.h"
#include "seaplan/panels/texts/WhatIfTexts.h"
#include "seaplan/views/window/DialogTexts.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

PortCallButtons::PortCallButtons(QWidget* parent)
    : QWidget(parent),
      save_(new QPushButton(this)),
      clear_(new QPushButton(this)),
      undo_(new UndoButtons(this)),
      menu_(MakeTool("menuButton")),
      whatIf_(new QPushButton(this)),
      book_(new QPushButton(this)),
      calculate_(new QPushButton(this)) {
    save_->setObjectName(QStringLiteral("saveButton"));
    clear_->setObjectName(QStringLiteral("clearButton"));
    book_->setObjectName(QStringLiteral("positionBookButton"));
    calculate_->setObjectName(QStringLiteral("calculateButton"));
    whatIf_->setObjectName(QStringLiteral("whatIfButton"));
    TieText(*save_, TextIds::IDS_VIEW_SAVEWORD);
    TieText(*clear_, TextIds::IDS_VIEW_CLEARWORD);
    TieText(*book_, TextIds::IDS_PORTCALL_POSTBOOK);
    TieText(*whatIf_, TextIds::IDS_VIEW_WHATIF);
    TieKey(*whatIf_, QKeySequence(Qt::Key_F8));
    TieKey(*book_, QKeySequence(Qt::CTRL | Qt::Key_B));
    Skin::SkinWindow(*save_, Skin::ControlClass::PushButton, "VoySaveBtn");
    Skin::SkinWindow(*clear_, Skin::ControlClass::PushButton, "VoyDelAllBtn");
    Skin::SkinWindow(*calculate_, Skin::ControlClass::PushButton, "VoyCalculateBtn");
    Skin::SkinWindow(*book_, Skin::ControlClass::PushButton, "VoyPostionBookBtn");
    for (QPushButton* button : {whatIf_, book_, clear_, save_, calculate_}) {
        button->setAutoDefault(false);
        button->setFocusPolicy(Qt::TabFocus);
    }
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2 * Skin::kGrid);
    row->addWidget(undo_);
    row->addWidget(menu_);
    row->addStretch(1);
    row->addWidget(whatIf_);
    row->addWidget(book_);
    row->addSpacing(2 * Skin::kGrid);
    row->addWidget(clear_);
    row->addWidget(save_);
    row->addWidget(calculate_);
    TieKey(*save_, QKeySequence(Qt::CTRL | Qt::Key_S));
    ApplySkin();
}

QToolButton* PortCallButtons::MakeTool(const char* name) {
    auto* made = new QToolButton(this);
    made->setObjectName(QString::fromLatin1(name));
    made->setFixedSize(Skin::kControlHeight + 2, Skin::kControlHeight);
    made->setFocusPolicy(Qt::TabFocus);
    return made;
}

void PortCallButtons::SetReports(const Reports& reports) {
    QObject::connect(save_, &QPushButton::clicked, this, reports.save);
    QObject::connect(clear_, &QPushButton::clicked, this, reports.clear);
    QObject::connect(book_, &QPushButton::clicked, this, reports.book);
    QObject::connect(calculate_, &QPushButton::clicked, this, reports.calculate);
    QObject::connect(whatIf_, &QPushButton::clicked, this, reports.whatIf);
    QObject::connect(menu_, &QToolButton::clicked, this, [this, report = reports.menu] {
        report(menu_->mapToGlobal(QPoint(0, menu_->height())));
    });
    undo_->SetReports(reports.undo, reports.redo);
}

void PortCallButtons::Set(QAbstractButton* button, bool on, TextId tip, TextId whyNot) {
    button->setEnabled(on);
    Skin::Describe(button, ViewText(tip));
    if (!on) {
        button->setToolTip(ViewText(tip) + QStringLiteral(": ") + ViewText(whyNot));
    }
}

void PortCallButtons::ShowState(const PortCallState& state) {
    calculate_->setText(QString::fromStdString(state.calculateText));
    // A new text takes the button's shortcut away; the hint tells it.
    TieKey(*calculate_, QKeySequence(Qt::Key_F9));
    Set(save_, state.canSave, TextIds::IDS_PORTCALL_SAVE, TextIds::IDS_VIEW_NOCHANGES);
    Set(clear_, state.canClear, TextIds::IDS_PORTCALL_CLEAR, TextIds::IDS_VIEW_CLEAROFF);
    Set(calculate_, state.canCalculate, TextIds::IDS_PORTCALL_COMPUTE, TextIds::IDS_VIEW_NEEDTWOPORTS);
    Skin::Describe(menu_, ViewText(TextIds::IDS_VIEW_MENU));
    Skin::Describe(whatIf_, ViewText(TextIds::IDS_VIEW_WHATIFHINT));
    Set(book_, state.canOpenBook, TextIds::IDS_PORTCALL_POSTBOOK, TextIds::IDS_VIEW_BOOKNEEDSVOYAGE);
}

void PortCallButtons::ApplySkin() {
    menu_->setIcon(Skin::MakeIcon("chevron-down"));
    undo_->ApplySkin();
}

}  // namespace Tarvik::Seaplan
