// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <sys/types.h>
#include <thread>

#include "host/server/storage/sqlite/tests/TempFolder.h"

namespace Tarvik::Server {

/// A data base server of this test program alone: its data and its socket stand in a temporary folder, it
/// listens on no port, and it ends with the program, also when that is killed. Run by the administrator, it
/// becomes another user, since the data base server refuses to be the administrator.
class PostgresServer {
  public:
    /// Whether changes wait for the disk, as they do by default. What a killed process leaves does not depend
    /// on that, but when it is killed does.
    enum class Disk { Ignored, Awaited };

    /// The one of this program, started at the first call, which decides about the disk.
    static PostgresServer& Instance(Disk disk = Disk::Ignored);

    ~PostgresServer();
    PostgresServer(const PostgresServer&) = delete;
    PostgresServer& operator=(const PostgresServer&) = delete;

    /// Makes an empty data base and gives the connection text that leads to it. `options` are those of the
    /// SQL command.
    std::string MakeDatabase(const std::string& options = {});
    /// Breaks every connection at once and recovers from the log, as after a crash. What was confirmed is
    /// there afterwards. The data base server takes connections again when this returns.
    void CrashAndRestart();
    /// The connection text of a data base.
    std::string Connection(const std::string& database) const;
    /// Folder of the socket.
    std::string SocketFolder() const { return folder_.File("."); }

  private:
    explicit PostgresServer(Disk disk);
    void Initialize();
    void Start();
    /// Waits until the data base server has ended after the signal.
    void Stop(int signal);

    Disk disk_;
    TempFolder folder_;
    pid_t process_ = -1;
    std::thread reader_;  ///< takes what the data base server says, so that it never waits for that
    int databases_ = 0;
};

}  // namespace Tarvik::Server
