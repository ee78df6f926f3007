// SPDX-License-Identifier: MIT
#include "seaplan/views/book/BookWindow.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHeaderView>
#include <QVBoxLayout>

#include <tarvik/skin/Palette.h>
#include <tarvik/skin/SkinNames.h>
#include <tarvik/skin/WindowMessages.h>

#include "seaplan/panels/book/BookCommands.h"
#include "seaplan/panels/book/CPosBookDlg.h"
#include "seaplan/panels/texts/BookTexts.h"
#include "seaplan/views/editors/OutsidePress.h"
#include "seaplan/views/table/ColumnKeeper.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

namespace {

constexpr int kTitlePixels = 11;

void SkinTable(PanelTable& table) {
    table.setStyleSheet(QStringLiteral("#positionBookTable { background: %1; } "
                                       "QHeaderView::section { padding: 0; font-size: %2px; }")
                            .arg(Skin::Colour(Skin::Role::Book).name())
                            .arg(kTitlePixels));
    // The titles' widths are measured in the header's own font, which the sheet leaves as it is.
    QFont font = table.horizontalHeader()->font();
    font.setPixelSize(kTitlePixels);
    table.horizontalHeader()->setFont(font);
}

}  // namespace

BookWindow::BookWindow(QWidget* mainView)
    : PanelFrame(mainView, QStringLiteral("positionBook"),
                 {TextIds::IDC_WP_BT_HELP, TextIds::IDC_WP_BT_CLOSE}) {
    AddHelpAndClose();
    head_ = new BookHead(this);
    table_ =
        new PanelTable(this, "positionBookTable", BookSheet::kLeastLines, PanelTable::Choice::SeveralRows);
    columns_ = new ColumnKeeper(*table_, KeptBookColumns(),
                                [this] { table_->ShowColumns(columns_->AsWanted(BookColumnsOf(sheet_))); });
    SkinPanel("TRV_PositionDlg", 1, "Caption_static");
    Skin::SkinWindow(*table_, Skin::ControlClass::ListView, "VoyagePositionList");
    SkinTable(*table_);
    foot_ = new BookFoot(this);
    editors_ = new BookEditors(*this, *table_);
    Body()->addWidget(head_);
    Body()->addWidget(table_, 1);
    Body()->addWidget(foot_);
    ApplyTexts();
    SetResizable();
    resize(sizeHint());
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
         [&cells] { cells.CommitEditors(); }, [&cells](int row) { cells.OnRowSelected(row); },
         [&cells](const std::string& text, int row, int column) {
             return cells.OnTextTyped(text, row, column);
         }});
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
    const bool otherUnit = sheet.units.speed != sheet_.units.speed;
    const bool otherRows = sheet.RowCount() != sheet_.RowCount();
    sheet_ = sheet;
    if (otherUnit) {
        table_->ShowColumns(columns_->AsWanted(BookColumnsOf(sheet_)));
    }
    table_->ShowLines(std::make_shared<BookLines>(sheet_));
    // Chosen rows stay so until rows come or go.
    if (otherRows || sheet.selected != table_->currentIndex().row()) {
        table_->PutFront(sheet.selected, BookName);
    }
    head_->ShowSheet(sheet);
    foot_->ShowSheet(sheet);
}

void BookWindow::BringRowIntoView(int row) {
    table_->scrollTo(table_->model()->index(row, BookName));
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
    table_->ShowColumns(columns_->AsWanted(BookColumnsOf(sheet_)));
    editors_->ApplyTexts();
    foot_->ApplyTexts();
    ShowSheet(BookSheet(sheet_));
}

void BookWindow::ApplySkin() {
    Skin::ToolWindow::ApplySkin();
    head_->ApplySkin();
    SkinTable(*table_);
    foot_->ApplySkin();
    editors_->ApplySkin();
    table_->viewport()->update();
}

void BookWindow::FocusFirst() {
    if (focusWidget() != nullptr && focusWidget()->isVisible()) {
        return;
    }
    if (!table_->currentIndex().isValid()) {
        table_->setCurrentIndex(table_->model()->index(0, BookName));
    }
    table_->setFocus();
}

}  // namespace Tarvik::Seaplan
