// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <functional>
#include <string>
#include <vector>

#include "host/plugins/seamap/core/ChartPalette.h"
#include "host/plugins/seamap/core/PortFinder.h"

class QLineEdit;
class QListWidget;

namespace Tarvik::Seamap {

/// A field over the chart in which a position or a port is typed, with what is understood below it. Enter
/// goes there, the arrows choose among several, Escape closes it.
class GoToBar final : public QFrame {
    Q_OBJECT

  public:
    using Find = std::function<std::vector<Destination>(const std::string& typed, std::size_t limit)>;

    /// Hidden at first. `find` tells what a text may mean.
    GoToBar(QWidget* chart, Find find);
    /// Shows it in the middle of the chart's upper edge, empty, with the keyboard.
    void Open();
    /// Moves it to its place behind a change of the chart's size.
    void Place();
    void ApplyTheme(const ChartPalette& palette);

  signals:
    /// The person goes there; the port is the finder's.
    void Chosen(const Tarvik::Seamap::Destination& place);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void TakeText(const QString& text);
    void Go(int row);
    void Leave();

    Find find_;
    QLineEdit* field_;
    QListWidget* list_;
    std::vector<Destination> found_;
};

}  // namespace Tarvik::Seamap
