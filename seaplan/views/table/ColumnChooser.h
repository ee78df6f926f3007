// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>
#include <QWidget>
#include <functional>

#include "seaplan/panels/paste/RowsPreview.h"

namespace Tarvik::Seaplan {

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
