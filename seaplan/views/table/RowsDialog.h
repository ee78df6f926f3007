// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <optional>
#include <string>

#include "seaplan/panels/paste/RowsPreview.h"

namespace Tarvik::Seaplan {

/// Shows over a window what a command would do to its table, and waits for the
/// answer. True for yes; Enter in the dialog is a yes, Escape a no. A preview with kinds of columns offers
/// them, and shows what `change` makes of it.
bool AskRowsOver(QWidget& window, const RowsPreview& preview, const ChangeColumn& change);
/// Shows rows over a window and waits until one is chosen: its number from 0, nothing for none. Enter and a
/// double click choose the row in front, Escape none.
std::optional<int> ChooseRowOver(QWidget& window, const RowsPreview& preview);
/// The text on the clipboard as UTF-8, cut where no more is read.
std::string ClipboardAsText();

}  // namespace Tarvik::Seaplan
