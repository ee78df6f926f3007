// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

namespace Tarvik::Client {

/// Folder in which the running program lies. What differs by system about it stands in this file alone.
std::string ProgramFolder();

/// Whether an SQLite file is there and as long as its head says. `error` names the file and says what to do.
bool CheckDatabaseFile(const std::string& path, std::string& error);

/// Whether a file of land or sea network is there and whole. It begins with 8 bytes of its kind and the
/// payload's length (u64, little-endian); the payload follows behind a head of `headBytes`. `error` names the
/// file and says what to do.
bool CheckFramedFile(const std::string& path, const std::string& kind, std::size_t headBytes,
                     std::string& error);

/// CheckFramedFile for the land of the chart and for the sea network.
bool CheckLandFile(const std::string& path, std::string& error);
bool CheckNetworkFile(const std::string& path, std::string& error);

/// Where the client finds what it ships and where it keeps what is the person's.
class AppFolders {
  public:
    /// `programFolder` is the folder of the program; `dataFolder` the person's choice, empty for the usual
    /// place: $SEAPLAN_DATA, else seaplan below $XDG_DATA_HOME or ~/.local/share.
    AppFolders(const std::string& programFolder, const std::string& dataFolder);

    /// Read-only files shipped with the program.
    const std::string& Share() const { return share_; }
    /// Folder of the language files.
    std::string Languages() const { return share_ + "/lang"; }
    /// Folder of the user's guide, with a folder for each language.
    std::string Guide() const { return share_ + "/guide"; }
    /// The person's folder: data base, log, preferences, businessdata.
    const std::string& Data() const { return data_; }
    /// Folder of the plug-ins.
    const std::string& Plugins() const { return plugins_; }
    /// A shipped file by its name, also when it lies in the shipped businessdata.
    std::string ShareFile(const std::string& name) const;
    /// A file of the person's businessdata.
    std::string BusinessData(const std::string& name) const;

    /// Makes the data folder and fills or refreshes its businessdata from what is shipped. False with one
    /// line that says what is wrong and what to do: a folder that cannot be written or is full, a shipped
    /// file that is missing or cut short.
    bool Prepare(std::string& error) const;

  private:
    bool Probe(std::string& error) const;
    bool Refresh(const std::string& name, const std::string& target, std::string& error) const;

    std::string share_;
    std::string data_;
    std::string plugins_;
};

/// Says who has a data folder open: the first claim holds it until its end, whatever ends the program.
class FolderClaim {
  public:
    explicit FolderClaim(const std::string& folder);
    ~FolderClaim();
    FolderClaim(const FolderClaim&) = delete;
    FolderClaim& operator=(const FolderClaim&) = delete;

    /// Whether no other program has the folder open.
    bool IsAlone() const { return alone_; }

  private:
    int file_;
    bool alone_;
};

}  // namespace Tarvik::Client
