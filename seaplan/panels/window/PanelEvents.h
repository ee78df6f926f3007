// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>

namespace Tarvik::Seaplan {

/// What the client tells every panel, bound by the one line that makes this: a change of language goes to the
/// panel's ApplyLanguage(), a logout to OnLogout(), a change of the user's zone to OnTimeZone(zone). A panel
/// without one of them does not hear of it, and one whose LogoutByMainView is a type leaves the logout to the
/// main view, which hides the panels in their order. The panel outlives this.
template <class Panel>
class PanelEvents {
  public:
    explicit PanelEvents(Panel& panel) {
        namespace Bus = Interface::Bus;
        if constexpr (requires { panel.ApplyLanguage(); }) {
            bindings_.Keep(Interface::Subscribe(Bus::SwitchLanguage, [&panel] { panel.ApplyLanguage(); }));
        }
        if constexpr (
            requires { panel.OnLogout(); } && !requires { typename Panel::LogoutByMainView; }) {
            bindings_.Keep(Interface::Subscribe(Bus::Logout, [&panel] { panel.OnLogout(); }));
        }
        if constexpr (requires(const std::string& zone) { panel.OnTimeZone(zone); }) {
            bindings_.Keep(Interface::Subscribe(Bus::SwitchTimeZone, [&panel](const std::string* carried) {
                // Whoever raises it may leave the zone to be asked for.
                const std::string* zone =
                    carried != nullptr ? carried : Interface::Call(Bus::CurrentTimeZone);
                panel.OnTimeZone(zone == nullptr ? std::string() : *zone);
            }));
        }
    }

  private:
    Interface::BindingList bindings_;
};

}  // namespace Tarvik::Seaplan
