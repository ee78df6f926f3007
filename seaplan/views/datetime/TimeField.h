// SPDX-License-Identifier: MIT
#pragma once

#include <QBoxLayout>
#include <QLineEdit>
#include <QObject>
#include <QToolButton>
#include <string>

#include "seaplan/panels/datetime/CTrvCalDlg.h"
#include "seaplan/panels/texts/TextId.h"

namespace Tarvik::Seaplan {

/// Hour or minute in the calendar: a text that turns into an edit between two arrows.
class TimeField final : public QObject {
  public:
    /// Stands at the end of `row`; its controls are named `name` with "Shown", "Minus", "Edit", "Plus".
    TimeField(QWidget* calendar, QBoxLayout* row, const char* name, TimePart part);
    void Attach(CTrvCalDlg* panel) { panel_ = panel; }
    /// `text` is hour or minute; `offered` false hides all of it.
    void Show(const std::string& text, bool offered, bool typing);
    void FillEdit(const std::string& text);
    /// Names of the part and of its arrows.
    void ApplyTexts(TextId part, TextId minus, TextId plus);

  protected:
    /// Keys of the edit, and a digit on the text, which begins the typing with it.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QToolButton* MakeButton(QWidget* calendar, const QString& name, const char* label);

    TimePart part_;
    CTrvCalDlg* panel_ = nullptr;
    QToolButton* shown_;
    QToolButton* minus_;
    QLineEdit* edit_;
    QToolButton* plus_;
};

}  // namespace Tarvik::Seaplan
