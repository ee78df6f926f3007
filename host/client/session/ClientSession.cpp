// SPDX-License-Identifier: MIT
#include "host/client/session/ClientSession.h"

#include <cstdlib>
#include <filesystem>
#include <utility>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/core/Exports.h>
#include <tarvik/util/FileUtl.h>
#include <tarvik/util/Log.h>

#include "host/client/services/AppFolders.h"
#include "host/client/session/EmbeddedLink.h"
#include "host/server/app/EmbeddedServer.h"

namespace Tarvik::Client {

namespace {

constexpr std::size_t kLogBytes = 1024 * 1024;
constexpr const char* kVoyages = "/voyages.db";

/// Whether nobody has begun in a data folder: it has neither preferences nor voyages.
bool IsUntouched(const std::string& preferences, const std::string& voyages) {
    std::error_code failed;
    return !std::filesystem::exists(preferences, failed) && !std::filesystem::exists(voyages, failed);
}

}  // namespace

ClientSession::ClientSession(const AppFolders& folders, const SessionOptions& options)
    : folders_(folders),
      claim_(folders.Data()),
      logs_(folders.Data() + "/seaplan.log", kLogBytes, options.verbose),
      ownPorts_(folders_, tables_, logs_.file) {}

std::unique_ptr<ClientSession> ClientSession::Open(const SessionOptions& options, std::string& error) {
    const AppFolders folders(ProgramFolder(), options.dataFolder);
    if (!folders.Prepare(error)) {
        return nullptr;
    }
    std::unique_ptr<ClientSession> session(new ClientSession(folders, options));
    if (options.alone && !session->IsAlone()) {
        error = "Seaplan is open already with the data folder " + folders.Data() +
                ". Use its window, or name another folder with --data DIR.";
        return nullptr;
    }
    if (!session->Start(options, error)) {
        return nullptr;
    }
    return session;
}

bool ClientSession::Start(const SessionOptions& options, std::string& error) {
    Util::SetLogSink([this](Util::LogLevel, const std::string& text) { logs_.file.Write(text); });
    Util::FileUtl::SetCurrentAppDirectory(folders_.Data());
    TakeOptions(options);
    tables_.LoadTexts(folders_.Languages(), preferences_.language);
    for (const std::string& line : Texts().Complaints()) {
        logs_.file.Write(line);
    }
    if (!tables_.LoadPorts(folders_.BusinessData(Util::kPointTableFile), error)) {
        return false;
    }
    link_ = MakeLink(preferences_.server, error);
    if (!link_) {
        return false;
    }
    services_ = std::make_unique<HostServices>(*link_, Server::kLocalUser, preferences_.timeZone,
                                               [this](const std::string& line) { logs_.file.Write(line); });
    return true;
}

void ClientSession::TakeOptions(const SessionOptions& options) {
    preferences_ = Preferences::Read(PreferencesFile(), LanguageFiles::In(folders_.Languages()));
    preferences_.firstStart =
        preferences_.firstStart || IsUntouched(PreferencesFile(), folders_.Data() + kVoyages);
    if (!options.language.empty()) {
        preferences_.language = options.language;
    }
    if (!options.timeZone.empty()) {
        preferences_.timeZone = options.timeZone;
    }
    if (!options.theme.empty()) {
        preferences_.theme = options.theme;
    }
    if (!options.server.empty()) {
        preferences_.server = options.server == "embedded" ? "" : options.server;
    }
}

std::unique_ptr<ServerLink> ClientSession::MakeLink(const std::string& server, std::string& error) {
    if (!server.empty()) {
        const char* trusted = std::getenv("SEAPLAN_CA_FILE");
        auto link = std::make_unique<LoginLink>(
            server, preferences_.user, trusted ? trusted : "",
            [this](const std::string& at, const std::string& user, const std::string& failure) {
                return ask_ ? ask_(at, user, failure) : std::nullopt;
            });
        // A name that the server refused is nobody's, and would be offered at the next start.
        link->SetWelcome([this, &at = *link](const std::string& user) {
            Keep([&user](Preferences& kept) { kept.user = user; });
            ownPorts_.Load(at);
        });
        // Until then nobody's are shown: the table may still have those of the login before.
        ownPorts_.Load(*link);
        return link;
    }
    auto embedded =
        std::make_unique<EmbeddedLink>(folders_.Data() + kVoyages, folders_.ShareFile("network.bin"));
    if (!embedded->Connect(error)) {
        return nullptr;
    }
    ownPorts_.Load(*embedded);
    return embedded;
}

void ClientSession::LogOut() {
    services_->LogOut();
    ownPorts_.Load(*link_);
}

void ClientSession::LoadPlugins() {
    loader_.LoadAll(PluginLoader::FindLibraries(folders_.Plugins()),
                    Core::Version::Parse(Plugin::kHostVersion));
    for (const LoadedPlugin& plugin : loader_.Plugins()) {
        logs_.file.Write("plug-in " + plugin.record.name + " " + VersionText(plugin.record.version) +
                         (plugin.error.empty() ? " runs" : " is left out: " + plugin.error));
    }
}

void ClientSession::Keep(const std::function<void(Preferences&)>& change) {
    change(preferences_);
    // Only this is kept: what the command line chose for this time stays out of the file.
    const Preferences before = Preferences::Read(PreferencesFile(), LanguageFiles::In(folders_.Languages()));
    Preferences kept = before;
    change(kept);
    std::string error;
    if (kept != before && !kept.Write(PreferencesFile(), error)) {
        logs_.file.Write(error);
    }
}

bool ClientSession::Prefer(const Preferences& preferences, std::string& error) {
    const Preferences before = preferences_;
    if (before.server != preferences.server) {
        auto link = MakeLink(preferences.server, error);
        if (!link) {
            return false;
        }
        services_->SetLink(*link);
        link_ = std::move(link);
    }
    preferences_ = preferences;
    if (before.language != preferences_.language) {
        tables_.LoadTexts(folders_.Languages(), preferences_.language);
        Interface::Raise(Interface::Bus::SwitchLanguage);
    }
    if (before.timeZone != preferences_.timeZone) {
        services_->SetTimeZone(preferences_.timeZone);
    }
    return preferences_.Write(PreferencesFile(), error);
}

ClientSession::~ClientSession() {
    loader_.UnloadAll();
    Util::SetLogSink({});
}

}  // namespace Tarvik::Client
