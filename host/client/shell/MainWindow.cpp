// SPDX-License-Identifier: MIT
#include "host/client/shell/MainWindow.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QShortcut>
#include <QStatusBar>
#include <algorithm>
#include <string_view>
#include <utility>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/bus/PlacesContract.h>
#include <tarvik/bus/SiblingContract.h>
#include <tarvik/bus/VoyageContract.h>
#include <tarvik/skin/WindowMessages.h>
#include <tarvik/skin/WindowPlace.h>

#include "host/client/shell/HelpWindow.h"
#include "host/client/shell/LoginDialog.h"

namespace Tarvik::Client {

using Interface::PanelCode::kDistances;
using Interface::PanelCode::kFleet;
using Interface::PanelCode::kOwnPorts;
using Interface::PanelCode::kVoyages;

namespace {

constexpr QSize kUsualSize(1280, 800);

}  // namespace

MainWindow::MainWindow(ClientSession& session)
    : session_(session),
      chart_(session),
      tools_(*this, Tools()),
      status_(*statusBar(), session),
      ownPorts_(*this, session) {
    setObjectName("mainWindow");
    resize(kUsualSize);
    connect(new QShortcut(QKeySequence("Ctrl+G"), this), &QShortcut::activated, this,
            [this] { ChartCommand("goto"); });
    connect(new QShortcut(QKeySequence::Quit, this), &QShortcut::activated, this, [this] { close(); });
    for (const auto& [key, step] :
         {std::pair(QKeySequence("F6"), 1), std::pair(QKeySequence("Shift+F6"), -1)}) {
        auto* turn = new QShortcut(key, this);
        turn->setContext(Qt::ApplicationShortcut);
        connect(turn, &QShortcut::activated, this, [this, turnBy = step] { NextWindow(turnBy); });
    }
    ApplyTexts();
    ApplyTheme();
    session_.SetAsker([this](const std::string& server, const std::string& user, const std::string& failure) {
        return AskLogin(server, user, failure);
    });
    session_.Services().Watch().OnChange([this] { ShowConnection(); });
}

MainWindow::~MainWindow() {
    session_.SetAsker({});
    session_.Services().Watch().OnChange({});
}

QString MainWindow::Word(const char* key) const {
    return QString::fromStdString(session_.Texts().Text("Client", key));
}

QString MainWindow::ToolWord(const char* key) const {
    const Language* next = session_.Texts().Next();
    const QString name = next == nullptr ? QString() : QString::fromStdString(next->name);
    // The button that changes the language is named by the next one, in its own words.
    return std::string_view(key) == "LANGUAGE" ? name : Word(key).replace("%1", name);
}

std::vector<MainTools::Tool> MainWindow::Tools() {
    return {
        {"VOYAGES", "voyages", "Ctrl+L", [this] { TogglePanel(kVoyages); }},
        {"DISTANCES", "distances", "Ctrl+D", [this] { TogglePanel(kDistances); }, true},
        {"SHIPS", "ships", "Ctrl+H", [] { ToggleShips(); }},
        {"FLEET", "fleet", "Ctrl+E", [this] { TogglePanel(kFleet); }},
        {"PORTS", "ports", "Ctrl+P", [this] { TogglePanel(kOwnPorts); }, true},
        {"ZOOM_IN", "zoomin", "Ctrl++", [this] { ChartCommand("zoomin"); }},
        {"ZOOM_OUT", "zoomout", "Ctrl+-", [this] { ChartCommand("zoomout"); }},
        {"FIT", "fit", "Ctrl+0", [this] { ChartCommand("fit"); }, true},
        {"THEME", "theme", "Ctrl+T", [this] { NextTheme(); }},
        {"LANGUAGE", "language", "Ctrl+Shift+G", [this] { NextLanguage(); }},
        {"PREFERENCES", "preferences", "Ctrl+,", [this] { OpenPreferences(); }},
        {"LOGOUT", "logout", "Ctrl+Shift+Q", [this] { LogOut(); }},
    };
}

void MainWindow::ApplyTexts() {
    setWindowTitle(Word("TITLE"));
    tools_.ApplyTexts([this](const char* key) { return ToolWord(key); });
    ShowConnection();
    status_.ApplyTexts();
    if (help_ != nullptr) {
        help_->Load(session_.Texts().Code());
    }
    if (centralWidget()) {
        centralWidget()->setAccessibleName(Word("CHART_NAME"));
    }
}

void MainWindow::ShowConnection() {
    status_.ShowConnection();
    QAction* logout = tools_.Action("LOGOUT");
    logout->setVisible(session_.IsRemote());
}

std::optional<Credentials> MainWindow::AskLogin(const std::string& server, const std::string& user,
                                                const std::string& failure) {
    LoginDialog dialog(this, session_.Texts(), QString::fromStdString(server), QString::fromStdString(user),
                       QString::fromStdString(failure));
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return Credentials{dialog.User().toStdString(), dialog.Password().toStdString()};
}

void MainWindow::AttachPlugins() {
    tools_.Action("DISTANCES")->setVisible(Interface::IsOffered(Interface::Bus::AddPortName));
    tools_.Action("SHIPS")->setVisible(Interface::IsOffered(Interface::Bus::ShowShips));
    tools_.Action("FLEET")->setVisible(Interface::IsOffered(Interface::Bus::AllVessels));
    AttachChart();
}

void MainWindow::AttachChart() {
    QWidget* chart = chart_.Open();
    if (!chart) {
        auto* gap = new QLabel(Word("NO_CHART"), this);
        gap->setObjectName("noChart");
        gap->setAlignment(Qt::AlignCenter);
        return setCentralWidget(gap);
    }
    setCentralWidget(chart);
    chart->setAccessibleName(Word("CHART_NAME"));
    chart->setFocus();
}

void MainWindow::TakePlace(const QRect& room) {
    if (const std::optional<Skin::WindowPlace> kept = Skin::KeptPlace(objectName())) {
        const QSize size =
            kept->floating.size().boundedTo(room.size() - kFrame).expandedTo(minimumSizeHint());
        setGeometry(Skin::KeptOnScreen({kept->floating.topLeft(), size}));
        if (kept->dock == Skin::Dock::Whole) {
            setWindowState(Qt::WindowMaximized);
        }
        return;
    }
    // A frame has its place too, above and at the sides.
    const QSize most = room.size() - kFrame;
    if (kUsualSize.width() > most.width() || kUsualSize.height() > most.height()) {
        resize(kUsualSize.boundedTo(most));
        move(room.topLeft());
    }
}

void MainWindow::TogglePanel(int panel) {
    const Interface::PanelShow show{panel, 0};
    Interface::Raise(Interface::Bus::ShowPanel, &show);
}

bool MainWindow::ChartCommand(const std::string& command) {
    return chart_.Command(command);
}

void MainWindow::ToggleShips() {
    const bool* shown = Interface::Call(Interface::Bus::ShowShips, nullptr);
    if (shown) {
        const bool other = !*shown;
        Interface::Call(Interface::Bus::ShowShips, &other);
    }
}

void MainWindow::NextWindow(int step) {
    QList<QWidget*> windows{this};
    for (QWidget* child : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        const auto kind = child->windowType();
        if ((kind == Qt::Tool || kind == Qt::Dialog) && child->isVisible()) {
            windows.append(child);
        }
    }
    const qsizetype at = windows.indexOf(QApplication::activeWindow());
    QWidget* next = windows[(std::max<qsizetype>(at, 0) + step + windows.size()) % windows.size()];
    next->raise();
    next->activateWindow();
}

bool MainWindow::ClosePanels() {
    const auto children = findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    return std::all_of(children.rbegin(), children.rend(), [](QWidget* child) {
        return !child->isWindow() || !child->isVisible() || child->close();
    });
}

/// No shortcut: those of this window count in its floating panels too, where F1 is the panel's own.
void MainWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_F1) {
        return QMainWindow::keyPressEvent(event);
    }
    ShowHelp("GENERAL");
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!ClosePanels()) {
        return event->ignore();
    }
    Skin::KeepPlace(objectName(), {normalGeometry(), isMaximized() ? Skin::Dock::Whole : Skin::Dock::None});
    QMainWindow::closeEvent(event);
}

void MainWindow::LogOut() {
    if (ClosePanels()) {
        session_.LogOut();
    }
}

bool MainWindow::event(QEvent* event) {
    if (event->type() != static_cast<QEvent::Type>(Skin::WindowMessage::kHelp)) {
        return QMainWindow::event(event);
    }
    const auto& block = static_cast<Skin::HelpRequestEvent*>(event)->block;
    ShowHelp(QString::fromUtf8(block.topic));
    return true;
}

void MainWindow::ShowHelp(const QString& topic) {
    if (help_ == nullptr) {
        help_ = new HelpWindow(
            this, [this](const char* key) { return Word(key); }, session_.Folders().Guide());
        help_->Load(session_.Texts().Code());
    }
    help_->ShowTopic(topic);
}

}  // namespace Tarvik::Client
