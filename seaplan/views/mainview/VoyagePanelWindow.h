// SPDX-License-Identifier: MIT
#pragma once

#include <tarvik/skin/ToolWindow.h>

#include "seaplan/panels/mainview/MainViewWindow.h"
#include "seaplan/views/tree/VoyageTreeView.h"
#include "seaplan/views/vessel/VesselBox.h"

class QCheckBox;

namespace Tarvik::Seaplan {

class SeaplanViewDlg;
class SeaplanTreeCtrl;

/// The window of the voyage panel.
class VoyagePanelWindow final : public Skin::ToolWindow, public MainViewWindow {
  public:
    explicit VoyagePanelWindow(QWidget* mainView);
    /// Ties the controls to the panel; both outlive the window's use.
    void Attach(SeaplanViewDlg* panel, SeaplanTreeCtrl* tree);
    VoyageTreeView& Tree() { return *tree_; }
    VesselBox& Vessels() { return *vessels_; }

    bool IsVisible() const override { return isVisible(); }
    void Place(const Rect& screen) override;
    void Show() override;
    void Hide() override;
    void ApplyTexts() override;
    bool FilterVisible() const override;
    void ShowFilter(bool showDeleted) override;
    void HideFilter() override;
    void RequestHelp(const std::string& topic, int width, int height) override;
    void ApplySkin() override;

  protected:
    void SurfacePressed() override;
    void CloseAsked() override;

  private:
    void MakeFilter();

    VoyageTreeView* tree_;
    VesselBox* vessels_;
    QToolButton* filterButton_;
    QToolButton* addButton_;
    QToolButton* helpButton_;
    QToolButton* closeButton_;
    QFrame* filter_ = nullptr;
    QCheckBox* showDeleted_ = nullptr;
    SeaplanViewDlg* panel_ = nullptr;
};

}  // namespace Tarvik::Seaplan
