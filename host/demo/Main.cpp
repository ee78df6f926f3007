// SPDX-License-Identifier: MIT
// seaplan-demo: what ./run --demo starts with. `plans` prints the voyages that are to be planned; `finish
// FOLDER` completes them in a client's data folder and prints the ships of the AIS feed.
#include <cstring>
#include <ctime>
#include <exception>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "host/demo/DemoSetup.h"
#include "host/server/api/RouteSource.h"
#include "host/server/app/EmbeddedServer.h"

namespace {

using namespace Tarvik;

class NoRoutes : public Server::RouteSource {
    std::string Plan(std::string_view) override { return R"({"eid":-1})"; }
    std::string Nearest(std::string_view) override { return R"({"eid":-1})"; }
};

std::string FinishIn(const std::string& folder, std::int64_t now) {
    std::string error;
    const auto server =
        Server::EmbeddedServer::Open(folder + "/voyages.db", std::make_unique<NoRoutes>(), error);
    if (!server) {
        throw std::runtime_error(error);
    }
    return Demo::Finish(
        [&server](std::uint16_t command, const std::string& text) {
            std::vector<char> block(sizeof(Interface::VoyServerRequest) + text.size() + 1);
            const Interface::VoyServerRequest head{static_cast<std::uint32_t>(text.size() + 1), command,
                                                   Interface::kVoyageModuleWord};
            std::memcpy(block.data(), &head, sizeof head);
            std::memcpy(block.data() + sizeof head, text.c_str(), text.size() + 1);
            return server->Exchange(Server::kLocalUser,
                                    reinterpret_cast<const Interface::VoyServerRequest*>(block.data()));
        },
        Server::kLocalUser, now);
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> words(argv + 1, argv + argc);
    const std::int64_t now = std::time(nullptr);
    try {
        if (words == std::vector<std::string>{"plans"}) {
            std::cout << Demo::PlanLines(now);
            return 0;
        }
        if (words.size() == 2 && words[0] == "finish") {
            std::cout << FinishIn(words[1], now);
            return 0;
        }
    } catch (const std::exception& failure) {
        std::cerr << "seaplan-demo: " << failure.what() << '\n';
        return 1;
    }
    std::cerr << "Usage: seaplan-demo plans | seaplan-demo finish FOLDER\n";
    return 2;
}
