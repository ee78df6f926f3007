// SPDX-License-Identifier: MIT
#include "host/server/program/Program.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <thread>

#include "host/server/net/service/Resources.h"
#include "host/server/net/service/VoyageServer.h"

namespace Tarvik::Server {

namespace {

constexpr int kFailed = 1;
constexpr int kWrong = 2;

int Say(const ProgramParts& parts, int code, const std::string& line) {
    parts.err << "seaplan-server: " << line << "\n";
    return code;
}

/// Takes "--settings FILE" or "--settings=FILE" out of the words. False when the file is missing.
bool TakeSettingsFile(std::vector<std::string>& words, std::string& file) {
    constexpr std::string_view kOption = "--settings";
    for (auto word = words.begin(); word != words.end(); ++word) {
        if (word->starts_with(std::string(kOption) + "=")) {
            file = word->substr(kOption.size() + 1);
            words.erase(word);
            return !file.empty();
        }
        if (*word != kOption) {
            continue;
        }
        if (word + 1 == words.end()) {
            return false;
        }
        file = *(word + 1);
        words.erase(word, word + 2);
        return !file.empty();
    }
    return true;
}

/// The network of the settings, else the one that came with this program.
std::string NetworkOf(const Settings& settings) {
    if (!settings.network.empty()) {
        return settings.network;
    }
    std::error_code failed;
    return NetworkBeside(std::filesystem::read_symlink("/proc/self/exe", failed).string());
}

OperatorRules RulesOf(const Settings& settings) {
    return {{settings.passagesForbidden, settings.passagesOpened},
            settings.areasForbidden,
            settings.northernLimit,
            settings.southernLimit};
}

/// Ends the process although a thread may still work: what that has begun is there whole or not at all, as
/// after a loss of power.
void EndSoon() {
    std::thread([] {
        std::this_thread::sleep_for(std::chrono::seconds(1));
        std::_Exit(0);
    }).detach();
}

int Serve(const Settings& settings, const ProgramParts& parts) {
    std::string error;
    ServerParts serverParts;
    serverParts.routes = OpenRoutes(NetworkOf(settings), RulesOf(settings), error);
    if (serverParts.routes == nullptr) {
        return Say(parts, kFailed, error);
    }
    serverParts.cutShort = EndSoon;
    const auto server = VoyageServer::Open(settings, std::move(serverParts), error);
    if (server == nullptr) {
        return Say(parts, kFailed, error);
    }
    server->StopOnSignals();
    server->Run();
    return 0;
}

int AdministerUsers(const std::vector<std::string>& words, const Settings& settings,
                    const ProgramParts& parts) {
    std::string error;
    if (!PrepareDataFolder(settings, error)) {
        return Say(parts, kFailed, error);
    }
    const auto accounts = OpenAccounts(settings, error);
    if (accounts == nullptr) {
        return Say(parts, kFailed, error);
    }
    const Passwords passwords;
    return UserAdmin(*accounts, passwords, parts.passwords, parts.out, parts.err).Run(words);
}

int Transfer(const TransferCommand& command, const Settings& settings, const ProgramParts& parts) {
    std::string said;
    if (!RunTransfer(command, settings, said)) {
        return Say(parts, kFailed, said);
    }
    parts.out << said << "\n";
    return 0;
}

int AnswerRoute(const std::vector<std::string>& words, const Settings& settings, const ProgramParts& parts) {
    std::string said;
    if (!RunRouteCommand(words, NetworkOf(settings), RulesOf(settings), said)) {
        return Say(parts, kFailed, said);
    }
    parts.out << said;
    return 0;
}

}  // namespace

int RunProgram(const std::vector<std::string>& words, const ProgramParts& parts) {
    for (const char* option : {"--help", "-h", "--version"}) {
        if (std::find(words.begin(), words.end(), option) == words.end()) {
            continue;
        }
        parts.out << (std::string(option) == "--version" ? VersionText() : HelpText());
        return 0;
    }
    std::vector<std::string> command = words;
    std::string file;
    if (!TakeSettingsFile(command, file)) {
        return Say(parts, kWrong, "--settings needs the name of a file");
    }
    const bool serve = command == std::vector<std::string>{"serve"};
    const auto transfer = TransferCommand::Parse(command);
    const bool user = !command.empty() && command[0] == "user";
    if (user) {
        command.erase(command.begin());
    }
    const bool route = IsRouteCommand(command);
    if (!serve && !transfer && !route && !(user && UserAdmin::IsCommand(command))) {
        return Say(parts, kWrong, "there is no such command; seaplan-server --help tells all");
    }
    Settings settings;
    std::string error;
    if (!ReadSettings(file, parts.environment, settings, error)) {
        return Say(parts, kWrong, error);
    }
    if (route) {
        return AnswerRoute(command, settings, parts);
    }
    if (transfer) {
        return Transfer(*transfer, settings, parts);
    }
    return serve ? Serve(settings, parts) : AdministerUsers(command, settings, parts);
}

}  // namespace Tarvik::Server
