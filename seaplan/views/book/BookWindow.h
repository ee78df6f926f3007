// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/panels/book/BookSheet.h"
#include "seaplan/panels/book/BookView.h"
#include "seaplan/views/book/BookEditors.h"
#include "seaplan/views/book/BookFrame.h"
#include "seaplan/views/book/BookLines.h"
#include "seaplan/views/table/PanelTable.h"
#include "seaplan/views/table/RowsDialog.h"
#include "seaplan/views/window/FloatingPanel.h"

namespace Tarvik::Seaplan {

class CPosBookDlg;

class ColumnKeeper;

/// The window of the position book: the commands, the table with its editors and the totals below it.
class BookWindow final : public PanelFrame<BookView> {
  public:
    explicit BookWindow(QWidget* mainView);
    void Attach(CPosBookDlg* panel);

    void ShowSheet(const BookSheet& sheet) override;
    void BringRowIntoView(int row) override;
    std::vector<int> ChosenRows() const override { return table_->ChosenRows(); }
    std::string ClipboardText() const override { return ClipboardAsText(); }
    bool AskRows(const RowsPreview& preview, const ChangeColumn& change) override {
        return AskRowsOver(*this, preview, change);
    }
    Rect PlaceOf(const BookCellPlace& cell) const override;
    TextBox& TextOver() override { return *editors_; }
    void PutTyped(const std::string& text) override { editors_->PutTyped(text); }
    DropList& ChoicesOver() override { return editors_->Choices(); }
    void ShowEcho(const std::string& text) override { editors_->ShowEcho(text); }
    void PutPicker(const BookCellPlace& cell) override { editors_->PutPicker(cell); }
    DateTimeView& Picker() override { return editors_->Picker(); }
    void TellClosed() override;
    void ApplyClassTexts(QWidget& window) override;
    void ApplySkin() override;

  protected:
    void FocusFirst() override;

  private:
    BookHead* head_;
    PanelTable* table_;
    ColumnKeeper* columns_;
    BookFoot* foot_;
    BookEditors* editors_;
    BookSheet sheet_;  ///< on show
};

}  // namespace Tarvik::Seaplan
