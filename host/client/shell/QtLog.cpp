// SPDX-License-Identifier: MIT
#include <QString>
#include <QtGlobal>
#include <cstdio>

#include "host/client/services/RotatingLog.h"
#include "host/client/shell/QtServices.h"

namespace Tarvik::Client {

namespace {

// The library takes a plain function, so that the log it writes to cannot travel with it.
RotatingLog* sink = nullptr;

void Take(QtMsgType type, const QMessageLogContext& /*where*/, const QString& text) {
    if (sink) {
        sink->Write("window system: " + text.toStdString());
    }
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", text.toUtf8().constData());
    }
}

}  // namespace

void QtLog::Silence() {
    qInstallMessageHandler(Take);
}

QtLog::QtLog(RotatingLog& log) {
    sink = &log;
    Silence();
}

QtLog::~QtLog() {
    sink = nullptr;
}

}  // namespace Tarvik::Client
