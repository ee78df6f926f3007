// SPDX-License-Identifier: MIT
#include "tests/walk/Player.h"

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/bus/VoyageContract.h>

#include "seaplan/panels/portcall/CellEditing.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/tree/TreeRename.h"
#include "seaplan/panels/tree/VesselCommands.h"
#include "tests/walk/World.h"
#include "testsupport/ManualClock.h"
#include "testsupport/ManualTimer.h"
#include "testsupport/RecordingHost.h"

namespace Tarvik::Seaplan::Walk {

Player::Player(PanelDesk& desk, FaultyServer& server, Person& person)
    : desk_(desk), server_(server), person_(person) {
    Start();
}

void Player::Start() {
    client_.reset();
    client_ = std::make_unique<Client>();
    ++beginnings_;
    Client::Toggle();
}

void Player::Play(const Step& step) {
    person_.yes = step.yes;
    if (step.act < Act::TypePort) {
        if (client_->window.visible || step.act == Act::Toggle) {
            PlayTree(step);
        }
    } else if (step.act < Act::Alternative) {
        if (client_->view.visible) {
            PlayTable(step);
        }
    } else {
        PlayWorld(step);
    }
}

/// The program sees every press, and takes what is being typed somewhere else.
void Player::PressElsewhere() {
    if (client_->view.visible) {
        client_->panel.Cells().OnPressedOutside();
    }
    client_->ctrl.Renaming().Commit();
    client_->ctrl.Vessels().Editor().OnLeft();
    client_->ctrl.Vessels().Editor().OnReleased();
}

void Player::PlayWorld(const Step& step) {
    constexpr int kRequests = 6;
    const std::string points[] = {"118", "105"};
    switch (step.act) {
        case Act::Alternative:
            PressElsewhere();
            Interface::Raise(Interface::Bus::ClickVoyageType, &points[step.which % 2]);
            Interface::Raise(Interface::Bus::ClickRoutePointType, &points[(step.which + 1) % 2]);
            break;
        case Act::OpenTable:
        case Act::ChartPort:
        case Act::KeepTable:
            PlayDistances(step);
            break;
        case Act::Timer:
            desk_.clock.AdvanceSeconds(100 + 10 * step.what);
            desk_.timer.Fire();
            break;
        case Act::Ship:
            SeeShip(step);
            break;
        case Act::Refuse:
            server_.Refuse(step.which % kRequests);
            break;
        case Act::Cut:
            server_.Cut(step.which % kRequests);
            break;
        case Act::LoseAnswer:
            server_.LoseAnswer(step.which % kRequests);
            break;
        case Act::Heal:
            server_.Heal();
            break;
        case Act::Relogin:
            Relogin();
            break;
        case Act::Restart:
            if (ClosePanel()) {
                Start();
            }
            break;
        default:
            Start();
            break;
    }
}

/// The toolbar opens the distance table, a press on the chart sends it a port, and its dialog keeps it under
/// a name that nothing has.
void Player::PlayDistances(const Step& step) {
    PressElsewhere();
    if (step.act == Act::OpenTable) {
        const Interface::PanelShow show{Interface::PanelCode::kDistances, 0};
        Interface::Raise(Interface::Bus::ShowPanel, &show);
    } else if (step.act == Act::ChartPort) {
        const auto& ports = TypedPorts();
        Interface::Call(Interface::Bus::AddPortName,
                        &ports[static_cast<std::size_t>(step.what) % ports.size()]);
    } else if (client_->keepView.visible && client_->store.voyages.size() < kMostVoyages) {
        client_->keepDialog.OnCategoryTyped("Plans");
        client_->keepDialog.OnVoyageTyped("Kept " + std::to_string(kept_++));
        client_->keepDialog.OnOk();
    }
}

/// The vessel's position of now, somewhere along its way, comes with the next tick.
void Player::SeeShip(const Step& step) {
    constexpr double kWest = -1.5;
    constexpr double kHundredth = 0.01;
    constexpr int kPlaces = 300;
    desk_.clock.AdvanceSeconds(100 + 10 * step.what);
    const auto now = static_cast<std::int32_t>(desk_.clock.NowUtcCsecs() / 100);
    Interface::VesselPosition position;
    position.vesselId = kVessel;
    position.vsmsi = 55;
    position.time = now;
    position.x = kWest + kHundredth * (step.what % kPlaces);
    desk_.host.positions = std::vector<Interface::VesselPosition>{position};
    desk_.timer.Fire();
}

/// The program asks its panels to close before it ends or its user goes.
bool Player::ClosePanel() {
    PressElsewhere();
    if (client_->view.visible) {
        client_->panel.Commands().OnClose();
    }
    return !client_->view.visible;
}

void Player::Relogin() {
    if (!ClosePanel()) {
        return;
    }
    Interface::Raise(Interface::Bus::Logout);
    Client::Toggle();
    ++beginnings_;
}

}  // namespace Tarvik::Seaplan::Walk
