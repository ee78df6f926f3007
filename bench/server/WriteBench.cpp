// SPDX-License-Identifier: MIT
#include "bench/server/WriteBench.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <vector>

#include <fmt/format.h>

#include "bench/server/ChildProcess.h"
#include "bench/server/LoadClient.h"
#include "bench/server/OfficeServer.h"
#include "host/server/net/tests/TestCertificate.h"
#include "host/server/storage/postgres/tests/PostgresServer.h"
#include "host/server/storage/sqlite/tests/TempFolder.h"

namespace Bench {

namespace {

using Tarvik::Server::PostgresServer;
using Tarvik::Server::TempFolder;

constexpr int kConnections = 32;
constexpr int kRounds = 5;
constexpr std::chrono::milliseconds kTime{3000};

template <class Number>
Number Middle(std::vector<Number> all) {
    std::sort(all.begin(), all.end());
    return all[all.size() / 2];
}

/// How often a second the disk takes a page behind the end of a file, one after the other.
double SyncsPerSecond(const std::string& path) {
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    const std::vector<char> page(4096, 'x');
    const auto begin = std::chrono::steady_clock::now();
    const auto end = begin + std::chrono::milliseconds(500);
    int count = 0;
    while (file >= 0 && std::chrono::steady_clock::now() < end) {
        if (::write(file, page.data(), page.size()) != static_cast<ssize_t>(page.size()) ||
            ::fdatasync(file) != 0) {
            break;
        }
        ++count;
    }
    ::close(file);
    return count / std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

/// The statements of one change of command 6, as the server sends them.
constexpr const char* kScript = R"(\set id random({}, {})
BEGIN;
SELECT v.vd FROM voyages v JOIN categories c ON c.owner = v.owner AND c.ci = v.ci WHERE v.owner = 'owen' AND v.vi = :id::text AND v.vd <> 2 AND c.cd <> 2 FOR UPDATE OF v FOR SHARE OF c;
UPDATE voyages SET vfn = 30, vff = 28, vfa = 5, vdn = 2, vda = 2, vwn = random() * 10, vwa = 10 WHERE owner = 'owen' AND vi = :id::text;
COMMIT;
)";

/// Transactions a second of the data base's own benchmark.
double RunPgbench(const std::string& script, const std::string& connection) {
    const std::string command =
        fmt::format("{}/pgbench -n -M prepared -c {} -j 2 -T {} -f {} \"{}\" 2>&1", SEAPLAN_POSTGRES_PROGRAMS,
                    kConnections, kTime.count() / 1000, script, connection);
    std::FILE* lines = ::popen(command.c_str(), "r");
    std::array<char, 512> line{};
    std::string said;
    double perSecond = 0;
    while (lines != nullptr && std::fgets(line.data(), line.size(), lines) != nullptr) {
        said += line.data();
        const std::string text(line.data());
        if (text.starts_with("tps = ")) {
            perSecond = std::atof(text.c_str() + 6);
        }
    }
    if (lines == nullptr || ::pclose(lines) != 0 || perSecond <= 0) {
        throw std::runtime_error("pgbench: " + said);
    }
    return perSecond;
}

std::vector<std::string> Writes(const ChildProcess& server) {
    return OfficeServer::SmallWrites(OfficeServer::LogIn(server.Port(), OfficeServer::kLargeUser));
}

void MeasureFiles() {
    const TempFolder folder;
    const ChildProcess server([&](const auto& ready) { OfficeServer::Serve({folder.File(".")}, ready); });
    const auto requests = Writes(server);
    std::vector<double> syncs;
    std::vector<double> changes;
    LoadResult last;
    for (int round = 0; round < kRounds; ++round) {
        syncs.push_back(SyncsPerSecond(folder.File("syncs")));
        last = RunLoad(server.Port(), requests, kConnections, kTime);
        changes.push_back(last.requestsPerSecond);
    }
    std::cout << fmt::format(
        "changes, files: {:.0f}/s, p50 {:.1f} ms, p99 {:.1f} ms; the disk alone {:.0f} syncs/s, {:.1f} "
        "changes a "
        "sync\n",
        Middle(changes), last.p50Ms, last.p99Ms, Middle(syncs), Middle(changes) / Middle(syncs));
}

void MeasurePostgres() {
    const TempFolder folder;
    const std::string database = PostgresServer::Instance(PostgresServer::Disk::Awaited).MakeDatabase();
    const ChildProcess server([&](const auto& ready) {
        OfficeServer::Serve({folder.File("."), false, database}, ready);
    });
    const auto requests = Writes(server);
    const std::string script = folder.File("change.sql");
    std::ofstream(script) << fmt::format(fmt::runtime(kScript), OfficeServer::FirstVoyage(),
                                         OfficeServer::FirstVoyage() + OfficeServer::kVoyagesInARow - 1);
    std::vector<double> own;
    std::vector<double> changes;
    LoadResult last;
    for (int round = 0; round < kRounds; ++round) {
        own.push_back(RunPgbench(script, database));
        last = RunLoad(server.Port(), requests, kConnections, kTime);
        changes.push_back(last.requestsPerSecond);
    }
    std::cout << fmt::format(
        "changes, PostgreSQL: {:.0f}/s, p50 {:.1f} ms, p99 {:.1f} ms; pgbench {:.0f}/s, {:.0f} % of it\n",
        Middle(changes), last.p50Ms, last.p99Ms, Middle(own), 100 * Middle(changes) / Middle(own));
}

}  // namespace

void MeasureWrites() {
    MeasureFiles();
    MeasurePostgres();
}

void MeasureTls() {
    const TempFolder plain;
    const TempFolder secret;
    const std::string certificate = secret.File("chain.pem");
    const std::string key = secret.File("key.pem");
    Tarvik::Server::WriteTestCertificate(certificate, key);
    const ChildProcess open([&](const auto& ready) { OfficeServer::Serve({plain.File(".")}, ready); });
    const ChildProcess closed([&](const auto& ready) {
        OfficeServer::Serve({secret.File("."), false, {}, certificate, key}, ready);
    });
    const auto reads = OfficeServer::SmallReads(OfficeServer::LogIn(open.Port(), OfficeServer::kSmallUser));
    const auto hidden =
        OfficeServer::SmallReads(OfficeServer::LogIn(closed.Port(), OfficeServer::kSmallUser, certificate));
    std::vector<double> without;
    std::vector<double> with;
    LoadResult last;
    for (int round = 0; round < kRounds; ++round) {
        without.push_back(RunLoad(open.Port(), reads, kConnections, kTime).requestsPerSecond);
        last = RunLoad(closed.Port(), hidden, kConnections, kTime, Speech::Tls);
        with.push_back(last.requestsPerSecond);
    }
    std::cout << fmt::format(
        "small reads over TLS: {:.0f}/s, p99 {:.1f} ms; without {:.0f}/s, {:.0f} % of it\n", Middle(with),
        last.p99Ms, Middle(without), 100 * Middle(with) / Middle(without));
}

}  // namespace Bench
