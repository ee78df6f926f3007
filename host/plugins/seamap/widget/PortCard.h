// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QLabel>
#include <QString>
#include <string>

#include <tarvik/bus/BusName.h>

#include "host/plugins/seamap/core/ChartNames.h"
#include "host/plugins/seamap/core/ChartPalette.h"
#include "host/plugins/seamap/core/MercatorView.h"

class QPushButton;

namespace Tarvik::Seamap {

/// Pixels between a card over the chart and the chart's edge.
inline constexpr int kCardToEdge = 12;

/// The sheet of a card on the chart, by its object name, in the chart's colours. One look for all cards, so
/// that none is told apart from another.
inline QString CardSheet(const QString& name, const ChartPalette& palette) {
    const auto colour = [](const auto& of) { return QColor(of).name(); };
    return QStringLiteral(
               "#%1 { background: %2; color: %3; border: 1px solid %4; border-radius: 6px; padding: 6px "
               "10px; "
               "font-size: 12px; } #%1 QWidget { color: %3; background: %2; font-size: 12px; } "
               "#%1 QLineEdit, #%1 QDoubleSpinBox { border: 1px solid %5; border-radius: 3px; padding: 2px "
               "4px; } "
               "#%1 QLineEdit:focus, #%1 QDoubleSpinBox:focus { border-color: %6; } "
               "#%1 QPushButton { border: 1px solid %5; border-radius: 3px; padding: 2px 8px; } "
               "#%1 QPushButton:focus, #%1 QPushButton:hover { border-color: %6; } "
               "#%1 QListView { border: 0; } #%1 QListView::item:selected { background: %6; color: %2; }")
        .arg(name, colour(palette.halo), colour(palette.text), colour(palette.graticule),
             colour(palette.secondaryText), colour(palette.accent));
}

/// What is known of a port, on a small card beside its place on the chart. The card of a port of the user's
/// own also changes and removes it, where the client does that.
class PortCard final : public QLabel {
  public:
    /// Hidden at first; a press on the card hides it.
    explicit PortCard(QWidget* chart);
    /// Shows a port's card beside a pixel of the chart, whole where it has room.
    void ShowPort(const ChartName& port, PixelPoint place);
    void ApplyTheme(const ChartPalette& palette);
    /// Name, UN/LOCODE and country, position, a line each; what is not known is left out.
    static QString TextOf(const ChartName& port);

  protected:
    void mousePressEvent(QMouseEvent* event) override;

  private:
    using OwnPortService = Interface::Service<const std::string, Interface::None>;
    QPushButton* AddButton(const char* name, const OwnPortService& service);
    /// Makes room for the buttons below the text.
    void PlaceButtons();

    std::string own_;  ///< id of the port on show where it can be changed, else empty
    QPushButton* change_;
    QPushButton* remove_;
};

}  // namespace Tarvik::Seamap
