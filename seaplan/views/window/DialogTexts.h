// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QKeySequence>
#include <QWidget>

#include "seaplan/panels/texts/TextId.h"

namespace Tarvik::Seaplan {

/// Ties a control's own text, or a window's title, to a number of the string table, by which the chain finds
/// it. A control that is not tied keeps the text that it was made with.
void TieText(QWidget& control, TextId id);

/// The key of a button, which acts in the moment that it is pressed, and each time. A text that is set
/// directly takes it away; the chain keeps it.
void TieKey(QAbstractButton& button, const QKeySequence& key);

/// How a window takes its texts: a chain of five operations, run when the window is made and after each
/// switch of language, whether it is visible or not. A window overrides what it needs beyond the default.
class DialogTexts {
  public:
    virtual ~DialogTexts() = default;
    /// The five in order, then the window is drawn anew with its children.
    void ApplyLanguage(QWidget& window);

  protected:
    /// The window's title, and the text of every control in it, where they are tied to a number that the
    /// string table has. A key that the language file lacks blanks the control.
    virtual void ApplyDialogTexts(QWidget& window);
    /// The texts of the window's menu and, behind it, of its sub-menus, in the same way.
    virtual void ApplyMenuTexts(QWidget& window);
    /// Two places of the chain that are kept for what hosts may ask later.
    virtual void ApplyReservedTexts(QWidget& /*window*/) {}
    virtual void ApplyReservedLooks(QWidget& /*window*/) {}
    /// What the enumeration cannot reach, as tool tips and titles of columns.
    virtual void ApplyClassTexts(QWidget& /*window*/) {}
};

}  // namespace Tarvik::Seaplan
