// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QToolButton>
#include <QWidget>
#include <array>
#include <functional>

#include "seaplan/panels/TextKeys.h"
#include "seaplan/panels/book/BookSheet.h"

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
    enum Part { Save, Cancel, Undo, Redo, Insert, Remove, PartCount };

    void Set(Part part, bool on, TextId tip, TextId whyNot);

    std::array<QToolButton*, PartCount> buttons_{};
    QLabel* zone_;
};

/// The line below the table: average speed, total distance and time, each with a button that opens a menu of
/// its units.
class BookFoot final : public QWidget {
  public:
    explicit BookFoot(QWidget* parent);

    struct Reports {
        std::function<void()> menuOpens;
        std::function<void(UnitKind, int)> unitChosen;
    };
    void SetReports(Reports reports) { reports_ = std::move(reports); }
    void ShowSheet(const BookSheet& sheet);
    void ApplyTexts();
    void ApplySkin();

  private:
    struct Figure {
        UnitKind kind = UnitKind::None;
        QLabel* caption = nullptr;
        QLabel* value = nullptr;
        QToolButton* unit = nullptr;
    };
    Figure MakeFigure(const char* name, UnitKind kind);
    void OpenMenu(const Figure& figure);

    Reports reports_;
    std::array<Figure, 3> figures_;  ///< speed, distance, time
};

}  // namespace Tarvik::Seaplan
