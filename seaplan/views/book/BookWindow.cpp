// SPDX-License-Identifier: MIT
#include "seaplan/views/book/BookWindow.h"

#include <QCoreApplication>
#include <QEvent>
#include <QVBoxLayout>

#include <tarvik/skin/WindowMessages.h>

#include "seaplan/panels/book/CPosBookDlg.h"
#include "seaplan/panels/texts/BookTexts.h"
#include "seaplan/views/editors/OutsidePress.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

BookWindow::BookWindow(QWidget* mainView)
    : PanelFrame(mainView, QStringLiteral("positionBook"),
                 {TextIds::IDC_WP_BT_HELP, TextIds::IDC_WP_BT_CLOSE}) {
    AddHelpAndClose();
    model_ = new BookModel(this);
    head_ = new BookHead(this);
    table_ = new BookTableView(this);
    table_->setModel(model_);
    table_->ApplyWidths();
    foot_ = new BookFoot(this);
    editors_ = new BookEditors(*this, *table_);
    Body()->addWidget(head_);
    Body()->addWidget(table_, 1);
    Body()->addWidget(foot_);
    ApplyTexts();
    adjustSize();
}

void BookWindow::Attach(CPosBookDlg* panel) {
    BookEditing& cells = panel->Cells();
    BookCommands& commands = panel->Commands();
    editors_->Attach(&cells);
    SetReports({[&commands] { commands.OnHelp(); }, [&commands] { commands.OnClose(); },
                [&cells] { cells.CommitEditors(); }});
    table_->SetReports(
        {[&cells](int row, int column) { cells.OnCellClicked(row, column); },
         [&commands](int row, const std::string& image) { commands.OnItemImage(row, image); },
         [&commands](KeyPress press, int row, int column) { return commands.OnTableKey(press, row, column); },
         [&cells] { cells.CommitEditors(); }, [&cells](int row) { cells.OnRowSelected(row); }});
    head_->SetReports({[&commands] { commands.OnSave(); }, [&commands] { commands.OnSaveKey(); },
                       [&commands] { commands.OnCancel(); }, [&commands] { commands.OnUndo(); },
                       [&commands] { commands.OnRedo(); }, [&commands] { commands.OnInsert(); },
                       [&commands] { commands.OnDelete(); }});
    foot_->SetReports(
        {[&cells](UnitKind kind) {
             cells.CommitEditors();
             return std::vector{BookUnitText(kind, 0), BookUnitText(kind, 1)};
         },
         [&commands](UnitKind kind, int index, const std::string&) { commands.OnUnitChosen(kind, index); }});
    // A press anywhere outside the table ends the editing.
    new OutsidePress(
        this, [this](const QWidget& widget) { return !isVisible() || editors_->Holds(widget); },
        [&cells] { cells.CommitEditors(); });
}

void BookWindow::ShowSheet(const BookSheet& sheet) {
    model_->Show(sheet);
    table_->PutFront(sheet.selected);
    head_->ShowSheet(sheet);
    foot_->ShowSheet(sheet);
}

void BookWindow::BringRowIntoView(int row) {
    table_->scrollTo(model_->index(row, BookName));
}

Rect BookWindow::PlaceOf(const BookCellPlace& cell) const {
    const QRect place = table_->EditorRect(cell.row, cell.column);
    const QPoint corner = table_->viewport()->mapToGlobal(place.topLeft());
    return {corner.x(), corner.y(), corner.x() + place.width(), corner.y() + place.height()};
}

void BookWindow::TellClosed() {
    if (parentWidget() != nullptr) {
        constexpr auto kClosed = static_cast<QEvent::Type>(Skin::WindowMessage::kPositionBookClosed);
        QCoreApplication::postEvent(parentWidget(), new QEvent(kClosed));
    }
}

void BookWindow::ApplyClassTexts(QWidget& /*window*/) {
    DescribeHelpAndClose();
    table_->setAccessibleName(ViewText(TextIds::IDS_VIEW_BOOKTABLE));
    model_->ApplyTexts();
    editors_->ApplyTexts();
    foot_->ApplyTexts();
    ShowSheet(BookSheet(model_->Sheet()));
}

void BookWindow::ApplySkin() {
    Skin::ToolWindow::ApplySkin();
    head_->ApplySkin();
    table_->ApplySkin();
    foot_->ApplySkin();
    editors_->ApplySkin();
    table_->viewport()->update();
}

void BookWindow::FocusFirst() {
    if (focusWidget() != nullptr && focusWidget()->isVisible()) {
        return;
    }
    if (!table_->currentIndex().isValid()) {
        table_->setCurrentIndex(model_->index(0, BookName));
    }
    table_->setFocus();
}

}  // namespace Tarvik::Seaplan
