// SPDX-License-Identifier: MIT
#include "tests/gui/ClientTree.h"

#include <filesystem>

#include <sqlite3.h>

namespace fs = std::filesystem;

namespace Tarvik::Programs {

ClientTree::ClientTree() : program_(CLIENT_PROGRAM), data_(folder_.File("data")) {}

void ClientTree::CopyTree() {
    const fs::path built = fs::path(CLIENT_PROGRAM).parent_path().parent_path();
    for (const char* part : {"bin", "lib", "share/seaplan"}) {
        fs::create_directories(TreeFile(part));
    }
    fs::copy_file(CLIENT_PROGRAM, TreeFile("bin/client"));
    program_ = TreeFile("bin/client");
    fs::copy(built / "share" / "seaplan", TreeFile("share/seaplan"), fs::copy_options::recursive);
    // Linked, as the libraries of a debug build are large; a test removes the link, never the library.
    for (const char* name : {CLIENT_PLUGIN, CLIENT_CHART}) {
        fs::create_symlink(name, fs::path(TreeFile("lib")) / fs::path(name).filename());
    }
}

ChildProcess::Start ClientTree::Words(const std::vector<std::string>& words) const {
    ChildProcess::Start start;
    start.words = {program_, "--data", data_};
    start.words.insert(start.words.end(), words.begin(), words.end());
    // Libraries of the window system keep memory to the end, which is no finding here.
    // Without a bus of the session the window system's library forks to start one, and the forked child may
    // wait for ever for the sanitizer's allocator, which another thread held.
    start.environment = {{"ASAN_OPTIONS", "detect_leaks=0"},
                         {"DBUS_SESSION_BUS_ADDRESS", "disabled:"},
                         {"SEAPLAN_USER", ""},
                         {"SEAPLAN_PASSWORD", ""}};
    return start;
}

Ended ClientTree::Plan(const std::vector<std::string>& words) const {
    std::vector<std::string> all{"plan"};
    all.insert(all.end(), words.begin(), words.end());
    return RunToEnd(Words(all));
}

std::string ClientTree::Data(const std::string& name) const {
    return name.empty() ? data_ : data_ + "/" + name;
}

long ClientTree::Number(const std::string& sql) const {
    sqlite3* database = nullptr;
    sqlite3_stmt* statement = nullptr;
    long number = -1;
    const bool asked =
        sqlite3_open_v2(Data("voyages.db").c_str(), &database, SQLITE_OPEN_READWRITE, nullptr) == SQLITE_OK &&
        sqlite3_busy_timeout(database, 5000) == SQLITE_OK &&
        sqlite3_prepare_v2(database, sql.c_str(), -1, &statement, nullptr) == SQLITE_OK &&
        sqlite3_step(statement) == SQLITE_ROW;
    if (asked) {
        number = static_cast<long>(sqlite3_column_int64(statement, 0));
    }
    sqlite3_finalize(statement);
    sqlite3_close(database);
    return number;
}

}  // namespace Tarvik::Programs
