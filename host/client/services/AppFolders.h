// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Tarvik::Client {

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

}  // namespace Tarvik::Client
