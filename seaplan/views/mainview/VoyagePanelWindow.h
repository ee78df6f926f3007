// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

#include "seaplan/panels/window/PanelWindow.h"
#include "seaplan/views/editors/ChoiceBox.h"
#include "seaplan/views/mainview/SearchBar.h"
#include "seaplan/views/tree/VoyageTreeView.h"
#include "seaplan/views/vessel/VesselBox.h"
#include "seaplan/views/window/FloatingPanel.h"

namespace Tarvik::Seaplan {

class SeaplanViewDlg;
class SeaplanTreeCtrl;

/// The window of the voyage panel.
class VoyagePanelWindow final : public PanelFrame<PanelWindow> {
  public:
    explicit VoyagePanelWindow(QWidget* mainView);
    /// Ties the controls to the panel; both outlive the window's use.
    void Attach(SeaplanViewDlg* panel, SeaplanTreeCtrl* tree);
    VoyageTreeView& Tree() { return *tree_; }
    VesselBox& Vessels() { return *vessels_; }
    ChoiceBox& FilterPopup() { return *filter_; }
    SearchBar& Search() { return *search_; }

    void ApplySkin() override;

  protected:
    void FocusFirst() override;
    void ApplyClassTexts(QWidget& window) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void ShowLine(const QString& text);
    void PlaceLine();

    VoyageTreeView* tree_;
    VesselBox* vessels_;
    ChoiceBox* filter_;
    SearchBar* search_;
    QLabel* line_;  ///< what was done in the tree, or what can be done next
    QToolButton* findButton_;
    QToolButton* filterButton_;
    QToolButton* addButton_;
    SeaplanViewDlg* panel_ = nullptr;
};

}  // namespace Tarvik::Seaplan
