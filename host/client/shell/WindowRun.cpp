// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QMessageBox>
#include <QScreen>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "host/client/plan/PlanCommand.h"
#include "host/client/shell/Desk.h"
#include "host/client/shell/FirstStart.h"
#include "host/client/shell/QtServices.h"
#include "host/client/shell/Runs.h"

namespace Tarvik::Client {

namespace {

bool HasDisplay() {
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        const char* value = std::getenv(name);
        if (value && *value) {
            return true;
        }
    }
    return false;
}

int Complain(const std::string& line, bool inWindow) {
    std::fprintf(stderr, "%s\n", line.c_str());
    if (inWindow) {
        QMessageBox::critical(nullptr, "Seaplan", QString::fromStdString(line));
    }
    return kExitFailed;
}

int TakePicture(Desk& desk, const CommandLine& line) {
    std::string error;
    const QString file = QString::fromStdString(line.screenshot);
    if (!CanWritePicture(file, error)) {
        return Complain(error, false), kExitBadInput;
    }
    desk.Window().show();
    if (line.panel != 0) {
        desk.Window().TogglePanel(line.panel);
    }
    SettleWindows();
    return SavePicture(desk.Window(), file, error) ? kExitDone : Complain(error, false);
}

}  // namespace

int RunWindow(int argc, char** argv, const CommandLine& line) {
    const bool picture = !line.screenshot.empty();
    if (picture && !HasDisplay()) {
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    }
    if (!HasDisplay()) {
        return Complain("There is no display. Plan without a window: plan PORT PORT (see --help).", false);
    }
    QtLog::Silence();
    Desk::PrepareApplication();
    auto start = std::make_unique<DisplayStart>();
    QApplication application(argc, argv);
    start.reset();
    std::string error;
    SessionOptions options = line.session;
    // Two windows would each keep a copy of the same voyages and write over one another's changes.
    options.alone = !picture;
    const auto session = ClientSession::Open(options, error);
    if (!session) {
        return Complain(error, !picture);
    }
    const QtLog log(session->Log());
    Desk desk(*session);
    if (picture) {
        return TakePicture(desk, line);
    }
    desk.Window().TakePlace(desk.Window().screen()->availableGeometry());
    FirstStart first(desk.Window(), *session);
    first.Offer();
    desk.Window().show();
    desk.TellComplaints();
    return QApplication::exec();
}

}  // namespace Tarvik::Client
