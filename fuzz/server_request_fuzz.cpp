// SPDX-License-Identifier: MIT
// Requests of one user on the voyage server with a data base in memory. An input is a row of requests with
// the byte 0x1E between them; the first byte of each is its command: "a" for 1, "b" for 2 and so on, "R" for
// the remark command.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include <tarvik/interface/ServerRequest.h>
#include <tarvik/util/Jsona.h>

#include "host/server/api/RouteSource.h"
#include "host/server/api/VoyageService.h"
#include "host/server/storage/sqlite/SqliteStorage.h"

namespace {

using namespace Tarvik::Server;
using Tarvik::Util::Jsona;

constexpr char kSeparator = '\x1E';
constexpr int kMostRequests = 8;

class NoRoutes : public RouteSource {
  public:
    std::string Plan(std::string_view) override { return "[]"; }
    std::string Nearest(std::string_view) override { return "[]"; }
};

/// The server with a category, a voyage and a book of two users each: 1000001 to 1000003 are the fuzzed
/// user's.
class Server {
  public:
    Server() {
        std::string error;
        storage_ = SqliteStorage::Open(":memory:", error);
        if (storage_ == nullptr) {
            Fail(error, "");
        }
        service_ =
            std::make_unique<VoyageService>(*storage_, routes_, [] { return std::int64_t{1772323200}; });
        MakeWorld("ann", "1000001", "1000002", "1000003");
        MakeWorld("bob", "1000004", "1000005", "1000006");
    }

    std::string Ask(const std::string& user, char command, std::string_view text) {
        if (command == 'R') {
            return service_->Handle(user, Tarvik::Interface::kRemarkModuleWord, 9, text);
        }
        return service_->Handle(user, Tarvik::Interface::kVoyageModuleWord,
                                static_cast<std::uint16_t>(command - 'a' + 1), text);
    }
    /// Everything that the first records and those made since hold.
    std::string Everything(const std::string& user) {
        std::string all = Ask(user, 'c', "{ui:\"" + user + "\"}");
        for (const char* id : {"1000002", "1000005", "1000007", "1000008"}) {
            const std::string voyage = std::string("{vi:\"") + id + "\"}";
            for (const char command : {'g', 'j', 'l'}) {
                all += Ask(user, command, voyage);
            }
            all += Ask(user, 'R', std::string("{optype:\"4\",type:\"3\",objectid:\"") + id + "\"}");
        }
        return all;
    }

    [[noreturn]] static void Fail(std::string_view what, std::string_view text) {
        std::fprintf(stderr, "%.*s: %.*s\n", static_cast<int>(what.size()), what.data(),
                     static_cast<int>(text.size()), text.data());
        std::abort();
    }

  private:
    void MakeWorld(const std::string& user, const std::string& ci, const std::string& vi,
                   const std::string& psb) {
        const std::pair<char, std::string> requests[] = {
            {'d', R"({ci:"",cn:"A",type:0})"},
            {'e', "{ci:\"" + ci + R"(",vi:"",vn:"V",type:"0",vsi:"",vr:"0",va:"0"})"},
            {'h', "{vi:\"" + vi + R"(",dt:"2026-03-01 08:00:00"})"},
            {'i', "[\"" + psb + R"(","0","0|A|1|2|GC|5|1.0|5","1|B|3|4|GC|5|1.0|5"])"},
            {'k', "[\"" + vi + R"(","0|1|A|L|1.000|0.000|0.0","1|2|B|D|1.000|0.000|0.0"])"},
            {'R', R"({optype:"1",type:"3",objectid:")" + vi + R"(",seq:"1",subject:"s",body:"b"})"},
        };
        for (const auto& [command, text] : requests) {
            const std::string reply = Ask(user, command, text);
            if (reply.rfind(R"({"eid":0)", 0) != 0) {
                Fail("the server does not start", reply);
            }
        }
    }

    NoRoutes routes_;
    std::unique_ptr<SqliteStorage> storage_;
    std::unique_ptr<VoyageService> service_;
};

/// The server as it is between two inputs, made anew after an input that changed something.
class Bench {
  public:
    /// The reply parses, says why it refuses, and a refusal or a reading command changes nothing.
    void Check(char command, std::string_view text) {
        const std::string reply = server_->Ask("ann", command, text);
        Jsona status;
        if (!status.parse(reply)) {
            Server::Fail("the reply does not parse", reply);
        }
        const int eid = status.kind() == Jsona::Kind::Object ? status.getv("eid", 0) : 0;
        if (eid < 0 || (eid != 0) != status.has("emsg")) {
            Server::Fail("the status is odd", reply);
        }
        constexpr std::string_view kReading = "abcgjl";
        const bool reading = kReading.find(command) != std::string_view::npos;
        std::string now = server_->Everything("ann");
        if (now == anns_) {
            return;
        }
        if (eid != 0 || reading) {
            Server::Fail("the data changed", reply);
        }
        anns_ = std::move(now);
        changed_ = true;
    }
    void EndInput() {
        if (!changed_) {
            return;
        }
        if (server_->Everything("bob") != bobs_) {
            Server::Fail("another user's data changed", "");
        }
        server_ = std::make_unique<Server>();
        anns_ = server_->Everything("ann");
        changed_ = false;
    }

  private:
    std::unique_ptr<Server> server_ = std::make_unique<Server>();
    std::string anns_ = server_->Everything("ann");
    const std::string bobs_ = server_->Everything("bob");
    bool changed_ = false;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    static Bench bench;
    std::string_view input(reinterpret_cast<const char*>(data), size);
    for (int i = 0; i < kMostRequests && !input.empty(); ++i) {
        const std::size_t end = input.find(kSeparator);
        const std::string_view request = input.substr(0, end);
        if (!request.empty()) {
            bench.Check(request[0], request.substr(1));
        }
        if (end == std::string_view::npos) {
            break;
        }
        input.remove_prefix(end + 1);
    }
    bench.EndInput();
    return 0;
}
