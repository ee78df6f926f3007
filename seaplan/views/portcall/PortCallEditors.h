// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <array>

#include "seaplan/panels/portcall/CellsView.h"
#include "seaplan/views/datetime/DateCell.h"
#include "seaplan/views/editors/DroppedList.h"

class QLineEdit;

namespace Tarvik::Seaplan {

class CellEditing;
class PanelTable;

/// The fields, lists and the calendar over the cells of the port call table. What a person does in them goes
/// to the panel as it is.
class PortCallEditors final : public QObject, public CellsView {
  public:
    /// `window` is the table's window, over which lists drop.
    PortCallEditors(QWidget& window, PanelTable& table);
    void Attach(CellEditing* panel);
    void ApplyTexts();
    void ApplySkin() { date_.Popup().ApplySkin(); }
    bool PortFieldHasFocus() const;
    /// Whether a widget is the table or one of these.
    bool Holds(const QWidget& widget) const;

    void OpenEditor(const OpenedEditor& opened) override;
    void HideEditor(CellEditor editor) override;
    void SetEditorText(CellEditor editor, const std::string& text) override;
    void* EditorHandle(CellEditor editor) const override { return Field(editor); }
    void ShowMatches(const std::vector<std::string>& names) override;
    void SelectMatch(int index) override { matches_->setCurrentRow(index); }
    void HideMatches() override { matches_->hide(); }
    void ShowMatchWindow(void* window) override;
    void HideMatchWindow() override;
    void OpenPurposes(int row, const std::vector<std::string>& texts, int current) override;
    void HidePurposes() override;
    void PutPicker(int row, int column) override;
    DateTimeView& Picker() override { return date_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QLineEdit* Field(CellEditor editor) const;
    void Put(QLineEdit& field, const std::string& text, int limit);
    bool FieldEvent(CellEditor editor, QEvent& event);

    QWidget& window_;
    PanelTable& table_;
    CellEditing* panel_ = nullptr;
    std::array<QLineEdit*, 3> fields_{};
    bool setting_ = false;  ///< the program sets a field's text
    QListWidget* matches_;
    DroppedList* purposes_;
    QPointer<QWidget> matchWindow_;  ///< a search plug-in's, while it is shown
    DateCell date_;
};

}  // namespace Tarvik::Seaplan
