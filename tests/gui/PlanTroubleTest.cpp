// SPDX-License-Identifier: MIT
#include <algorithm>
#include <arpa/inet.h>
#include <cstddef>
#include <filesystem>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <gmock/gmock.h>

#include "tests/gui/ClientTree.h"

namespace Tarvik::Programs {

namespace {

using testing::HasSubstr;
namespace fs = std::filesystem;

const std::vector<std::string> kPlan{"Rotterdam", "Hamburg", "--save", "Trade/First"};

/// The plan fails with one line that holds all the parts.
void ExpectTrouble(const Ended& ended, const std::vector<std::string>& parts) {
    EXPECT_EQ(ended.exitCode, 1) << ended.err;
    EXPECT_EQ(ended.out, "");
    EXPECT_EQ(std::count(ended.err.begin(), ended.err.end(), '\n'), 1) << ended.err;
    for (const std::string& part : parts) {
        EXPECT_THAT(ended.err, HasSubstr(part));
    }
}

class DamagedTree : public testing::Test {
  protected:
    DamagedTree() { client_.CopyTree(); }
    void Cut(const std::string& name) const {
        const std::string file = client_.TreeFile(name);
        fs::resize_file(file, fs::file_size(file) / 2);
    }
    ClientTree client_;
};

TEST_F(DamagedTree, AMissingDataFileIsNamed) {
    for (const char* name : {"trvdb.db", "network.bin", "land.bin"}) {
        const std::string file = client_.TreeFile(std::string("share/seaplan/") + name);
        fs::rename(file, file + ".away");
        ExpectTrouble(client_.Plan(kPlan), {name, "missing", "Build or install the client again"});
        fs::rename(file + ".away", file);
    }
    EXPECT_EQ(client_.Plan(kPlan).exitCode, 0);
}

TEST_F(DamagedTree, ADataFileThatIsCutShortIsNamed) {
    ASSERT_EQ(client_.Plan({"Rotterdam", "Hamburg"}).exitCode, 0)
        << "a whole copy in the data folder does not hide it";
    for (const char* name : {"network.bin", "land.bin", "trvdb.db"}) {
        Cut(std::string("share/seaplan/") + name);
        ExpectTrouble(client_.Plan(kPlan), {name, "cut short", "Build or install the client again"});
    }
    EXPECT_EQ(client_.Number("select count(*) from categories"), 0);
}

TEST_F(DamagedTree, ANetworkThatIsDamagedWithinIsNamedAndNothingIsSaved) {
    std::fstream file(client_.TreeFile("share/seaplan/network.bin"),
                      std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(100000);
    file << "a scratch on the disk";
    file.close();
    ExpectTrouble(client_.Plan(kPlan), {"The voyage was not planned", "network.bin"});
    EXPECT_EQ(client_.Number("select count(*) from categories"), 0);
}

TEST_F(DamagedTree, AMissingPluginIsNamed) {
    fs::remove(client_.TreeFile("lib/" + fs::path(CLIENT_PLUGIN).filename().string()));
    ExpectTrouble(client_.Plan(kPlan), {"The voyage plug-in is not loaded", "Build or install"});
}

TEST(PlanTrouble, ADataFolderThatCannotBeMadeIsNamed) {
    ClientTree client;
    client.SetData("/proc/seaplan");
    ExpectTrouble(client.Plan(kPlan), {"/proc/seaplan", "--data DIR"});
}

TEST(PlanTrouble, AFullDataFolderIsNamedAndNothingIsSaved) {
    const ClientTree client;
    ASSERT_EQ(client.Plan({"Rotterdam", "Hamburg"}).exitCode, 0);
    auto start = client.Words({"plan", "Rotterdam", "Hamburg", "--save", "Trade/First"});
    for (const long bytes : {0L, 100000L, 1000000L}) {
        start.fileBytes = bytes;
        ExpectTrouble(RunToEnd(start), {client.Data(), "is full", "free some space"});
        EXPECT_EQ(client.Number("select count(*) from categories"), 0) << bytes;
    }
    EXPECT_EQ(client.Plan(kPlan).exitCode, 0);
}

TEST(PlanTrouble, ADataBaseThatIsNoneIsNamed) {
    const ClientTree client;
    fs::create_directories(client.Data());
    std::ofstream(client.Data("voyages.db")) << std::string(8192, 'x');
    ExpectTrouble(client.Plan(kPlan), {"voyages.db", "cannot be opened"});
}

/// The port of a server that is not there any more: bound for a moment, then free.
int DeadPort() {
    const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    const bool bound = bind(socket, reinterpret_cast<sockaddr*>(&address), size) == 0 &&
                       getsockname(socket, reinterpret_cast<sockaddr*>(&address), &size) == 0;
    close(socket);
    return bound ? ntohs(address.sin_port) : 0;
}

TEST(PlanTrouble, AServerThatIsDownIsNamed) {
    const ClientTree client;
    const std::string server = "http://127.0.0.1:" + std::to_string(DeadPort());
    auto start = client.Words({"--server", server, "plan", "Rotterdam", "Hamburg"});
    start.environment["SEAPLAN_USER"] = "anna";
    start.environment["SEAPLAN_PASSWORD"] = "secret";
    ExpectTrouble(RunToEnd(start), {server, "does not answer", "Check the address"});
    EXPECT_FALSE(fs::exists(client.Data("voyages.db")));
}

TEST(PlanTrouble, AServerElsewhereAsksForALogin) {
    const ClientTree client;
    auto start = client.Words({"--server", "http://127.0.0.1:1", "plan", "Rotterdam", "Hamburg"});
    ExpectTrouble(RunToEnd(start), {"Nobody is logged in", "SEAPLAN_USER"});
}

/// The client's window on a display, which cannot come up.
Ended OpenWindow(const std::string& display) {
    const ClientTree client;
    auto start = client.Words({});
    start.environment["DISPLAY"] = display;
    start.environment["WAYLAND_DISPLAY"] = "";
    start.environment["QT_QPA_PLATFORM"] = "xcb";
    return RunToEnd(start);
}

/// A number that no display of this machine has.
int FreeDisplay() {
    return 10000 + getpid() % 50000;
}

TEST(DisplayTrouble, ADisplayThatIsNotThereEndsTheClientInOneLine) {
    const std::string display = ":" + std::to_string(FreeDisplay());
    const Ended ended = OpenWindow(display);
    EXPECT_EQ(ended.signal, 0);
    ExpectTrouble(ended, {"The display cannot be used", display, "plan PORT PORT"});
}

TEST(DisplayTrouble, ADisplayThatDoesNotAnswerEndsTheClientInOneLine) {
    const int number = FreeDisplay();
    const int listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    // The name is abstract: nothing of it stands in a folder.
    const std::string name = std::string(1, '\0') + "/tmp/.X11-unix/X" + std::to_string(number);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::copy(name.begin(), name.end(), address.sun_path);
    const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + name.size());
    ASSERT_EQ(bind(listener, reinterpret_cast<sockaddr*>(&address), size), 0);
    ASSERT_EQ(listen(listener, 4), 0);
    const Ended ended = OpenWindow(":" + std::to_string(number));
    EXPECT_EQ(ended.signal, 0);
    ExpectTrouble(ended, {"The display cannot be used", "it does not answer"});
    close(listener);
}

}  // namespace
}  // namespace Tarvik::Programs
