// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/panels/book/BookView.h"
#include "seaplan/views/book/BookEditors.h"
#include "seaplan/views/book/BookFrame.h"
#include "seaplan/views/book/BookModel.h"
#include "seaplan/views/book/BookTableView.h"
#include "seaplan/views/window/FloatingPanel.h"

namespace Tarvik::Seaplan {

class CPosBookDlg;

/// The window of the position book: the commands, the table with its editors and the totals below it.
class BookWindow final : public PanelFrame<BookView> {
  public:
    explicit BookWindow(QWidget* mainView);
    void Attach(CPosBookDlg* panel);

    void ShowSheet(const BookSheet& sheet) override;
    void BringRowIntoView(int row) override;
    void OpenText(const BookCellPlace& cell, const std::string& text, std::size_t limit) override {
        editors_->OpenText(cell, text, limit);
    }
    void HideText() override { editors_->HideText(); }
    void ShowEcho(const std::string& text) override { editors_->ShowEcho(text); }
    void OpenChoices(const BookCellPlace& cell, const std::vector<std::string>& texts, int current) override {
        editors_->OpenChoices(cell, texts, current);
    }
    void HideChoices() override { editors_->HideChoices(); }
    void PutPicker(const BookCellPlace& cell) override { editors_->PutPicker(cell); }
    DateTimeView& Picker() override { return editors_->Picker(); }
    void TellClosed() override;
    void ApplyClassTexts(QWidget& window) override;
    void ApplySkin() override;

  protected:
    void FocusFirst() override;

  private:
    BookModel* model_;
    BookHead* head_;
    BookTableView* table_;
    BookFoot* foot_;
    BookEditors* editors_;
};

}  // namespace Tarvik::Seaplan
