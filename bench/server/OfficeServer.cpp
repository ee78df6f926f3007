// SPDX-License-Identifier: MIT
#include "bench/server/OfficeServer.h"

#include <chrono>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <stdexcept>
#include <unistd.h>

#include <fmt/format.h>

#include <tarvik/interface/ServerRequest.h>

#include "host/client/remote/HttpClient.h"
#include "host/server/net/service/Resources.h"
#include "host/server/net/service/VoyageServer.h"
#include "host/server/wire/Envelope.h"

namespace Bench {

using namespace Tarvik::Server;

namespace {

constexpr std::int64_t kFirstId = 1000001;
/// Hashing passwords is not what is measured.
constexpr PasswordCost kCheap{1, 8192};

VoyageCopy MakeVoyage(std::int64_t id) {
    VoyageCopy copy;
    copy.voyage.id = std::to_string(id);
    copy.voyage.name = fmt::format("Voyage {}", id);
    copy.voyage.vessel = {fmt::format("9{}", id), "Northern Light", 257000001};
    copy.voyage.routeShown = true;
    copy.voyage.figures = {30000, 28000, 5000, 2000, 2000, 10000, 10000};
    return copy;
}

void AddSchedule(VoyageCopy& copy, std::int64_t bookId) {
    for (int i = 0; i < 5; ++i) {
        copy.calls.push_back({i, std::to_string(40001 + i), fmt::format("Port {}", i), "D", 25.9, 0.05, 12});
    }
    copy.book = BookRecord{std::to_string(bookId), "2026-03-01 00:00:00", {}};
    for (int i = 0; i < 10; ++i) {
        copy.book->rows.push_back({i, "", i + 0.125, -i - 0.25, "GC", 5, 25.9, 0});
    }
    copy.aisTimes = {"2026-03-01 00:00:00", "2026-03-02 00:00:00"};
}

OwnerCopy SmallOwner() {
    OwnerCopy owner{OfficeServer::kSmallUser, {{std::to_string(kFirstId), "2026", {}, {}}}, {}};
    for (int i = 1; i <= 3; ++i) {
        owner.categories[0].voyages.push_back(MakeVoyage(kFirstId + i));
    }
    AddSchedule(owner.categories[0].voyages[0], kFirstId + 4);
    return owner;
}

OwnerCopy LargeOwner() {
    OwnerCopy owner{OfficeServer::kLargeUser, {}, {}};
    std::int64_t id = kFirstId + 5;
    for (int i = 0; i < OfficeServer::kVoyages; ++i) {
        if (i % 100 == 0) {
            owner.categories.push_back({std::to_string(id++), fmt::format("Category {}", i), {}, {}});
        }
        owner.categories.back().voyages.push_back(MakeVoyage(id++));
    }
    return owner;
}

std::string Request(const std::string& token, std::uint16_t command, const std::string& text) {
    const std::string body = WriteEnvelope({command, Tarvik::Interface::kVoyageModuleWord, text});
    return fmt::format(
               "POST /v1/exchange HTTP/1.1\r\nHost: 127.0.0.1\r\nAuthorization: Bearer {}\r\n"
               "Content-Type: application/octet-stream\r\nContent-Length: {}\r\n\r\n",
               token, body.size()) +
           body;
}

void Fill(const Settings& settings) {
    std::string error;
    const auto storage = OpenVoyages(settings, error);
    if (storage == nullptr) {
        throw std::runtime_error(error);
    }
    int next = 0;
    const CopyManifest manifest{{OfficeServer::kSmallUser, OfficeServer::kLargeUser},
                                kFirstId,
                                kFirstId + 2 * OfficeServer::kVoyages,
                                false};
    const auto added = storage->Transfer().AddOwners(manifest, [&]() -> Outcome<std::optional<OwnerCopy>> {
        const int place = next++;
        if (place > 1) {
            return std::optional<OwnerCopy>();
        }
        return std::optional(place == 0 ? SmallOwner() : LargeOwner());
    });
    if (!added || !added.Value().idsKept) {
        throw std::runtime_error("the data base cannot be filled");
    }
}

}  // namespace

void OfficeServer::Serve(const OfficePlace& place, const ChildProcess::Ready& ready) {
    const int nowhere = ::open("/dev/null", O_WRONLY);
    ::dup2(nowhere, STDERR_FILENO);
    Settings settings;
    settings.data = place.folder;
    settings.database = place.database;
    settings.tlsCertificate = place.certificate;
    settings.tlsKey = place.key;
    settings.port = 0;
    settings.logRequests = place.logRequests;
    settings.maxConnections = 6000;
    settings.maxConnectionsPerAddress = 0;
    settings.idleSeconds = 3600;
    Fill(settings);
    ServerParts parts;
    parts.routes = std::make_unique<NoRoutes>();
    parts.passwordCost = kCheap;
    std::string error;
    const auto server = VoyageServer::Open(settings, std::move(parts), error);
    if (server == nullptr) {
        throw std::runtime_error(error);
    }
    for (const char* user : {kSmallUser, kLargeUser}) {
        if (!server->Accounts().AddUser(user, Passwords(kCheap).Hash(kPassword))) {
            throw std::runtime_error("no user");
        }
    }
    server->StopOnSignals();
    ready(server->Port());
    server->Run();
}

std::string OfficeServer::LogIn(std::uint16_t port, const std::string& user, const std::string& certificate) {
    const char* scheme = certificate.empty() ? "http" : "https";
    const auto parsed = Tarvik::Client::ServerUrl::Parse(fmt::format("{}://127.0.0.1:{}", scheme, port));
    if (!parsed) {
        throw std::runtime_error("no address");
    }
    Tarvik::Client::HttpClient http(*parsed, std::chrono::seconds(15), certificate);
    const std::string body = fmt::format(R"({{"user":"{}","password":"{}"}})", user, kPassword);
    const auto answer = http.Post("/v1/login", "application/json", body, {});
    const std::string mark = "\"token\":\"";
    const std::size_t from = answer.body.find(mark);
    if (answer.status != 200 || from == std::string::npos) {
        throw std::runtime_error("no login");
    }
    return answer.body.substr(from + mark.size(),
                              answer.body.find('"', from + mark.size()) - from - mark.size());
}

std::vector<std::string> OfficeServer::SmallReads(const std::string& token) {
    const std::string voyage = fmt::format("{{vi:\"{}\"}}", kFirstId + 1);
    return {Request(token, 3, fmt::format("{{ui:\"{}\"}}", kSmallUser)), Request(token, 10, voyage),
            Request(token, 12, voyage), Request(token, 7, voyage)};
}

std::int64_t OfficeServer::FirstVoyage() {
    return kFirstId + 7;
}

std::vector<std::string> OfficeServer::SmallWrites(const std::string& token) {
    std::vector<std::string> requests;
    for (int i = 0; i < kVoyagesInARow; ++i) {
        const std::string figures =
            fmt::format(R"({{vi:"{}",vfn:"30",vff:"28",vfa:"5",vdn:"2",vda:"2",vwn:"{}",vwa:"10"}})",
                        FirstVoyage() + i, i);
        requests.push_back(Request(token, 6, figures));
    }
    return requests;
}

}  // namespace Bench
