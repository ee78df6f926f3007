// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

#include "seaplan/panels/portcall/PortCallState.h"
#include "seaplan/panels/portcall/PortCallView.h"
#include "seaplan/views/portcall/PortCallButtons.h"
#include "seaplan/views/portcall/PortCallEditors.h"
#include "seaplan/views/portcall/PortCallSummary.h"
#include "seaplan/views/portcall/WhatIfStrip.h"
#include "seaplan/views/table/PanelTable.h"
#include "seaplan/views/table/RowsDialog.h"
#include "seaplan/views/window/FloatingPanel.h"

namespace Tarvik::Seaplan {

class ColumnKeeper;
class CPortCallPanelDlg;

/// The window of the port call panel: the table with its editors, the figures below it and the buttons.
class PortCallWindow final : public PanelFrame<PortCallView> {
  public:
    explicit PortCallWindow(QWidget* mainView);
    void Attach(CPortCallPanelDlg* panel);

    void ShowTable(const PortCallTable& table) override;
    void ShowState(const PortCallState& state) override;
    void ShowEdits(const UndoTexts& edits) override { buttons_->ShowEdits(edits); }
    void SetBusy(bool busy) override;
    void SelectCell(int row, int column) override;
    std::vector<int> ChosenRows() const override { return table_->ChosenRows(); }
    void BringRowIntoView(int row) override;
    std::string ClipboardText() const override { return ClipboardAsText(); }
    bool AskRows(const RowsPreview& preview, const ChangeColumn& change) override {
        return AskRowsOver(*this, preview, change);
    }
    std::optional<int> ChooseRow(const RowsPreview& preview) override {
        return ChooseRowOver(*this, preview);
    }
    WhatIfView& Questions() override { return *questions_; }
    CellsView& Cells() override { return *editors_; }
    void ApplySkin() override;

  protected:
    void FocusFirst() override;
    void ApplyClassTexts(QWidget& window) override;
    /// Takes what a match window tells.
    bool event(QEvent* event) override;

  private:
    void AttachMenu(CPortCallPanelDlg& panel);

    CPortCallPanelDlg* panel_ = nullptr;
    PanelTable* table_;
    ColumnKeeper* columns_;
    PortCallEditors* editors_;
    PortCallSummary* summary_;
    WhatIfStrip* questions_;
    PortCallButtons* buttons_;
    QLabel* note_;  ///< what is to be told of the rows, hidden while there is nothing
    PortCallState state_;
};

}  // namespace Tarvik::Seaplan
