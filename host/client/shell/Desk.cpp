// SPDX-License-Identifier: MIT
#include "host/client/shell/Desk.h"

#include <QApplication>
#include <QMessageBox>

#include <tarvik/core/TrvKernel.h>

#include "host/client/shell/ClientBox.h"

namespace Tarvik::Client {

void Desk::PrepareApplication() {
    QApplication::setStyle("Fusion");
    QApplication::setApplicationName("seaplan");
}

Desk::Desk(ClientSession& session)
    : session_(session), window_(session), messages_(&window_, session.Texts()) {
    Core::TrvKernel::SetMainView(static_cast<QWidget*>(&window_), qApp);
    Util::TimerService::Set(&timers_);
    Interface::SysMsgSink::Set(&messages_);
    session_.LoadPlugins();
    window_.AttachPlugins();
}

Desk::~Desk() {
    Interface::SysMsgSink::Set(nullptr);
    Util::TimerService::Set(nullptr);
    Core::TrvKernel::SetMainView(nullptr, nullptr);
}

void Desk::TellComplaints() {
    QString text;
    for (const std::string& line : session_.Plugins().Complaints()) {
        text += "\n" + QString::fromStdString(line);
    }
    if (text.isEmpty()) {
        return;
    }
    QMessageBox* box =
        MakeFaultBox(&window_, session_.Texts(),
                     QString::fromStdString(session_.Texts().Text("Client", "PLUGINS_LEFT_OUT")) + text);
    box->setObjectName("complaints");
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setModal(false);
    box->show();
}

}  // namespace Tarvik::Client
