// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <array>
#include <functional>
#include <string>
#include <vector>

#include "seaplan/panels/texts/TextId.h"

class QHBoxLayout;
class QLabel;
class QToolButton;

namespace Tarvik::Seaplan {

enum class UnitKind;

/// The line below a table of a voyage: average speed, total distance and time, each with a button that opens
/// a menu of its units.
class UnitFigures : public QWidget {
  public:
    struct Look {
        const char* name;  ///< object name of the value; that of its unit has "Unit" behind it
        UnitKind kind;
        TextId caption;
        TextId hint;
    };
    using Looks = std::array<Look, 3>;
    struct Measures {
        int valueWidth;  ///< least, in pixels
        int gap;         ///< between two figures, in pixels
    };
    UnitFigures(QWidget* parent, const Looks& looks, const Measures& measures);

    struct Reports {
        /// A menu opens; the units that it offers.
        std::function<std::vector<std::string>(UnitKind)> menuOpens;
        /// The unit at this place of the menu was chosen.
        std::function<void(UnitKind, int, const std::string&)> unitChosen;
    };
    void SetReports(Reports reports) { reports_ = std::move(reports); }
    void ShowFigure(UnitKind kind, const std::string& value, const std::string& unit);
    /// Puts the figures into the warning colour with this hint, or back without one.
    void ShowStale(const QString& why);
    void ApplyTexts();
    void ApplySkin();

  protected:
    /// For what a window puts behind the figures.
    QHBoxLayout& Line() { return *line_; }

  private:
    struct Figure {
        Look look;
        QLabel* caption = nullptr;
        QLabel* value = nullptr;
        QToolButton* unit = nullptr;
    };
    Figure MakeFigure(const Look& look, int valueWidth);
    void OpenMenu(const Figure& figure);

    Reports reports_;
    QHBoxLayout* line_;
    std::vector<Figure> figures_;
    QString stale_;  ///< why the figures are out of date, empty when they are not
};

}  // namespace Tarvik::Seaplan
