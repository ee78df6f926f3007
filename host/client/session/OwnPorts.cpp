// SPDX-License-Identifier: MIT
#include "host/client/session/OwnPorts.h"

#include <cstring>
#include <exception>
#include <filesystem>
#include <utility>

#include <SQLiteCpp/SQLiteCpp.h>
#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/bus/PlacesContract.h>
#include <tarvik/core/TObject.h>
#include <tarvik/util/FileUtl.h>

#include "host/client/services/RequestBlock.h"
#include "host/server/app/EmbeddedServer.h"

namespace fs = std::filesystem;

namespace Tarvik::Client {

namespace {

void Insert(const std::string& file, const std::vector<Ports::Place>& own) {
    SQLite::Database database(file, SQLite::OPEN_READWRITE);
    database.exec("pragma journal_mode=off");
    SQLite::Transaction transaction(database);
    SQLite::Statement row(database,
                          "insert into t_point(id,name,namecn,x,y,isport,origid) values(?,?,?,?,?,'1','0')");
    for (const Ports::Place& port : own) {
        row.bind(1, port.id);
        row.bind(2, port.name);
        // A name in Chinese is looked for among the Chinese ones.
        row.bind(3, port.name);
        row.bind(4, std::to_string(port.position->x));
        row.bind(5, std::to_string(port.position->y));
        row.exec();
        row.reset();
    }
    transaction.commit();
}

std::string ChangeText(PortOperation operation, const Ports::Place& port) {
    nlohmann::json text{{"ppi", port.id}, {"type", std::to_string(static_cast<int>(operation))}};
    if (operation != PortOperation::Remove) {
        const Server::GeoPoint at = port.position.value_or(Server::GeoPoint());
        text["ppn"] = port.name;
        text["xc"] = fmt::format("{:.6f}", at.x);
        text["yc"] = fmt::format("{:.6f}", at.y);
    }
    return text.dump();
}

/// The reply's text; nothing without a server that answers.
std::optional<std::string> ExchangeOnBus(Interface::VoyCommand command, const std::string& text) {
    const RequestBlock request(Interface::NumberOf(command), Interface::kVoyageModuleWord, text);
    Interface::VoyServerRequest* reply = Interface::Call(Interface::Bus::ServerExchange, &*request);
    if (reply == nullptr) {
        return std::nullopt;
    }
    std::string answer(reply->Payload(), strnlen(reply->Payload(), reply->length));
    Core::FreeBusBlock(reply);
    return answer;
}

PortOutcome OutcomeOf(const std::string& reply) {
    // The server's refusals that a person can do something about.
    constexpr int kListFull = 48;
    constexpr int kUnknownPlace = 36;
    const auto status = nlohmann::json::parse(reply, nullptr, false);
    const auto code = status.is_object() ? status.find("eid") : status.end();
    if (code == status.end() || !code->is_number_integer()) {
        return PortOutcome::Refused;
    }
    switch (code->get<int>()) {
        case 0:
            return PortOutcome::Done;
        case kListFull:
            return PortOutcome::Full;
        case kUnknownPlace:
            return PortOutcome::Gone;
        default:
            return PortOutcome::Refused;
    }
}

}  // namespace

std::optional<std::vector<Ports::Place>> LoadOwnPorts(ServerLink& link, const std::string& user) {
    try {
        const RequestBlock request(Interface::NumberOf(Interface::VoyCommand::LoadPlaces),
                                   Interface::kVoyageModuleWord, nlohmann::json{{"ui", user}}.dump());
        const auto reply = nlohmann::json::parse(link.Exchange(user, *request));
        std::vector<Ports::Place> own;
        if (!reply.is_array()) {
            // A server from before this command keeps none.
            constexpr int kUnknownCommand = 3;
            return reply.value("eid", 0) == kUnknownCommand ? std::optional(own) : std::nullopt;
        }
        for (const nlohmann::json& port : reply) {
            own.push_back({port.at("ppi"), port.at("ppn"), "", "",
                           Server::GeoPoint{port.at("xc"), port.at("yc")}, true});
        }
        return own;
    } catch (const nlohmann::json::exception&) {
        return std::nullopt;
    }
}

bool WritePortTable(const std::string& shipped, const std::string& target,
                    const std::vector<Ports::Place>& own, std::string& error) {
    const std::string fresh = target + ".own";
    try {
        fs::copy_file(shipped, fresh, fs::copy_options::overwrite_existing);
        if (!own.empty()) {
            Insert(fresh, own);
        }
        fs::rename(fresh, target);
        return true;
    } catch (const std::exception& failed) {
        error = "Your own ports cannot be shown: the file " + target + " cannot be written (" +
                failed.what() + "). Free some space and log in again.";
        std::error_code ignored;
        fs::remove(fresh, ignored);
        return false;
    }
}

bool OwnPorts::Load(ServerLink& link) {
    const std::string user = link.User(Server::kLocalUser);
    auto own = user.empty() ? std::vector<Ports::Place>() : LoadOwnPorts(link, user);
    if (own) {
        user_ = user;
        return Use(std::move(*own));
    }
    if (user != user_) {
        user_.reset();
        Use({});
        Tell("The server gave no list of the user's own ports.");
    }
    return false;
}

bool OwnPorts::Use(std::vector<Ports::Place> own) {
    if (inUse_ && own == own_) {
        return true;
    }
    const std::string table = folders_.BusinessData(Util::kPointTableFile);
    std::string error;
    if (!WritePortTable(folders_.ShareFile(Util::kPointTableFile), table, own, error) ||
        !tables_.LoadPorts(table, error)) {
        Tell(error);
        return false;
    }
    own_ = std::move(own);
    inUse_ = true;
    Tell({});
    Interface::Raise(Interface::Bus::PortsChanged);
    return true;
}

void OwnPorts::Tell(const std::string& trouble) {
    if (!trouble.empty()) {
        log_.Write(trouble);
    }
    const std::string text = trouble.empty() ? trouble : tables_.Texts().Text("Client", "OWN_PORTS_MISSING");
    const Interface::StatusWord word{"Ports", text, trouble};
    Interface::Raise(Interface::Bus::TellStatus, &word);
}

PortOutcome OwnPorts::Change(ServerLink& link, PortOperation operation, const Ports::Place& port) {
    if (link.User(Server::kLocalUser).empty()) {
        return PortOutcome::NoUser;
    }
    const auto reply = ExchangeOnBus(Interface::VoyCommand::ChangePlace, ChangeText(operation, port));
    if (!reply) {
        return PortOutcome::NoServer;
    }
    const PortOutcome outcome = OutcomeOf(*reply);
    if (outcome != PortOutcome::Done && outcome != PortOutcome::Gone) {
        return outcome;
    }
    const bool loaded = Load(link);
    return outcome == PortOutcome::Done && !loaded ? PortOutcome::NotLoaded : outcome;
}

}  // namespace Tarvik::Client
