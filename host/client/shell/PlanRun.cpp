// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>
#include <optional>

#include <tarvik/bus/BusCall.h>

#include "host/client/plan/PlanCommand.h"
#include "host/client/plan/PlanFormats.h"
#include "host/client/plan/PlanOnChart.h"
#include "host/client/plan/StatusEcho.h"
#include "host/client/shell/Desk.h"
#include "host/client/shell/QtServices.h"
#include "host/client/shell/Runs.h"

namespace Tarvik::Client {

namespace {

int Tell(const PlanOutcome& outcome) {
    if (!outcome.message.empty()) {
        std::fprintf(stderr, "%s\n", outcome.message.c_str());
    }
    return outcome.exitCode;
}

int Print(const std::string& text) {
    if (std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0) {
        return kExitDone;
    }
    return Tell({kExitFailed, "The result could not be written to standard output."});
}

/// Plans with the plug-ins that are loaded, and tells of those that are not.
int PlanAndPrint(ClientSession& session, const PlanArguments& arguments,
                 const Interface::PlanRequest& request, const Interface::PlanResult*& plan) {
    for (const std::string& line : session.Plugins().Complaints()) {
        std::fprintf(stderr, "%s\n", line.c_str());
    }
    const PlanOutcome outcome = CallPlanService(request, plan, &session.Services());
    if (Tell(outcome) != kExitDone) {
        return outcome.exitCode;
    }
    return Print(FormatPlan(arguments, *plan, session.Services().TimeZone(), session.Texts()));
}

int PlanWithPicture(int argc, char** argv, ClientSession& session, const PlanArguments& arguments,
                    const Interface::PlanRequest& request) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    Desk::PrepareApplication();
    QApplication application(argc, argv);
    std::string error;
    const QString file = QString::fromStdString(arguments.picture);
    if (!CanWritePicture(file, error)) {
        return Tell({kExitBadInput, error});
    }
    Desk desk(session);
    desk.Window().show();
    SettleWindows();
    const Interface::PlanResult* plan = nullptr;
    const int code = PlanAndPrint(session, arguments, request, plan);
    if (code != kExitDone) {
        return code;
    }
    const Interface::TrvMapPlan told = PlanOnChart(*plan);
    Interface::Call(Interface::Bus::MapSetPlan, &told);
    // The chart's own fit goes round the globe the short way, also over the date line.
    desk.Window().ChartCommand("fit");
    SettleWindows();
    return SavePicture(desk.Window(), file, error) ? kExitDone : Tell({kExitFailed, error});
}

int PlanWithoutWindow(int argc, char** argv, ClientSession& session, const PlanArguments& arguments,
                      const Interface::PlanRequest& request) {
    QCoreApplication application(argc, argv);
    session.LoadPlugins();
    const Interface::PlanResult* plan = nullptr;
    return PlanAndPrint(session, arguments, request, plan);
}

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

/// Logs in with what the environment says: once, as there is nobody to ask again.
bool ConnectUnattended(ClientSession& session, std::string& error) {
    const Credentials login{Environment("SEAPLAN_USER"), Environment("SEAPLAN_PASSWORD")};
    const bool complete = !login.user.empty() && !login.password.empty();
    session.SetAsker([&](const std::string&, const std::string&, const std::string& failure) {
        return complete && failure.empty() ? std::optional(login) : std::nullopt;
    });
    const bool connected = session.Link().Connect(error);
    if (!connected && !complete) {
        error += " Set SEAPLAN_USER and SEAPLAN_PASSWORD to log in.";
    }
    session.SetAsker({});
    return connected;
}

}  // namespace

int RunPlan(int argc, char** argv, const CommandLine& line) {
    const ParsedPlan parsed = ParsePlanArguments(line.planWords);
    if (!parsed.error.empty()) {
        return Tell({kExitBadInput, parsed.error});
    }
    SessionOptions options = line.session;
    options.timeZone = parsed.arguments.zone;
    std::string error;
    // What the session has to say; what the plug-ins follow is nothing to a plan.
    std::optional<StatusEcho> echo(
        [](const std::string& words) { std::fprintf(stderr, "%s\n", words.c_str()); });
    const auto session = ClientSession::Open(options, error);
    if (!session) {
        return Tell({kExitFailed, error});
    }
    if (!session->IsAlone() && !parsed.arguments.saveVoyage.empty()) {
        std::fprintf(stderr,
                     "Seaplan's window is open with the data folder %s: it shows what is saved now after its "
                     "next start.\n",
                     session->Folders().Data().c_str());
    }
    const QtLog log(session->Log());
    Interface::PlanRequest request;
    const auto read = [&] {
        request = {};
        return MakePlanRequest(parsed.arguments, PortLookup(session->Ports()), session->Services().TimeZone(),
                               request);
    };
    PlanOutcome checked = read();
    if (checked.exitCode != kExitDone && session->IsRemote() && ConnectUnattended(*session, error)) {
        // The port may be one of the user's own, which the login has brought.
        checked = read();
    }
    if (checked.exitCode != kExitDone) {
        return Tell(checked);
    }
    if (!ConnectUnattended(*session, error)) {
        return Tell({kExitFailed, error});
    }
    echo.reset();
    return parsed.arguments.picture.empty()
               ? PlanWithoutWindow(argc, argv, *session, parsed.arguments, request)
               : PlanWithPicture(argc, argv, *session, parsed.arguments, request);
}

}  // namespace Tarvik::Client
