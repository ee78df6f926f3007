// SPDX-License-Identifier: MIT
#pragma once

#include <array>

#include "seaplan/panels/bunker/BunkerView.h"
#include "seaplan/views/window/FloatingPanel.h"

class QLineEdit;
class QPushButton;
class QToolButton;

namespace Tarvik::Seaplan {

class CBunkerDlg;

/// The window of the consumption dialog: a row of fields for each of fuel oil, diesel oil and fresh water.
class BunkerWindow final : public PanelFrame<BunkerView> {
  public:
    explicit BunkerWindow(QWidget* mainView);
    void Attach(CBunkerDlg* panel);

    void ShowFigures(const BunkerFigures& figures) override;
    void ShowState(bool dirty, bool editable) override;

  protected:
    void ApplyClassTexts(QWidget& window) override;
    void FocusFirst() override;

  private:
    void MakeRows();
    void MakeButtons();
    void TakeTyped(std::size_t field);
    void Save();

    CBunkerDlg* panel_ = nullptr;
    std::array<QLineEdit*, BunkerFigureCount> fields_{};
    QToolButton* undo_;
    QPushButton* save_;
    bool dirty_ = false;
    bool editable_ = false;
    bool refusing_ = false;  ///< a refused number is about to be told
};

}  // namespace Tarvik::Seaplan
