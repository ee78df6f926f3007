// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <list>
#include <string>
#include <string_view>
#include <thread>

#include "host/server/storage/sqlite/tests/TempFolder.h"

namespace Tarvik::Server {

/// Stands between a program and its data base server, on a socket in a temporary folder, and cuts a
/// connection at a given place.
class PostgresProxy {
  public:
    enum class Cut {
        Never,
        BeforeCommit,        ///< the data base never hears of the commit
        AfterCommit,         ///< the data base has committed, and nobody is told
        SilentBeforeCommit,  ///< as BeforeCommit, but the connection stays, and nothing comes any more
        SilentAtCommit,      ///< as AfterCommit, but the connection stays, and nothing comes any more
        Silent,              ///< nothing goes on, in either direction, and nothing is cut
    };

    /// `folder` is that of the data base server's socket.
    explicit PostgresProxy(const std::string& folder);
    ~PostgresProxy();
    PostgresProxy(const PostgresProxy&) = delete;
    PostgresProxy& operator=(const PostgresProxy&) = delete;

    /// The folder to name in a connection text.
    std::string SocketFolder() const { return folder_.File("."); }
    /// What comes next. A cut is made once, and then everything passes again, on other connections.
    void Next(Cut cut) { cut_ = cut; }

  private:
    void Accept();
    void Carry(int client);
    /// False when the connection is to end.
    bool Pass(int from, int to);
    /// What becomes of a commit that is not to be answered; always false.
    bool Spoil(int client, int server, std::string_view commit);

    TempFolder folder_;
    std::string target_;
    int listener_;
    std::atomic<Cut> cut_{Cut::Never};
    std::atomic<bool> ended_{false};
    std::list<std::thread> threads_;
    std::thread acceptor_;
};

}  // namespace Tarvik::Server
