// SPDX-License-Identifier: MIT
/// Walks through every window of the client on a display, with the plug-ins and a sample voyage, and says
/// what a person would see wrong in one. For scripts/walk_windows.sh, which gives it screens, scales, window
/// managers and looks.
///
///     window-walk DATA-FOLDER PICTURES-FOLDER [THEME] [LANGUAGE]
///
/// Prints a line a fault, and the windows that it has seen. Exit: 0 none, 1 some, 2 the walk could not be
/// made.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QPointer>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>
#include <set>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/interface/SysMsgSink.h>

#include "host/client/shell/Desk.h"
#include "host/client/shell/FirstStart.h"
#include "host/client/shell/QtServices.h"
#include "host/client/shell/Runs.h"
#include "tests/windows/WindowFaults.h"

namespace Tarvik::WindowTesting {

namespace {

class Walk {
  public:
    Walk(Client::Desk& desk, Client::FirstStart& first, QString pictures)
        : desk_(desk), first_(first), pictures_(std::move(pictures)) {}

    int Run() {
        // A question that nothing here expects would wait for its answer for ever.
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, &Main(), [this] { CloseUnexpected(); });
        watch.start(5 * kPatienceMs);
        Begin();
        Voyages();
        PortCalls();
        Book();
        Distances();
        Lists();
        Chart();
        Dialogs();
        for (const QString& fault : faults_) {
            std::printf("%s\n", qPrintable(fault));
        }
        std::printf("window-walk: %zu windows seen, %lld faults\n", seen_.size(),
                    static_cast<long long>(faults_.size()));
        if (!missed_.isEmpty()) {
            std::printf("window-walk: not met: %s\n", qPrintable(missed_.join(u' ')));
            return 2;
        }
        return faults_.isEmpty() ? 0 : 1;
    }

  private:
    QWidget& Main() { return desk_.Window(); }

    static QWidget* Shown(const char* name) {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && window->objectName() == QLatin1StringView(name)) {
                return window;
            }
        }
        return nullptr;
    }
    /// A window, or a part of one.
    static bool IsInSight(const char* name) {
        const QWidgetList all = QApplication::allWidgets();
        return std::any_of(all.begin(), all.end(), [name](const QWidget* widget) {
            return widget->isVisible() && widget->objectName() == QLatin1StringView(name);
        });
    }
    template <class Control = QWidget>
    Control* Find(const char* window, const char* name) {
        QWidget* shown = Shown(window);
        return shown == nullptr ? nullptr : shown->findChild<Control*>(QLatin1StringView(name));
    }

    /// Everything in sight; the windows with these names must be there.
    void Look(std::initializer_list<const char*> expected) {
        Client::SettleWindows();
        for (const char* name : expected) {
            if (!QTest::qWaitFor([name] { return IsInSight(name); }, kMostMs)) {
                missed_ << QLatin1StringView(name);
            }
        }
        for (QWidget* window : QApplication::topLevelWidgets()) {
            const auto kind = window->windowType();
            if (!window->isVisible() || kind == Qt::ToolTip || kind == Qt::Desktop) {
                continue;
            }
            QStringList faults = WindowFaults::OffScreen(*window);
            faults << WindowFaults::CutTexts(*window);
            // Once a window: to take the keyboard from an editor would end what is typed there.
            const bool first = seen_.insert(window->objectName()).second;
            if (first && window->isActiveWindow() && kind != Qt::Popup) {
                const QPointer<QWidget> before = window->focusWidget();
                faults << WindowFaults::UnseenFocus(*window);
                if (before != nullptr) {
                    before->setFocus();
                }
            }
            for (const QString& fault : faults) {
                if (!faults_.contains(fault)) {
                    faults_ << fault;
                }
            }
        }
        const QString name = QStringLiteral("%1/%2-%3.png")
                                 .arg(pictures_)
                                 .arg(++step_, 2, 10, QLatin1Char('0'))
                                 .arg(QLatin1StringView(*expected.begin()));
        Main().screen()->grabWindow(0).save(name);
    }
    /// Makes a window the one with the keyboard, as far as a window manager lets it.
    static void Activate(QWidget& window) {
        window.raise();
        window.activateWindow();
        static_cast<void>(QTest::qWaitForWindowActive(&window, kPatienceMs));
    }
    void Press(const char* window, int key, Qt::KeyboardModifiers held = {}) {
        if (QWidget* shown = Shown(window)) {
            Activate(*shown);
            QWidget* at = shown->focusWidget() == nullptr ? shown : shown->focusWidget();
            QTest::keyClick(at, static_cast<Qt::Key>(key), held);
            Client::SettleWindows();
        }
    }
    void Focus(const char* window, const char* control) {
        if (auto* found = Find(window, control)) {
            Activate(*found->window());
            found->setFocus(Qt::TabFocusReason);
        }
    }
    /// As the menu key does.
    static void AskMenu() {
        if (QWidget* at = QApplication::focusWidget()) {
            const QPoint middle = at->rect().center();
            auto* area = qobject_cast<QAbstractScrollArea*>(at);
            QContextMenuEvent asked(QContextMenuEvent::Keyboard, middle, at->mapToGlobal(middle));
            QApplication::sendEvent(area == nullptr ? at : area->viewport(), &asked);
        }
    }
    void CloseUnexpected() {
        auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (box != nullptr && !modal_) {
            missed_ << QStringLiteral("(nobody expected \"%1\")").arg(box->objectName());
            box->reject();
        }
    }
    /// What stays open in its own event loop is looked at and then closed.
    void Modal(const std::function<void()>& open, const char* name) {
        QTimer::singleShot(kPatienceMs, &Main(), [this, name] {
            Look({name});
            while (QWidget* modal = QApplication::activeModalWidget()) {
                modal->close();
            }
        });
        modal_ = true;
        open();
        modal_ = false;
    }
    /// A menu or a list that opens over a window; Escape takes it away again.
    void Popup(const char* name) {
        Look({name});
        if (QWidget* popup = QApplication::activePopupWidget()) {
            popup->close();
        }
    }
    void ClickCell(const char* window, const char* table, int row, int column) {
        if (auto* rows = Find<QAbstractItemView>(window, table)) {
            const QModelIndex cell = rows->model()->index(row, column);
            rows->scrollTo(cell);
            QTest::mouseClick(rows->viewport(), Qt::LeftButton, {}, rows->visualRect(cell).center());
            Client::SettleWindows();
        }
    }
    void Toggle(int panel) { desk_.Window().TogglePanel(panel); }

    void Begin();
    void Voyages();
    void PortCalls();
    void Book();
    void Distances();
    void Lists();
    void Chart();
    void Dialogs();

    static constexpr int kPatienceMs = 1000;
    static constexpr int kMostMs = 10'000;  ///< for what a slow machine shows late

    Client::Desk& desk_;
    Client::FirstStart& first_;
    QString pictures_;
    QStringList faults_;
    QStringList missed_;
    std::set<QString> seen_;
    int step_ = 0;
    bool modal_ = false;
};

