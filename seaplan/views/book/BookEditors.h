// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QObject>
#include <string>

#include "seaplan/panels/book/BookView.h"
#include "seaplan/panels/editors/DropList.h"
#include "seaplan/panels/window/TextBox.h"
#include "seaplan/views/datetime/DateCell.h"
#include "seaplan/views/editors/DroppedList.h"

namespace Tarvik::Seaplan {

class BookEditing;
class PanelTable;

/// The field, the list and the calendar over the cells of the position book. What a person does in them goes
/// to the panel as it is.
class BookEditors final : public QObject, public TextBox {
  public:
    /// `window` is the table's window, over which the list drops.
    BookEditors(QWidget& window, PanelTable& table);
    void Attach(BookEditing* panel);
    void ApplyTexts();
    void ApplySkin();
    /// Whether a widget is the table or one of these.
    bool Holds(const QWidget& widget) const;

    void Show(const Rect& place, const std::string& text, std::size_t limit) override;
    void Hide() override;
    void PutTyped(const std::string& text);
    void ShowEcho(const std::string& text);
    DropList& Choices() { return *choices_; }
    void PutPicker(const BookCellPlace& cell);
    DateTimeView& Picker() { return date_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool FieldEvent(QEvent& event);

    QWidget& window_;
    PanelTable& table_;
    BookEditing* panel_ = nullptr;
    QLineEdit* field_;
    QLabel* echo_;
    DroppedList* choices_;
    bool setting_ = false;  ///< the program sets the field's text
    DateCell date_;
};

}  // namespace Tarvik::Seaplan
