// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <functional>
#include <string>

#include "seaplan/panels/editors/EditWords.h"

class QToolButton;

namespace Tarvik::Seaplan {

/// The two buttons of a window's undo and redo, with its keys. Each tells what it would do now, or that there
/// is nothing to do.
class UndoButtons final : public QWidget {
  public:
    explicit UndoButtons(QWidget* parent);

    /// What the buttons and the keys of their window call.
    void SetReports(const std::function<void()>& undo, const std::function<void()>& redo);
    void ShowTexts(const UndoTexts& texts);
    void ApplySkin();

  private:
    QToolButton* MakeButton(const char* name);

    QToolButton* undo_;
    QToolButton* redo_;
};

}  // namespace Tarvik::Seaplan