void Walk::Begin() {
    Activate(Main());
    Look({"firstStart"});
    first_.Choose(Client::FirstChoice::Sample);
    Look({"voyagePanel"});
}

void Walk::Voyages() {
    for (const int key : {Qt::Key_Right, Qt::Key_Down}) {
        Press("voyagePanel", key);
    }
    Look({"voyagePanel"});
    AskMenu();
    Popup("rowMenu");
    Press("voyagePanel", Qt::Key_F10, Qt::ControlModifier);
    Popup("windowMenu");
    Press("voyagePanel", Qt::Key_F, Qt::ControlModifier);
    Look({"searchBar"});
    Press("voyagePanel", Qt::Key_Escape);
    Press("voyagePanel", Qt::Key_F2);
    Look({"renameEditor"});
    Press("voyagePanel", Qt::Key_Escape);
    if (auto* filter = Find<QAbstractButton>("voyagePanel", "filterButton")) {
        filter->click();
        Popup("popup");
    }
}

void Walk::PortCalls() {
    enum Column { Port = 1, Purpose = 2, Speed = 3, Eta = 7 };
    Focus("voyagePanel", "voyageTree");
    Press("voyagePanel", Qt::Key_Return);
    Look({"portCallPanel"});
    ClickCell("portCallPanel", "portCallTable", 3, Port);
    if (QWidget* panel = Shown("portCallPanel"); panel != nullptr && panel->focusWidget() != nullptr) {
        QTest::keyClicks(panel->focusWidget(), "Sing");
        Look({"portMatchWindow"});
        // The first takes the window of matches away, the second what was typed.
        Press("portCallPanel", Qt::Key_Escape);
        Press("portCallPanel", Qt::Key_Escape);
        Press("portCallPanel", Qt::Key_Z, Qt::ControlModifier);
    }
    ClickCell("portCallPanel", "portCallTable", 1, Purpose);
    Look({"portCallPanel"});
    Press("portCallPanel", Qt::Key_Escape);
    ClickCell("portCallPanel", "portCallTable", 0, Eta);
    Press("portCallPanel", Qt::Key_Space);
    Look({"calendarPopup"});
    Press("calendarPopup", Qt::Key_Escape);
    Press("portCallPanel", Qt::Key_F8);
    Look({"whatIfStrip"});
    Press("portCallPanel", Qt::Key_F8);
    Focus("portCallPanel", "portCallTable");
    AskMenu();
    Popup("portCallMenu");
    for (const char* unit : {"averageSpeedUnit", "totalDistanceUnit", "totalTimeUnit"}) {
        if (auto* button = Find<QAbstractButton>("portCallPanel", unit)) {
            button->click();
            Popup("unitMenu");
        }
    }
}

