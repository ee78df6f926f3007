// SPDX-License-Identifier: MIT
#include <filesystem>
#include <memory>

#include "host/server/accounts/Credentials.h"
#include "host/server/net/service/Resources.h"
#include "host/server/program/Program.h"
#include "host/server/storage/contract/ServerTime.h"

namespace Tarvik::Server {

namespace {

/// The data bases that a command works on.
struct Opened {
    std::unique_ptr<SqlStorage> voyages;
    std::unique_ptr<AccountStorage> accounts;  ///< null in a client's folder
};

bool OpenServer(const Settings& settings, Opened& opened, std::string& error) {
    opened.voyages = OpenVoyages(settings, error);
    if (opened.voyages == nullptr) {
        return false;
    }
    opened.accounts = OpenAccounts(settings, error);
    return opened.accounts != nullptr;
}

bool OpenFolder(const Settings& settings, bool mayMake, Opened& opened, std::string& error) {
    std::error_code ignored;
    const bool hasVoyages = std::filesystem::exists(settings.data + "/voyages.db", ignored);
    const bool hasAccounts = std::filesystem::exists(settings.data + "/accounts.db", ignored);
    if (!hasVoyages && !hasAccounts && !mayMake) {
        error = "there is no data base in " + settings.data;
        return false;
    }
    if (!PrepareDataFolder(settings, error)) {
        return false;
    }
    if (hasAccounts || !hasVoyages) {
        opened.accounts = OpenAccounts(settings, error);
        if (opened.accounts == nullptr) {
            return false;
        }
    }
    opened.voyages = OpenVoyages(settings, error);
    return opened.voyages != nullptr;
}

bool Export(const TransferCommand& command, Opened& opened, std::string& said) {
    TransferContent content;
    Exporter exporter(opened.voyages->Transfer(), opened.accounts.get(), SystemSeconds);
    if (!exporter.Run(command.exporting, command.file, content, said)) {
        return false;
    }
    said = "exported " + Summary(content);
    return true;
}

bool Import(const TransferCommand& command, Opened& opened, TransferSource& reader, std::string& said) {
    ImportChoice choice = command.importing;
    if (opened.accounts == nullptr && choice.user.empty()) {
        choice.user = kClientUser;
    }
    std::string error;
    if (Importer(opened.voyages->Transfer(), opened.accounts.get(), IsUserName)
            .Run(choice, reader, said, error)) {
        return true;
    }
    said = error;
    return false;
}

}  // namespace

bool RunTransfer(const TransferCommand& command, Settings settings, std::string& said) {
    if (!command.data.empty()) {
        settings.data = command.data;
        settings.database.clear();
    }
    // Looked at first, so that a wrong file makes no data base.
    std::unique_ptr<TransferSource> reader;
    TransferContent content;
    if (command.import) {
        reader = OpenTransferSource(command.file, command.importing.skipBad, said);
        if (reader == nullptr || !reader->ReadContent(content, said)) {
            return false;
        }
    }
    Opened opened;
    const bool mayMake = command.import && command.data.empty();
    const bool ready = settings.database.empty() ? OpenFolder(settings, mayMake, opened, said)
                                                 : OpenServer(settings, opened, said);
    if (!ready) {
        return false;
    }
    return command.import ? Import(command, opened, *reader, said) : Export(command, opened, said);
}

}  // namespace Tarvik::Server
