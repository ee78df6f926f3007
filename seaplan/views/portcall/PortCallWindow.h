// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <array>

#include <tarvik/skin/ToolWindow.h>

#include "seaplan/panels/TextKeys.h"
#include "seaplan/panels/portcall/PortCallView.h"
#include "seaplan/views/datetime/CalendarPopup.h"
#include "seaplan/views/portcall/PortCallModel.h"
#include "seaplan/views/portcall/PortCallTableView.h"

class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace Tarvik::Seaplan {

class CPortCallPanelDlg;

/// The window of the port call panel.
class PortCallWindow final : public Skin::ToolWindow, public PortCallView {
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
    void SetBusy(bool busy) override;
    void SelectRow(int row) override;
    void BringRowIntoView(int row) override;
    void OpenEditor(CellEditor editor, int row, const std::string& text, bool selectAll) override;
    void HideEditor(CellEditor editor) override;
    bool EditorVisible(CellEditor editor) const override { return open_[static_cast<int>(editor)]; }
    std::string EditorText(CellEditor editor) const override;
    void SetEditorText(CellEditor editor, const std::string& text) override;
    void* EditorHandle(CellEditor editor) const override;
    void ShowMatches(const std::vector<std::string>& names) override;
    void HideMatches() override;
    void ShowMatchWindow(void* window) override;
    void HideMatchWindow(void* window) override;
    void OpenPurposes(int row) override;
    void HidePurposes() override;
    void OpenPicker(int row, int column, const Util::_datetime_t& time) override;
    void HidePicker() override;
    void RequestHelp(const std::string& topic) override;
    void* Handle() const override;
    void ApplySkin() override;

  protected:
    void SurfacePressed() override;
    void CloseAsked() override;
    /// Takes what a match window tells.
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct Figure {
        QLabel* caption = nullptr;
        QLabel* value = nullptr;
        QToolButton* unit = nullptr;
    };
    void MakeButtons();
    void MakeSummary();
    void MakeEditors();
    void MakePopups();
    Figure MakeFigure(const char* name, UnitKind kind);
    void OpenUnitMenu(QToolButton* button, UnitKind kind);
    const std::string* UnitTextOf(UnitKind kind) const;
    void ApplyTitles();
    bool EditorKey(int editor, int key);
    bool PurposeKey(int key);
    void MoveMatch(int by);
    void TakeMatch(const QListWidgetItem* item);
    bool PressedOutside(const QObject* watched) const;
    void SetButton(QAbstractButton* button, bool on, TextId tip, TextId whyNot);

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
    QLabel* zone_ = nullptr;
    std::array<QLineEdit*, 3> editors_{};
    std::array<bool, 3> open_{};
    QListWidget* matches_ = nullptr;
    QListWidget* purposes_ = nullptr;
    QPointer<QWidget> matchWindow_;  ///< a search plug-in's, while it is shown
    CalendarPopup* calendar_ = nullptr;
    PortCallState state_;
};

}  // namespace Tarvik::Seaplan