void Walk::Book() {
    Focus("portCallPanel", "portCallTable");
    Press("portCallPanel", Qt::Key_B, Qt::ControlModifier);
    Look({"positionBook"});
    ClickCell("positionBook", "positionBookTable", 1, 4);
    Look({"positionBook"});
    Press("positionBook", Qt::Key_Escape);
    Press("positionBook", Qt::Key_W, Qt::ControlModifier);
    Press("portCallPanel", Qt::Key_W, Qt::ControlModifier);
}

void Walk::Distances() {
    Toggle(Interface::PanelCode::kDistances);
    Look({"portCallPanel"});
    Press("portCallPanel", Qt::Key_W, Qt::ControlModifier);
}

void Walk::Lists() {
    const struct {
        int code;
        const char* window;
    } lists[] = {{Interface::PanelCode::kFleet, "fleetPanel"}, {Interface::PanelCode::kOwnPorts, "ownPorts"}};
    for (const auto& [code, window] : lists) {
        Toggle(code);
        Look({window});
        Press(window, Qt::Key_N, Qt::ControlModifier);
        Look({window});
        if (QWidget* form = QApplication::activeWindow(); form != nullptr && form != &Main()) {
            form->close();
        }
        Client::SettleWindows();
        if (QWidget* list = Shown(window)) {
            list->close();
        }
    }
}

void Walk::Chart() {
    auto* chart = Main().findChild<QWidget*>("chart");
    Activate(Main());
    chart->setFocus();
    AskMenu();
    Popup("chartMenu");
    QTest::keyClick(chart, Qt::Key_T);
    Look({"timeBar"});
    QTest::keyClick(chart, Qt::Key_T);
    desk_.Window().ChartCommand("goto");
    Look({"goToBar"});
    if (QWidget* field = QApplication::focusWidget()) {
        QTest::keyClicks(field, "Rotterdam");
        Look({"goToBar"});
        QTest::keyClick(field, Qt::Key_Escape);
    }
    QTest::keyClick(&Main(), Qt::Key_F1);
    Look({"help"});
    if (QWidget* help = Shown("help")) {
        help->close();
    }
}

void Walk::Dialogs() {
    Modal([this] { desk_.Window().OpenPreferences(); }, "preferences");
    Modal(
        [this] {
            Interface::SysMsgSink::Instance()->SyncSendMsg(
                Interface::kMessageLevel, u"Save the changes of the voyage?", 4, &Main(), u"");
        },
        "message");
}

}  // namespace

}  // namespace Tarvik::WindowTesting

int main(int argc, char** argv) {
    using namespace Tarvik;
    if (argc < 3) {
        std::fprintf(stderr, "usage: window-walk DATA-FOLDER PICTURES-FOLDER [THEME] [LANGUAGE]\n");
        return 2;
    }
    Client::Desk::PrepareApplication();
    auto start = std::make_unique<Client::DisplayStart>();
    QApplication application(argc, argv);
    start.reset();
    QApplication::setCursorFlashTime(0);
    Client::SessionOptions options;
    options.dataFolder = argv[1];
    std::string error;
    const auto session = Client::ClientSession::Open(options, error);
    if (!session) {
        std::fprintf(stderr, "window-walk: %s\n", error.c_str());
        return 2;
    }
    Client::Preferences preferences = session->Preferred();
    preferences.theme = argc > 3 ? argv[3] : "light";
    preferences.language = argc > 4 ? argv[4] : "en-US";
    Client::Desk desk(*session);
    desk.Window().Prefer(preferences);
    desk.Window().TakePlace(desk.Window().screen()->availableGeometry());
    Client::FirstStart first(desk.Window(), *session);
    first.Offer();
    desk.Window().show();
    return WindowTesting::Walk(desk, first, QString::fromLocal8Bit(argv[2])).Run();
}
