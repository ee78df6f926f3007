// SPDX-License-Identifier: MIT
#include "tests/golden/conversation/Conversation.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string_view>
#include <utility>

namespace Tarvik::Server {

namespace {

bool Writing() {
    const char* wish = std::getenv("SEAPLAN_WRITE_GOLDEN");
    return wish != nullptr && std::string_view(wish) == "1";
}

std::string ReadFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

/// The first line in which two texts differ, counted from 1.
std::size_t FirstDifference(const std::string& a, const std::string& b) {
    const auto apart = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first;
    return 1 + static_cast<std::size_t>(std::count(a.begin(), apart, '\n'));
}

/// A payload without its closing NUL, which every request must have.
std::string PayloadText(const Interface::VoyServerRequest& request) {
    const std::string_view payload(request.Payload(), request.length);
    const bool ended = payload.ends_with('\0') && payload.find('\0') == payload.size() - 1;
    return ended ? std::string(payload.substr(0, payload.size() - 1))
                 : std::string(payload) + "(not ended by a NUL)";
}

}  // namespace

Conversation::Conversation(const std::string& file, std::unique_ptr<RouteSource> routes)
    : host(":memory:", std::move(routes)), path_(std::string(GOLDEN_FOLDER) + "/" + file + ".txt") {
    host.watch = [this](const Interface::VoyServerRequest& request, const std::string& reply) {
        exchanges_ += "> " + std::to_string(request.command) + " " + std::to_string(request.moduleWord) +
                      " " + std::to_string(request.length) + "\n" + PayloadText(request) + "\n<\n" + reply +
                      "\n";
    };
}

void Conversation::TearDown() {
    EXPECT_TRUE(exchanges_.empty()) << "something was said and not written down:\n" << exchanges_;
    if (Writing()) {
        std::ofstream(path_, std::ios::binary) << record_;
        return;
    }
    const std::string golden = ReadFile(path_);
    EXPECT_TRUE(golden == record_) << path_ << " differs from line " << FirstDifference(golden, record_)
                                   << " on; the conversation now is:\n"
                                   << record_;
}

int Conversation::Note(const std::string& what, int result) {
    record_ += "-- " + what + ": " + std::to_string(result) + "\n" + std::exchange(exchanges_, {});
    return result;
}

void Conversation::LoadAll(const std::string& what) {
    Seaplan::VoyageStore fresh;
    Note(what, Seaplan::VoyCatalogModule(&fresh).LoadAll(host.user));
}

}  // namespace Tarvik::Server
