// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <functional>

#include "seaplan/panels/window/TextBox.h"

namespace Tarvik::Seaplan {

/// The box over a row in which it is renamed.
class RenameField final : public QLineEdit, public TextBox {
  public:
    /// `surface` is what the places are counted on.
    explicit RenameField(QWidget* surface);
    /// Told that the name is to be taken; `leave` then puts the keyboard elsewhere.
    void SetReports(std::function<void()> done, std::function<void()> leave);

    void Show(const Rect& place, const std::string& text, int maxUnits) override;
    void Hide() override;
    bool IsVisible() const override { return open_; }
    std::string Text() const override { return text().toStdString(); }

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    std::function<void()> done_;
    std::function<void()> leave_;
    bool open_ = false;
    int opening_ = 0;  ///< number of the opening, by which a late report knows its own
};

}  // namespace Tarvik::Seaplan
