// SPDX-License-Identifier: MIT
#include "seaplan/views/portcall/PortCallWindow.h"

#include <QApplication>
#include <QShortcut>
#include <QVBoxLayout>

#include <tarvik/skin/SkinNames.h>
#include <tarvik/skin/WindowMessages.h>

#include "seaplan/panels/book/BookEditing.h"
#include "seaplan/panels/portcall/CPortCallPanelDlg.h"
#include "seaplan/panels/portcall/CellEditing.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/PortCallTable.h"
#include "seaplan/panels/portcall/RowCommands.h"
#include "seaplan/panels/portcall/WhatIf.h"
#include "seaplan/panels/texts/PortCallTexts.h"
#include "seaplan/views/editors/OutsidePress.h"
#include "seaplan/views/portcall/PortCallLines.h"
#include "seaplan/views/table/ColumnKeeper.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

namespace {

constexpr int kLeastLines = 9;

}  // namespace

PortCallWindow::PortCallWindow(QWidget* mainView)
    : PanelFrame(mainView, QStringLiteral("portCallPanel"),
                 {TextIds::IDS_PORTCALL_HELP, TextIds::IDS_PORTCALL_CLOSE}) {
    AddHelpAndClose();
    table_ = new PanelTable(this, "portCallTable", kLeastLines, PanelTable::Choice::SeveralRows);
    columns_ = new ColumnKeeper(*table_, KeptPortCallColumns(), [this] { ShowState(state_); });
    SkinPanel("TRV_portCallDlg", 0, "Caption_static");
    Skin::SkinWindow(*table_, Skin::ControlClass::ListView, "VoyageDemoList");
    summary_ = new PortCallSummary(this);
    questions_ = new WhatIfStrip(this);
    buttons_ = new PortCallButtons(this);
    note_ = new QLabel(this);
    note_->setObjectName(QStringLiteral("noteLabel"));
    note_->setProperty("secondary", true);
    // A long line must not widen the window; its hint tells it whole.
    note_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    note_->hide();
    editors_ = new PortCallEditors(*this, *table_);
    Body()->addWidget(table_, 1);
    Body()->addWidget(note_);
    Body()->addWidget(summary_);
    Body()->addWidget(questions_);
    Body()->addWidget(buttons_);
    ApplyTexts();
    SetResizable();
    resize(sizeHint());
}

void PortCallWindow::Attach(CPortCallPanelDlg* panel) {
    panel_ = panel;
    CellEditing& cells = panel->Cells();
    PanelCommands& commands = panel->Commands();
    RowCommands& rows = panel->Rows();
    editors_->Attach(&cells);
    SetReports({[&commands] { commands.OnHelp(); }, [&commands] { commands.OnClose(); },
                [&cells] { cells.CommitEditors(); }});
    table_->SetReports(
        {[&cells](int row, int column) { cells.OnCellClicked(row, column); },
         [&rows](int row, const std::string& name) { rows.OnItemImage(row, name); },
         [&rows](KeyPress press, int row, int column) { return rows.OnTableKey(press, row, column); },
         [&cells] { cells.CommitEditors(); },
         {},
         [&cells](const std::string& text, int row, int column) {
             return cells.OnCellClicked(row, column, &text);
         }});
    summary_->SetReports(
        {[&commands](UnitKind kind) { return commands.OnUnitsAsked(kind); },
         [&commands](UnitKind kind, int, const std::string& unit) { commands.OnUnitChosen(kind, unit); }});
    WhatIf& questions = commands.Questions();
    questions_->Attach(questions);
    buttons_->SetReports(
        {[&commands] { commands.OnSave(); }, [&commands] { commands.OnClear(); },
         [&commands] { commands.OnPositionBook(); }, [&commands] { commands.OnCalculate(); },
         [&commands] { commands.OnUndo(); }, [&commands] { commands.OnRedo(); },
         [&questions] { questions.OnOpen(); },
         [this, panel](const QPoint& at) { OpenPortCallMenu(*table_, *panel, *columns_, at); }});
    AttachMenu(*panel);
    // A press anywhere outside the table ends the editing.
    new OutsidePress(
        this, [this](const QWidget& widget) { return editors_->Holds(widget); },
        [&cells] { cells.OnPressedOutside(); });
}

/// A right click opens the menu on its row, the menu key on the cell in front.
void PortCallWindow::AttachMenu(CPortCallPanelDlg& panel) {
    table_->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(table_, &QWidget::customContextMenuRequested, this, [this, &panel](const QPoint& at) {
        panel.Cells().CommitEditors();
        if (const QModelIndex cell = table_->indexAt(at); cell.isValid()) {
            table_->PutCellInFront(cell);
        }
        OpenPortCallMenu(*table_, panel, *columns_, table_->viewport()->mapToGlobal(at));
    });
    auto* anew = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_R), this);
    QObject::connect(anew, &QShortcut::activated, this, [&panel] { panel.Commands().OnRouteAnew(); });
    auto* ways = new QShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_R), this);
    QObject::connect(ways, &QShortcut::activated, this, [&panel] { panel.Commands().OnCompareWays(); });
}

void PortCallWindow::ShowTable(const PortCallTable& table) {
    table_->ShowLines(std::make_shared<PortCallLines>(table));
}

void PortCallWindow::ShowState(const PortCallState& state) {
    state_ = state;
    ShowCaption(state.voyage.empty() ? state.caption : state.caption + " - " + state.voyage, state.changed);
    // The window system knows the window by its plain title, whatever voyage is on show.
    setWindowTitle(QString::fromStdString(state.caption));
    buttons_->ShowState(state);
    summary_->ShowState(state);
    const QString note = QString::fromStdString(state.note);
    note_->setText(note);
    note_->setToolTip(note);
    note_->setVisible(!note.isEmpty());
    table_->ShowColumns(columns_->AsWanted(PortCallColumnsOf(state)));
}

void PortCallWindow::ApplyClassTexts(QWidget& /*window*/) {
    DescribeHelpAndClose();
    table_->setAccessibleName(ViewText(TextIds::IDS_VIEW_TABLE));
    summary_->ApplyTexts();
    editors_->ApplyTexts();
    questions_->ApplyTexts();
    ShowState(state_);
}

void PortCallWindow::FocusFirst() {
    if (focusWidget() != nullptr && focusWidget()->isVisible()) {
        return;
    }
    if (!table_->currentIndex().isValid()) {
        table_->setCurrentIndex(table_->model()->index(0, ColPort));
    }
    table_->setFocus();
}

void PortCallWindow::SetBusy(bool busy) {
    if (busy) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void PortCallWindow::SelectCell(int row, int column) {
    table_->setCurrentIndex(table_->model()->index(row, column));
}

void PortCallWindow::BringRowIntoView(int row) {
    table_->scrollTo(table_->model()->index(row, ColPort));
}

void PortCallWindow::ApplySkin() {
    Skin::ToolWindow::ApplySkin();
    buttons_->ApplySkin();
    summary_->ApplySkin();
    editors_->ApplySkin();
    table_->viewport()->update();
}

bool PortCallWindow::event(QEvent* event) {
    if (panel_ != nullptr && event->type() == Skin::WindowMessage::kMatchMoved) {
        panel_->Cells().OnMatchMoved(static_cast<Skin::MatchMovedEvent*>(event)->name.toStdString(),
                                     editors_->PortFieldHasFocus());
        return true;
    }
    if (panel_ != nullptr && event->type() == Skin::WindowMessage::kMatchChosen) {
        panel_->Cells().OnMatchChosen();
        return true;
    }
    return Skin::ToolWindow::event(event);
}

}  // namespace Tarvik::Seaplan
