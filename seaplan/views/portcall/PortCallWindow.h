// SPDX-License-Identifier: MIT
#pragma once

#include <tarvik/skin/ToolWindow.h>

#include "seaplan/panels/portcall/PortCallView.h"
#include "seaplan/views/portcall/PortCallButtons.h"
#include "seaplan/views/portcall/PortCallEditors.h"
#include "seaplan/views/portcall/PortCallModel.h"
#include "seaplan/views/portcall/PortCallSummary.h"
#include "seaplan/views/portcall/PortCallTableView.h"

namespace Tarvik::Seaplan {

class CPortCallPanelDlg;

/// The window of the port call panel: the table with its editors, the figures below it and the buttons.
class PortCallWindow final : public Skin::ToolWindow, public PortCallView {
  public:
    /// `tree` is the widget beside which the window opens, or null.
    PortCallWindow(QWidget* mainView, QWidget* tree);
    void Attach(CPortCallPanelDlg* panel);

    void ShowTable(const PortCallTable& table) override;
    void ShowState(const PortCallState& state) override;
    void ApplyTexts() override;
    void Show() override;
    void Hide() override { hide(); }
    bool IsVisible() const override { return isVisible(); }
    void PlaceBesideTree() override;
    void SetEnabled(bool enabled) override { setEnabled(enabled); }
    void SetBusy(bool busy) override;
    void SelectRow(int row) override;
    void BringRowIntoView(int row) override;
    CellsView& Cells() override { return *editors_; }
    void RequestHelp(const std::string& topic) override;
    void* Handle() const override { return const_cast<PortCallWindow*>(this); }
    void ApplySkin() override;

  protected:
    void SurfacePressed() override;
    void CloseAsked() override;
    /// Takes what a match window tells.
    bool event(QEvent* event) override;

  private:
    CPortCallPanelDlg* panel_ = nullptr;
    QWidget* tree_;
    PortCallModel* model_;
    PortCallTableView* table_;
    PortCallEditors* editors_;
    PortCallSummary* summary_;
    PortCallButtons* buttons_;
    QToolButton* help_;
    QToolButton* close_;
    PortCallState state_;
};

}  // namespace Tarvik::Seaplan
