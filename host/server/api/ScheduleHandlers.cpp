// SPDX-License-Identifier: MIT
#include <algorithm>

#include "host/server/api/CommandHandlers.h"
#include "host/server/api/Refusal.h"
#include "host/server/api/Replies.h"
#include "host/server/api/RequestFields.h"
#include "host/server/storage/contract/ScheduleStorage.h"

namespace Tarvik::Server {

namespace {

/// The ports that a voyage of the caller's may call at.
class KnownPorts {
  public:
    explicit KnownPorts(const CommandCall& call)
        : routes_(call.routes), own_(ValueOrRefuse(call.storage.Places().LoadPlaces(call.user))) {}

    bool Know(const std::string& id) const {
        return routes_.KnowsPort(id) ||
               std::any_of(own_.begin(), own_.end(),
                           [&id](const PlaceRecord& place) { return place.id == id; });
    }

  private:
    RouteSource& routes_;
    std::vector<PlaceRecord> own_;
};

}  // namespace

std::string LoadBook(const CommandCall& call) {
    return Replies::Book(
        ValueOrRefuse(call.storage.Schedule().LoadBook(call.user, RequestFields(call.text).Text("vi"))));
}

std::string CreateBook(const CommandCall& call) {
    const RequestFields fields(call.text);
    const std::string date = fields.Time("dt");
    return Replies::Created(
        "psb", ValueOrRefuse(call.storage.Schedule().CreateBook(call.user, fields.Text("vi"), date)));
}

std::string WriteBookRows(const CommandCall& call) {
    const std::vector<std::string> texts = ReadTexts(call.text, 2);
    std::vector<BookRowRecord> rows;
    rows.reserve(texts.size() - 2);
    for (std::size_t i = 2; i < texts.size(); ++i) {
        rows.push_back(ReadBookRow(texts[i]));
    }
    if (texts[1] == "0") {
        ValueOrRefuse(call.storage.Schedule().ReplaceBookRows(call.user, texts[0], call.writer, rows));
    } else if (texts[1] == "1") {
        ValueOrRefuse(call.storage.Schedule().AppendBookRows(call.user, texts[0], call.writer, rows));
    } else {
        throw Refusal(ErrorCode::UnknownOperation, "item 1");
    }
    return Replies::Success();
}

std::string SetBookDate(const CommandCall& call) {
    const RequestFields fields(call.text);
    const std::string date = fields.Time("dt");
    ValueOrRefuse(call.storage.Schedule().SetBookDate(call.user, fields.Text("psb"), date));
    return Replies::Success();
}

std::string LoadPortCalls(const CommandCall& call) {
    return Replies::PortCalls(
        ValueOrRefuse(call.storage.Schedule().LoadPortCalls(call.user, RequestFields(call.text).Text("vi"))));
}

std::string ReplacePortCalls(const CommandCall& call) {
    const std::vector<std::string> texts = ReadTexts(call.text, 1);
    // No client means to erase a whole schedule by an empty list.
    if (texts.size() < 2) {
        throw Refusal(ErrorCode::NoRows);
    }
    const KnownPorts ports(call);
    std::vector<PortCallRecord> calls;
    calls.reserve(texts.size() - 1);
    for (std::size_t i = 1; i < texts.size(); ++i) {
        calls.push_back(ReadPortCall(texts[i]));
        if (!ports.Know(calls.back().portId)) {
            throw Refusal(ErrorCode::UnknownPort, texts[i]);
        }
    }
    ValueOrRefuse(call.storage.Schedule().ReplacePortCalls(call.user, texts[0], calls));
    return Replies::Success();
}

std::string LoadAisTimes(const CommandCall& call) {
    return Replies::AisTimes(
        ValueOrRefuse(call.storage.Schedule().LoadAisTimes(call.user, RequestFields(call.text).Text("vi"))));
}

std::string AddAisTime(const CommandCall& call) {
    const RequestFields fields(call.text);
    const std::string time = fields.Time("time");
    ValueOrRefuse(call.storage.Schedule().AddAisTime(call.user, fields.Text("vi"), time));
    return Replies::Success();
}

}  // namespace Tarvik::Server
