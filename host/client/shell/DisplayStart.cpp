// SPDX-License-Identifier: MIT
#include <QString>
#include <QtGlobal>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "host/client/plan/PlanCommand.h"
#include "host/client/shell/QtServices.h"

namespace Tarvik::Client {

namespace {

/// Longer than a display takes that is only slow.
constexpr std::chrono::seconds kLongestStart{20};

// The library takes a plain function, so what it said last and whom to hand on to cannot travel with it.
std::string lastWords;
QtMessageHandler before = nullptr;

[[noreturn]] void End(const std::string& reason) {
    std::string line =
        "The display cannot be used (" + reason +
        "). Start Seaplan where there is one, or plan without a window: plan PORT PORT (see --help).\n";
    std::fputs(line.c_str(), stderr);
    std::_Exit(kExitFailed);
}

void Take(QtMsgType type, const QMessageLogContext& where, const QString& text) {
    if (type == QtFatalMsg) {
        End(lastWords.empty() ? "no way to its window system" : lastWords);
    }
    // The plug-in of the window system says what is wrong, and names the display, before the library gives
    // up.
    if (type == QtWarningMsg && (lastWords.empty() || text.contains("connect to display"))) {
        lastWords = text.section('\n', 0, 0).toStdString();
    }
    if (before) {
        before(type, where, text);
    }
}

}  // namespace

DisplayStart::DisplayStart() {
    lastWords.clear();
    before = qInstallMessageHandler(Take);
    watch_ = std::thread([started = started_.get_future()] {
        if (started.wait_for(kLongestStart) != std::future_status::ready) {
            End("it does not answer");
        }
    });
}

DisplayStart::~DisplayStart() {
    started_.set_value();
    watch_.join();
    qInstallMessageHandler(before);
}

}  // namespace Tarvik::Client
