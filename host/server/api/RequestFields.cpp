// SPDX-License-Identifier: MIT
#include "host/server/api/RequestFields.h"

#include <limits>

#include "host/server/api/Numbers.h"
#include "host/server/api/Refusal.h"

namespace Tarvik::Server {

using Util::Jsona;

RequestFields::RequestFields(std::string_view text) {
    if (!root_.parse(text)) {
        throw Refusal(ErrorCode::BadJson,
                      std::string(root_.ErrorText()) + " at byte " + std::to_string(root_.ErrorOffset()));
    }
    if (root_.kind() != Jsona::Kind::Object) {
        throw Refusal(ErrorCode::BadJson, "an object is expected");
    }
}

std::string RequestFields::Text(std::string_view key, std::size_t most) const {
    const Jsona value = root_.get(key);
    if (value.kind() != Jsona::Kind::Text) {
        throw Refusal(ErrorCode::MissingValue, std::string(key));
    }
    std::string text = value.text();
    CheckText(text, most, key);
    return text;
}

std::string RequestFields::Name(std::string_view key) const {
    std::string text = Text(key);
    if (text.empty()) {
        throw Refusal(ErrorCode::EmptyName, std::string(key));
    }
    return text;
}

std::int32_t RequestFields::Number(std::string_view key, std::int32_t least, std::int32_t most) const {
    const auto number = ParseInteger(Text(key), least, most);
    if (!number) {
        throw Refusal(ErrorCode::BadNumber, std::string(key));
    }
    return *number;
}

double RequestFields::Decimal(std::string_view key) const {
    using Limits = std::numeric_limits<double>;
    const auto number = ParseDecimal(Text(key), Limits::lowest(), Limits::max());
    if (!number) {
        throw Refusal(ErrorCode::BadNumber, std::string(key));
    }
    return *number;
}

std::string RequestFields::Time(std::string_view key) const {
    std::string text = Text(key);
    if (!IsTimeText(text)) {
        throw Refusal(ErrorCode::BadTime, std::string(key));
    }
    return text;
}

int RequestFields::Operation(std::string_view key) const {
    const Jsona value = root_.get(key);
    if (value.kind() == Jsona::Kind::Integer) {
        return value.integer(-1);
    }
    const auto number = ParseInteger(Text(key), 0, std::numeric_limits<std::int32_t>::max());
    return number.value_or(-1);
}

void CheckUser(std::string_view request, const std::string& user) {
    if (RequestFields(request).Text("ui") != user) {
        throw Refusal(ErrorCode::OtherUser);
    }
}

void CheckText(std::string_view text, std::size_t most, std::string_view key) {
    if (const auto fault = FaultOf(text, most)) {
        throw Refusal(*fault, std::string(key));
    }
}

}  // namespace Tarvik::Server
