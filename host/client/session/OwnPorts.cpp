// SPDX-License-Identifier: MIT
#include "host/client/session/OwnPorts.h"

#include <exception>
#include <filesystem>

#include <SQLiteCpp/SQLiteCpp.h>
#include <nlohmann/json.hpp>

#include "host/client/services/RequestBlock.h"

namespace fs = std::filesystem;

namespace Tarvik::Client {

namespace {

void Insert(const std::string& file, const std::vector<Ports::Place>& own) {
    SQLite::Database database(file, SQLite::OPEN_READWRITE);
    database.exec("pragma journal_mode=off");
    SQLite::Transaction transaction(database);
    SQLite::Statement row(database,
                          "insert into t_point(id,name,namecn,x,y,isport,origid) values(?,?,'',?,?,'1','0')");
    for (const Ports::Place& port : own) {
        row.bind(1, port.id);
        row.bind(2, port.name);
        row.bind(3, std::to_string(port.position->x));
        row.bind(4, std::to_string(port.position->y));
        row.exec();
        row.reset();
    }
    transaction.commit();
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

}  // namespace Tarvik::Client
