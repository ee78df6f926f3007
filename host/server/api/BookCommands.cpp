// SPDX-License-Identifier: MIT
#include "host/server/api/BookCommands.h"

#include "host/server/api/Refusal.h"
#include "host/server/api/Replies.h"
#include "host/server/api/RequestFields.h"
#include "host/server/api/RequestRows.h"

namespace Tarvik::Server {

std::string BookCommands::Load(const std::string& user, std::string_view text) {
    return Replies::Book(ValueOrRefuse(storage_.LoadBook(user, RequestFields(text).Text("vi"))));
}

std::string BookCommands::Create(const std::string& user, std::string_view text) {
    const RequestFields fields(text);
    const std::string date = fields.Time("dt");
    return Replies::Created("psb", ValueOrRefuse(storage_.CreateBook(user, fields.Text("vi"), date)));
}

std::string BookCommands::WriteRows(const std::string& user, std::string_view text) {
    const std::vector<std::string> texts = ReadTexts(text, 2);
    std::vector<BookRowRecord> rows;
    rows.reserve(texts.size() - 2);
    for (std::size_t i = 2; i < texts.size(); ++i) {
        rows.push_back(ReadBookRow(texts[i]));
    }
    if (texts[1] == "0") {
        ValueOrRefuse(storage_.ReplaceBookRows(user, texts[0], rows));
    } else if (texts[1] == "1") {
        ValueOrRefuse(storage_.AppendBookRows(user, texts[0], rows));
    } else {
        throw Refusal(ErrorCode::UnknownOperation, "item 1");
    }
    return Replies::Success();
}

std::string BookCommands::SetDate(const std::string& user, std::string_view text) {
    const RequestFields fields(text);
    const std::string date = fields.Time("dt");
    ValueOrRefuse(storage_.SetBookDate(user, fields.Text("psb"), date));
    return Replies::Success();
}

}  // namespace Tarvik::Server
