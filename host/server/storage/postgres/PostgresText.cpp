// SPDX-License-Identifier: MIT
#include "host/server/storage/postgres/PostgresText.h"

#include <array>
#include <charconv>

#include "host/server/storage/postgres/PostgresError.h"

namespace Tarvik::Server {

std::string PostgresText(double number) {
    std::array<char, 64> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number);
    return {text.data(), end.ptr};
}

std::string PostgresText(std::string_view text) {
    if (text.find('\0') != std::string_view::npos) {
        throw PostgresError("the data base keeps no text with a zero byte");
    }
    return std::string(text);
}

void AppendElement(std::string& array, std::string_view element) {
    array += array.size() > 1 ? ",\"" : "\"";
    for (const char sign : element) {
        if (sign == '"' || sign == '\\') {
            array += '\\';
        }
        array += sign;
    }
    array += '"';
}

}  // namespace Tarvik::Server
