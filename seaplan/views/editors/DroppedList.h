// SPDX-License-Identifier: MIT
#pragma once

#include <QListWidget>
#include <string>
#include <vector>

#include "seaplan/panels/editors/DropList.h"

namespace Tarvik::Seaplan {

/// Puts these texts into a list, one of them in front, -1 for none.
void FillList(QListWidget& list, const std::vector<std::string>& texts, int current);

/// A list that drops from a field or a cell of a window, over the window's other parts.
class DroppedList final : public QListWidget, public DropList {
  public:
    /// `home` takes the keyboard back when the list hides with it.
    DroppedList(QWidget& window, QWidget& home, const char* name);

    /// A list that would leave the window's bottom opens as low as it fits.
    void ShowList(const Rect& screen, const std::vector<std::string>& texts, int current) override;
    void HideList() override;
    void FocusList(int row) override;

  private:
    QWidget& window_;
    QWidget& home_;
};

}  // namespace Tarvik::Seaplan
