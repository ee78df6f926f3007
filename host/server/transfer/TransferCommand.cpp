// SPDX-License-Identifier: MIT
#include "host/server/transfer/TransferCommand.h"

#include <string_view>

namespace Tarvik::Server {

namespace {

/// Takes the words one by one.
class Words {
  public:
    explicit Words(const std::vector<std::string>& words) : words_(words) {}

    bool Left() const { return place_ < words_.size(); }
    std::string Take() { return words_[place_++]; }
    /// Whether `word` is the option; its value, which must not be empty, goes into `value`.
    bool IsOption(const std::string& word, std::string_view option, std::string& value) {
        if (word == option && Left()) {
            value = Take();
        } else if (word.starts_with(std::string(option) + "=")) {
            value = word.substr(option.size() + 1);
        }
        return !value.empty() && word.starts_with(option);
    }

  private:
    const std::vector<std::string>& words_;
    std::size_t place_ = 1;
};

}  // namespace

bool TransferCommand::IsMeant(const std::vector<std::string>& words) {
    return !words.empty() && (words[0] == "export" || words[0] == "import");
}

std::optional<TransferCommand> TransferCommand::Parse(const std::vector<std::string>& words) {
    if (!IsMeant(words)) {
        return std::nullopt;
    }
    TransferCommand command;
    command.import = words[0] == "import";
    std::string user;
    Words left(words);
    while (left.Left()) {
        const std::string word = left.Take();
        if (user.empty() && left.IsOption(word, "--user", user)) {
            continue;
        }
        if (command.data.empty() && left.IsOption(word, "--data", command.data)) {
            continue;
        }
        if (word == "--all" && !command.import) {
            command.exporting.all = true;
        } else if (word == "--add" && command.import) {
            command.importing.add = true;
        } else if (word == "--skip-bad" && command.import) {
            command.importing.skipBad = true;
        } else if (!word.starts_with("-") && !word.empty() && command.file.empty()) {
            command.file = word;
        } else {
            return std::nullopt;
        }
    }
    if (command.file.empty() || (command.exporting.all && !user.empty())) {
        return std::nullopt;
    }
    command.exporting.user = user;
    command.importing.user = user;
    return command;
}

}  // namespace Tarvik::Server
