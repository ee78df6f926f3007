// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "seaplan/panels/distances/KeepTableView.h"
#include "seaplan/views/window/FloatingPanel.h"

namespace Tarvik::Seaplan {

class CPortDistTabDlg;

/// The dialog in which the port distance table gets a category and a voyage name: two fields, the first with
/// an arrow for its list of names, and the buttons.
class KeepTableWindow final : public PanelFrame<KeepTableView>, public DropList {
  public:
    explicit KeepTableWindow(QWidget* mainView);
    void Attach(CPortDistTabDlg* panel);

    void SetCategory(const std::string& text, bool selected) override;
    void SetVoyageName(const std::string& text) override;
    Rect CategoryPlace() const override { return OnScreen(*category_); }
    DropList& Names() override { return *this; }
    void ShowNote(const std::string& text) override;
    void ShowList(const Rect& screen, const std::vector<std::string>& texts, int current) override;
    void HideList() override;
    void FocusList(int row) override;
    void ApplySkin() override;

  protected:
    void FocusFirst() override { category_->setFocus(); }
    void ApplyClassTexts(QWidget& window) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void MakeFields();
    void MakeButtons();

    CPortDistTabDlg* panel_ = nullptr;
    QLineEdit* category_;
    QLineEdit* voyage_;
    QToolButton* arrow_;
    QLabel* note_;
    QPushButton* ok_;
    QPushButton* cancel_;
    QListWidget* list_;  ///< a window of its own, as it may be higher than what is left of this one
};

}  // namespace Tarvik::Seaplan
