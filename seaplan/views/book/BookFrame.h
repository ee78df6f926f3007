// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QToolButton>
#include <QWidget>
#include <array>
#include <functional>

#include "seaplan/panels/book/BookSheet.h"
#include "seaplan/views/editors/UndoButtons.h"
#include "seaplan/views/editors/UnitFigures.h"

namespace Tarvik::Seaplan {

/// The line above the table: what can be done with the book and its rows, and the zone of the times. A button
/// that is off tells why.
class BookHead final : public QWidget {
  public:
    explicit BookHead(QWidget* parent);

    struct Reports {
        std::function<void()> save;
        std::function<void()> saveKey;  ///< Ctrl+S
        std::function<void()> cancel;
        std::function<void()> undo;
        std::function<void()> redo;
        std::function<void()> insert;
        std::function<void()> remove;
    };
    void SetReports(const Reports& reports);
    void ShowSheet(const BookSheet& sheet);
    void ApplySkin();

  private:
    enum Part { Save, Cancel, Insert, Remove, PartCount };

    void Set(Part part, bool on, TextId tip, TextId whyNot);

    std::array<QToolButton*, PartCount> buttons_{};
    UndoButtons* undo_;
    QLabel* zone_;
};

/// The line of totals below the table.
class BookFoot final : public UnitFigures {
  public:
    explicit BookFoot(QWidget* parent);
    void ShowSheet(const BookSheet& sheet);
};

}  // namespace Tarvik::Seaplan
