// SPDX-License-Identifier: MIT
#include "host/plugins/fleet/window/FleetDesk.h"

#include <QApplication>
#include <QFileDialog>
#include <fstream>
#include <iterator>
#include <utility>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/bus/SiblingContract.h>
#include <tarvik/core/TrvKernel.h>

#include "host/plugins/fleet/store/FleetImport.h"
#include "host/plugins/fleet/window/Words.h"

namespace Tarvik::Fleet {

namespace {

namespace Bus = Interface::Bus;

constexpr std::size_t kMostLinesTold = 5;
constexpr QPoint kFirstPlace{120, 80};  ///< of the list in the main window, pixels

bool HasWindows() {
    return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

QWidget* MainWindow() {
    return static_cast<QWidget*>(Core::TrvKernel::MainViewHWnd());
}

QString WhyOf(const LeftOut& left) {
    const auto* fault = std::get_if<Fault>(&left.why);
    return fault != nullptr ? Word(KeyOf(*fault)) : WordOf(std::get<Outcome>(left.why));
}

QString Told(const ImportReport& report) {
    QString text = Word("IMPORTED").arg(report.added).arg(report.changed).arg(report.same);
    for (std::size_t i = 0; i < std::min(report.leftOut.size(), kMostLinesTold); ++i) {
        text += '\n' + Word("LINE").arg(report.leftOut[i].line).arg(WhyOf(report.leftOut[i]));
    }
    if (report.leftOut.size() > kMostLinesTold) {
        text += '\n' + Word("MORE_LINES").arg(report.leftOut.size() - kMostLinesTold);
    }
    return text;
}

}  // namespace

FleetDesk::FleetDesk() {
    bindings_.Keep(Interface::Offer(Bus::AllVessels, this, &FleetDesk::OnAll));
    bindings_.Keep(Interface::Offer(Bus::VesselDetails, this, &FleetDesk::OnDetails));
    bindings_.Keep(Interface::Offer(Bus::ShowAddVessel, this, &FleetDesk::OnShowAdd));
    bindings_.Keep(Interface::Subscribe(Bus::ShowPanel, this, &FleetDesk::OnShowPanel));
    bindings_.Keep(Interface::Subscribe(Bus::SwitchLanguage, [this] { OnLanguage(); }));
    bindings_.Keep(Interface::Subscribe(Bus::Logout, [this] { OnLogout(); }));
}

FleetDesk::~FleetDesk() {
    bindings_.Withdraw();
    // Once the window system is gone they must not be touched any more.
    if (QCoreApplication::instance() != nullptr) {
        delete form_.data();
        delete list_.data();
    }
}

const std::vector<Interface::FleetEntry>* FleetDesk::OnAll() {
    entries_.clear();
    for (const Interface::FleetVessel& vessel : store_.Vessels()) {
        entries_.push_back({vessel.id, vessel.name, vessel.mmsi});
    }
    return &entries_;
}

const Interface::FleetVessel* FleetDesk::OnDetails(const std::string& id) {
    return store_.Find(id);
}

void* const* FleetDesk::OnShowAdd(const Interface::FleetEntry& entry) {
    if (!HasWindows()) {
        return nullptr;
    }
    Interface::FleetVessel vessel;
    vessel.name = entry.name;
    vessel.mmsi = entry.number;
    QWidget* window = &Form();
    Form().Open(vessel);
    formHandle_ = window;
    return &formHandle_;
}

void FleetDesk::OnShowPanel(const Interface::PanelShow& show) {
    if (show.panel != Interface::PanelCode::kFleet || !HasWindows()) {
        return;
    }
    if (list_ && list_->isVisible()) {
        return list_->hide();
    }
    const bool answered = store_.Reload();
    Refresh();
    List().Tell(answered ? QString() : Word("NOT_LOADED"));
    List().show();
    List().raise();
    List().activateWindow();
}

void FleetDesk::OnLanguage() {
    if (list_) {
        list_->ApplyTexts();
    }
    if (form_) {
        form_->ApplyTexts();
    }
}

void FleetDesk::OnLogout() {
    store_.Forget();
    if (form_) {
        form_->hide();
        form_->Open({});
    }
    if (list_) {
        list_->hide();
        list_->ShowVessels({});
    }
}

FleetWindow& FleetDesk::List() {
    if (!list_) {
        list_ = new FleetWindow(MainWindow(),
                                {[this] { OpenForm({}); }, [this](const std::string& id) { Change(id); },
                                 [this](const std::string& id) { Remove(id); }, [this] { ChooseFile(); }});
        if (const QWidget* main = MainWindow()) {
            list_->move(main->mapToGlobal(kFirstPlace));
        }
    }
    return *list_;
}

VesselForm& FleetDesk::Form() {
    if (!form_) {
        form_ = new VesselForm(
            MainWindow(), [this](Interface::FleetVessel vessel) { return Save(std::move(vessel)); },
            [this] {
                // The keyboard goes back to where the vessel was chosen.
                if (list_ && list_->isVisible()) {
                    list_->activateWindow();
                }
            });
    }
    return *form_;
}

void FleetDesk::OpenForm(const Interface::FleetVessel& vessel) {
    if (!Form().MayGo()) {
        return;
    }
    Form().Open(vessel);
    Form().move(List().geometry().center() - Form().rect().center());
    Form().show();
    Form().raise();
    Form().activateWindow();
}

QString FleetDesk::Save(Interface::FleetVessel vessel) {
    if (const Interface::FleetVessel* other = store_.WithSameNumber(vessel)) {
        const QString name = QString::fromStdString(other->name);
        if (!Agreed(Word("TWICE").arg(name), &Form())) {
            return Word("NOT_TWICE").arg(name);
        }
    }
    const bool isNew = vessel.id.empty();
    const Outcome outcome = store_.Change(isNew ? Operation::Add : Operation::Set, vessel);
    Refresh();
    return WordOf(outcome);
}

void FleetDesk::Change(const std::string& id) {
    if (const Interface::FleetVessel* vessel = store_.Find(id)) {
        OpenForm(*vessel);
    }
}

void FleetDesk::Remove(const std::string& id) {
    const Interface::FleetVessel* found = store_.Find(id);
    if (found == nullptr) {
        return;
    }
    Interface::FleetVessel vessel = *found;
    if (!Agreed(Word("REMOVE_QUESTION").arg(QString::fromStdString(vessel.name)), &List())) {
        return;
    }
    const Outcome outcome = store_.Change(Operation::Remove, vessel);
    if (outcome == Outcome::Gone) {
        store_.Reload();
    }
    Refresh();
    List().Tell(WordOf(outcome));
}

void FleetDesk::ChooseFile() {
    const QString file = QFileDialog::getOpenFileName(list_, Word("IMPORT_TITLE"), {}, Word("CSV_FILES"));
    if (!file.isEmpty()) {
        Import(file.toStdString());
    }
}

void FleetDesk::Import(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(in), {}};
    if (!in) {
        return List().Tell(Word("FILE_UNREADABLE").arg(QString::fromStdString(file)));
    }
    const auto report = ImportVessels(store_, text);
    Refresh();
    List().Tell(report ? Told(*report) : Word("FILE_WITHOUT_NAMES"));
}

void FleetDesk::Refresh() {
    if (HasWindows()) {
        List().ShowVessels(store_.Vessels());
    }
}

}  // namespace Tarvik::Fleet
