// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include "seaplan/panels/vessel/VesselView.h"

class QLineEdit;
class QListWidget;
class QWidget;

namespace Tarvik::Seaplan {

class VoyShipEditDlg;

/// The box over the tree's rows in which a vessel is typed, with its drop list.
class VesselBox final : public QObject, public VesselView {
  public:
    /// `tree` is the surface whose coordinates the box is placed in.
    explicit VesselBox(QWidget* tree);
    void Attach(VoyShipEditDlg* panel) { panel_ = panel; }
    /// Names in the language in force.
    void ApplyTexts();
    void ApplySkin();

    void ShowBox(const Rect& inTree, const std::string& text, std::size_t limit) override;
    void HideBox() override;
    void ShowList(const std::vector<std::string>& names, const VesselListSize& size) override;
    void SelectRow(int row) override;
    void HideList() override;
    void Later(std::function<void()> act) override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void OnReleased();

    VoyShipEditDlg* panel_ = nullptr;
    QLineEdit* box_;
    QListWidget* list_;
};

}  // namespace Tarvik::Seaplan
