// SPDX-License-Identifier: MIT
// ais-feed: a receiver for trying things out. Serves AIVDM sentences of ships that sail their routes, at a
// multiple of real pace, to all who call on loopback.
#include <charconv>
#include <chrono>
#include <csignal>
#include <ctime>
#include <exception>
#include <fstream>
#include <functional>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include <boost/asio/io_context.hpp>
#include <boost/asio/signal_set.hpp>
#include <boost/asio/steady_timer.hpp>

#include "host/plugins/ais/demo/DemoFeed.h"
#include "host/plugins/ais/demo/FeedServer.h"

namespace {

using namespace Tarvik::Ais;
namespace asio = boost::asio;

constexpr const char* kUsage =
    "Usage: ais-feed FILE [PORT [PACE]]\n"
    "Serves the ships of FILE as AIVDM sentences on 127.0.0.1:PORT (10110), their time running PACE (60) "
    "times as fast as\n"
    "the clock. Each line of FILE is a ship: MMSI;NAME;KNOTS;DEPARTURE;LON,LAT|LON,LAT|... with the "
    "departure in seconds\n"
    "after 1970, or +N or -N for as many seconds from now.\n";
constexpr auto kTurn = std::chrono::seconds(1);

struct Options {
    std::string file;
    std::uint16_t port = 10110;
    int pace = 60;
};

template <class Number>
bool Read(const std::string& text, Number& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

std::optional<Options> ReadOptions(const std::vector<std::string>& words) {
    Options options;
    if (words.empty() || words.size() > 3) {
        return std::nullopt;
    }
    options.file = words[0];
    const bool good = (words.size() < 2 || Read(words[1], options.port)) &&
                      (words.size() < 3 || (Read(words[2], options.pace) && options.pace > 0));
    return good ? std::optional(options) : std::nullopt;
}

/// The ships of a file; throws std::runtime_error for a line that is none.
std::vector<DemoShip> ReadShips(const std::string& file, std::int64_t now) {
    std::ifstream in(file);
    if (!in) {
        throw std::runtime_error(file + " cannot be read");
    }
    std::vector<DemoShip> ships;
    for (std::string line; std::getline(in, line);) {
        if (line.empty() || line.front() == '#') {
            continue;
        }
        const auto ship = DemoShip::Parse(line, now);
        if (!ship) {
            throw std::runtime_error("This is no ship: " + line);
        }
        ships.push_back(*ship);
    }
    return ships;
}

/// Sends what is heard each second until a signal ends the program.
void Serve(const Options& options, DemoFeed feed, std::int64_t start) {
    asio::io_context io{1};
    FeedServer server(io, options.port);
    std::cout << "127.0.0.1:" << server.Port() << std::endl;
    asio::signal_set signals(io, SIGINT, SIGTERM);
    signals.async_wait([&io](boost::system::error_code, int) { io.stop(); });
    asio::steady_timer timer(io);
    const auto begun = std::chrono::steady_clock::now();
    std::function<void(boost::system::error_code)> turn = [&](boost::system::error_code error) {
        if (error) {
            return;
        }
        const auto gone =
            std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - begun);
        server.Send(feed.Next(start + gone.count() * options.pace / 1000));
        timer.expires_after(kTurn);
        timer.async_wait(turn);
    };
    turn({});
    io.run();
}

}  // namespace

int main(int argc, char** argv) {
    const auto options = ReadOptions({argv + 1, argv + argc});
    if (!options) {
        std::cerr << kUsage;
        return 2;
    }
    try {
        const std::int64_t now = std::time(nullptr);
        constexpr unsigned kSeed = 1;
        Serve(*options, DemoFeed(ReadShips(options->file, now), kSeed), now);
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << "ais-feed: " << failure.what() << '\n';
        return 1;
    }
}
