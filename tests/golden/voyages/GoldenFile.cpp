// SPDX-License-Identifier: MIT
#include "tests/golden/voyages/GoldenFile.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include <fmt/format.h>

namespace Tarvik::Golden {

namespace {

std::filesystem::path PathOf(const std::string& voyage, const std::string& file) {
    return std::filesystem::path(GOLDEN_FOLDER) / voyage / file;
}

std::string write(const std::filesystem::path& path, const std::string& text) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << text;
    return out.flush() ? "" : path.string() + " cannot be written";
}

std::string FirstDifference(const std::string& expected, const std::string& actual) {
    std::istringstream left(expected);
    std::istringstream right(actual);
    std::string a;
    std::string b;
    for (int line = 1;; ++line) {
        const bool more = static_cast<bool>(std::getline(left, a));
        const bool another = static_cast<bool>(std::getline(right, b));
        if (!more) {
            a = "(end)";
        }
        if (!another) {
            b = "(end)";
        }
        if (a != b || !more) {
            return fmt::format("line {}:\n  file: {}\n  made: {}", line, a, b);
        }
    }
}

}  // namespace

bool Writing() {
    const char* asked = std::getenv("SEAPLAN_WRITE_GOLDEN");
    return asked != nullptr && std::string(asked) == "1";
}

std::string CompareOrWrite(const std::string& voyage, const std::string& file, const std::string& text) {
    const std::filesystem::path path = PathOf(voyage, file);
    if (Writing()) {
        return write(path, text);
    }
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        return path.string() + " is missing; SEAPLAN_WRITE_GOLDEN=1 writes it";
    }
    const std::string expected((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    return expected == text ? "" : path.string() + " differs in " + FirstDifference(expected, text);
}

}  // namespace Tarvik::Golden
