// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/panels/TextKeys.h"
#include "seaplan/panels/portcall/PortCallView.h"
#include "seaplan/views/datetime/CalendarPopup.h"
#include "seaplan/views/portcall/PortCallModel.h"
#include "seaplan/views/portcall/PortCallTableView.h"
#include "seaplan/views/skin/ToolWindow.h"

#include <array>

class QLineEdit;
class QListWidget;
class QPushButton;

namespace Tarvik::Seaplan {

class CPortCallPanelDlg;

/// The window of the port call panel.
class PortCallWindow final : public ToolWindow, public PortCallView {
  public:
    /// `tree` is the widget beside which the window opens, or null.
    PortCallWindow(QWidget* mainView, QWidget* tree);
    ~PortCallWindow() override;
    void Attach(CPortCallPanelDlg* panel);

    void ShowTable(const PortCallTable& table) override;
    void ShowState(const PortCallState& state) override;
    void ApplyTexts() override;
    void Show() override;
    void Hide() override;
    bool IsVisible() const override { return isVisible(); }
    void PlaceBesideTree() override;
    void SetEnabled(bool enabled) override { setEnabled(enabled); }
    void SelectRow(int row) override;
    void BringRowIntoView(int row) override;
    void OpenEditor(CellEditor editor, int row, const std::string& text, bool selectAll) override;
    void HideEditor(CellEditor editor) override;
    bool EditorVisible(CellEditor editor) const override { return open_[static_cast<int>(editor)]; }
    std::string EditorText(CellEditor editor) const override;
    void ShowMatches(const std::vector<std::string>& names) override;
    void HideMatches() override;
    void OpenPurposes(int row) override;
    void HidePurposes() override;
    void OpenPicker(int row, int column, const Util::_datetime_t& time) override;
    void HidePicker() override;
    void RequestHelp(const std::string& topic) override;
    void* Handle() const override;
    void ApplySkin() override;

  protected:
    void SurfacePressed() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct Figure {
        QLabel* caption = nullptr;
        QLabel* value = nullptr;
        QToolButton* unit = nullptr;
    };
    void makeButtons();
    void makeSummary();
    void makeEditors();
    void makePopups();
    Figure makeFigure(const char* name, UnitKind kind);
    void openUnitMenu(QToolButton* button, UnitKind kind);
    void applyTitles();
    bool editorKey(int editor, int key);
    void moveMatch(int by);
    void setButton(QAbstractButton* button, bool on, TextId tip, TextId whyNot);

    CPortCallPanelDlg* panel_ = nullptr;
    QWidget* tree_;
    PortCallModel* model_;
    PortCallTableView* table_;
    QToolButton* help_;
    QToolButton* close_;
    QToolButton* save_;
    QToolButton* clear_;
    QPushButton* book_;
    QPushButton* calculate_;
    Figure speed_;
    Figure distance_;
    Figure time_;
    std::array<QLineEdit*, 3> editors_{};
    std::array<bool, 3> open_{};
    QListWidget* matches_ = nullptr;
    QListWidget* purposes_ = nullptr;
    CalendarPopup* calendar_ = nullptr;
    PortCallState state_;
};

}  // namespace Tarvik::Seaplan
