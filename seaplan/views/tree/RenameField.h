// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "seaplan/panels/editors/Keys.h"
#include "seaplan/panels/window/TextBox.h"
#include "seaplan/views/editors/RowField.h"

namespace Tarvik::Seaplan {

/// The box over a row in which it is renamed.
class RenameField final : public RowField, public TextBox {
  public:
    /// `surface` is what the places are counted on.
    explicit RenameField(QWidget* surface);
    struct Reports {
        std::function<void(const std::string&)> typed;
        std::function<bool(Key)> key;  ///< true when the panel has acted on it
        std::function<void()> done;    ///< the keyboard is elsewhere: the name is to be taken
        std::function<void()> leave;   ///< puts the keyboard elsewhere, after such a key
    };
    void SetReports(Reports reports) { reports_ = std::move(reports); }

    void Show(const Rect& place, const std::string& text, std::size_t limit) override;
    void Hide() override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    Reports reports_;
    int opening_ = 0;  ///< number of the opening, by which a late report knows its own
};

}  // namespace Tarvik::Seaplan
