// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>
#include <vector>

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

/// One line over pasted rows in which a person corrects what a column was taken for: the column, and what it
/// is. One line serves any number of columns, and both boxes are reached and changed by keys.
class ColumnChooser final : public QWidget {
  public:
    /// `change` gives the preview of a column taken as another kind, which `show` shows.
    ColumnChooser(QWidget* parent, const RowsPreview& preview, ChangeColumn change,
                  std::function<void(const RowsPreview&)> show);

  private:
    void Show(const RowsPreview& preview);
    void OnKind(int kind);

    ChangeColumn change_;
    std::function<void(const RowsPreview&)> show_;
    std::vector<std::size_t> taken_;
    QComboBox* columns_;
    QComboBox* kinds_;
};

}  // namespace Tarvik::Seaplan
