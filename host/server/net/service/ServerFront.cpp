// SPDX-License-Identifier: MIT
#include "host/server/net/service/ServerFront.h"

#include <array>
#include <chrono>
#include <utility>

#include <fmt/format.h>

#include "host/server/accounts/Credentials.h"
#include "host/server/accounts/LoginGuard.h"

namespace Tarvik::Server {

namespace {

enum class Path { LogIn, LogOut, Exchange, Health, Metrics };

struct PathEntry {
    std::string_view path;
    std::string_view method;
    Path which;
    Lane lane;
    std::string_view command;
};

constexpr std::array<PathEntry, 5> kPaths = {{
    {"/v1/exchange", "POST", Path::Exchange, Lane::Read, "exchange"},
    {"/v1/login", "POST", Path::LogIn, Lane::Login, "login"},
    {"/v1/logout", "POST", Path::LogOut, Lane::Write, "logout"},
    {"/health", "GET", Path::Health, Lane::Write, "health"},
    {"/metrics", "GET", Path::Metrics, Lane::Inline, "metrics"},
}};

constexpr std::uint64_t kSmallBodyBytes = 8192;

const PathEntry* Find(const std::string& target) {
    const std::string_view path = std::string_view(target).substr(0, target.find('?'));
    for (const PathEntry& entry : kPaths) {
        if (entry.path == path) {
            return &entry;
        }
    }
    return nullptr;
}

}  // namespace

ServerFront::ServerFront(const FrontParts& parts, const FrontOptions& options)
    : parts_(parts),
      options_(options),
      logins_(parts.sessions, options.sessionSeconds),
      exchange_(parts.service, parts.sessions),
      health_(parts.storage, parts.accounts) {}

std::optional<HttpReply> ServerFront::RefuseHead(const HttpRequest& head) const {
    const PathEntry* entry = Find(head.target);
    if (entry == nullptr) {
        return ErrorReply(404, "there is nothing at this path");
    }
    if (entry->method != head.method) {
        HttpReply reply = ErrorReply(405, fmt::format("this path takes {} only", entry->method));
        reply.fields.emplace_back("Allow", entry->method);
        return reply;
    }
    const bool needsToken = entry->which == Path::Exchange || entry->which == Path::LogOut;
    if (needsToken && TokenOf(head.authorization).empty()) {
        return UnauthorizedReply("log in and send the field \"Authorization: Bearer TOKEN\"");
    }
    return std::nullopt;
}

std::uint64_t ServerFront::BodyLimit(const HttpRequest& head) const {
    const PathEntry* entry = Find(head.target);
    const bool exchange = entry != nullptr && entry->which == Path::Exchange;
    return exchange ? options_.maxBodyBytes : kSmallBodyBytes;
}

std::optional<HttpReply> ServerFront::RefuseLarge(const HttpRequest& head) {
    return exchange_.RefuseStranger(head);
}

Place ServerFront::PlaceOf(const HttpRequest& request) {
    const PathEntry* entry = Find(request.target);
    if (entry == nullptr) {
        return {};
    }
    if (entry->which == Path::Exchange) {
        return exchange_.PlaceOf(request);
    }
    return {entry->lane, entry->lane == Lane::Login ? AddressKey(request.address) : std::string()};
}

HttpReply ServerFront::Answer(const HttpRequest& request) {
    const auto begin = std::chrono::steady_clock::now();
    Answered answered;
    try {
        answered = Dispatch(request);
    } catch (const std::exception& error) {
        const PathEntry* entry = Find(request.target);
        answered = {ErrorReply(500, "the server failed"),
                    std::string(entry ? entry->command : "other"),
                    "failed",
                    {},
                    error.what()};
    }
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
    Note(request, answered, time.count());
    return std::move(answered.reply);
}

Answered ServerFront::Dispatch(const HttpRequest& request) {
    const PathEntry* entry = Find(request.target);
    if (entry == nullptr) {
        return {ErrorReply(404, "there is nothing at this path"), "other", "bad", {}, {}};
    }
    switch (entry->which) {
        case Path::LogIn:
            return logins_.LogIn(request);
        case Path::LogOut:
            return logins_.LogOut(request);
        case Path::Exchange:
            return exchange_.Exchange(request);
        case Path::Health:
            return health_.Health();
        case Path::Metrics:
            break;
    }
    return {{200, "text/plain; version=0.0.4; charset=utf-8", parts_.metrics.Print(), {}},
            "metrics",
            "ok",
            {},
            {}};
}

void ServerFront::Note(const HttpRequest& request, const Answered& answered, double seconds) {
    parts_.metrics.CountRequest(answered.command, answered.result, seconds);
    const bool failed = answered.result == "failed";
    if (!failed && !options_.logRequests) {
        return;
    }
    parts_.log.Write(failed ? LogLevel::Error : LogLevel::Info, "request",
                     {{"command", answered.command},
                      {"result", answered.result},
                      {"status", std::to_string(answered.reply.status)},
                      {"user", answered.user},
                      {"address", request.address},
                      {"ms", fmt::format("{:.1f}", seconds * 1000)},
                      {"detail", answered.detail}});
}

void ServerFront::Refused(const HttpRequest& request, int status) {
    const PathEntry* entry = Find(request.target);
    const Answered answered{
        {status, {}, {}, {}}, std::string(entry ? entry->command : "other"), ResultOf(status), {}, {}};
    Note(request, answered, 0);
}

void ServerFront::ConnectionRefused(const std::string& address) {
    parts_.metrics.CountRefusedConnection();
    parts_.log.Write(LogLevel::Warning, "connection refused", {{"address", address}, {"reason", "too many"}});
}

void ServerFront::Failed(const std::string& detail) {
    parts_.log.Write(LogLevel::Error, "connection failed", {{"detail", detail}});
}

}  // namespace Tarvik::Server
