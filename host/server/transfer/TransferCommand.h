// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/server/transfer/Exporter.h"
#include "host/server/transfer/Importer.h"

namespace Tarvik::Server {

/// The words of an export or import.
struct TransferCommand {
    bool import = false;
    std::string file;
    std::string data;  ///< folder of the data bases; empty: the one of the settings
    ExportChoice exporting;
    ImportChoice importing;

    /// Whether the words begin with "export" or "import".
    static bool IsMeant(const std::vector<std::string>& words);
    /// `export [--user NAME | --all] [--data FOLDER] FILE` or `import [--user NAME] [--add] [--skip-bad]
    /// [--data FOLDER] FILE`, options anywhere behind the first word, also as "--user=NAME". Nothing for
    /// words of another form.
    static std::optional<TransferCommand> Parse(const std::vector<std::string>& words);
};

}  // namespace Tarvik::Server
