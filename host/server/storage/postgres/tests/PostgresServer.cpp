// SPDX-License-Identifier: MIT
#include "host/server/storage/postgres/tests/PostgresServer.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <future>
#include <pwd.h>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include <grp.h>
#include <pqxx/pqxx>

#include "host/server/storage/postgres/PostgresConnection.h"

/// The library loses the answer that tells it of a broken connection, two kilobytes each time.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions() {
    return "leak:libpqxx";
}

namespace Tarvik::Server {

namespace {

/// Longer paths do not fit into a socket's address.
constexpr std::size_t kLongestSocketPath = 107;
constexpr const char* kReady = "database system is ready to accept connections";

/// Whom the administrator becomes.
const passwd* OtherUser() {
    const passwd* user = getpwnam("postgres");
    if (user == nullptr) {
        user = getpwnam("nobody");
    }
    if (user == nullptr) {
        throw std::runtime_error("there is no user to run the data base server as");
    }
    return user;
}

/// Starts a program of the data base server's package, with both of its outputs going to `out`.
pid_t StartProgram(std::vector<std::string> words, const std::string& folder, int out) {
    const passwd* user = geteuid() == 0 ? OtherUser() : nullptr;
    words[0] = std::string(SEAPLAN_POSTGRES_PROGRAMS) + "/" + words[0];
    std::vector<char*> raw;
    raw.reserve(words.size() + 1);
    for (std::string& word : words) {
        raw.push_back(word.data());
    }
    raw.push_back(nullptr);
    const pid_t parent = getpid();
    const pid_t process = fork();
    if (process != 0) {
        return process;
    }
    if (user != nullptr &&
        (setgroups(0, nullptr) != 0 || setgid(user->pw_gid) != 0 || setuid(user->pw_uid) != 0)) {
        _exit(126);
    }
    // Behind the change of user, which forgets it: a killed test program leaves no server behind.
    signal(SIGQUIT, SIG_DFL);
    prctl(PR_SET_PDEATHSIG, SIGQUIT);
    if (getppid() != parent || chdir(folder.c_str()) != 0) {
        _exit(126);
    }
    dup2(out, STDOUT_FILENO);
    dup2(out, STDERR_FILENO);
    setenv("LC_ALL", "C", 1);
    execv(raw[0], raw.data());
    _exit(127);
}

/// The reading and the writing end of a pipe that started programs do not inherit.
std::pair<int, int> MakePipe() {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
        throw std::runtime_error("there is no pipe");
    }
    return {ends[0], ends[1]};
}

}  // namespace

PostgresServer& PostgresServer::Instance(Disk disk) {
    static PostgresServer server(disk);
    return server;
}

PostgresServer::PostgresServer(Disk disk) : disk_(disk) {
    if (folder_.File("./.s.PGSQL.5432").size() >= kLongestSocketPath) {
        throw std::runtime_error("the path of the temporary folder is too long for a socket");
    }
    if (geteuid() == 0) {
        const passwd* user = OtherUser();
        if (chown(folder_.File(".").c_str(), user->pw_uid, user->pw_gid) != 0) {
            throw std::runtime_error("the temporary folder cannot be given away");
        }
    }
    Initialize();
    Start();
}

PostgresServer::~PostgresServer() {
    // Without writing out what is thrown away with the folder.
    Stop(SIGQUIT);
}

void PostgresServer::Initialize() {
    const auto [in, out] = MakePipe();
    const pid_t process =
        StartProgram({"initdb", "--pgdata=" + folder_.File("data"), "--username=seaplan", "--auth=trust",
                      "--encoding=UTF8", "--no-locale", "--no-sync", "--wal-segsize=1"},
                     folder_.File("."), out);
    close(out);
    std::string said;
    char buffer[4096];
    for (ssize_t count = 0; (count = read(in, buffer, sizeof(buffer))) > 0;) {
        said.append(buffer, static_cast<std::size_t>(count));
    }
    close(in);
    int status = 0;
    waitpid(process, &status, 0);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        throw std::runtime_error("initdb failed: " + said);
    }
}

void PostgresServer::Start() {
    const auto [in, out] = MakePipe();
    process_ = StartProgram({"postgres", "-D", folder_.File("data"), "-k", folder_.File("."), "-c",
                             "listen_addresses=", "-c", "shared_buffers=16MB", "-c", "max_connections=80",
                             "-c", disk_ == Disk::Awaited ? "fsync=on" : "fsync=off"},
                            folder_.File("."), out);
    close(out);
    std::promise<std::string> begun;
    auto ready = begun.get_future();
    reader_ = std::thread([in = in, begun = std::move(begun)]() mutable {
        FILE* lines = fdopen(in, "r");
        std::string said;
        bool told = false;
        char line[4096];
        while (std::fgets(line, sizeof(line), lines) != nullptr) {
            if (told) {
                continue;
            }
            said += line;
            told = said.find(kReady) != std::string::npos;
            if (told) {
                begun.set_value({});
            }
        }
        if (!told) {
            begun.set_value(said.empty() ? "it said nothing" : said);
        }
        std::fclose(lines);
    });
    const std::string failure = ready.get();
    if (!failure.empty()) {
        Stop(SIGQUIT);
        throw std::runtime_error("the data base server did not start: " + failure);
    }
}

void PostgresServer::Stop(int signal) {
    if (process_ > 0) {
        kill(process_, signal);
        int status = 0;
        while (waitpid(process_, &status, 0) < 0 && errno == EINTR) {
        }
        process_ = -1;
    }
    if (reader_.joinable()) {
        reader_.join();
    }
}

std::string PostgresServer::Connection(const std::string& database) const {
    return "host='" + folder_.File(".") + "' user=seaplan dbname=" + database;
}

std::string PostgresServer::MakeDatabase(const std::string& options) {
    const std::string name = "voyages" + std::to_string(++databases_);
    pqxx::connection connection(Connection("postgres"));
    pqxx::nontransaction(connection).exec("CREATE DATABASE " + name + " TEMPLATE template0 " + options);
    return Connection(name);
}

void PostgresServer::CrashAndRestart() {
    Stop(SIGQUIT);
    Start();
}

}  // namespace Tarvik::Server
