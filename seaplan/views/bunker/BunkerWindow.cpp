// SPDX-License-Identifier: MIT
#include "seaplan/views/bunker/BunkerWindow.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include <tarvik/skin/SkinNames.h>

#include "seaplan/panels/bunker/CBunkerDlg.h"
#include "seaplan/panels/texts/CommonTexts.h"
#include "seaplan/panels/texts/NoteTexts.h"
#include "seaplan/views/editors/QtKeys.h"

namespace Tarvik::Seaplan {

namespace {

constexpr int kFieldWidth = 60;
constexpr int kLettersTyped = 128;
/// Of a language file without these texts.
constexpr const char* kSaveText = "保存";
constexpr const char* kUndoText = "<==";

struct FigureField {
    const char* name;
    TextId tip;
    int row;
    int column;
};

/// In the order of the figures.
constexpr std::array<FigureField, BunkerFigureCount> kFields = {
    {{"fuelBallast", TextIds::IDS_VIEW_BALLAST, 0, 1},
     {"fuelLaden", TextIds::IDS_VIEW_LADEN, 0, 2},
     {"fuelInPort", TextIds::IDS_VIEW_FUELINPORT, 0, 3},
     {"dieselUnderWay", TextIds::IDS_VIEW_DIESELATSEA, 1, 1},
     {"dieselInPort", TextIds::IDS_VIEW_DIESELINPORT, 1, 2},
     {"waterUnderWay", TextIds::IDS_VIEW_WATERATSEA, 2, 1},
     {"waterInPort", TextIds::IDS_VIEW_WATERINPORT, 2, 2}}};

struct FigureRow {
    TextId label;
    TextId unit;
};

constexpr std::array<FigureRow, 3> kRows = {{{TextIds::IDC_BK_T_FO, TextIds::IDC_BK_T_UNIT1},
                                             {TextIds::IDC_BK_T_DO, TextIds::IDC_BK_T_UNIT2},
                                             {TextIds::IDC_BK_T_FW, TextIds::IDC_BK_T_UNIT3}}};

}  // namespace

BunkerWindow::BunkerWindow(QWidget* mainView)
    : PanelFrame(mainView, QStringLiteral("bunkerPanel"),
                 {TextIds::IDC_BK_BT_HELP, TextIds::IDC_BK_BT_CLOSE}) {
    SkinPanel("TRV_BurnDlg", 1, "Caption_static");
    AddHelpAndClose();
    TieText(*this, TextIds::IDC_BK_T_TITLE);
    TieText(*findChild<QLabel*>(QStringLiteral("captionLabel")), TextIds::IDC_BK_T_TITLE);
    MakeRows();
    MakeButtons();
    ApplySkin();
    ApplyTexts();
    adjustSize();
}

void BunkerWindow::MakeRows() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(2 * Skin::kGrid);
    grid->setVerticalSpacing(Skin::kGrid);
    for (std::size_t i = 0; i < kRows.size(); ++i) {
        auto* label = new QLabel(this);
        TieText(*label, kRows[i].label);
        auto* unit = new QLabel(this);
        TieText(*unit, kRows[i].unit);
        unit->setProperty("secondary", true);
        for (QLabel* text : {label, unit}) {
            Skin::SkinWindow(*text, Skin::ControlClass::StaticText, "static_font11");
        }
        grid->addWidget(label, static_cast<int>(i), 0);
        grid->addWidget(unit, static_cast<int>(i), 4);
    }
    for (std::size_t i = 0; i < kFields.size(); ++i) {
        auto* field = new QLineEdit(this);
        field->setObjectName(QString::fromLatin1(kFields[i].name));
        Skin::SkinWindow(*field, Skin::ControlClass::EditField, "trv_edit_60");
        field->setFixedSize(kFieldWidth, Skin::kControlHeight);
        field->setAlignment(Qt::AlignRight);
        field->setMaxLength(kLettersTyped);
        grid->addWidget(field, kFields[i].row, kFields[i].column);
        fields_[i] = field;
    }
    Body()->addLayout(grid);
}

