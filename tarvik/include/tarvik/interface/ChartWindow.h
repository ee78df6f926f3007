// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <tarvik/interface/BusContract.h>

class QWidget;

/// What the chart offers to the client beside the chart services of the bus contract.
namespace Tarvik::Seamap::Bus {

/// The chart's window, made at the first call; null while the process has no window system. The client may
/// give it a parent, which then owns it; without one it goes with the plug-in.
inline constexpr Interface::Service<void, QWidget> Widget{"TRV_S_SEAMAP_WIDGET"};

/// "zoomin", "zoomout", "fit" (all objects, the world without any), "theme light", "theme dark", "theme
/// night". Answers the input when it was understood, null otherwise.
inline constexpr Interface::Service<const std::string, const std::string> Command{"TRV_S_SEAMAP_COMMAND"};

/// Raised when the pointer moves over the chart: two doubles, longitude (-180 to 180) and latitude in
/// degrees.
inline constexpr Interface::Event<const double> Cursor{"TRV_E_SEAMAP_CURSOR"};

}  // namespace Tarvik::Seamap::Bus
