// SPDX-License-Identifier: MIT
#include "host/plugins/ais/window/Watch.h"

#include <QApplication>
#include <QCursor>
#include <charconv>
#include <filesystem>
#include <utility>
#include <vector>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/BusCall.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/util/Clock.h>

#include "host/plugins/ais/window/InputsPage.h"
#include "host/plugins/ais/window/Words.h"

namespace Tarvik::Ais {

namespace {

constexpr int kTurnMs = 2000;

std::string MadeFolder(const std::string& folder) {
    std::error_code ignored;
    std::filesystem::create_directories(folder, ignored);
    return folder;
}

std::string SettingsFile(const std::string& folder) {
    return folder + "/settings.json";
}

}  // namespace

Watch::Watch(const std::string& folder)
    : folder_(MadeFolder(folder)),
      settings_(Settings::Read(SettingsFile(folder_))),
      traffic_(folder_ + "/ais.db", UtcNow()),
      services_(traffic_, [this](const CardFacts& facts) { ShowCard(facts); }),
      ships_(traffic_),
      feed_(traffic_, UtcNow) {
    bindings_.Keep(Interface::Offer(Interface::Bus::ShowShips, this, &Watch::OnShowShips));
    bindings_.Keep(Interface::Subscribe(Interface::Bus::OpenPreferences, this, &Watch::OnPreferences));
    bindings_.Keep(Interface::Announce(Interface::Bus::ClickFeedShip, this, &Watch::OnShipClicked));
}

Watch::~Watch() {
    Util::TimerService* timers = Util::TimerService::Current();
    if (timer_ != 0 && timers != nullptr) {
        timers->Stop(timer_);
    }
    bindings_.Withdraw();
    // Once the window system is gone it must not be touched any more.
    if (QCoreApplication::instance() != nullptr) {
        delete card_.data();
    }
}

void Watch::Start() {
    OpenInputs();
    ships_.Show(settings_.showShips, UtcNow());
    Util::TimerService* timers = Util::TimerService::Current();
    if (timer_ == 0 && timers != nullptr) {
        timer_ = timers->Start(kTurnMs, [this] { Turn(); });
    }
}

void Watch::Apply(const Settings& chosen) {
    // A source that stays is not called anew: a log would begin from its start.
    const bool otherInputs = chosen.inputs != settings_.inputs;
    settings_ = chosen;
    if (otherInputs) {
        OpenInputs();
    }
    ships_.Show(chosen.showShips, UtcNow());
}

void Watch::OpenInputs() {
    std::vector<std::pair<InputAddress, std::string>> inputs;
    for (const std::string& text : settings_.inputs) {
        if (const auto address = InputAddress::Parse(text)) {
            inputs.emplace_back(*address, text);
        }
    }
    feed_.SetInputs(inputs);
}

void Watch::Turn() {
    ships_.Draw(UtcNow());
    services_.RefreshTracks();
    RenewCard();
    TellStatus();
}

void Watch::TellStatus() const {
    const FeedStatus status = feed_.Status();
    Interface::StatusWord word;
    word.owner = "ais";
    if (status.inputs > 0) {
        QString text = Word("STATUS").arg(status.perMinute);
        if (!status.error.empty()) {
            text += " – " + QString::fromStdString(status.error);
        }
        word.text = text.toStdString();
        word.tip = Word("STATUS_TIP")
                       .arg(status.open)
                       .arg(status.inputs)
                       .arg(status.messages)
                       .arg(status.faults)
                       .toStdString();
    }
    Interface::Raise(Interface::Bus::TellStatus, &std::as_const(word));
}

void Watch::ShowCard(const CardFacts& facts) {
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr) {
        return;
    }
    if (!card_) {
        card_ = new VesselCardWindow(static_cast<QWidget*>(Core::TrvKernel::MainViewHWnd()));
    }
    card_->Show(facts);
}

void Watch::RenewCard() {
    if (card_ && card_->isVisible()) {
        card_->Renew(services_.Renewed(card_->Told()));
    }
}

void Watch::OnPreferences(Interface::PreferencePages& pages) {
    auto* page = new InputsPage(pages.parent, settings_);
    pages.pages.push_back({Word("TITLE").toStdString(), page, [page] { return page->Fault().toStdString(); },
                           [this, page] {
                               const Settings chosen = page->Chosen();
                               if (chosen != settings_) {
                                   chosen.Write(SettingsFile(folder_));
                                   Apply(chosen);
                               }
                           }});
}

const bool* Watch::OnShowShips(const bool* shown) {
    if (shown != nullptr && *shown != settings_.showShips) {
        settings_.showShips = *shown;
        settings_.Write(SettingsFile(folder_));
        ships_.Show(*shown, UtcNow());
    }
    shownAnswer_ = settings_.showShips;
    return &shownAnswer_;
}

const char* Watch::OnShipClicked(const std::string& id) {
    std::uint32_t mmsi = 0;
    std::from_chars(id.data(), id.data() + id.size(), mmsi);
    const QPoint cursor =
        qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr ? QCursor::pos() : QPoint();
    return services_.ShowHeard(mmsi, cursor.x(), cursor.y()) ? nullptr : "-2";
}

}  // namespace Tarvik::Ais
