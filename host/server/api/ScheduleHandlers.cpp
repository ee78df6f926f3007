// SPDX-License-Identifier: MIT
#include "host/server/api/CommandHandlers.h"
#include "host/server/api/Refusal.h"
#include "host/server/api/Replies.h"
#include "host/server/api/RequestFields.h"

namespace Tarvik::Server {

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
    std::vector<PortCallRecord> calls;
    calls.reserve(texts.size() - 1);
    for (std::size_t i = 1; i < texts.size(); ++i) {
        calls.push_back(ReadPortCall(texts[i]));
        if (!call.routes.KnowsPort(calls.back().portId)) {
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
