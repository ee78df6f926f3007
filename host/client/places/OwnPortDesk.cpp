// SPDX-License-Identifier: MIT
#include "host/client/places/OwnPortDesk.h"

#include <algorithm>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/bus/PlacesContract.h>

#include "host/client/places/Words.h"

namespace Tarvik::Client {

namespace {

namespace Bus = Interface::Bus;

constexpr QPoint kFirstPlace{160, 110};  ///< of the list in the main window, pixels

}  // namespace

OwnPortDesk::OwnPortDesk(QWidget& mainWindow, ClientSession& session)
    : mainWindow_(mainWindow), session_(session) {
    bindings_.Keep(Interface::Offer(Bus::AddOwnPort, [this](const Interface::OwnPortPlace& at) {
        Ports::Place port;
        port.position = Server::GeoPoint{at.longitude, at.latitude};
        OpenForm(port);
    }));
    bindings_.Keep(Interface::Offer(Bus::ChangeOwnPort, [this](const std::string& id) { Change(id); }));
    bindings_.Keep(Interface::Offer(Bus::RemoveOwnPort, [this](const std::string& id) { Remove(id); }));
    bindings_.Keep(Interface::Subscribe(Bus::ShowPanel, this, &OwnPortDesk::OnShowPanel));
    bindings_.Keep(Interface::Subscribe(Bus::PortsChanged, [this] { Refresh(); }));
    bindings_.Keep(Interface::Subscribe(Bus::SwitchLanguage, [this] { OnLanguage(); }));
    bindings_.Keep(Interface::Subscribe(Bus::Logout, [this] { OnLogout(); }));
}

OwnPortDesk::~OwnPortDesk() {
    bindings_.Withdraw();
    delete form_.data();
    delete list_.data();
}

void OwnPortDesk::OnShowPanel(const Interface::PanelShow& show) {
    if (show.panel != Interface::PanelCode::kOwnPorts) {
        return;
    }
    if (list_ && list_->isVisible()) {
        return list_->hide();
    }
    const bool answered = session_.OwnPorts().Load(session_.Link());
    const bool known = !session_.Services().User().empty();
    ShowList();
    List().Tell(!known ? PortWord("NO_USER") : answered ? QString() : PortWord("NOT_LOADED"));
}

void OwnPortDesk::ShowList() {
    List().ShowPorts(session_.OwnPorts().All());
    List().show();
    List().raise();
    List().activateWindow();
}

void OwnPortDesk::TellOutcome(PortOutcome outcome) {
    const bool isSeen = list_ && list_->isVisible();
    if (!isSeen && outcome == PortOutcome::Done) {
        return;
    }
    if (!isSeen) {
        ShowList();
    }
    List().Tell(WordOf(outcome));
}

void OwnPortDesk::OnLanguage() {
    if (list_) {
        list_->ApplyTexts();
    }
    if (form_) {
        form_->ApplyTexts();
    }
}

void OwnPortDesk::OnLogout() {
    if (form_) {
        form_->hide();
        form_->Open({});
    }
    if (list_) {
        list_->hide();
        list_->ShowPorts({});
    }
}

OwnPortWindow& OwnPortDesk::List() {
    if (!list_) {
        list_ = new OwnPortWindow(&mainWindow_,
                                  {[this] { OpenForm({}); }, [this](const std::string& id) { Change(id); },
                                   [this](const std::string& id) { Remove(id); }});
        list_->move(mainWindow_.mapToGlobal(kFirstPlace));
    }
    return *list_;
}

OwnPortForm& OwnPortDesk::Form() {
    if (!form_) {
        form_ = new OwnPortForm(&mainWindow_, {[this](const OwnPortDraft& draft, const std::string& id) {
                                                   return draft.Check(session_.Ports(),
                                                                      session_.OwnPorts().All(), id);
                                               },
                                               [this](const Ports::Place& port) { return Save(port); },
                                               [this] {
                                                   // The keyboard goes back to where the port was chosen.
                                                   if (list_ && list_->isVisible()) {
                                                       list_->activateWindow();
                                                   }
                                               }});
    }
    return *form_;
}

void OwnPortDesk::OpenForm(const Ports::Place& port) {
    if (!Form().MayGo()) {
        return;
    }
    const bool overList = list_ && list_->isVisible();
    const QWidget& below = overList ? static_cast<const QWidget&>(*list_) : mainWindow_;
    Form().Open(port);
    Form().move(below.mapToGlobal(below.rect().center()) - Form().rect().center());
    Form().show();
    Form().raise();
    Form().activateWindow();
}

const Ports::Place* OwnPortDesk::Find(const std::string& id) const {
    const auto& own = session_.OwnPorts().All();
    const auto found =
        std::find_if(own.begin(), own.end(), [&id](const Ports::Place& port) { return port.id == id; });
    return found == own.end() ? nullptr : &*found;
}

void OwnPortDesk::Change(const std::string& id) {
    if (const Ports::Place* port = Find(id)) {
        OpenForm(*port);
    }
}

void OwnPortDesk::Remove(const std::string& id) {
    const Ports::Place* found = Find(id);
    if (found == nullptr) {
        return;
    }
    const Ports::Place port = *found;
    const QString question = PortWord("REMOVE_PORT").arg(QString::fromStdString(port.name));
    const bool overList = list_ && list_->isVisible();
    if (Skin::Agreed(question, overList ? list_.data() : &mainWindow_)) {
        TellOutcome(session_.OwnPorts().Change(session_.Link(), PortOperation::Remove, port));
    }
}

QString OwnPortDesk::Save(const Ports::Place& port) {
    const auto operation = port.id.empty() ? PortOperation::Add : PortOperation::Change;
    const PortOutcome outcome = session_.OwnPorts().Change(session_.Link(), operation, port);
    if (outcome == PortOutcome::NotLoaded) {
        // It is saved: a second try would add it twice.
        TellOutcome(outcome);
        return {};
    }
    return WordOf(outcome);
}

void OwnPortDesk::Refresh() {
    if (list_) {
        list_->ShowPorts(session_.OwnPorts().All());
    }
}

}  // namespace Tarvik::Client
