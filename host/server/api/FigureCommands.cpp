// SPDX-License-Identifier: MIT
#include "host/server/api/FigureCommands.h"

#include <limits>

#include "host/server/api/Refusal.h"
#include "host/server/api/Replies.h"
#include "host/server/api/RequestFields.h"

namespace Tarvik::Server {

std::string FigureCommands::Store(const std::string& user, std::string_view text) {
    const RequestFields fields(text);
    const std::string id = fields.Text("vi");
    Figures figures{};
    for (std::size_t i = 0; i < figures.size(); ++i) {
        figures[i] = fields.Number(kFigureKeys[i], 0, std::numeric_limits<std::int32_t>::max());
    }
    ValueOrRefuse(storage_.SetFigures(user, id, figures));
    return Replies::Success();
}

}  // namespace Tarvik::Server
