// SPDX-License-Identifier: MIT
#include "tests/gui/Sitting.h"

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

namespace Tarvik::Programs {

namespace {

constexpr Place kVoyagesTool{40, 18};
constexpr Place kStatusLine{640, 790};
// The voyage panel with one category at the top of its tree and one voyage below.
constexpr Place kRenameEditor{130, 58};
constexpr Place kAddVoyage{73, 89};
constexpr Place kVoyageBehindItsCategory{150, 122};
constexpr Place kSetPortCalls{98, 122};
// The first cell of the port call table.
constexpr Place kFirstPort{103, 84};

/// Leaves the preferences of somebody who has begun, unless there are some.
void BeginIn(const std::filesystem::path& preferences) {
    if (!std::filesystem::exists(preferences)) {
        std::filesystem::create_directories(preferences.parent_path());
        std::ofstream(preferences) << "{}";
    }
}

ChildProcess::Start OnDisplay(const ClientTree& client, const std::string& display, Sitting::Folder folder) {
    if (folder == Sitting::Folder::Begun) {
        BeginIn(client.Data("preferences.json"));
    }
    auto start = client.Words({"--lang", "en-US", "--theme", "light"});
    start.environment["DISPLAY"] = display;
    start.environment["QT_QPA_PLATFORM"] = "xcb";
    start.environment["QT_SCALE_FACTOR"] = "1";
    return start;
}

}  // namespace

Sitting::Sitting(const ClientTree& client, const Person& person, const std::string& display, Folder folder)
    : client_(client), person_(person), process_(OnDisplay(client, display, folder)) {
    main = person.AwaitWindow("Seaplan");
}

Sitting::~Sitting() {
    // What was on the screen when a test failed says more than its words.
    const char* folder = std::getenv("SEAPLAN_TEST_PICTURES");
    const bool failed = std::uncaught_exceptions() > 0 || testing::Test::HasFailure();
    if (folder != nullptr && failed) {
        person_.Photograph(std::string(folder) + "/failed.png");
    }
}

void Sitting::OpenVoyages() {
    person_.PressAt(main, kVoyagesTool.x, kVoyagesTool.y);
    voyages = person_.AwaitWindow("Voyages");
    person_.AwaitKeys(voyages);
}

void Sitting::OpenPortCalls(const Place& place) {
    person_.PressAt(voyages, place.x, place.y);
    portCalls = person_.AwaitWindow("Port calls");
    person_.AwaitKeys(portCalls);
}

void Sitting::Await(const std::string& sql, long number) const {
    AwaitOrThrow([&] { return client_.Number(sql) == number; }, sql);
}

void Sitting::Rename(const std::string& name) const {
    person_.Press({"ctrl+a"});
    person_.Type(name);
    person_.Press({"Return"});
}

void Sitting::MakeVoyage() {
    OpenVoyages();
    Await("select count(*) from categories", 1);
    ClickVoyages(kRenameEditor);
    Rename("Tankers");
    Await("select count(*) from categories where cn='Tankers'", 1);
    ClickVoyages(kAddVoyage);
    Await("select count(*) from voyages", 1);
    Rename("Winter");
    Await("select count(*) from voyages where vn='Winter'", 1);
}

void Sitting::OpenEmptyPortCalls() {
    ClickVoyages(kVoyageBehindItsCategory);
    OpenPortCalls(kSetPortCalls);
}

void Sitting::TypePorts(const std::vector<std::string>& ports) const {
    person_.Click(portCalls, kFirstPort.x, kFirstPort.y);
    for (const std::string& port : ports) {
        person_.Type(port);
        person_.Press({"Return"});
    }
}

void Sitting::AskToLeave() const {
    person_.Click(main, kStatusLine.x, kStatusLine.y);
    person_.Press({"ctrl+q"});
}

Ended Sitting::Leave() {
    AskToLeave();
    return AwaitEnd();
}

}  // namespace Tarvik::Programs
