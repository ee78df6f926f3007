// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/panels/remark/RemarkView.h"
#include "seaplan/views/remark/RemarkListView.h"
#include "seaplan/views/window/FloatingPanel.h"

class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QToolButton;

namespace Tarvik::Seaplan {

class CRemarkPanel;

/// The window of a remark panel: the list at the left, the two fields at the right, the buttons below.
class RemarkWindow final : public PanelFrame<RemarkView> {
  public:
    /// `name` is the object name, as there is more than one remark panel.
    RemarkWindow(QWidget* mainView, const QString& name);
    void Attach(CRemarkPanel* panel);

    void ShowRows(const std::vector<RemarkRow>& rows, int current) override;
    void ShowState(const RemarkState& state) override;
    void ShowTexts(const std::string& subject, const std::string& body) override;
    int TitleWidth(const std::string& text) const override;
    void ShowTitle(const RemarkTitle& title) override;
    void BringRowIntoView(int row) override;
    void FocusSubject() override;
    void FocusBody() override;
    void ApplySkin() override;

  protected:
    void ApplyClassTexts(QWidget& window) override;
    void FocusFirst() override;

  private:
    QWidget* MakeFields();
    QWidget* MakeButtons();
    QToolButton* MakeTool(const char* name, const QKeySequence& key);

    RemarkListView* list_;
    QLineEdit* subject_;
    QPlainTextEdit* body_;
    QToolButton* add_;
    QToolButton* sort_;
    QPushButton* save_;
    RemarkState state_;
};

}  // namespace Tarvik::Seaplan
