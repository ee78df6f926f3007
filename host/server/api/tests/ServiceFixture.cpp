// SPDX-License-Identifier: MIT
#include "host/server/api/tests/ServiceFixture.h"

#include <stdexcept>

#include <tarvik/interface/ServerRequest.h>
#include <tarvik/util/Jsona.h>

namespace Tarvik::Server {

ServiceTest::ServiceTest() {
    std::string error;
    storage_ = SqliteStorage::Open(":memory:", error);
    if (storage_ == nullptr) {
        throw std::runtime_error(error);
    }
    service_ = std::make_unique<VoyageService>(*storage_, routes_, [this] { return now_; });
}

std::string ServiceTest::Send(int command, const std::string& text, const std::string& user) {
    if (command == kRemark) {
        return service_->Handle(user, Interface::kRemarkModuleWord, 9, text);
    }
    return service_->Handle(user, Interface::kVoyageModuleWord, static_cast<std::uint16_t>(command), text);
}

void ServiceTest::Converse(const std::vector<Step>& steps, const std::string& user) {
    for (const Step& step : steps) {
        EXPECT_EQ(Send(step.command, step.text, user), step.reply) << step.command << " " << step.text;
    }
}

std::string ServiceTest::Create(int command, const std::string& text, const char* key,
                                const std::string& user) {
    const std::string reply = Send(command, text, user);
    Util::Jsona status;
    if (!status.parse(reply) || status.getv("eid", -1) != 0) {
        throw std::runtime_error(reply);
    }
    return status.getv(key, "");
}

World ServiceTest::MakeWorld(const std::string& user) {
    World world;
    world.category = Create(4, R"({ci:"",cn:"Atlantic",type:0})", "ci", user);
    const std::string voyage =
        R"({ci:")" + world.category + R"(",vi:"",vn:"V",type:"0",vsi:"",vr:"0",va:"0"})";
    world.voyage = Create(5, voyage, "vi", user);
    world.book = Create(8, R"({vi:")" + world.voyage + R"(",dt:"2026-03-01 08:00:00"})", "psb", user);
    world.binnedCategory = Create(4, R"({ci:"",cn:"Old",type:0})", "ci", user);
    world.binnedVoyage = Create(5, voyage, "vi", user);
    world.emptyBook =
        Create(8, R"({vi:")" + world.binnedVoyage + R"(",dt:"2026-03-01 08:00:00"})", "psb", user);
    const std::string success = R"({"eid":0})";
    Converse(
        {{4, R"({ci:")" + world.binnedCategory + R"(",type:"1"})", success},
         {5, R"({vi:")" + world.binnedVoyage + R"(",type:"2"})", success},
         {11, R"([")" + world.voyage + R"(","0|1|Ulsan|L|18.520|0.000|0.0","1|2|Oslo|D|18.520|0.000|0.0"])",
          success},
         {9, R"([")" + world.book + R"(","0","0|A|1.5|2.5|GC|5|18.520|5","1|B|3.5|4.5|RL|5|18.520|5"])",
          success},
         {13, R"({vi:")" + world.voyage + R"(",time:"2026-03-01 09:00:00"})", success},
         {kRemark, R"({optype:"1",type:"3",objectid:")" + world.voyage + R"(",seq:"1",subject:"s",body:"b"})",
          success}},
        user);
    return world;
}

std::string ServiceTest::Everything(const std::string& user) {
    std::string all = Send(3, "{ui:\"" + user + "\"}", user);
    for (int number = 1000001; number <= 1000030; ++number) {
        const std::string id = std::to_string(number);
        for (const int command : {7, 10, 12}) {
            all += '\n' + Send(command, "{vi:\"" + id + "\"}", user);
        }
        for (const char* type : {"2", "3"}) {
            all += '\n' + Send(kRemark,
                               std::string("{optype:\"4\",type:\"") + type + "\",objectid:\"" + id + "\"}",
                               user);
        }
        all += '\n' + Send(kRemark, "{optype:\"4\",type:\"4\",objectid:\"" + id + "Ulsan\"}", user);
    }
    return all;
}

int ServiceTest::Eid(const std::string& reply) {
    Util::Jsona status;
    return status.parse(reply) ? status.getv("eid", -1) : -1;
}

std::string ServiceTest::Emsg(const std::string& reply) {
    Util::Jsona status;
    return status.parse(reply) ? status.getv("emsg", "") : "";
}

}  // namespace Tarvik::Server
