// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/client/plugins/PluginLoader.h"
#include "host/client/services/AppFolders.h"
#include "host/client/services/CommandLine.h"
#include "host/client/services/HostServices.h"
#include "host/client/services/HostTables.h"
#include "host/client/services/Preferences.h"
#include "host/client/services/RotatingLog.h"
#include "host/client/session/LoginLink.h"
#include "host/client/session/OwnPorts.h"

namespace Tarvik::Client {

/// Everything of the client but its window: folders, log, preferences, texts, ports, server, services,
/// plug-ins. The window and the `plan` command run on the same session.
class ClientSession {
  public:
    /// Null, with one line that says what is wrong and what to do, when the client cannot run.
    /// With `options.alone` that is so too while another client has the data folder open.
    static std::unique_ptr<ClientSession> Open(const SessionOptions& options, std::string& error);
    ~ClientSession();
    ClientSession(const ClientSession&) = delete;
    ClientSession& operator=(const ClientSession&) = delete;

    /// Who is asked for a login when a server elsewhere wants one; until this is set, nobody is.
    void SetAsker(AskCredentials ask) { ask_ = std::move(ask); }

    /// Loads all plug-ins; the main window, if there is one, must be known to the bus before.
    void LoadPlugins();

    /// Whether no other client had the data folder open when this one began.
    bool IsAlone() const { return claim_.IsAlone(); }
    const AppFolders& Folders() const { return folders_; }
    const std::vector<Port>& Ports() const { return tables_.Ports(); }
    const PluginLoader& Plugins() const { return loader_; }
    const LanguageFiles& Texts() const { return tables_.Texts(); }
    const Preferences& Preferred() const { return preferences_; }
    HostServices& Services() { return *services_; }
    ServerLink& Link() { return *link_; }
    /// Whether the server is elsewhere and wants a login.
    bool IsRemote() const { return !preferences_.server.empty(); }
    RotatingLog& Log() { return logs_.file; }
    Client::OwnPorts& OwnPorts() { return ownPorts_; }

    /// Takes new preferences into use, tells the plug-ins what changed, and keeps them. False with a line
    /// when the file could not be written, they are in use all the same; or when the server inside the client
    /// cannot be opened, nothing is changed then.
    bool Prefer(const Preferences& preferences, std::string& error);
    /// Changes what plug-ins need not be told of, and keeps that alone; a file that cannot be written is
    /// logged.
    void Keep(const std::function<void(Preferences&)>& change);

    /// Logs all plug-ins out and ends the login at the server; its user's own ports go.
    void LogOut();

  private:
    /// The log, and what the bus has to tell in it.
    struct Logs {
        Logs(const std::string& path, std::size_t limitBytes, bool verbose)
            : file(path, limitBytes, verbose) {}
        RotatingLog file;
        BusLog bus{file};
    };

    ClientSession(const AppFolders& folders, const SessionOptions& options);
    bool Start(const SessionOptions& options, std::string& error);
    void TakeOptions(const SessionOptions& options);
    std::unique_ptr<ServerLink> MakeLink(const std::string& server, std::string& error);
    std::string PreferencesFile() const { return folders_.Data() + "/preferences.json"; }

    AppFolders folders_;
    FolderClaim claim_;
    Logs logs_;
    Preferences preferences_;
    HostTables tables_;
    Client::OwnPorts ownPorts_;
    AskCredentials ask_;
    std::unique_ptr<ServerLink> link_;
    std::unique_ptr<HostServices> services_;
    PluginLoader loader_;
};

}  // namespace Tarvik::Client
