// SPDX-License-Identifier: MIT
#pragma once

#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <nlohmann/json_fwd.hpp>

#include "host/server/transfer/CopyCheck.h"
#include "host/server/transfer/TransferFile.h"

namespace Tarvik::Server {

/// Where an import takes its users from. A further form of file is one more class of this kind, and a line in
/// OpenTransferSource.
class TransferSource {
  public:
    virtual ~TransferSource() = default;

    /// Reads everything once and checks all of it. False, with an English text in `error`, when it cannot be
    /// taken.
    virtual bool ReadContent(TransferContent& content, std::string& error) = 0;
    /// Begins anew.
    virtual void Rewind() = 0;
    /// What was left out since the beginning, one line each: the record by its name, and why.
    virtual const std::vector<std::string>& LeftOut() const = 0;
    /// Gives the next user, or nothing behind the last, when the end was found to be right.
    virtual bool Next(std::optional<UserCopy>& user, std::string& error) = 0;
};

/// The source of a file, by its form. Null, with an English text in `error`, when the file cannot be read.
/// With `skipBad` a record that no server stores is left out, and what stands under it, and the rest is read.
std::unique_ptr<TransferSource> OpenTransferSource(const std::string& path, bool skipBad, std::string& error);

/// Reads a file of exported users. A file that is cut short, altered, of another form or version, or that
/// holds what no server stores is refused.
class TransferReader : public TransferSource {
  public:
    /// As OpenTransferSource.
    static std::unique_ptr<TransferReader> Open(const std::string& path, std::string& error,
                                                bool skipBad = false);

    bool ReadContent(TransferContent& content, std::string& error) override;
    void Rewind() override;
    const std::vector<std::string>& LeftOut() const override { return progress_->leftOut; }
    bool Next(std::optional<UserCopy>& user, std::string& error) override;

  private:
    /// What was read since the beginning.
    struct Progress {
        std::size_t lines = 0;
        Checksum checksum;
        CopyCheck check;
        std::optional<UserCopy> open;  ///< the user whose lines are being read
        bool skipUser = false;         ///< whether the user of these lines was left out
        bool skipCategory = false;     ///< the same of the category
        std::vector<std::string> leftOut;
        bool ended = false;
    };

    TransferReader(const std::string& path, bool skipBad);
    bool ReadLine(std::string& line, std::string& error);
    /// Takes a line; the user that it ends goes into `done`. Gives why not, empty when all is well.
    std::string Take(const std::string& line, std::optional<UserCopy>& done);
    std::string TakeUser(const nlohmann::ordered_json& object, std::optional<UserCopy>& done);
    std::string TakeRecord(const std::string& kind, const nlohmann::ordered_json& object);
    std::string TakeCategory(const nlohmann::ordered_json& object);
    std::string TakeVoyage(const nlohmann::ordered_json& object);
    std::string TakeRemark(const nlohmann::ordered_json& object);
    std::string TakeVessel(const nlohmann::ordered_json& object);
    std::string TakePlace(const nlohmann::ordered_json& object);
    /// Leaves the record out where that is wished. Gives `wrong` where it is not.
    std::string Skip(const std::string& kind, const nlohmann::ordered_json& object, std::string wrong);
    std::string TakeHead(const nlohmann::ordered_json& object) const;
    std::string TakeEnd(const nlohmann::ordered_json& object);

    std::string path_;
    bool skipBad_;
    std::ifstream in_;
    std::unique_ptr<Progress> progress_;
};

}  // namespace Tarvik::Server
