// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include <libpq-fe.h>

#include "host/server/storage/postgres/PostgresConnection.h"
#include "host/server/storage/sql/SqlConnection.h"

namespace Tarvik::Server {

namespace {

/// One part of a connection text.
struct Part {
    std::string key;
    std::string value;
    bool secret = false;
};

/// Seconds and counts that hold unless the text states others.
constexpr std::array<std::pair<std::string_view, std::string_view>, 7> kDefaults = {{
    {"connect_timeout", "10"},
    {"keepalives_idle", "30"},
    {"keepalives_interval", "10"},
    {"keepalives_count", "3"},
    {"tcp_user_timeout", "30000"},
    {"client_encoding", "UTF8"},
    {"fallback_application_name", "seaplan-server"},
}};

/// The parts that the text states; false when it cannot be read.
bool Parse(const std::string& text, std::vector<Part>& parts) {
    struct Free {
        void operator()(PQconninfoOption* options) const { PQconninfoFree(options); }
        void operator()(char* message) const { PQfreemem(message); }
    };
    char* message = nullptr;
    const std::unique_ptr<PQconninfoOption, Free> options(PQconninfoParse(text.c_str(), &message));
    const std::unique_ptr<char, Free> ignored(message);
    if (options == nullptr) {
        return false;
    }
    for (const PQconninfoOption* option = options.get(); option->keyword != nullptr; ++option) {
        if (option->val == nullptr) {
            continue;
        }
        const bool secret = option->dispchar != nullptr && *option->dispchar == '*';
        parts.push_back({option->keyword, option->val, secret});
    }
    return true;
}

/// An unescaped sign in a password of an address shifts where its host begins: part of the password would be
/// taken for a host and be named in messages.
bool IsAmbiguousAddress(const std::string& text) {
    if (!text.starts_with("postgresql://") && !text.starts_with("postgres://")) {
        return false;
    }
    const std::size_t last = text.rfind('@');
    if (last == std::string::npos) {
        return false;
    }
    const std::size_t first = text.find_first_of("@/?#", text.find("://") + 3);
    return first != last;
}

bool Has(const std::vector<Part>& parts, std::string_view key) {
    return std::any_of(parts.begin(), parts.end(), [key](const Part& part) { return part.key == key; });
}

void Append(std::string& text, std::string_view key, std::string_view value) {
    if (!text.empty()) {
        text += ' ';
    }
    text.append(key).append("='");
    for (const char sign : value) {
        if (sign == '\'' || sign == '\\') {
            text += '\\';
        }
        text += sign;
    }
    text += '\'';
}

}  // namespace

std::string ComplaintAboutConnection(const std::string& text) {
    std::vector<Part> parts;
    if (text.find('\0') != std::string::npos || IsAmbiguousAddress(text) || !Parse(text, parts)) {
        return "must be key=value pairs or a postgresql:// address, with %40 for @, %2F for / and the like "
               "in "
               "a password";
    }
    return {};
}

std::string CompleteConnection(const std::string& text) {
    const std::string complaint = ComplaintAboutConnection(text);
    if (!complaint.empty()) {
        throw SqlError("the connection text " + complaint);
    }
    std::vector<Part> parts;
    Parse(text, parts);
    std::string complete;
    for (const Part& part : parts) {
        Append(complete, part.key, part.value);
    }
    for (const auto& [key, value] : kDefaults) {
        if (!Has(parts, key)) {
            Append(complete, key, value);
        }
    }
    return complete;
}

std::string DescribeConnection(const std::string& text) {
    std::vector<Part> parts;
    if (!ComplaintAboutConnection(text).empty() || !Parse(text, parts)) {
        return "?";
    }
    std::string description = "postgresql";
    for (const char* key : {"host", "hostaddr", "port", "dbname", "user"}) {
        for (const Part& part : parts) {
            if (part.key == key) {
                description += " " + part.key + "=" + part.value;
            }
        }
    }
    return description;
}

std::string WithoutSecrets(std::string message, const std::string& text) {
    std::vector<Part> parts;
    Parse(text, parts);
    for (const Part& part : parts) {
        if (!part.secret || part.value.empty()) {
            continue;
        }
        std::size_t place = 0;
        while ((place = message.find(part.value, place)) != std::string::npos) {
            message.replace(place, part.value.size(), "***");
            place += 3;
        }
    }
    std::replace(message.begin(), message.end(), '\n', ' ');
    message.erase(message.find_last_not_of(' ') + 1);
    return message;
}

}  // namespace Tarvik::Server
