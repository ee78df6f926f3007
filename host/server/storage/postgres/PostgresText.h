// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>
#include <functional>
#include <string>
#include <string_view>

namespace Tarvik::Server {

/// Values as the data base server reads them, independent of any locale.
template <std::integral Number>
std::string PostgresText(Number number) {
    return std::to_string(number);
}
inline std::string PostgresText(bool flag) {
    return flag ? "t" : "f";
}
/// Reads back as the same number to the bit.
std::string PostgresText(double number);
/// Throws PostgresError for a text with a zero byte, behind which the data base would lose the rest.
std::string PostgresText(std::string_view text);
inline std::string PostgresText(const std::string& text) {
    return PostgresText(std::string_view(text));
}
inline std::string PostgresText(const char* text) {
    return PostgresText(std::string_view(text));
}

/// Adds one element to the text of an array.
void AppendElement(std::string& array, std::string_view element);

/// The array of what `project` gives of each row; a member pointer will do.
template <class Rows, class Project>
std::string PostgresArray(const Rows& rows, Project project) {
    std::string array = "{";
    for (const auto& row : rows) {
        AppendElement(array, PostgresText(std::invoke(project, row)));
    }
    array += '}';
    return array;
}

}  // namespace Tarvik::Server
