// SPDX-License-Identifier: MIT
#include "host/client/shell/FirstStart.h"

#include <array>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/HostContract.h>

#include "host/client/plan/PlanCommand.h"
#include "host/client/shell/ClientBox.h"
#include "host/client/shell/MainWindow.h"

namespace Tarvik::Client {

namespace {

/// A call of the sample voyage: the port's UN/LOCODE and the hours there.
struct SampleCall {
    const char* code;
    double stay;
};
constexpr std::array kSampleCalls = {SampleCall{"NLRTM", 24}, SampleCall{"SGSIN", 24},
                                     SampleCall{"CNSHA", 0}};
constexpr double kSampleSpeed = 14;

PlanArguments SampleArguments(const std::string& category, const std::string& voyage) {
    PlanArguments sample;
    for (const SampleCall& call : kSampleCalls) {
        sample.ports.emplace_back(call.code);
        sample.purposes.emplace_back();
        sample.stays.push_back(call.stay);
    }
    sample.speed = kSampleSpeed;
    sample.saveCategory = category;
    sample.saveVoyage = voyage;
    return sample;
}

}  // namespace

FirstStart::FirstStart(MainWindow& window, ClientSession& session) : window_(window), session_(session) {}

QString FirstStart::Word(const char* key) const {
    return QString::fromStdString(session_.Texts().Text("Client", key));
}

void FirstStart::Offer() {
    if (!session_.Preferred().firstStart || session_.IsRemote() || window_.centralWidget() == nullptr) {
        return;
    }
    // Kept at once, since from now on the folder looks like one in which a person has begun.
    session_.Keep([](Preferences& kept) { kept.firstStart = true; });
    card_ = new FirstStartCard(window_.centralWidget());
    const auto texts = [this] {
        if (card_) {
            card_->ApplyTexts([this](const char* key) { return Word(key); });
        }
    };
    texts();
    bindings_.Keep(Interface::Subscribe(Interface::Bus::SwitchLanguage, texts));
    QObject::connect(card_, &FirstStartCard::Chosen, card_, [this](FirstChoice choice) { Choose(choice); });
    card_->show();
}

void FirstStart::Choose(FirstChoice choice) {
    bool done = true;
    if (choice == FirstChoice::Sample) {
        done = PlanSample();
    } else if (choice == FirstChoice::Connect) {
        window_.OpenPreferences(true);
        done = session_.IsRemote();
    }
    if (!done) {
        return;
    }
    session_.Keep([](Preferences& kept) { kept.firstStart = false; });
    if (card_) {
        card_->hide();
        card_->deleteLater();
    }
    if (choice == FirstChoice::Sample) {
        window_.TogglePanel(Interface::PanelCode::kVoyages);
        window_.ChartCommand("fit");
    }
}

bool FirstStart::PlanSample() {
    Interface::PlanRequest request;
    PlanOutcome outcome = MakePlanRequest(
        SampleArguments(Word("FIRST_CATEGORY").toStdString(), Word("FIRST_VOYAGE").toStdString()),
        PortLookup(session_.Ports()), session_.Services().TimeZone(), request);
    if (outcome.exitCode == kExitDone) {
        const Interface::PlanResult* plan = nullptr;
        outcome = CallPlanService(request, plan, &session_.Services());
    }
    if (outcome.exitCode != kExitDone) {
        TellFault(&window_, session_.Texts(), QString::fromStdString(outcome.message));
    }
    return outcome.exitCode == kExitDone;
}

}  // namespace Tarvik::Client
