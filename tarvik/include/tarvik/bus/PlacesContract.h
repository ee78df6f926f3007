// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <tarvik/bus/BusName.h>

class QWidget;

/// Places that the client and the chart have for what plug-ins bring: ships, a page of the preferences, a
/// word in the status line, a port of the user's own.
namespace Tarvik::Interface {

/// A ship on the chart.
struct TrvMapShip {
    std::string id;           ///< told by a click on it, see TrvMapShips::type
    std::string tip;          ///< what is shown to who points at it, besides its place
    double x = 0;             ///< longitude in degrees
    double y = 0;             ///< latitude in degrees
    double heading = -1;      ///< degrees from north, clockwise; below 0 not known, drawn round
    std::int32_t colour = 0;  ///< 0x00BBGGRR
};

/// Argument of TRV_MAP_SET_SHIPS: all ships of one kind.
struct TrvMapShips {
    std::string type;               ///< behind "TRV_MAP_LCLICK_" it names the event of a click
    std::vector<TrvMapShip> ships;  ///< where many stand at one place, one is drawn
};

/// A page that a plug-in adds to the client's preferences.
struct PreferencePage {
    std::string title;        ///< of its tab
    QWidget* page = nullptr;  ///< made with PreferencePages::parent as parent; the dialog owns it
    /// Looks at what was typed: an empty text, or what is wrong with it; then the dialog stays open.
    std::function<std::string()> check;
    /// Takes it into use; called when the checks of all pages are passed.
    std::function<void()> take;
};

/// Payload of TRV_E_PREFERENCES.
struct PreferencePages {
    QWidget* parent = nullptr;          ///< of the pages
    std::vector<PreferencePage> pages;  ///< each subscriber adds its own
};

/// A plug-in's word in the client's status line.
struct StatusWord {
    std::string owner;  ///< whose it is; a later word takes the place of an earlier one of the same owner
    std::string text;   ///< empty takes it away
    std::string tip;    ///< more of it, for who points at it
};

/// Argument of TRV_S_OWNPORT_ADD: where the port is, in degrees, east and north positive.
struct OwnPortPlace {
    double longitude = 0;
    double latitude = 0;
};

namespace Bus {

/// Shows these ships in place of those of the type before; none takes all away. They are drawn below all
/// other objects. The chart copies them.
inline constexpr Service<const TrvMapShips, None> MapSetShips{"TRV_MAP_SET_SHIPS"};
/// A click on a ship of the feed (TrvMapShips of type "AISFEEDTYPE"); carries its MMSI. Answered like
/// ClickEvent of ChartContract.h.
inline constexpr Event<const std::string, const char> ClickFeedShip{"TRV_MAP_LCLICK_AISFEEDTYPE"};
/// Asks whether ships of the feed are shown, or with a bool shows or hides them. The AIS plug-in's, valid
/// until the next call.
inline constexpr Service<const bool, const bool> ShowShips{"TRV_S_AIS_SHOWSHIPS"};
/// The preferences are about to open; whoever has something to set adds a page.
inline constexpr Event<PreferencePages> OpenPreferences{"TRV_E_PREFERENCES"};
/// A plug-in has something to tell in the status line.
inline constexpr Event<const StatusWord> TellStatus{"TRV_E_STATUSWORD"};
/// Opens the form in which a port of the user's own is added at a place. The client's; nobody offers it
/// without a window.
inline constexpr Service<const OwnPortPlace, None> AddOwnPort{"TRV_S_OWNPORT_ADD"};
/// Opens the form in which the own port with an id is changed; the client's, as are all three.
inline constexpr Service<const std::string, None> ChangeOwnPort{"TRV_S_OWNPORT_CHANGE"};
/// Removes the own port with an id once the person has agreed.
inline constexpr Service<const std::string, None> RemoveOwnPort{"TRV_S_OWNPORT_REMOVE"};
/// The table of points and the dictionary of ports have changed: the user's own ports were changed, or others
/// have become the user's by a login or a logout. Whoever has read either reads it anew; ids of ports that
/// stay are what they were.
inline constexpr Event<None> PortsChanged{"TRV_E_PORTSCHANGED"};

}  // namespace Bus
}  // namespace Tarvik::Interface
