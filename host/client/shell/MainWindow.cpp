// SPDX-License-Identifier: MIT
#include "host/client/shell/MainWindow.h"

#include <QAction>
#include <QCloseEvent>
#include <QLabel>
#include <QMessageBox>
#include <QShortcut>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>

#include <tarvik/bus/ChartContract.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/bus/VoyageContract.h>
#include <tarvik/skin/HelpRequest.h>
#include <tarvik/skin/Icons.h>

#include "host/client/shell/LoginDialog.h"
#include "host/client/shell/PreferencesDialog.h"
#include "host/client/shell/Theme.h"
#include "host/geo/GeoPoint.h"

namespace Tarvik::Client {

namespace {

constexpr int kVoyagePanel = 3;
constexpr int kDistancePanel = 21;

}  // namespace

MainWindow::MainWindow(ClientSession& session) : session_(session) {
    setObjectName("mainWindow");
    resize(1280, 800);
    BuildTools();
    BuildStatusLine();
    ApplyTexts();
    ApplyTheme();
    session_.SetAsker([this](const std::string& server, const std::string& user, const std::string& failure) {
        return AskLogin(server, user, failure);
    });
    session_.Services().OnConnectionChange([this] { ShowConnection(); });
    cursorMoves_ = Interface::Subscribe(Interface::Bus::ChartCursor, this, &MainWindow::OnCursor);
}

MainWindow::~MainWindow() {
    session_.SetAsker({});
    session_.Services().OnConnectionChange({});
    cursorMoves_.Withdraw();
}

QString MainWindow::Word(const char* key) const {
    return QString::fromStdString(session_.Texts().Text("Client", key));
}

void MainWindow::BuildTools() {
    tools_ = {
        {"VOYAGES", "voyages", "Ctrl+L", kVoyagePanel, [this] { TogglePanel(kVoyagePanel); }},
        {"DISTANCES", "distances", "Ctrl+D", kDistancePanel, [this] { TogglePanel(kDistancePanel); }},
        {"ZOOM_IN", "zoomin", "Ctrl++", 0, [this] { ChartCommand("zoomin"); }},
        {"ZOOM_OUT", "zoomout", "Ctrl+-", 0, [this] { ChartCommand("zoomout"); }},
        {"FIT", "fit", "Ctrl+0", 0, [this] { ChartCommand("fit"); }},
        {"THEME", "theme", "Ctrl+T", 0, [this] { NextTheme(); }},
        {"LANGUAGE", "language", "Ctrl+G", 0, [this] { NextLanguage(); }},
        {"PREFERENCES", "preferences", "Ctrl+,", 0, [this] { OpenPreferences(); }},
        {"LOGOUT", "logout", "Ctrl+Shift+Q", 0, [this] { LogOut(); }},
    };
    auto* bar = addToolBar("tools");
    bar->setObjectName("mainToolBar");
    bar->setMovable(false);
    bar->setIconSize(QSize(20, 20));
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    for (Tool& tool : tools_) {
        tool.action = bar->addAction(QString());
        tool.action->setObjectName(QString("action_") + tool.icon);
        tool.action->setShortcut(QKeySequence(tool.shortcut));
        connect(tool.action, &QAction::triggered, this, tool.run);
        QWidget* button = bar->widgetForAction(tool.action);
        button->setObjectName(QString("button_") + tool.icon);
        button->setFocusPolicy(Qt::TabFocus);
        if (tool.icon == std::string("distances") || tool.icon == std::string("fit")) {
            bar->addSeparator();
        }
    }
    connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, this,
            [this] { ShowHelp("GENERAL", 370); });
    connect(new QShortcut(QKeySequence::Quit, this), &QShortcut::activated, this, [this] { close(); });
}

void MainWindow::BuildStatusLine() {
    QStatusBar* line = statusBar();
    line->setObjectName("statusLine");
    line->setSizeGripEnabled(false);
    const auto label = [this](const char* name) {
        auto* made = new QLabel(this);
        made->setObjectName(name);
        return made;
    };
    user_ = label("user");
    connection_ = label("connection");
    cursor_ = label("cursorPosition");
    zone_ = label("timeZone");
    cursor_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    line->addWidget(user_);
    line->addWidget(connection_);
    line->addPermanentWidget(cursor_);
    line->addPermanentWidget(zone_);
}

void MainWindow::ApplyTexts() {
    setWindowTitle(Word("TITLE"));
    for (const Tool& tool : tools_) {
        const QString tip = Word((std::string(tool.key) + "_TIP").c_str());
        tool.action->setText(Word(tool.key));
        tool.action->setToolTip(tip);
        tool.action->setStatusTip(QString());
        if (auto* bar = findChild<QToolBar*>("mainToolBar")) {
            QWidget* button = bar->widgetForAction(tool.action);
            button->setAccessibleName(Word(tool.key));
            button->setAccessibleDescription(tip);
        }
    }
    findChild<QToolBar*>("mainToolBar")->setAccessibleName(Word("TOOLBAR_NAME"));
    ShowConnection();
    zone_->setText(QString::fromStdString(session_.Preferred().timeZone));
    if (!cursorKnown_) {
        cursor_->setText(Word("NO_POSITION"));
    }
    const std::pair<QLabel*, const char*> labels[] = {{user_, "USER_NAME"},
                                                      {connection_, "CONNECTION_NAME"},
                                                      {cursor_, "CURSOR_NAME"},
                                                      {zone_, "ZONE_NAME"}};
    for (const auto& [shown, key] : labels) {
        shown->setAccessibleName(Word(key));
        shown->setToolTip(Word(key));
    }
    if (centralWidget()) {
        centralWidget()->setAccessibleName(Word("CHART_NAME"));
    }
}