void BunkerWindow::MakeButtons() {
    undo_ = new QToolButton(this);
    undo_->setObjectName(QStringLiteral("undoFiguresButton"));
    undo_->setFixedSize(Skin::kControlHeight + 2, Skin::kControlHeight);
    undo_->setFocusPolicy(Qt::TabFocus);
    TieText(*undo_, TextIds::IDC_BK_BT_CANCEL);
    Skin::SkinWindow(*undo_, Skin::ControlClass::PushButton, "position_cancelBtn");
    TieKey(*undo_, QKeySequence(Qt::CTRL | Qt::Key_R));
    save_ = new QPushButton(this);
    save_->setObjectName(QStringLiteral("saveFiguresButton"));
    TieText(*save_, TextIds::IDC_BK_BT_SAVE);
    TieKey(*save_, QKeySequence(Qt::CTRL | Qt::Key_S));
    Skin::SkinWindow(*save_, Skin::ControlClass::PushButton, "trv_btn_59");
    save_->setProperty("primary", true);
    save_->setAutoDefault(false);
    save_->setFocusPolicy(Qt::TabFocus);
    auto* row = new QHBoxLayout;
    row->addWidget(undo_);
    row->addStretch(1);
    row->addWidget(save_);
    Body()->addLayout(row);
}

void BunkerWindow::Attach(CBunkerDlg* panel) {
    panel_ = panel;
    // What was refused just before is told before the window goes.
    SetReports({[panel] { panel->OnHelp(); },
                [this, panel] {
                    if (refusing_) {
                        QTimer::singleShot(0, this, [panel] { panel->OnClose(); });
                    } else {
                        panel->OnClose();
                    }
                },
                {},
                KeyClosesDialog});
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        QLineEdit* field = fields_[i];
        QObject::connect(field, &QLineEdit::textEdited, this, [this, i] { TakeTyped(i); });
        QObject::connect(field, &QLineEdit::returnPressed, this, [this] { save_->click(); });
    }
    QObject::connect(undo_, &QToolButton::clicked, this, [panel] { panel->OnUndo(); });
    QObject::connect(save_, &QPushButton::clicked, this, [this] { Save(); });
}

void BunkerWindow::TakeTyped(std::size_t field) {
    // The number counts at once, as the next key may be the one that saves it.
    if (panel_->Take(field, fields_.at(field)->text().toStdString()) || refusing_) {
        return;
    }
    // The box must not begin inside the key.
    refusing_ = true;
    QTimer::singleShot(0, this, [this] {
        refusing_ = false;
        panel_->Refuse();
    });
}

void BunkerWindow::Save() {
    // Of a refused number the first letters may have been allowed; they are not what was meant.
    if (!refusing_) {
        panel_->OnSave();
    }
}

void BunkerWindow::ShowFigures(const BunkerFigures& figures) {
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        const QString text = QString::number(figures[i]);
        if (fields_[i]->text() != text) {
            fields_[i]->setText(text);
        }
    }
}

void BunkerWindow::ShowState(bool dirty, bool editable) {
    dirty_ = dirty;
    editable_ = editable;
    undo_->setEnabled(dirty);
    save_->setEnabled(dirty);
    Skin::Describe(undo_, undo_->text());
    Skin::Describe(save_, save_->text());
    if (!dirty) {
        const QString why = QStringLiteral(": ") + ViewText(TextIds::IDS_VIEW_NOCHANGES);
        undo_->setToolTip(undo_->toolTip() + why);
        save_->setToolTip(save_->toolTip() + why);
    }
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        fields_[i]->setEnabled(editable);
        Skin::Describe(fields_[i], ViewText(kFields[i].tip));
        if (!editable) {
            fields_[i]->setToolTip(ViewText(TextIds::IDS_VIEW_FIGURESOFF));
        }
    }
}

void BunkerWindow::ApplyClassTexts(QWidget& /*window*/) {
    DescribeHelpAndClose();
    if (save_->text().isEmpty()) {
        save_->setText(QString::fromUtf8(kSaveText));
        TieKey(*save_, QKeySequence(Qt::CTRL | Qt::Key_S));
    }
    if (undo_->text().isEmpty()) {
        undo_->setText(QString::fromLatin1(kUndoText));
        TieKey(*undo_, QKeySequence(Qt::CTRL | Qt::Key_R));
    }
    ShowState(dirty_, editable_);
    adjustSize();
}

void BunkerWindow::FocusFirst() {
    if (fields_[0]->isEnabled()) {
        fields_[0]->setFocus();
        fields_[0]->selectAll();
    }
}

}  // namespace Tarvik::Seaplan