void MainWindow::ShowConnection() {
    const QString user = QString::fromStdString(session_.Services().User());
    user_->setText(!session_.IsRemote() ? Word("LOCAL_USER") : user.isEmpty() ? Word("NOBODY") : user);
    const bool connected = session_.Link().IsConnected();
    connection_->setText(Word(connected ? "CONNECTED" : "OFFLINE"));
    if (auto* logout = findChild<QAction*>("action_logout")) {
        logout->setVisible(session_.IsRemote());
        logout->setEnabled(connected);
    }
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

void MainWindow::ApplyTheme() {
    const Skin::Theme theme = Skin::ThemeNamed(session_.Preferred().theme);
    Client::ApplyTheme(theme);
    for (const Tool& tool : tools_) {
        tool.action->setIcon(Skin::MakeIcon(std::string(":/tarvik/icons/") + tool.icon + ".svg", {20, 40}));
    }
    ChartCommand("theme " + std::string(Skin::ThemeName(theme)));
}

void MainWindow::AttachPlugins() {
    for (const Tool& tool : tools_) {
        if (tool.panel == kDistancePanel) {
            tool.action->setVisible(Interface::IsOffered(Interface::Bus::AddPortName));
        }
    }
    AttachChart();
}

void MainWindow::AttachChart() {
    QWidget* chart = Interface::Call(Interface::Bus::ChartWindow);
    if (!chart) {
        auto* gap = new QLabel(Word("NO_CHART"), this);
        gap->setObjectName("noChart");
        gap->setAlignment(Qt::AlignCenter);
        return setCentralWidget(gap);
    }
    setCentralWidget(chart);
    chart->setAccessibleName(Word("CHART_NAME"));
    ChartCommand("theme " + session_.Preferred().theme);
    chart->setFocus();
}

void MainWindow::TogglePanel(int panel) {
    const Interface::PanelShow show{panel, 0};
    Interface::Raise(Interface::Bus::ShowPanel, &show);
}

bool MainWindow::ChartCommand(const std::string& command) {
    return Interface::IsOffered(Interface::Bus::ChartCommand) &&
           Interface::Call(Interface::Bus::ChartCommand, &command) != nullptr;
}

void MainWindow::Prefer(const Preferences& preferences) {
    std::string error;
    const bool kept = session_.Prefer(preferences, error);
    ApplyTexts();
    ApplyTheme();
    if (!kept) {
        QMessageBox::warning(this, Word("TITLE"), QString::fromStdString(error));
    }
}

void MainWindow::NextTheme() {
    Preferences preferences = session_.Preferred();
    preferences.theme = Skin::ThemeName(Skin::NextTheme(Skin::ThemeNamed(preferences.theme)));
    Prefer(preferences);
}

void MainWindow::NextLanguage() {
    Preferences preferences = session_.Preferred();
    const std::vector<std::string> codes = LanguageCodes(session_.Texts().Offered());
    if (codes.empty()) {
        return;
    }
    const auto at = std::find(codes.begin(), codes.end(), preferences.language);
    preferences.language = at == codes.end() || at + 1 == codes.end() ? codes.front() : *(at + 1);
    Prefer(preferences);
}

void MainWindow::OpenPreferences() {
    PreferencesDialog dialog(this, session_.Texts(), session_.Preferred());
    if (dialog.exec() == QDialog::Accepted) {
        Prefer(dialog.Chosen());
    }
}

bool MainWindow::ClosePanels() {
    const auto children = findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    return std::all_of(children.rbegin(), children.rend(), [](QWidget* child) {
        return !child->isWindow() || !child->isVisible() || child->close();
    });
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!ClosePanels()) {
        return event->ignore();
    }
    QMainWindow::closeEvent(event);
}

void MainWindow::LogOut() {
    if (ClosePanels()) {
        session_.Services().LogOut();
    }
}

bool MainWindow::event(QEvent* event) {
    if (event->type() != static_cast<QEvent::Type>(Seaplan::HelpRequestEvent::kType)) {
        return QMainWindow::event(event);
    }
    const auto& block = static_cast<Seaplan::HelpRequestEvent*>(event)->block;
    ShowHelp(QString::fromUtf8(block.topic), block.width);
    return true;
}

void MainWindow::ShowHelp(const QString& topic, int width) {
    const QByteArray key = "HELP_" + topic.toUtf8();
    const QString text = Word(key.constData());
    auto* box =
        new QMessageBox(QMessageBox::NoIcon, Word("HELP_TITLE"),
                        text == QString::fromUtf8(key) ? Word("HELP_GENERAL") : text, QMessageBox::Ok, this);
    box->setObjectName("help");
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setModal(false);
    box->setMinimumWidth(width);
    box->button(QMessageBox::Ok)->setText(Word("OK"));
    box->show();
}

void MainWindow::OnCursor(const Interface::ChartPlace& place) {
    cursorKnown_ = true;
    cursor_->setText(QString::fromStdString(Server::FormatPosition({place.longitude, place.latitude})));
}

}  // namespace Tarvik::Client
